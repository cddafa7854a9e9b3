// Conditions for whoever writes a statement: on days, and on lists of numbers.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/dades/Valor.h"

// "camp BETWEEN a AND b", "camp >= a", "camp <= b", or nothing without either day.
std::string Condicio_Data(const std::optional<Data_Hora>& des_de, const std::optional<Data_Hora>& fins_a,
                          const std::string& camp);
// The same for a birthday, placed in the current year: a window over the New Year misses those of January. One of
// 29 February comes on 1 March of a short year. Nothing without either day.
std::string Condicio_Aniversari(const std::optional<Data_Hora>& des_de, const std::optional<Data_Hora>& fins_a,
                                const std::string& camp);
// Numbers for IN(...), at least one; each between `cometa`. The last one is repeated up to a power of two, so that
// statements have few shapes.
std::string Llista_De_Numeros(const std::vector<std::int64_t>& numeros, const char* cometa = "");
