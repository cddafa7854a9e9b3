// How a list hands a chosen row back to the field that asked for it. A form writes a tag into the session and shows the
// list; a double click looks the tag up, writes the fields of the caller and runs what leaving them runs.
#pragma once

#include <QString>
#include <span>
#include <string>
#include <vector>

#include "core/Sessio.h"

class Formulari;

enum class Mena_Crida {
  Camp,         // the first target is left as if the user had typed it
  Combo,        // a combo takes code and name, and runs its choice whether it has the focus or not
  Directa,      // plain writes
  Sense_Retorn  // tells the list what to show; no row goes back
};

struct Desti_Crida {
  const char16_t* control;
  const char* columna;           // of the list's recordset; of a combo, its code
  const char* columna_nom = "";  // of a combo, its name
  std::string (*conversio)(const Valor&) = nullptr;
};

struct Crida {
  const char* etiqueta;
  std::string Sessio::*variable;  // Crida_Mestre or Crida_Document
  const char16_t* formulari;      // the caller
  const char16_t* boto;           // of the caller, null: the call is its own step
  const char16_t* llista;
  Mena_Crida mena;
  std::vector<Desti_Crida> destins;
};

// The table, handed over by the shell, which knows every form.
void Fixar_Crides(std::span<const Crida> taula);
std::span<const Crida> Taula_De_Crides();

// The call that this list was opened for and whose caller is still there; null when it was opened from the menu.
const Crida* Crida_Pendent(const QString& llista);

// The current row of the list goes to its caller, which comes to the front with the field selected; the search form and
// the list are unloaded. False, and nothing done, without a pending call or a current row.
bool Tornar_Fila(Formulari& llista);

// The buttons of a form that open lists for its fields, and F4 and Alt+Down in those fields.
void Connectar_Crides(Formulari& formulari);
// Sets the tag and opens the list, on the row of the code that the field holds.
void Cridar(const Crida& crida);
// The list has gone: the next opening from the menu finds no tag of it.
void Oblidar_Crida(const QString& llista);
