// The columns of an editor's grids, told once for every kind: a role word brings its width, its caption and its mask.
#pragma once

#include <vector>

#include "core/controls/Graella.h"
#include "documents/Documents.h"

// What a kind shows in its own way.
struct Columna_Propia {
  const char* paper;            // DTE
  const char* titol = nullptr;  // null: as in every kind
  const char* mascara = nullptr;
};

// Of the lines, in the order of the statement or in that of `ordre` (role words separated by blanks). Number and
// company are hidden.
std::vector<Columna_Graella> Columnes_De_Linies(const Tipus_Document& tipus, const std::vector<Columna_Propia>& propies,
                                                const char* ordre = nullptr);
std::vector<Columna_Graella> Columnes_De_Peu(const Tipus_Document& tipus);
