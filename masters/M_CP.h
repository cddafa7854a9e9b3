// Postal codes; one code can serve several localities. Reads CP, CLIENTS, PROVEIDORS, EMPRESES; writes CP.
#pragma once

#include <string>

void Esborrar_CP(const std::string& cp, const std::string& localitat);  // asks; nothing when the code is in use
std::string Localitat_CP(const std::string& cp);                        // the first by name; empty when there is none
bool CP_En_Us(const std::string& cp);
