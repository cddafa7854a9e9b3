#include "core/dades/Dialecte.h"
#include "core/dades/Mots_SQL.h"
#include "core/dades/Text.h"

using namespace mots_sql;

namespace {

Tipus_Columna Tipus_Declarat(const std::string& nom) {
  if (const auto tipus = Tipus_De_Nom(nom)) return *tipus;
  Sentencia_Erronia(nom);
}

// Definitions come from the program's own schema: their literals are written back as they were.
std::string Unir(const Mots& mots, Tram tram, const std::vector<Valor>& literals) {
  std::string text;
  for (std::size_t i = tram.primer; i < tram.ultim; ++i) {
    const Mot& mot = mots[i];
    if (mot.mena != Mena::Parametre) {
      text += " " + mot.text;
      continue;
    }
    const Valor& literal = literals[static_cast<std::size_t>(mot.parametre)];
    text += " " + (literal.Es_Text() ? "'" + literal.Text() + "'" : literal.Text());
  }
  return text;
}

std::size_t Fi_Item(const Mots& mots, std::size_t i, std::size_t fi) {
  int fondaria = 0;
  for (; i < fi; ++i) {
    if (Es(mots[i], "(")) ++fondaria;
    if (Es(mots[i], ")")) --fondaria;
    if (fondaria == 0 && Es(mots[i], ",")) break;
  }
  return i;
}

void Llegir_Clau(const Mots& mots, Tram item, Taula& taula) {
  for (std::size_t i = item.primer; i < item.ultim; ++i) {
    if (mots[i].mena == Mena::Nom && !Es(mots[i], "PRIMARY") && !Es(mots[i], "KEY")) taula.clau.push_back(mots[i].text);
  }
}

// ALTER TABLE t ADD COLUMN c TYPE ...
Definicio Llegir_Columna_Nova(const Mots& mots, const std::vector<Valor>& literals) {
  constexpr std::size_t nom = 5;
  if (mots.size() < nom + 2 || !Es(mots[1], "TABLE") || !Es(mots[3], "ADD") || !Es(mots[4], "COLUMN")) {
    Sentencia_Erronia("ALTER");
  }
  Definicio definicio;
  definicio.afegeix = true;
  definicio.taula =
      Taula{.nom = mots[2].text, .columnes = {{mots[nom].text, Tipus_Declarat(mots[nom + 1].text)}}, .clau = {}};
  definicio.columnes.push_back(Unir(mots, {nom + 2, mots.size()}, literals));
  return definicio;
}

}  // namespace

bool Es_Definicio(std::string_view sentencia) {
  const std::size_t inici = sentencia.find_first_not_of(" \t\r\n");
  if (inici == std::string_view::npos) return false;
  return Iguals_Plegats(sentencia.substr(inici, 7), "CREATE ") || Iguals_Plegats(sentencia.substr(inici, 6), "ALTER ");
}

Definicio Llegir_Definicio(std::string_view sentencia) {
  const Sentencia_Escanejada escanejada = Escanejar(sentencia);
  const Mots mots = Partir(escanejada.forma);
  if (!mots.empty() && Es(mots[0], "ALTER")) return Llegir_Columna_Nova(mots, escanejada.literals);
  Definicio definicio;
  if (mots.size() < 5 || !Es(mots[1], "TABLE")) {
    definicio.text = Unir(mots, {0, mots.size()}, escanejada.literals);
    return definicio;
  }
  Taula taula{.nom = mots[2].text, .columnes = {}, .clau = {}};
  for (std::size_t i = 4; i + 1 < mots.size();) {
    const Tram item{i, Fi_Item(mots, i, mots.size() - 1)};
    if (item.ultim - item.primer < 2) Sentencia_Erronia(mots[i].text);
    i = item.ultim + 1;
    if (Es(mots[item.primer], "PRIMARY")) Llegir_Clau(mots, item, taula);
    if (Es(mots[item.primer], "PRIMARY") || Es(mots[item.primer], "FOREIGN") || Es(mots[item.primer], "UNIQUE")) {
      definicio.regles.push_back(Unir(mots, item, escanejada.literals));
      continue;
    }
    taula.columnes.push_back({mots[item.primer].text, Tipus_Declarat(mots[item.primer + 1].text)});
    definicio.columnes.push_back(Unir(mots, {item.primer + 2, item.ultim}, escanejada.literals));
  }
  definicio.taula = std::move(taula);
  return definicio;
}
