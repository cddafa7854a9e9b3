// What the lists of purchase notes and of transfers show, and what their search forms ask for.
#pragma once

#include "documents/M_Consultes.h"

extern const Descripcio_Consulta consulta_albcompres;
extern const Descripcio_Consulta consulta_albmag;

// Statements of the lists of the current company, without order.
std::string SQL_AlbCompres(const Valors_Cerca& valors);
std::string Consulta_AlbMag(const Valors_Cerca& valors);
