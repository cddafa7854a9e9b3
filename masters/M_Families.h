// Families of articles. Reads FAMILIES, ARTICLES; writes FAMILIES.
#pragma once

#include <string>

#include "core/M_Mestres.h"

inline constexpr Referencia referencia_families = {{"FAMILIES", "CODI_FAM"}, "DESCRIPCIO_FAM"};

void Esborrar_Familia(const std::string& codi);           // asks; nothing when an article is of it
std::string Descripcio_Familia(const std::string& codi);  // empty when there is none
bool Familia_En_Us(const std::string& codi);
