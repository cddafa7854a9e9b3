// Conditions on days, for whoever writes a statement from what a form holds.
#pragma once

#include <optional>
#include <string>

#include "core/dades/Valor.h"

// "camp BETWEEN a AND b", "camp >= a", "camp <= b", or nothing without either day.
std::string Condicio_Data(const std::optional<Data_Hora>& des_de, const std::optional<Data_Hora>& fins_a,
                          const std::string& camp);
// The same for a birthday, placed in the current year: a window over the New Year misses those of January. One of
// 29 February comes on 1 March of a short year. Nothing without either day.
std::string Condicio_Aniversari(const std::optional<Data_Hora>& des_de, const std::optional<Data_Hora>& fins_a,
                                const std::string& camp);
