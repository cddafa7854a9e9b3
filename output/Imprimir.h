// Prints a document: through the print dialog, or as a PDF file.
#pragma once

#include <QString>

#include "documents/Documents.h"
#include "output/informe/Informe.h"

namespace impressio {
constexpr int dialeg = 0;
constexpr int pdf = -1;
}  // namespace impressio

// The document on the pages of its kind's report; one without lines has none. sessio.Crida_Document tells whether
// prices are printed (";VALORAT", ";NO_VALORAT"). Raises when the foot has more rows than the page. Reads the
// document's tables, EMPRESES, CLIENTS, PROVEIDORS; fills its local work table and leaves it empty.
Pagines Pagines_De_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
// Sends those pages where `mode` says. A document without lines prints nothing, in silence.
void Imprimir_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa, int mode);

// Where a document goes as PDF: A-12.pdf in the folder of temporary files. What cannot stand in the name of a file is a
// hyphen there.
QString Fitxer_PDF(const Tipus_Document& tipus, const Valor& numero);
