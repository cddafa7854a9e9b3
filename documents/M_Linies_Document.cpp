#include "documents/M_Linies_Document.h"

#include <map>

#include "core/M_Funcions_Comuns.h"
#include "documents/M_Linies.h"
#include "documents/M_Peu.h"
#include "masters/M_Articles.h"
#include "masters/M_IVAs.h"

namespace {

bool Te_Columna(const Tipus_Document& tipus, const std::string& paper) {
  return (" " + std::string(tipus.columnes_linies) + " ").find(" " + paper + " ") != std::string::npos;
}

// What the line needs to know, asked for at once.
void Demanar_Linia(const Tipus_Document& tipus, const Capcalera_Oberta& cap, const Linia_Entrada& linia) {
  if (cap.iva) Demanar_IVA(linia.iva_article);
  Demanar_Article(linia.article);
  Demanar_Seguent_Linia(tipus, cap.numero, cap.empresa);
  if (const auto demanar = Passos_De(tipus).demanar) demanar();
}

// A line is saved from its price.
void Escriure_Linia(const Tipus_Document& tipus, const Capcalera_Oberta& cap, const Linia_Entrada& linia,
                    std::int16_t numero, Recordset& linies) {
  const Taxes_Linia taxes = Taxes_De_Linia(linia.iva_article, cap.iva, cap.re);
  Posar_Linia_Nova(tipus, {cap.numero, cap.empresa, numero},
                   {linia.article, linia.descripcio, Valorar_Linia(tipus, linia, taxes, Mode_Calcul::Preu_Unitari)},
                   linies);
  if (const auto columnes = Passos_De(tipus).columnes) columnes(cap, linia, linies);
  if (!tipus.peu.nom.empty()) Demanar_Grups(tipus, cap.numero, cap.empresa);
  linies.Update();
}

// A stock error was shown where it happened, and its transaction rolled back: it becomes 1010 here.
void Apuntar(const Tipus_Document& tipus, const Apunt_Estoc& estoc) {
  if (!estoc.fer) return;
  try {
    estoc.fer();
  } catch (const Error_Brollador& error) {
    if (error.Motiu() == Falla::Interbloqueig) throw;
    throw Error_Brollador(errors::refusat, std::string(tipus.formulari), tipus.error_estoc, error.Motiu());
  }
}

// The rates that each article of the document takes today; an article is looked up once.
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
void Recalcular_Linia(const Taula_Document& lin, Recordset& rs, const Taxes_Linia& taxes) {
  const auto numero = [&](const char* paper) { return Nul_A_Defecte(rs[lin.Columna(paper)]).Doble(); };
  const Resultat_Linia resultat =
      Calcular_Linia(numero("COST"), numero("UNITATS"), numero("PORC_MARGE"), 0, taxes.porc_iva, taxes.porc_re,
                     numero("PREU_UNITARI"), numero("PVP"), numero("DTE"), Mode_Calcul::Preu_Unitari);
  rs.Set(lin.Columna("PORC_IVA"), taxes.porc_iva);
  rs.Set(lin.Columna("PORC_RE"), taxes.porc_re);
  rs.Set(lin.Columna("IMPORT_BRUT"), resultat.import_brut);
  rs.Update();
}

}  // namespace

Apunt_Estoc Preparar_Estoc(const Tipus_Document& tipus, const Capcalera_Oberta& cap, const std::string& article,
                           const std::vector<Unitats_Mogudes>& mogudes) {
  const Passos_Document& passos = Passos_De(tipus);
  return passos.estoc == nullptr ? Apunt_Estoc() : passos.estoc(cap, article, mogudes);
}

const std::array<Xifra_De_Linia, 11> xifres_de_linia = {{{"COST", &Resultat_Linia::cost},
                                                         {"PORC_IVA", &Resultat_Linia::porc_iva},
                                                         {"PORC_RE", &Resultat_Linia::porc_re},
                                                         {"UNITATS", &Resultat_Linia::unitats},
                                                         {"PORC_MARGE", &Resultat_Linia::porc_marge},
                                                         {"PREU_UNITARI", &Resultat_Linia::preu_unitari},
                                                         {"PVP", &Resultat_Linia::pvp},
                                                         {"IMPORT_NET", &Resultat_Linia::import_net},
                                                         {"IMPORT_BRUT", &Resultat_Linia::import_brut},
                                                         {"MARGE", &Resultat_Linia::marge},
                                                         {"DTE", &Resultat_Linia::dte}}};

std::string Condicio_Linia(const Tipus_Document& tipus, const Lloc_Linia& lloc) {
  return Condicio_Document(tipus, tipus.lin, lloc.numero, lloc.empresa) + " AND " + tipus.lin.Columna("LIN") + " = " +
         std::to_string(lloc.lin);
}

