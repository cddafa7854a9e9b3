// The tax foot of a document, rebuilt from its lines: one row per VAT percentage. Reads IVAS and the lines, writes the
// foot. A percentage with decimals is no statement (it is written with a comma) and raises that error.
#pragma once

#include "documents/Documents.h"

// For the document on an open form: reads its RE box, writes its total field, requeries its foot.
// Raises 13 when IVAS has no row at a percentage of the lines.
void Calcular_Peu(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa, Document_Obert& obert);
// For a document that no form shows: `porc_re` above 0 means that new rows take the RE of their type; the total goes
// straight into the head row.
void Calcular_Peu_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa,
                           double porc_re);
// Euros: the sum of the foot rounded to 2 decimals; 0 without rows.
double Total_Peu(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
// The sums of the lines will be wanted as soon as the line that is being written stands (Connexio::Demanar).
void Demanar_Grups(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
// Where the set of rates may have shrunk, before Calcular_Peu.
void Buidar_Peu(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
