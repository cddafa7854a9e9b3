// The rights of the session on the controls of every form, as one table. Lists ask for the letter M, editors refuse the
// letter C: any other letter leaves a list without its buttons and an editor open.
#pragma once

#include <QString>
#include <span>
#include <string>
#include <vector>

#include "core/Sessio.h"

class Formulari;
class QWidget;

enum class Mena_Drets {
  Llista,            // controls enabled with M
  Llista_Editable,   // the same, and the grid takes changes
  Editor,            // controls enabled unless the letter is C
  Editor_Amb_M,      // an editor that asks for M
  Sense_Lletra,      // enabled by the condition alone
  Sempre_Desactivat  // whatever the letter is
};

struct Fila_Drets {
  const char16_t* formulari;
  std::string Sessio::*dret;  // null: the right of the document whose payments are shown
  Mena_Drets mena;
  std::vector<const char16_t*> controls;
  bool (*condicio)(const Formulari&) = nullptr;  // has to hold too
};

// A form may have several rows.
std::span<const Fila_Drets> Taula_De_Drets();
// The table, handed over by the shell, which knows every form.
void Fixar_Drets(std::span<const Fila_Drets> taula);

// Applies the rows of a loaded form, passing over the controls that it has not. Nothing for a form without rows. An
// editor none of whose rows is granted lets nothing be changed, whatever controls its rows name.
void Aplicar_Taula_De_Drets(Formulari& formulari);

// The form is a list whose rows are edited in its grid.
bool S_Edita_En_Lloc(const QString& formulari);

// A control enabled by a right, unless it works on a screen that this program has not (see Boto_De_Pantalla).
void Habilitar_Control(QWidget& control, bool habilitat);
