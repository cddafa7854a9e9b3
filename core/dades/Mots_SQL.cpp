#include "core/dades/Mots_SQL.h"

#include <algorithm>
#include <cctype>

#include "core/dades/Error_Brollador.h"

namespace mots_sql {

void Sentencia_Erronia(std::string_view prop) {
  Llancar_Error(errors::sentencia, "Dialecte", std::string(prop));
}

bool Es_Digit(char c) {
  return c >= '0' && c <= '9';
}
bool Es_De_Nom(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

Mots Partir(const std::string& forma) {
  Mots mots;
  std::size_t i = 0;
  while (i < forma.size()) {
    const char c = forma[i];
    const std::size_t inici = i;
    if (std::isspace(static_cast<unsigned char>(c)) != 0) {
      ++i;
    } else if (c == '?') {
      while (++i < forma.size() && Es_Digit(forma[i])) {
      }
      mots.push_back(
          {Mena::Parametre, forma.substr(inici, i - inici), std::stoi(forma.substr(inici + 1, i - inici - 1)) - 1});
    } else if (c == '"') {
      i = forma.find('"', i + 1) + 1;
      if (i == 0) Sentencia_Erronia(forma.substr(inici, 20));
      mots.push_back({Mena::Nom, forma.substr(inici + 1, i - inici - 2)});
    } else if (Es_De_Nom(c)) {
      while (i < forma.size() && Es_De_Nom(forma[i])) ++i;
      mots.push_back({Mena::Nom, forma.substr(inici, i - inici)});
    } else {
      const std::string_view dos = std::string_view(forma).substr(i, 2);
      i += dos == "<>" || dos == "<=" || dos == ">=" || dos == "!=" || dos == "||" ? 2 : 1;
      mots.push_back({Mena::Simbol, forma.substr(inici, i - inici)});
    }
  }
  return mots;
}

bool Es(const Mot& mot, std::string_view paraula) {
  return mot.mena != Mena::Parametre && mot.text.size() == paraula.size() &&
         std::equal(mot.text.begin(), mot.text.end(), paraula.begin(),
                    [](char a, char b) { return std::toupper(static_cast<unsigned char>(a)) == b; });
}

}  // namespace mots_sql
