// Brands. Reads MARQUES, ARTICLES; writes MARQUES.
#pragma once

#include <string>

#include "core/M_Mestres.h"

inline constexpr Referencia referencia_marques = {{"MARQUES", "CODI_MAR"}, "DESCRIPCIO_MAR"};

void Esborrar_Marca(const std::string& codi);           // asks; nothing when an article is of it
std::string Descripcio_Marca(const std::string& codi);  // empty when there is none
bool Marca_En_Us(const std::string& codi);
