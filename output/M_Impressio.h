// What a printed document shows, taken from the databases. Reads the document's tables; fills and empties the local
// work tables *_VALORAT_IMPR. Knows nothing of pages.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "documents/Documents.h"

// The local table that the lines of this kind are printed from.
std::string Taula_Impressio(const Tipus_Document& tipus);
// Its rows, in the order of the lines.
std::string SQL_Impressio(const Tipus_Document& tipus);
// Empties the work table and copies the document's lines into it; a line break in a description becomes one
// no-break space.
void Omplir_Taula_Impressio(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
void Buidar_Taula_Impressio(const Tipus_Document& tipus);

struct Capcalera_Impressa {
  std::string data;  // DD/MM/YYYY
  std::string client;
  std::string observacions;
};
// Empty texts when there is no such document.
Capcalera_Impressa Dades_Capcalera(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);

// Sum of the work table's amounts, euros.
double Net_Impres(const Tipus_Document& tipus);

// A foot row: base, % IVA, IVA, % RE, RE, amount, under "#,##0.00".
using Fila_Peu_Impres = std::array<std::string, 6>;
struct Peu_Impres {
  std::vector<Fila_Peu_Impres> files;
  double total = 0;  // euros
};
// Rows in the order of the tax codes, as the editor's grid shows them.
Peu_Impres Dades_Peu(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
