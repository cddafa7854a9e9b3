// Languages. Reads LANGUAGES, TEXTS (local); writes USUARIS.
#pragma once

#include <vector>

#include "core/Sessio.h"

struct Text_Pantalla {
  std::string control;    // F_CONTROL: the form's name, a control, or a control, a point and an index
  std::string propietat;  // TEXT, CAPTION, TABCAPTION, TOOLTIPTEXT in any case
  std::string text;
};

std::string Nom_Idioma(std::int64_t id);  // "-" when there is none
// Rows of TEXTS of a form or report (upper case name) in the session's language: one query on the local database.
std::vector<Text_Pantalla> Textos_De(const std::string& objecte);
// The session speaks this language from now on, its own errors included.
void Posar_Idioma_Sessio(std::int16_t id);
// Writes the language of the user and of the session (the screens then translate themselves).
void Fixar_Idioma(std::int16_t id);
