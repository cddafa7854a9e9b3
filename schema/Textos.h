// The texts of the screens and reports, one file a screen in schema/textos: a header line, then a line a text with
// control, property, Catalan, Spanish and English, separated by tabs.
#pragma once

#include <array>
#include <string>
#include <vector>

struct Text_De_Control {
  std::string objecte;    // F_ALBARA: the file's name
  std::string control;    // its address: a name, or a name, a point and an index
  std::string propietat;  // CAPTION, TEXT, TABCAPTION, TOOLTIPTEXT
  std::array<std::string, 3> text;
};

// All of them. A line with fewer fields comes with empty texts; the tests tell which.
const std::vector<Text_De_Control>& Textos_De_Pantalles();
