// A reference table on its screen: a grid edited in place over the whole table, one button that deletes and a way out.
// The same screen is where other forms pick a code. Tables differ in a description.
#pragma once

#include <QPushButton>

#include "core/menes/Llista.h"

struct Descripcio_Referencia {
  const char16_t* formulari;
  const char16_t* titol;  // Catalan, as TEXTS finds it
  const char16_t* graella;
  const char* sentencia;
  std::vector<Columna_Graella> columnes;
  const char16_t* boto_esborrar;
  void (*esborrar)(const Recordset& fila);   // asks and deletes the current row
  bool cerca_amb_la_dreta = false;           // the right button of the mouse opens F_Cerca
  void (*desplegables)(Graella&) = nullptr;  // fills the combo columns
};

class Taula_Referencia : public Llista {
  Q_OBJECT
 public:
  explicit Taula_Referencia(const Descripcio_Referencia& descripcio);
  void Carregar() override;
  void Descarregar() override;

 protected:
  std::string Sentencia() const override { return descripcio_.sentencia; }
  Bloqueig Mode() const override { return Bloqueig::Pessimista; }
  void Esborrar_Fila() override;
  bool eventFilter(QObject* objecte, QEvent* event) override;

 private:
  const Descripcio_Referencia& descripcio_;
};