std::string SQL_Linia(const Tipus_Document& tipus, const Lloc_Linia& lloc) {
  return "SELECT * FROM " + std::string(tipus.lin.nom) + Condicio_Linia(tipus, lloc);
}

Resultat_Linia Calcular_Linia(const Linia_Entrada& linia, const Taxes_Linia& taxes, Mode_Calcul mode) {
  return Calcular_Linia(linia.cost, linia.unitats, linia.porc_marge, linia.dte_article, taxes.porc_iva, taxes.porc_re,
                        linia.preu_unitari, linia.pvp, linia.dte, mode);
}

Resultat_Linia Valorar_Linia(const Tipus_Document& tipus, const Linia_Entrada& linia, const Taxes_Linia& taxes,
                             Mode_Calcul mode) {
  Resultat_Linia resultat = Calcular_Linia(linia, taxes, mode);
  if (tipus.valorat_al_cost) Valorar_Al_Cost(resultat);
  return resultat;
}

Contingut_Linia Llegir_Linia(const Tipus_Document& tipus, const Recordset& fila) {
  Contingut_Linia linia{fila[tipus.lin.Columna("ARTICLE")].Text(), fila[tipus.lin.Columna("DESCRIPCIO")].Text(), {}};
  for (const auto& [paper, xifra] : xifres_de_linia)
    linia.xifres.*xifra = Nul_A_Defecte(fila[tipus.lin.Columna(paper)]).Doble();
  return linia;
}

void Posar_Linia(const Tipus_Document& tipus, const Contingut_Linia& linia, Recordset& fila) {
  const auto posar = [&](const char* paper, const Valor& valor) {
    if (Te_Columna(tipus, paper)) fila.Set(tipus.lin.Columna(paper), valor);
  };
  posar("ARTICLE", linia.article);
  posar("DESCRIPCIO", linia.descripcio);
  for (const auto& [paper, xifra] : xifres_de_linia) posar(paper, linia.xifres.*xifra);
}

void Posar_Linia_Nova(const Tipus_Document& tipus, const Lloc_Linia& lloc, const Contingut_Linia& linia,
                      Recordset& fila) {
  fila.AddNew();
  fila.Set(tipus.lin.Columna("NUMALB"), lloc.numero);
  fila.Set(tipus.lin.Columna("EMPRESA"), lloc.empresa);
  fila.Set(tipus.lin.Columna("LIN"), std::int64_t{lloc.lin});
  Posar_Linia(tipus, linia, fila);
}

void Afegir_Linia(const Tipus_Document& tipus, const Capcalera_Oberta& cap, const Linia_Entrada& linia,
                  Recordset& linies, Document_Obert& obert) {
  const Passos_Document& passos = Passos_De(tipus);
  Demanar_Linia(tipus, cap, linia);
  const Apunt_Linia apunt = passos.apunt == nullptr ? Apunt_Linia() : passos.apunt(cap, linia);
  const std::int16_t numero = Seguent_Linia(tipus, cap.numero, cap.empresa);
  const Apunt_Estoc estoc = Preparar_Estoc(tipus, cap, linia.article, {{+1, linia.unitats}});
  if (apunt.abans) apunt.abans();
  Escriure_Linia(tipus, cap, linia, numero, linies);
  if (estoc.demanar) estoc.demanar();
  Demanar_Bloquejat_Per_Linies(tipus, cap.numero, cap.empresa);
  Calcular_Totals(tipus, cap.numero, cap.empresa, obert);
  Apuntar(tipus, estoc);
  if (apunt.despres) apunt.despres();
}

// The line goes first: nothing is posted for one that another terminal deletes meanwhile. Then what it is tied to, and
// the stock last, as in adding: rows of others are always taken in that order.
bool Esborrar_Linia(const Tipus_Document& tipus, const Capcalera_Oberta& cap, const Linia_A_Esborrar& linia) {
  static constexpr Pregunta paraules = {"Segur d'esborrar la línia ", "¿Seguro de eliminar la línea ",
                                        "Are you sure to delete line "};
  const Passos_Document& passos = Passos_De(tipus);
  if (passos.es_pot_esborrar != nullptr && !passos.es_pot_esborrar(cap)) return false;
  if (!Confirmar(paraules, std::to_string(linia.numero))) return false;
  const Lloc_Linia lloc{cap.numero, cap.empresa, linia.numero};
  const Recordset fila(SQL_Linia(tipus, lloc), sessio.Connexio_Comuna);
  if (fila.RecordCount() == 0) Exigir_Document(tipus, cap.numero, cap.empresa);
  if (fila.RecordCount() == 0 || fila[tipus.lin.Columna("ARTICLE")].Text() != linia.article)
    Llancar_Error(errors::concurrencia, std::string(tipus.formulari));
  const Apunt_Estoc estoc = Preparar_Estoc(tipus, cap, linia.article, {{-1, linia.unitats}});
  const std::string encara_lliure =
      passos.columna_lligada == nullptr ? std::string() : " AND " + tipus.lin.Columna(passos.columna_lligada) + " = 0";
  const int tocades = sessio.Connexio_Comuna.Execute("DELETE * FROM " + std::string(tipus.lin.nom) +
                                                     Condicio_Linia(tipus, lloc) + encara_lliure);
  if (tocades == 0) {
    if (passos.columna_lligada != nullptr) return true;
    Llancar_Error(errors::concurrencia, std::string(tipus.formulari));
  }
  if (passos.despres_d_esborrar != nullptr) passos.despres_d_esborrar(cap, fila);
  if (estoc.demanar) estoc.demanar();
  if (estoc.fer) estoc.fer();
  return true;
}

