// The seven reference tables and the warehouses, each on its screen.
#pragma once

void Registrar_Formularis_Referencia();
