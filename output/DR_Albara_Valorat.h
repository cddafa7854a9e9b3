// The printed delivery note, with prices or without.
#pragma once

#include "output/informe/Informe.h"

const Definicio_Informe& DR_Albara_Valorat();
