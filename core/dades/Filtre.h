// The filter of a recordset: comparisons of fields with literals joined by AND, decided at the client.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/dades/Valor.h"

struct Condicio_Filtre {
  int camp = 0;
  std::string operador;  // = <> < <= > >= LIKE
  Valor literal;
};

// FIELD op literal [AND ...]. Raises the faulty-statement error for anything else; `index` tells a field's place and
// raises when there is none.
std::vector<Condicio_Filtre> Llegir_Filtre(std::string_view text, const std::function<int(std::string_view)>& index);
bool Compleix(const Condicio_Filtre& condicio, const Valor& valor);
