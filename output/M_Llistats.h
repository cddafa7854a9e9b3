// The listings of what the search forms find: one report, and here as data what tells one from another.
#pragma once

#include <span>

#include "documents/M_Consultes.h"

struct Columna_Llistat {
  const char* camp;     // of the statement: NUMALB_AC
  const char* control;  // of its title: L_ALBARA_AC
  const char* titol;    // Catalan
  double ample;         // millimetres
  bool import = false;  // euros: on the right, zeros blank, added up at the end
};

struct Descripcio_Llistat {
  const char* informe;  // DR_ALBARA_MARGES
  const char* titol;    // Catalan
  const char* numero;   // of the criterion TXT_ALBARA: its labels are L_TXT_ALBARA_ENTRE and L_TXT_ALBARA_Y
  const char* numero_entre;
  bool amb_articles;  // the criteria on the lines count, and are shown
  std::span<const Columna_Llistat> columnes;
};
extern const Descripcio_Llistat llistat_marges_albarans;
extern const Descripcio_Llistat llistat_marges_factures;
extern const Descripcio_Llistat llistat_factures;

// What the labels of its head say: the company, and the criteria as they were typed. Reads EMPRESES and CLIENTS.
std::vector<std::pair<std::string, std::string>> Textos_De_Llistat(const Descripcio_Llistat& llistat,
                                                                   const Valors_Cerca& valors);
