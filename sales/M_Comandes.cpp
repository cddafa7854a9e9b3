#include "sales/M_Comandes.h"

#include <memory>

#include "core/M_Funcions_Comuns.h"
#include "documents/M_Linies_Document.h"
#include "payments/M_Flags.h"
#include "payments/M_Pagaments.h"
#include "sales/M_Acceptacio.h"
#include "sales/M_Pressupostos.h"
#include "sales/M_Tipus_Venda.h"
#include "stock/M_Magatzems.h"

namespace {

// An order with a new line is not served any more.
Apunt_Linia Flags_De_Comanda(const Capcalera_Oberta& cap, const Linia_Entrada& /*linia*/) {
  const Document_Pagable comanda{'P', cap.numero.Enter()};
  const auto cadena = std::make_shared<Cadena>(std::vector{comanda});
  return {.abans = {}, .despres = [cadena, comanda] {
            if (Document_Obert* oberta = sessio.pantalla->Document(tipus_comanda.formulari)) oberta->Posar_Estat(false);
            Propagar_Flag_Pagaments(*cadena, comanda);
          }};
}

void Columnes_De_Comanda(const Capcalera_Oberta& /*cap*/, const Linia_Entrada& /*linia*/, Recordset& fila) {
  fila.Set("SERVIDES_CL", 0.0);
}

void Alliberar_Pressupost(const Capcalera_Oberta& cap, const Recordset& linia) {
  Alliberar_Linia_Pressupost(cap.numero.Enter(), cap.empresa, linia["LIN_CL"].Enter());
}

// An order whose only pending line went is served.
void Refer_Comanda(const Capcalera_Oberta& cap, Document_Obert& /*obert*/) {
  Actualitzar_Estat_Comanda(cap.numero.Enter(), cap.empresa);
  Propagar_Flag_Pagaments("P", cap.numero.Enter());
}

// Delivery lines point at the number of a line that is served, and lines of proposals at any. Its neighbour is not
// asked.
bool Es_Pot_Moure(const Valor& numero, const std::string& empresa, std::int16_t linia) {
  const Recordset rs("SELECT SERVIDES_CL FROM COMANDALIN" + Condicio_Linia(tipus_comanda, {numero, empresa, linia}) +
                         " AND SERVIDES_CL = 0",
                     sessio.Connexio_Comuna);
  return rs.RecordCount() > 0 && !Te_Linies_De_Pressupost(numero.Enter(), empresa);
}

}  // namespace

double Unitats_Servides(const Recordset& linia) {
  return Arrodonir(Nul_A_Defecte(linia["SERVIDES_CL"]).Doble(), decimals_unitats);
}

const Passos_Document passos_comanda = {.columna_que_bloqueja = "SERVIDES",
                                        .apunt = Flags_De_Comanda,
                                        .columnes = Columnes_De_Comanda,
                                        .columna_lligada = "SERVIDES",
                                        .despres_d_esborrar = Alliberar_Pressupost,
                                        .linies_esborrades = Refer_Comanda,
                                        .es_pot_moure = Es_Pot_Moure};

std::int64_t Crear_Capcalera_Comanda() {
  return Crear_Capcalera(tipus_comanda).Enter();
}

std::int64_t Seguent_Numero_Comanda(const std::string& empresa) {
  return Seguent_Numero(tipus_comanda, empresa).Enter();
}

std::int16_t Seguent_Linia_Comanda(std::int64_t numero, const std::string& empresa) {
  return Seguent_Linia(tipus_comanda, numero, empresa);
}

bool Existeix_Comanda(std::int64_t numero, const std::string& empresa) {
  return Existeix_Document(tipus_comanda, numero, empresa);
}

std::int64_t Comptar_Linies_Comanda(std::int64_t numero, const std::string& empresa) {
  return Comptar_Linies(tipus_comanda, numero, empresa);
}

void Esborrar_Comanda(std::int64_t numero, const std::string& empresa) {
  Demanar_Esborrar_Document(tipus_comanda, numero, empresa);
}

bool Comanda_Bloquejada(std::int64_t numero, const std::string& empresa) {
  return Bloquejat_Per_Linies(tipus_comanda, numero, empresa);
}

bool Esborrar_Linia_Comanda(std::int64_t numero, const std::string& empresa, std::int16_t linia,
                            const std::string& article) {
  return Esborrar_Linia(tipus_comanda, {.numero = numero, .empresa = empresa}, {.numero = linia, .article = article});
}

void Servir_Linia_Comanda(std::int64_t numero, const std::string& empresa, std::int16_t linia, double unitats) {
  Recordset rs(SQL_Linia(tipus_comanda, {numero, empresa, linia}), sessio.Connexio_Comuna, Bloqueig::Optimista);
  if (rs.RecordCount() == 0) return;
  rs.Set("SERVIDES_CL", Arrodonir(Nul_A_Defecte(rs["SERVIDES_CL"]).Doble() + unitats, decimals_unitats));
  rs.Update();
  Actualitzar_Estat_Comanda(numero, empresa);
}