bool Recalcular_Linies(const Tipus_Document& tipus, const Capcalera_Oberta& cap, Document_Obert& obert) {
  const bool te_peu = !tipus.peu.nom.empty();
  const std::string peu = te_peu ? SQL_Peu(tipus, cap.numero, cap.empresa) : std::string();
  Transaccio transaccio(sessio.Connexio_Comuna);
  if (te_peu) sessio.Connexio_Comuna.Demanar(peu);
  Recordset rs(
      "SELECT * FROM " + std::string(tipus.lin.nom) + Condicio_Document(tipus, tipus.lin, cap.numero, cap.empresa),
      sessio.Connexio_Comuna, Bloqueig::Optimista);
  const bool buit = rs.RecordCount() == 0 && (!te_peu || Recordset(peu, sessio.Connexio_Comuna).RecordCount() == 0);
  if (buit) {
    obert.Posar_Import(0);
    transaccio.Confirmar();
    return false;
  }
  Taxes_Per_Article taxes(cap);
  for (; !rs.Eof(); rs.MoveNext()) Recalcular_Linia(tipus.lin, rs, taxes.De(rs[tipus.lin.Columna("ARTICLE")].Text()));
  if (te_peu) Buidar_Peu(tipus, cap.numero, cap.empresa);
  Calcular_Totals(tipus, cap.numero, cap.empresa, obert);
  transaccio.Confirmar();
  return true;
}

bool Moure_Linia(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa, std::int16_t linia,
                 bool avall) {
  const Passos_Document& passos = Passos_De(tipus);
  if (passos.es_pot_moure != nullptr && !passos.es_pot_moure(numero, empresa, linia)) return false;
  return Intercanviar_Linia(tipus, numero, empresa, linia, avall);
}

void Calcular_Totals(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa,
                     Document_Obert& obert) {
  if (!tipus.peu.nom.empty()) return Calcular_Peu(tipus, numero, empresa, obert);
  obert.Posar_Import(Total_Document(tipus, numero, empresa));
}

double Total_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  if (!tipus.peu.nom.empty()) return Total_Peu(tipus, numero, empresa);
  const Recordset rs("SELECT SUM(" + tipus.lin.Columna("IMPORT_BRUT") + ") AS IMPORT_BRUT FROM " +
                         std::string(tipus.lin.nom) + Condicio_Document(tipus, tipus.lin, numero, empresa),
                     sessio.Connexio_Comuna);
  return Arrodonir(Nul_A_Defecte(rs["IMPORT_BRUT"]).Doble(), 2);
}

namespace {

std::string SQL_Estat(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  return "SELECT " + tipus.cap.Columna("ESTAT") + " FROM " + std::string(tipus.cap.nom) +
         Condicio_Document(tipus, tipus.cap, numero, empresa);
}

std::string SQL_Linies_Amb(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa,
                           const char* columna) {
  return "SELECT * FROM " + std::string(tipus.lin.nom) + Condicio_Document(tipus, tipus.lin, numero, empresa) +
         " AND " + tipus.lin.Columna(columna) + " <> 0";
}

}  // namespace

void Demanar_Bloquejat_Per_Linies(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  const char* columna = Passos_De(tipus).columna_que_bloqueja;
  if (columna == nullptr) return;
  sessio.Connexio_Comuna.Demanar(SQL_Estat(tipus, numero, empresa));
  sessio.Connexio_Comuna.Demanar(SQL_Linies_Amb(tipus, numero, empresa, columna));
}

bool Bloquejat_Per_Linies(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  const char* columna = Passos_De(tipus).columna_que_bloqueja;
  if (columna == nullptr) return false;
  Transaccio lectures(sessio.Connexio_Comuna);
  Demanar_Bloquejat_Per_Linies(tipus, numero, empresa);
  const Recordset cap(SQL_Estat(tipus, numero, empresa), sessio.Connexio_Comuna);
  const bool bloquejat =
      (cap.RecordCount() > 0 && Nul_A_Defecte(cap[0]).Boolea()) ||
      Recordset(SQL_Linies_Amb(tipus, numero, empresa, columna), sessio.Connexio_Comuna).RecordCount() > 0;
  lectures.Confirmar();
  return bloquejat;
}
