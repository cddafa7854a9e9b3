// Parameters of a statement on their way to the engine.
#pragma once

#include <utility>
#include <vector>

#include "core/dades/Cataleg.h"
#include "core/dades/Valor.h"

// Puts the lower bound of each BETWEEN first: the dialect takes them in either order.
void Ordenar_Entre(const std::vector<std::pair<int, int>>& entre, std::vector<Valor>& parametres);

// <0, 0, >0: numbers as numbers, dates as moments, anything else as texts without case.
int Comparar_Valors(const Valor& a, const Valor& b);

// A value as a column of this type holds it. Raises 6 when the number does not fit, 13 when it is of no such kind (a
// text with a nought in it is of none).
Valor Convertir_A_Columna(const Valor& valor, Tipus_Columna tipus);
