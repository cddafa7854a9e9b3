// The list of a master table that differs from another in a description alone: it has no .ui file.
#pragma once

#include "core/menes/Llista_Mestra.h"

struct Descripcio_Llista {
  const char16_t* formulari;
  const char16_t* titol;  // Catalan, as TEXTS finds it
  const char16_t* graella;
  std::vector<Columna_Graella> columnes;
  Boto_De_Llista nou;
  Boto_De_Llista esborrar;
  std::string (*sentencia)();
  QString (*estil)(const Recordset& files, std::int64_t fila);  // null: all rows alike
  Descripcio_Mestra mestra;
};

class Llista_Descrita : public Llista_Mestra {
  Q_OBJECT
 public:
  explicit Llista_Descrita(const Descripcio_Llista& descripcio);

 protected:
  std::string Sentencia() const override { return descripcio_.sentencia(); }

 private:
  const Descripcio_Llista& descripcio_;
};
