#include "sales/M_Albarans.h"

#include <memory>

#include "core/M_Funcions_Comuns.h"
#include "documents/M_Linies_Document.h"
#include "documents/M_Peu.h"
#include "payments/M_Flags.h"
#include "sales/M_Acceptacio.h"
#include "sales/M_Comandes.h"
#include "sales/M_Pressupostos.h"
#include "sales/M_Tipus_Venda.h"
#include "stock/M_Magatzems.h"

namespace {

Apunt_Estoc Estoc_D_Albara(const Capcalera_Oberta& cap, const std::string& article,
                           const std::vector<Unitats_Mogudes>& mogudes) {
  return Preparar_Apunts(article, mogudes, -1,
                         [numero = cap.numero.Enter()](double signe, const auto& estoc, double unitats) {
                           Moviment_Albara(signe, estoc, unitats, numero);
                         });
}

// The chain is read once: what is written until the walk is known to it.
Apunt_Linia Flags_D_Albara(const Capcalera_Oberta& cap, const Linia_Entrada& linia) {
  const Document_Pagable nota{'A', cap.numero.Enter()};
  const std::int64_t comanda = linia.comanda;
  std::vector<Document_Pagable> inici = {nota};
  if (comanda != 0) inici.push_back({'P', comanda});
  const auto cadena = std::make_shared<Cadena>(inici);
  return {
      .abans = [cadena, flags = Comprovar_Linia_Albara(*cadena, nota.numero, comanda)] { Posar_Flags(*cadena, flags); },
      .despres =
          [cadena, nota, comanda] {
            if (comanda != 0) cadena->Enllacar(nota.numero, comanda);
            Propagar_Flag_Pagaments(*cadena, nota);
          }};
}

// A free line on a form that has picked an order line keeps its link, and serves it too.
void Columnes_D_Albara(const Capcalera_Oberta& cap, const Linia_Entrada& linia, Recordset& fila) {
  fila.Set("COMANDA_AL", linia.comanda);
  fila.Set("COMANDA_LIN_AL", std::int64_t{linia.comanda_lin});
  if (linia.comanda != 0) Servir_Linia_Comanda(linia.comanda, cap.empresa, linia.comanda_lin, linia.unitats);
}

// The order that the line served gets its units back, and stands open whatever its count says.
void Desfer_Servei(const std::string& empresa, const Recordset& linia) {
  const std::int64_t comanda = Nul_A_Defecte(linia["COMANDA_AL"]).Enter();
  if (comanda == 0) return;
  Servir_Linia_Comanda(comanda, empresa, static_cast<std::int16_t>(Nul_A_Defecte(linia["COMANDA_LIN_AL"]).Enter()),
                       -Nul_A_Defecte(linia["UNITATS_AL"]).Doble());
  Posar_Estat_Comanda(comanda, empresa, false);
  Propagar_Flag_Pagaments("P", comanda);
}

void Propagar_D_Albara(const Capcalera_Oberta& cap, Document_Obert& /*obert*/) {
  Propagar_Flag_Pagaments("A", cap.numero.Enter());
}

// Without orders a line can only come from a proposal.
void Desfer_Lligam(const Capcalera_Oberta& cap, const Recordset& linia) {
  if (Es_Usuari_Sense_Comandes())
    Alliberar_Linia_Pressupost(cap.numero.Enter(), cap.empresa, linia["LIN_AL"].Enter());
  else
    Desfer_Servei(cap.empresa, linia);
}

// Lines of proposals may point at the numbers of these.
bool Es_Pot_Moure(const Valor& numero, const std::string& empresa, std::int16_t /*linia*/) {
  return !Es_Usuari_Sense_Comandes() || !Te_Linies_De_Pressupost(numero.Enter(), empresa);
}

}  // namespace

const Passos_Document passos_albara = {.columna_que_bloqueja = "COMANDA",
                                       .demanar = Demanar_Magatzem_Probable,
                                       .apunt = Flags_D_Albara,
                                       .estoc = Estoc_D_Albara,
                                       .columnes = Columnes_D_Albara,
                                       .despres_d_esborrar = Desfer_Lligam,
                                       .linies_esborrades = Propagar_D_Albara,
                                       .es_pot_moure = Es_Pot_Moure};

std::int64_t Crear_Capcalera_Albara() {
  return Crear_Capcalera(tipus_albara).Enter();
}

std::int64_t Seguent_Numero_Albara(const std::string& empresa) {
  return Seguent_Numero(tipus_albara, empresa).Enter();
}

std::int16_t Seguent_Linia_Albara(std::int64_t numero, const std::string& empresa) {
  return Seguent_Linia(tipus_albara, numero, empresa);
}

bool Existeix_Albara(std::int64_t numero, const std::string& empresa) {
  return Existeix_Document(tipus_albara, numero, empresa);
}

std::int64_t Comptar_Linies_Albara(std::int64_t numero, const std::string& empresa) {
  return Comptar_Linies(tipus_albara, numero, empresa);
}

double Total_Peu_Albara(std::int64_t numero, const std::string& empresa) {
  return Total_Peu(tipus_albara, numero, empresa);
}

bool Hi_Ha_Descomptes_Albara(std::int64_t numero, const std::string& empresa) {
  return Hi_Ha_Descomptes(tipus_albara, numero, empresa);
}

void Esborrar_Albara(std::int64_t numero, const std::string& empresa) {
  Demanar_Esborrar_Document(tipus_albara, numero, empresa);
}

bool Albara_Bloquejat(std::int64_t numero, const std::string& empresa) {
  return Bloquejat_Per_Linies(tipus_albara, numero, empresa);
}

Data_Hora Data_Maxima_Albarans(const std::string& albarans) {
  const Recordset rs("SELECT MAX(DATA_AC) AS DATA FROM (" + albarans + ")", sessio.Connexio_Comuna);
  return rs.RecordCount() > 0 && rs["DATA"].Es_Data() ? rs["DATA"].Data() : Avui();
}

std::int64_t Cercar_Albara_Obert(const std::string& client, const std::string& empresa) {
  return Cercar_Document_Obert(tipus_albara, client, empresa);
}

bool Estat_Albara(std::int64_t numero, const std::string& empresa) {
  const Recordset rs(
      "SELECT ESTAT_AC FROM ALBARACAP" + Condicio_Document(tipus_albara, tipus_albara.cap, numero, empresa),
      sessio.Connexio_Comuna);
  return rs.RecordCount() > 0 && Nul_A_Defecte(rs[0]).Boolea();
}

void Afegir_Linia_Albara(const Capcalera_Oberta& cap, const Linia_Entrada& linia, Recordset& linies,
                         Document_Obert& obert) {
  Afegir_Linia(tipus_albara, cap, linia, linies, obert);
}

bool Esborrar_Linia_Albara(std::int64_t numero, const std::string& empresa, std::int16_t linia,
                           const std::string& article, double unitats) {
  return Esborrar_Linia(tipus_albara, {.numero = numero, .empresa = empresa},
                        {.numero = linia, .article = article, .unitats = unitats});
}
