#include "masters/M_Articles.h"

#include "core/M_Funcions_Comuns.h"

namespace {

struct Camp_Article {
  const char* columna;
  const char* defecte;  // what a null, and an unknown code, read as
};
constexpr std::array<Camp_Article, 10> camps = {{{"CODI_ART", ""},
                                                 {"DESCRIPCIO_ART", ""},
                                                 {"COST_ART", "0"},
                                                 {"IVA_ART", "GN"},
                                                 {"MARGE_ART", "0"},
                                                 {"DESCOMPTE_ART", "0"},
                                                 {"PVP_NET_ART", "0"},
                                                 {"STOCK_ART", "0"},
                                                 {"STOCK_MINIM_ART", "0"},
                                                 {"MAGATZEM_ART", ""}}};

// An article that stands in no table.
std::array<std::string, 10> Sense_Fila(const std::string& codi, const char* descripcio) {
  std::array<std::string, 10> dades;
  for (std::size_t i = 0; i < camps.size(); ++i) dades[i] = camps[i].defecte;
  dades[article::codi] = codi;
  dades[article::descripcio] = descripcio;
  return dades;
}

std::string Sentencia(const std::string& codi) {
  static const std::string sense_codi = [] {
    std::string columnes;
    for (const Camp_Article& camp : camps) columnes += (columnes.empty() ? "" : ", ") + std::string(camp.columna);
    return "SELECT " + columnes + " FROM ARTICLES WHERE CODI_ART = ";
  }();
  return sense_codi + Text_SQL(codi);
}

}  // namespace

std::array<std::string, 10> Dades_Article(const std::string& codi) {
  if (codi == "VAR") return Sense_Fila(codi, "Descripció Manual");
  const Recordset rs(Sentencia(codi), sessio.Connexio_Comuna);
  if (rs.RecordCount() == 0) return Sense_Fila(codi, "???");
  std::array<std::string, 10> dades;
  for (std::size_t i = 0; i < camps.size(); ++i)
    dades[i] = Nul_A_Defecte(rs[static_cast<int>(i)], camps[i].defecte).Text();
  return dades;
}

void Demanar_Article(const std::string& codi) {
  const bool es_cercara = codi != "VAR" && codi.find('\'') == std::string::npos;  // a quote is refused by the look-up
  if (es_cercara) sessio.Connexio_Comuna.Demanar(Sentencia(codi));
}

std::string Magatzem_Article(const std::string& codi) {
  return Dades_Article(codi)[article::magatzem];
}
