#include "sales/M_Albarans.h"

#include "core/M_Funcions_Comuns.h"
#include "documents/M_Linies.h"
#include "documents/M_Peu.h"
#include "masters/M_Articles.h"
#include "masters/M_IVAs.h"
#include "payments/M_Pagaments.h"
#include "sales/M_Comandes.h"
#include "stock/M_Magatzems.h"

namespace {

std::string Condicio_Linies(std::int64_t numero, const std::string& empresa) {
  return Condicio_Document(tipus_albara, tipus_albara.lin, numero, empresa);
}

bool Es_Usuari_Sense_Comandes() {
  return sessio.P_Comandes == "X";
}

// What the line needs to know, asked for at once.
void Demanar_Dades_Linia(const Capcalera_Oberta& cap, const Linia_Entrada& linia) {
  if (cap.iva) Demanar_IVA(linia.iva_article);
  Demanar_Article(linia.article);
}

void Escriure_Linia(Recordset& linies, const Capcalera_Oberta& cap, const Linia_Entrada& linia) {
  Demanar_Dades_Linia(cap, linia);
  linies.AddNew();
  linies.Set("NUMALB_AL", cap.numero);
  linies.Set("EMPRESA_AL", cap.empresa);
  linies.Set("LIN_AL", std::int64_t{Seguent_Linia(tipus_albara, cap.numero, cap.empresa)});
  linies.Set("ARTICLE_AL", linia.article);
  linies.Set("DESCRIPCIO_AL", linia.descripcio);
  linies.Set("COST_AL", linia.cost);
  const Taxes_Linia taxes = Taxes_De_Linia(linia.iva_article, cap.iva, cap.re);
  linies.Set("PORC_IVA_AL", taxes.porc_iva);
  linies.Set("PORC_RE_AL", taxes.porc_re);
  linies.Set("UNITATS_AL", linia.unitats);
  const Resultat_Linia resultat =
      Calcular_Linia(linia.cost, linia.unitats, linia.porc_marge, linia.dte_article, taxes.porc_iva, taxes.porc_re,
                     linia.preu_unitari, linia.pvp, linia.dte, "PREU_UNITARI_PL");
  linies.Set("PORC_MARGE_AL", resultat.porc_marge);
  linies.Set("PREU_UNITARI_AL", resultat.preu_unitari);
  linies.Set("PVP_AL", resultat.pvp);
  linies.Set("IMPORT_NET_AL", resultat.import_net);
  linies.Set("IMPORT_BRUT_AL", resultat.import_brut);
  linies.Set("MARGE_AL", resultat.marge);
  linies.Set("DTE_AL", resultat.dte);
  linies.Set("COMANDA_AL", linia.comanda);
  linies.Set("COMANDA_LIN_AL", std::int64_t{linia.comanda_lin});
  if (linia.comanda != 0) Servir_Linia_Comanda(linia.comanda, cap.empresa, linia.comanda_lin, linia.unitats);
  Demanar_Grups(tipus_albara, cap.numero, cap.empresa);
  linies.Update();
}

void Treure_D_Estoc(const Linia_Entrada& linia, std::int64_t numero) {
  try {
    Moviment_Albara(+1, Preparar_Article_Estoc(linia.article), linia.unitats, numero);
  } catch (const Error_Brollador& error) {
    Alliberar_Entrada();
    Mostrar_Error(error);
    throw Error_Brollador(errors::refusat, "F_Albara", "Error al intentar actualizar movimientos, stock ...");
  }
}

// The order that the line served gets its units back, and stands open whatever its count says.
void Desfer_Servei(const std::string& empresa, const std::string& condicio_linia) {
  const Recordset rs("SELECT COMANDA_AL, COMANDA_LIN_AL, UNITATS_AL FROM ALBARALIN" + condicio_linia,
                     sessio.Connexio_Comuna);
  if (rs.RecordCount() == 0) return;
  const std::int64_t comanda = Nul_A_Defecte(rs["COMANDA_AL"]).Enter();
  if (comanda == 0) return;
  Servir_Linia_Comanda(comanda, empresa, static_cast<std::int16_t>(Nul_A_Defecte(rs["COMANDA_LIN_AL"]).Enter()),
                       -Nul_A_Defecte(rs["UNITATS_AL"]).Doble());
  Posar_Estat_Comanda(comanda, empresa, false);
}

// Without orders a line can only come from a proposal: its line there is pending again.
void Desfer_Acceptacio(std::int64_t numero, const std::string& empresa, std::int16_t linia) {
  const std::string condicio = " WHERE EMPRESA_PL = " + Text_SQL(empresa) +
                               " AND COMANDA_PL = " + std::to_string(numero) +
                               " AND COMANDA_LIN_PL = " + std::to_string(linia);
  const Recordset rs("SELECT NUMALB_PL FROM PRESSUPOSTLIN" + condicio, sessio.Connexio_Comuna);
  if (rs.RecordCount() == 0) return;
  const Valor pressupost = rs["NUMALB_PL"];
  sessio.Connexio_Comuna.Execute("UPDATE PRESSUPOSTLIN SET COMANDA_PL = 0, COMANDA_LIN_PL = 0, ESTAT_PL = 0" +
                                 condicio);
  sessio.Connexio_Comuna.Execute("UPDATE PRESSUPOSTCAP SET ESTAT_PC = 0" +
                                 Condicio_Document(tipus_pressupost, tipus_pressupost.cap, pressupost, empresa));
}

// The rates that each article of the note takes today; an article is looked up once.
class Taxes_Per_Article {
 public:
  explicit Taxes_Per_Article(const Capcalera_Oberta& cap) : cap_(cap) {}
  Taxes_Linia De(const std::string& codi) {
    if (!cap_.iva) return {};
    const auto [lloc, nou] = taxes_.try_emplace(codi);
    if (nou) lloc->second = Taxes_De_Linia(Dades_Article(codi)[article::iva], cap_.iva, cap_.re);
    return lloc->second;
  }

