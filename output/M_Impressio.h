// What a printed document shows, taken from the databases. Reads the document's tables, EMPRESES, CLIENTS, PROVEIDORS;
// fills and empties the local work tables *_VALORAT_IMPR. Knows nothing of pages.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "output/M_Informes.h"

// The rows of the work table, in the order of the lines.
std::string SQL_Impressio(const Descripcio_Impressio& informe);
// Empties the work table and copies the document's lines into it; a line break in a description becomes one
// no-break space.
void Omplir_Taula_Impressio(const Descripcio_Impressio& informe, const Valor& numero, const std::string& empresa);
void Buidar_Taula_Impressio(const Descripcio_Impressio& informe);

// What is to be set on the controls of a report, by their names.
struct Ompliment_Informe {
  std::vector<std::pair<std::string, std::string>> textos;   // a control and its caption, in this order
  std::vector<std::string> amagats;                          // controls that are not printed
  std::vector<std::pair<std::string, const char*>> formats;  // a field and its mask
  std::string imatge;                                        // file of the logo; empty: none
  int posicio_top = 0;                                       // twips: where the company's block begins, with a logo

  const std::string* Text_De(std::string_view control) const;  // the last one that was set; null: none was
};

// For a document whose lines are in the work table. The foot gives a label to each of its rows, also to those that the
// page has no room for. Raises 13 when P_Posicio_Top is no number.
Ompliment_Informe Omplir_Informe(const Descripcio_Impressio& informe, const Valor& numero, const std::string& empresa,
                                 bool valorat);
