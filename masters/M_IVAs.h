// VAT types. Reads IVAS at every call; a deletion reads ARTICLES and the feet of documents and writes IVAS.
#pragma once

#include <string>

#include "core/M_Mestres.h"
#include "core/dades/Valor.h"

inline constexpr Referencia referencia_ivas = {{"IVAS", "CODI_IVA"}, "DESC_IVA"};

struct Tipus_IVA {
  Valor codi;  // all four null when there is no such type
  Valor descripcio;
  Valor porc_iva;  // percent
  Valor porc_re;   // percent, equivalence surcharge
};

Tipus_IVA Dades_IVA(const std::string& codi);
void Demanar_IVA(const std::string& codi);  // Dades_IVA will be wanted soon (Connexio::Demanar)
// The percentage goes into the statement as its plain text, with a comma: 7,5 is no statement and raises that error.
Tipus_IVA Dades_IVA_Percentatge(double percentatge);
std::string Codi_IVA_Percentatge(double percentatge);  // first by key; empty when none

void Esborrar_Iva(const std::string& codi);  // asks; nothing when an article or the foot of any document names it
std::string Descripcio_Iva(const std::string& codi);  // empty when there is none
bool Iva_En_Us(const std::string& codi);
