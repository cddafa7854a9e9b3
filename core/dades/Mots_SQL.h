// The words of a statement's shape, for whoever reads or rewrites it. Internal to the dialect.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace mots_sql {

[[noreturn]] void Sentencia_Erronia(std::string_view prop);
bool Es_Digit(char c);
bool Es_De_Nom(char c);

enum class Mena { Nom, Parametre, Simbol };

struct Mot {
  Mena mena;
  std::string text;    // a name without its quotes, ?n, a symbol
  int parametre = -1;  // from 0
};

using Mots = std::vector<Mot>;

Mots Partir(const std::string& forma);
// The word without case; `paraula` in capitals.
bool Es(const Mot& mot, std::string_view paraula);

struct Tram {  // [primer, ultim)
  std::size_t primer = 0;
  std::size_t ultim = 0;
  bool Buit() const { return primer >= ultim; }
};

}  // namespace mots_sql
