// Prints a document: through the print dialog, or as a PDF file.
#pragma once

#include <QString>

#include "documents/Documents.h"

namespace impressio {
constexpr int dialeg = 0;
constexpr int pdf = -1;
}  // namespace impressio

// Fills the report of the kind from the document and sends it where `mode` says. sessio.Crida_Document tells whether
// prices are printed (";VALORAT", ";NO_VALORAT"). A document without lines prints nothing, in silence. Raises when the
// foot has more rows than the page. Reads the document's tables, EMPRESES, CLIENTS, PROVEIDORS; fills and empties its
// local work table.
void Imprimir_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa, int mode);

// Where a document goes as PDF: A-12.pdf in the folder of temporary files. What cannot stand in the name of a file is a
// hyphen there.
QString Fitxer_PDF(const Tipus_Document& tipus, const Valor& numero);
