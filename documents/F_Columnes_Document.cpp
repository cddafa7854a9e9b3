#include "documents/F_Columnes_Document.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <sstream>

namespace {

constexpr const char* imports = "#,##0.00";

// By role words, which become the columns of a kind.
constexpr Columna_Graella papers_de_linies[] = {
    {"NUMALB", 0, ""},
    {"EMPRESA", 0, ""},
    {"LIN", 700, "Línia", true},
    {"ARTICLE", 1400, "Article"},
    {.camp = "DESCRIPCIO", .amplada = 3100, .titol = "Descripció", .creix = true},
    {"PREU_UNITARI", 1300, "Preu Unitari", true, imports},
    {"UNITATS", 1050, "Unitats", true, imports},
    {"PORC_IVA", 850, "IVA %", true, imports},
    {"PORC_RE", 800, "RE %", true, imports},
    {"IMPORT_NET", 1350, "Import Net", true, imports},
    {"DTE", 850, "DTE", true, imports},
    {"PVP", 1150, "PVP", true, imports},
    {"COST", 1150, "Cost", true, imports},
    {"PORC_MARGE", 1150, "Marge (%)", true, imports},
    {"MARGE", 1150, "Marge (€)", true, imports},
    {"IMPORT_BRUT", 1350, "Import Brut", true, imports},
    {"ESTAT", 750, "OK?", false, "", true},
    {"SERVIDES", 1050, "Servides", true, imports},
    {"COMANDA", 1050, "Comanda", true},
    {"COMANDA_LIN", 1000, "Línia Com.", true},
};

constexpr Columna_Graella papers_de_peu[] = {
    {"TIPUS_IVA", 900, "Tipus"},           {.camp = "DESC_IVA", .amplada = 3000, .titol = "Descripció", .creix = true},
    {"BASE", 1600, "Base", true, imports}, {"PORC_IVA", 1100, "% IVA", true, imports},
    {"IVA", 1500, "IVA", true, imports},   {"PORC_RE", 1100, "% RE", true, imports},
    {"RE", 1500, "RE", true, imports},     {"IMPORT", 1700, "Import", true, imports},
};

// Keeps a text until the program ends, for descriptions that hold pointers.
const char* Fixar(std::string text) {
  static std::set<std::string> textos;
  return textos.insert(std::move(text)).first->c_str();
}

Columna_Graella Columna_De_Linies(const std::string& paper) {
  const auto conegut = std::ranges::find(papers_de_linies, paper, &Columna_Graella::camp);
  if (conegut != std::end(papers_de_linies)) return *conegut;
  return {nullptr, 1200, Fixar(paper)};
}

}  // namespace

std::vector<Columna_Graella> Columnes_De_Linies(const Tipus_Document& tipus, const std::vector<Columna_Propia>& propies,
                                                const char* ordre) {
  std::vector<Columna_Graella> columnes;
  std::istringstream papers(ordre == nullptr ? std::string(tipus.columnes_linies) : ordre);
  for (std::string paper; papers >> paper;) {
    Columna_Graella columna = Columna_De_Linies(paper);
    columna.camp = Fixar(tipus.lin.Columna(paper));
    for (const Columna_Propia& propia : propies) {
      if (propia.paper != paper) continue;
      if (propia.titol != nullptr) columna.titol = propia.titol;
      if (propia.mascara != nullptr) columna.mascara = propia.mascara;
    }
    columnes.push_back(columna);
  }
  return columnes;
}

std::vector<Columna_Graella> Columnes_De_Peu(const Tipus_Document& tipus) {
  std::vector<Columna_Graella> columnes;
  for (Columna_Graella columna : papers_de_peu) {
    columna.camp = Fixar(tipus.peu.Columna(columna.camp));
    columnes.push_back(columna);
  }
  return columnes;
}
