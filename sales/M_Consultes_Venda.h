// What the lists of sales show and what their search forms ask for.
#pragma once

#include "documents/M_Consultes.h"

extern const Descripcio_Consulta consulta_pressupostos;
extern const Descripcio_Consulta consulta_comandes;
extern const Descripcio_Consulta consulta_albarans;
extern const Descripcio_Consulta consulta_factures;

// Statements of the lists of the current company, without order; `llarga` gives the long field list.
std::string Consulta_Pressupostos(const Valors_Cerca& valors);
std::string Consulta_Comandes(const Valors_Cerca& valors);
std::string Consulta_Albarans(const Valors_Cerca& valors, bool llarga);
std::string Consulta_Factures(const Valors_Cerca& valors);

// Statements of the listings.
std::string Consulta_Marges_Albarans(const Valors_Cerca& valors);
std::string Consulta_Marges_Factures(const Valors_Cerca& valors);
std::string Consulta_Llistat_Factures(const Valors_Cerca& valors);