std::int64_t Cercar_Comanda_Oberta(const std::string& client, const std::string& empresa) {
  return Cercar_Document_Obert(tipus_comanda, client, empresa);
}

bool Linia_Comanda_Servida(std::int64_t numero, const std::string& empresa, std::int16_t linia) {
  const Recordset rs("SELECT SERVIDES_CL FROM COMANDALIN" + Condicio_Linia(tipus_comanda, {numero, empresa, linia}),
                     sessio.Connexio_Comuna);
  return rs.RecordCount() > 0 && Unitats_Servides(rs) > 0;
}

bool Es_Usuari_Sense_Comandes() {
  return sessio.P_Comandes == "X";
}

Lloc_Linia Comanda_De_Linia_Pressupost(std::int64_t numero, const std::string& empresa, std::int16_t linia) {
  const Recordset rs("SELECT COMANDA_PL, COMANDA_LIN_PL FROM PRESSUPOSTLIN" +
                         Condicio_Linia(tipus_pressupost, {numero, empresa, linia}),
                     sessio.Connexio_Comuna);
  if (rs.RecordCount() == 0) return {0, empresa, 0};
  return {Nul_A_Defecte(rs["COMANDA_PL"]).Enter(), empresa,
          static_cast<std::int16_t>(Nul_A_Defecte(rs["COMANDA_LIN_PL"]).Enter())};
}

void Actualitzar_Estat_Comanda(std::int64_t numero, const std::string& empresa) {
  Recordset rs("SELECT (UNITATS_CL - SERVIDES_CL) AS ESTAT_CL FROM COMANDALIN" +
                   Condicio_Document(tipus_comanda, tipus_comanda.lin, numero, empresa),
               sessio.Connexio_Comuna);
  bool servida = rs.RecordCount() > 0;
  for (; servida && !rs.Eof(); rs.MoveNext())
    servida = Arrodonir(Nul_A_Defecte(rs["ESTAT_CL"]).Doble(), decimals_unitats) <= 0;
  // Whatever order the form shows takes the tick, and writes it when its head is saved.
  if (Document_Obert* oberta = sessio.pantalla->Document(tipus_comanda.formulari)) {
    oberta->Posar_Estat(servida);
  } else {
    Posar_Estat_Comanda(numero, empresa, servida);
  }
}

void Posar_Estat_Comanda(std::int64_t numero, const std::string& empresa, bool estat) {
  sessio.Connexio_Comuna.Execute("UPDATE COMANDACAP SET ESTAT_CC = " + Valor_SQL(estat) +
                                 Condicio_Document(tipus_comanda, tipus_comanda.cap, numero, empresa));
}

std::string SQL_Comandes_Pendents(const std::string& client, const std::string& article,
                                  const std::string& descripcio) {
  const auto conte = [](const char* columna, const std::string& text) {
    return text.empty() || text == "%" ? std::string()
                                       : " AND " + std::string(columna) + " LIKE " + Text_SQL('%' + text + '%');
  };
  return "SELECT NUMALB_CC, DATA_CC, CLIENT_DESC_CC, LIN_CL, ARTICLE_CL, DESCRIPCIO_CL, COST_CL,(UNITATS_CL - "
         "SERVIDES_CL) AS PENDENTS, PORC_MARGE_CL, PREU_UNITARI_CL, PORC_IVA_CL, PVP_CL, DTE_CL FROM COMANDACAP INNER "
         "JOIN COMANDALIN ON (COMANDACAP.EMPRESA_CC = COMANDALIN.EMPRESA_CL) AND (COMANDACAP.NUMALB_CC = "
         "COMANDALIN.NUMALB_CL) WHERE EMPRESA_CC = " +
         Text_SQL(sessio.Empresa_Actual) + " AND CLIENT_CC = " + Codi_SQL(client) +
         " AND (UNITATS_CL - SERVIDES_CL) > 0" + conte("ARTICLE_CL", article) + conte("DESCRIPCIO_CL", descripcio) +
         " AND ESTAT_CC = 0 ORDER BY DATA_CC";
}

const char* Per_Que_No_Es_Pot_Servir(std::int64_t comanda, std::int64_t albara) {
  const bool flag_comanda = Flag_Pagament("P", comanda);
  const bool flag_albara = Flag_Pagament("A", albara);
  if (flag_comanda && flag_albara) {
    return Tenir_Pagaments("P", comanda) ? "Aquesta comanda no es pot servir en aquest albarà, té pagaments!" : nullptr;
  }
  const bool cap_dels_dos = !flag_comanda && !flag_albara;
  if (!cap_dels_dos || Comptar_Linies(tipus_albara, albara, sessio.Empresa_Actual) == 0) return nullptr;
  return "Aquesta comanda no es pot servir en aquest albarà, no té pagaments!";
}
