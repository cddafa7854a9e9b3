// The words of the screens. Reads TEXTS (local).
#pragma once

#include <string>
#include <vector>

struct Text_Pantalla {
  std::string control;    // F_CONTROL: the form's name, a control, or a control, a point and an index
  std::string propietat;  // TEXT, CAPTION, TABCAPTION, TOOLTIPTEXT in any case
  std::string text;
};

// Rows of TEXTS of a form or report (upper case name) in the session's language: one query on the local database.
std::vector<Text_Pantalla> Textos_De(const std::string& objecte);
