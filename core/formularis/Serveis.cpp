#include "core/formularis/Serveis.h"

Serveis_De_Dalt serveis;
