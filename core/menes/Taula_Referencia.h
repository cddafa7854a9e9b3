// A reference table on its screen: a grid edited in place over the whole table, one button that deletes and a way out.
// The same screen is where other forms pick a code. Tables differ in a description; one whose rows depend on what the
// session holds is a class of its own, with the steps of a new row and of a written one.
#pragma once

#include "core/menes/Llista.h"

// A column that takes a code of another table, and shows its text.
struct Desplegable_Referencia {
  const char* camp;
  const char* sentencia;       // code and text
  const char* titols_codi[3];  // of the open list, in Catalan, Spanish and English
  const char* titols_text[3];
};

struct Descripcio_Referencia {
  const char16_t* formulari;
  const char16_t* titol;  // Catalan, as TEXTS finds it
  const char16_t* graella;
  std::string (*sentencia)();
  std::vector<Columna_Graella> columnes;
  const char16_t* boto_esborrar;
  void (*esborrar)(const Recordset& fila);  // asks and deletes the current row
  bool cerca_amb_la_dreta = false;          // the right button of the mouse opens F_Cerca
  std::vector<Desplegable_Referencia> desplegables = {};
  Connexio Sessio::*base = &Sessio::Connexio_Comuna;
};

class Taula_Referencia : public Llista {
  Q_OBJECT
 public:
  explicit Taula_Referencia(const Descripcio_Referencia& descripcio);
  void Carregar() override;
  void Descarregar() override;
  bool Es_Taula_Editable() const override { return true; }
  QString Que_Mostra() const override;
  bool Tot_Desat() const override;

 protected:
  // A value has been put into this column of a row that is being added: what the others begin with.
  virtual void Fila_Nova(Recordset& /*fila*/, const char* /*camp*/) {}
  // The row in edit, left from this column, is about to be written. False gives its edit up.
  virtual bool Per_Desar(const Recordset& /*fila*/, const char* /*camp*/) { return true; }
  // A row was written or deleted.
  virtual void Files_Canviades() {}

  std::string Sentencia() const override { return descripcio_.sentencia(); }
  Connexio& Base() const override { return sessio.*descripcio_.base; }
  Bloqueig Mode() const override { return Bloqueig::Pessimista; }
  void Esborrar_Fila() override;
  bool eventFilter(QObject* objecte, QEvent* event) override;

 private:
  void Omplir(const Desplegable_Referencia& desplegable);
  void Esborrar_Retinguda();
  const Descripcio_Referencia& descripcio_;
};
