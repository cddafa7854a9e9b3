// The seven reference tables and the warehouses, each on its screen.
#pragma once

#include "core/menes/Taula_Referencia.h"

void Registrar_Formularis_Referencia();

// A column of a table edited in place that takes a method of payment.
Desplegable_Referencia Desplegable_Formes_De_Pagament(const char* camp);
