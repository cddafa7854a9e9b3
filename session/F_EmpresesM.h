// The list of companies.
#pragma once

#include "core/menes/Llista_Descrita.h"

const Descripcio_Llista& Llista_Empreses();
