// When an amount is due by the terms of a customer. Reads CLIENTS and VENCIMENTS.
#pragma once

#include <array>
#include <string>

#include "core/dades/Valor.h"

// Due dates of `import` euros from `data` by the customer's terms: nothing, the description of the terms, and the text
// "25/04/2011 100 ; ". Halves go to the even digit.
std::array<std::string, 3> Venciments_Factura(const std::string& nif, const Data_Hora& data, double import);
