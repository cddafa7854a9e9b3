// Warehouses as a master table. Reads ALMACENES and the tables that name a warehouse; writes ALMACENES.
#pragma once

#include <string>

void Esborrar_Magatzem(const std::string& codi);  // asks; nothing when in use
bool Magatzem_En_Us(const std::string& codi);
