// A list: a grid over the recordset of a statement. What a list adds is its statement, its columns, its styles and what
// its buttons and a double click do.
#pragma once

#include <string>
#include <vector>

#include "core/controls/Graella.h"
#include "core/formularis/Formulari.h"

class QLineEdit;
class QPushButton;

struct Boto_De_Llista {
  const char16_t* nom;
  const char16_t* text;  // Catalan
};

// What a list without a .ui file is made of: its grid over a row of buttons, the way out at the end.
struct Peces_De_Llista {
  const char16_t* titol;
  const char16_t* graella;
  const Boto_De_Llista* nou;  // null: none
  Boto_De_Llista esborrar;
};

class Llista : public Formulari {
  Q_OBJECT
 public:
  using Formulari::Formulari;
  void Carregar() override;
  void Descarregar() override;
  Recordset* Recordset_Llista() override { return &rs_; }
  Graella* Graella_Llista() override { return graella_; }

 protected:
  virtual std::string Sentencia() const = 0;
  virtual Connexio& Base() const { return sessio.Connexio_Comuna; }  // or the local one
  virtual Bloqueig Mode() const { return Bloqueig::Lectura; }
  virtual void Obrir_Fila() {}  // double click or Enter on the current row
  virtual void Nou() {}
  virtual void Esborrar_Fila() {}
  // The current row may go to the field that asked for it; a list that says no has told the user why.
  virtual bool Admet_Retorn() { return true; }

  void Construir(const Peces_De_Llista& peces, const std::vector<Columna_Graella>& columnes);
  // Tells the grid of the .ui file and its columns; before Carregar.
  void Muntar(Graella* graella, const std::vector<Columna_Graella>& columnes);
  // A list may lack the buttons that add and delete.
  void Muntar_Botons(QPushButton* nou, QPushButton* esborrar, QPushButton* sortir);
  // Enter in one of these fields presses the button that filters, and goes to the rows if there are any.
  void Muntar_Filtre(QPushButton* boto, const std::vector<QLineEdit*>& camps);
  void keyPressEvent(QKeyEvent* event) override;
  // The rows as they stand now, back on the row where the list was.
  void Requerir();

  Recordset rs_;

 private:
  void Triar_Fila();
  Graella* graella_ = nullptr;
  QPushButton* boto_filtre_ = nullptr;
  std::vector<QLineEdit*> camps_filtre_;
};
