// Brands. Reads MARQUES, ARTICLES; writes MARQUES.
#pragma once

#include <string>

void Esborrar_Marca(const std::string& codi);           // asks; nothing when an article is of it
std::string Descripcio_Marca(const std::string& codi);  // empty when there is none
bool Marca_En_Us(const std::string& codi);
