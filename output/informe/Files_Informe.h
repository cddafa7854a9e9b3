// The rows of a report, and what its fields and sums show of them.
#pragma once

#include "output/informe/Informe.h"

// A recordset, by the numbers of its rows; it stays where it is.
class Font_Recordset : public Font_Informe {
 public:
  explicit Font_Recordset(const Recordset& rs) : rs_(rs) {}
  std::int64_t Files() const override { return rs_.RecordCount(); }
  int Columna(const std::string& nom) const override { return rs_.Index_Camp(nom); }
  Valor Cella(std::int64_t fila, int columna) const override { return rs_.Valor_De_Fila(fila, columna); }

 private:
  const Recordset& rs_;
};

// The column of a field or of a sum, by its name. Raises 1005 when there is none.
int Columna_De(const Font_Informe& files, const Control_Informe& control);
// A value as its field shows it.
QString Text_De_Camp(const Valor& valor, const std::string& mascara);
// The controls of a report with its sums made.
std::vector<Estat_Control> Amb_Sumes(const Cos_Informe& cos);
