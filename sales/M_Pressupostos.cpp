#include "sales/M_Pressupostos.h"

#include "core/M_Funcions_Comuns.h"
#include "documents/M_Linies_Document.h"
#include "sales/M_Tipus_Venda.h"

namespace {

void Posar_Estat_Al_Formulari(bool estat) {
  if (Document_Obert* obert = sessio.pantalla->Document(tipus_pressupost.formulari)) obert->Posar_Estat(estat);
}

// A proposal with a new line is not accepted any more.
Apunt_Linia Obrir_Pressupost(const Capcalera_Oberta& /*cap*/, const Linia_Entrada& /*linia*/) {
  return {.abans = {}, .despres = [] { Posar_Estat_Al_Formulari(false); }};
}

void Columnes_De_Pressupost(const Capcalera_Oberta& /*cap*/, const Linia_Entrada& /*linia*/, Recordset& fila) {
  fila.Set("ESTAT_PL", false);
}

void Refer_Pressupost(const Capcalera_Oberta& cap, Document_Obert& /*obert*/) {
  Actualitzar_Estat_Pressupost(cap.numero.Enter(), cap.empresa);
}

}  // namespace

const Passos_Document passos_pressupost = {.columna_que_bloqueja = "COMANDA",
                                           .apunt = Obrir_Pressupost,
                                           .columnes = Columnes_De_Pressupost,
                                           .columna_lligada = "ESTAT",
                                           .linies_esborrades = Refer_Pressupost};

std::int64_t Crear_Capcalera_Pressupost() {
  return Crear_Capcalera(tipus_pressupost).Enter();
}

void Esborrar_Pressupost(std::int64_t numero, const std::string& empresa) {
  Demanar_Esborrar_Document(tipus_pressupost, numero, empresa);
}

int Estat_Bloqueig_Pressupost(std::int64_t numero, const std::string& empresa) {
  if (!Bloquejat_Per_Linies(tipus_pressupost, numero, empresa)) return 0;
  const Recordset cap(
      "SELECT ESTAT_PC FROM PRESSUPOSTCAP" + Condicio_Document(tipus_pressupost, tipus_pressupost.cap, numero, empresa),
      sessio.Connexio_Comuna);
  return cap.RecordCount() > 0 && Nul_A_Defecte(cap[0]).Boolea() ? 2 : 1;
}

bool Esborrar_Linia_Pressupost(std::int64_t numero, const std::string& empresa, std::int16_t linia,
                               const std::string& article) {
  return Esborrar_Linia(tipus_pressupost, {.numero = numero, .empresa = empresa},
                        {.numero = linia, .article = article});
}

bool Estat_Linia_Pressupost(std::int64_t numero, const std::string& empresa, std::int16_t linia) {
  const Recordset rs("SELECT ESTAT_PL FROM PRESSUPOSTLIN" + Condicio_Linia(tipus_pressupost, {numero, empresa, linia}),
                     sessio.Connexio_Comuna);
  return rs.RecordCount() > 0 && Nul_A_Defecte(rs[0]).Boolea();
}

void Actualitzar_Estat_Pressupost(std::int64_t numero, const std::string& empresa) {
  Recordset rs(
      "SELECT ESTAT_PL FROM PRESSUPOSTLIN" + Condicio_Document(tipus_pressupost, tipus_pressupost.lin, numero, empresa),
      sessio.Connexio_Comuna);
  bool acceptat = rs.RecordCount() > 0;
  for (; acceptat && !rs.Eof(); rs.MoveNext()) acceptat = Nul_A_Defecte(rs[0]).Boolea();
  Posar_Estat_Al_Formulari(acceptat);
}

void Alliberar_Linia_Pressupost(std::int64_t document, const std::string& empresa, std::int64_t linia) {
  const std::string condicio = " WHERE EMPRESA_PL = " + Text_SQL(empresa) +
                               " AND COMANDA_PL = " + std::to_string(document) +
                               " AND COMANDA_LIN_PL = " + std::to_string(linia);
  const Recordset rs("SELECT NUMALB_PL FROM PRESSUPOSTLIN" + condicio, sessio.Connexio_Comuna);
  if (rs.RecordCount() == 0) return;
  const Valor pressupost = rs["NUMALB_PL"];
  sessio.Connexio_Comuna.Execute("UPDATE PRESSUPOSTLIN SET COMANDA_PL = 0, COMANDA_LIN_PL = 0, ESTAT_PL = 0" +
                                 condicio);
  sessio.Connexio_Comuna.Execute("UPDATE PRESSUPOSTCAP SET ESTAT_PC = 0" +
                                 Condicio_Document(tipus_pressupost, tipus_pressupost.cap, pressupost, empresa));
}

bool Te_Linies_De_Pressupost(std::int64_t document, const std::string& empresa) {
  const Recordset rs("SELECT * FROM PRESSUPOSTLIN WHERE COMANDA_PL = " + std::to_string(document) +
                         " AND EMPRESA_PL = " + Text_SQL(empresa),
                     sessio.Connexio_Comuna);
  return rs.RecordCount() > 0;
}
