// Which words of a statement stand in a comparison of texts. An engine whose columns do not compare as the dialect
// does folds both sides of each of them; see Trets_Motor. Internal to the dialect.
#pragma once

#include <vector>

#include "core/dades/Cataleg.h"
#include "core/dades/Mots_SQL.h"

namespace mots_sql {

enum class Comparat : char { No, Plegat, A_Text };  // A_Text: a number that LIKE reads as a text

// One mark a word; an operand of several words (table.column) is marked at its first one.
std::vector<Comparat> Marcar_Comparats(const Mots& mots, const Cataleg& taules);

bool Es_Text(const Columna* columna);
// Words of the operand that begins at i: a parameter, a column, or a table, a point and a column.
std::size_t Mida_Operand(const Mots& mots, std::size_t i);
// The column that an operand names, or null.
const Columna* Columna_Operand(const Mots& mots, std::size_t i, const Cataleg& taules);

}  // namespace mots_sql
