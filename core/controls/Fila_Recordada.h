// The row of a recordset where the user stands, found again among others by what it holds: after a filter or a requery
// its number says nothing any more.
#pragma once

#include <vector>

#include "core/dades/Recordset.h"

class Fila_Recordada {
 public:
  explicit Fila_Recordada(Recordset& rs);
  // False when no row holds the same any more; the recordset stays where it is.
  bool Tornar_Hi() const;

 private:
  bool Es_Aquesta(std::int64_t fila) const;
  Recordset& rs_;
  std::vector<Valor> valors_;  // empty: there was no row
};
