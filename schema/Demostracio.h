// The demonstration: an invented company in the middle of its year, made through the program's own rules, so that
// stock, journal and feet agree. The same every time but for its dates, which end today.
#pragma once

#include "schema/Installador.h"

void Crear_Demostracio(const Opcions_Installacio& opcions);
