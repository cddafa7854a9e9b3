// The list of suppliers.
#pragma once

#include "core/menes/Llista_Descrita.h"

const Descripcio_Llista& Llista_Proveidors();
