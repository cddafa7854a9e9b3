// The report of the three listings: its page, drawn from what tells one listing from another.
#pragma once

#include "output/M_Llistats.h"
#include "output/informe/Informe.h"

// DR_ALBARA_MARGES, DR_FACTURA_MARGES, DR_FACTURES.
const Definicio_Informe& DR_Llistat(const Descripcio_Llistat& descripcio);

// The pages of the rows of a statement, with the criteria that it was made of in their head; none without rows.
Pagines Pagines_De_Llistat(const Descripcio_Llistat& descripcio, const std::string& sentencia,
                           const Valors_Cerca& valors);
// Asks the user what to do with them; nothing without rows.
void Imprimir_Llistat(const Descripcio_Llistat& descripcio, const std::string& sentencia, const Valors_Cerca& valors);
