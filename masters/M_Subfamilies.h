// Subfamilies of articles, beside the families and under none of them. Reads SUBFAMILIES, ARTICLES; writes SUBFAMILIES.
#pragma once

#include <string>

#include "core/M_Mestres.h"

inline constexpr Referencia referencia_subfamilies = {{"SUBFAMILIES", "CODI_SUBF"}, "DESCRIPCIO_SUBF"};

void Esborrar_Subfamilia(const std::string& codi);           // asks; nothing when an article is of it
std::string Descripcio_Subfamilia(const std::string& codi);  // empty when there is none
bool Subfamilia_En_Us(const std::string& codi);
