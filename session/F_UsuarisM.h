// The list of users.
#pragma once

#include "core/menes/Llista_Descrita.h"

const Descripcio_Llista& Llista_Usuaris();
