// A row of the list of delivery notes, as a plain program would keep it.
#pragma once

#include <cstdint>
#include <string>

struct Fila_Nua {
  std::int64_t numero;
  std::string data;
  std::string client;
  std::string observacions;
  double import;
  int estat;
};