 private:
  const Capcalera_Oberta& cap_;
  std::map<std::string, Taxes_Linia> taxes_;
};

// Only the rates and the gross amount change: price with tax, net and margin stay as they were typed.
void Recalcular_Linia(Recordset& rs, const Taxes_Linia& taxes) {
  const auto numero = [&](const char* camp) { return Nul_A_Defecte(rs[camp]).Doble(); };
  const Resultat_Linia resultat =
      Calcular_Linia(numero("COST_AL"), numero("UNITATS_AL"), numero("PORC_MARGE_AL"), 0, taxes.porc_iva, taxes.porc_re,
                     numero("PREU_UNITARI_AL"), numero("PVP_AL"), numero("DTE_AL"), "PREU_UNITARI_PL");
  rs.Set("PORC_IVA_AL", taxes.porc_iva);
  rs.Set("PORC_RE_AL", taxes.porc_re);
  rs.Set("IMPORT_BRUT_AL", resultat.import_brut);
  rs.Update();
}

}  // namespace

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
  const std::string pregunta = Missatge("Segur d'esborrar l'Albarà ", "¿Seguro de eliminar el Albarán ",
                                        "Are you sure to delete Delivery Note ");
  if (sessio.pantalla->Caixa(pregunta + std::to_string(numero) + " ?", estil::ok_cancel) != Resposta::Ok) return;
  if (Tenir_Pagaments("A", numero)) {
    sessio.pantalla->Caixa("No es pot esborrar. Hi ha pagaments!", estil::critic);
    return;
  }
  Esborrar_Document(tipus_albara, numero, empresa);
}

bool Albara_Bloquejat(std::int64_t numero, const std::string& empresa) {
  const Recordset cap(
      "SELECT ESTAT_AC FROM ALBARACAP" + Condicio_Document(tipus_albara, tipus_albara.cap, numero, empresa),
      sessio.Connexio_Comuna);
  if (cap.RecordCount() > 0 && Nul_A_Defecte(cap["ESTAT_AC"]).Boolea()) return true;
  const Recordset linies("SELECT * FROM ALBARALIN" + Condicio_Linies(numero, empresa) + " AND COMANDA_AL <> 0",
                         sessio.Connexio_Comuna);
  return linies.RecordCount() > 0;
}

void Afegir_Linia_Albara(const Capcalera_Oberta& cap, const Linia_Entrada& linia, Recordset& linies,
                         Document_Obert& obert) {
  // Flag_Comandes_Albara("A", numero) and what follows from it stand here: a line may be refused by its payments.
  Escriure_Linia(linies, cap, linia);
  Calcular_Peu(tipus_albara, cap.numero, cap.empresa, obert);
  Treure_D_Estoc(linia, cap.numero.Enter());
  // Propagar_Flag_Pagaments("A", numero) goes here.
}

bool Esborrar_Linia_Albara(std::int64_t numero, const std::string& empresa, std::int16_t linia,
                           const std::string& article, double unitats) {
  const std::string pregunta =
      Missatge("Segur d'esborrar la línia ", "¿Seguro de eliminar la línea ", "Are you sure to delete line ");
  if (sessio.pantalla->Caixa(pregunta + std::to_string(linia) + " ?", estil::ok_cancel) != Resposta::Ok) return false;
  Moviment_Albara(-1, Preparar_Article_Estoc(article), unitats, numero);
  const std::string condicio = Condicio_Linies(numero, empresa) + " AND LIN_AL = " + std::to_string(linia);
  if (Es_Usuari_Sense_Comandes()) {
    Desfer_Acceptacio(numero, empresa, linia);
  } else {
    Desfer_Servei(empresa, condicio);
  }
  sessio.Connexio_Comuna.Execute("DELETE * FROM ALBARALIN" + condicio);
  // With an order, Propagar_Flag_Pagaments("P", comanda) goes here.
  return true;
}

void Recalcular_Linies_Albara(const Capcalera_Oberta& cap, Document_Obert& obert) {
  Transaccio transaccio;
  Recordset rs("SELECT * FROM ALBARALIN" + Condicio_Document(tipus_albara, tipus_albara.lin, cap.numero, cap.empresa),
               sessio.Connexio_Comuna, Bloqueig::Optimista);
  Taxes_Per_Article taxes(cap);
  for (; !rs.Eof(); rs.MoveNext()) Recalcular_Linia(rs, taxes.De(rs["ARTICLE_AL"].Text()));
  Buidar_Peu(tipus_albara, cap.numero, cap.empresa);
  Calcular_Peu(tipus_albara, cap.numero, cap.empresa, obert);
  transaccio.Confirmar();
}

bool Moure_Linia_Albara(std::int64_t numero, const std::string& empresa, std::int16_t linia, bool avall) {
  if (Es_Usuari_Sense_Comandes()) {
    // Lines of proposals point at these line numbers.
    const Recordset rs("SELECT * FROM PRESSUPOSTLIN WHERE COMANDA_PL = " + std::to_string(numero) +
                           " AND EMPRESA_PL = " + Text_SQL(empresa),
                       sessio.Connexio_Comuna);
    if (rs.RecordCount() > 0) return false;
  }
  return Intercanviar_Linia(tipus_albara, numero, empresa, linia, avall);
}

bool Esborrar_Albara_Buit(std::int64_t numero, const std::string& empresa) {
  return Esborrar_Document_Buit(tipus_albara, numero, empresa);
}
