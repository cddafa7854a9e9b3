#include "core/controls/Fila_Recordada.h"

Fila_Recordada::Fila_Recordada(Recordset& rs) : rs_(rs) {
  if (!rs.State() || rs.AbsolutePosition() < 1) return;
  for (std::size_t camp = 0; camp < rs.Fields().size(); ++camp) {
    valors_.push_back(rs.Valor_De_Fila(rs.AbsolutePosition() - 1, static_cast<int>(camp)));
  }
}

bool Fila_Recordada::Es_Aquesta(std::int64_t fila) const {
  int camp = 0;
  for (const Valor& valor : valors_) {
    if (!(rs_.Valor_De_Fila(fila, camp++) == valor)) return false;
  }
  return true;
}

bool Fila_Recordada::Tornar_Hi() const {
  if (valors_.empty() || !rs_.State() || rs_.Fields().size() != valors_.size()) return false;
  for (std::int64_t fila = 0; fila < rs_.RecordCount(); ++fila) {
    if (!Es_Aquesta(fila)) continue;
    rs_.AbsolutePosition(fila + 1);
    return true;
  }
  return false;
}
