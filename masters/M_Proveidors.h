// Suppliers. Reads PROVEIDORS, ALBCOMPRACAP, ARTICLES; writes PROVEIDORS.
#pragma once

#include <array>
#include <string>

#include "core/M_Mestres.h"

inline constexpr Referencia referencia_proveidors = {{"PROVEIDORS", "NIF_PRO"}, "RAO_SOCIAL_PRO"};

void Esborrar_Proveidor(const std::string& nif, const std::string& rao_social);  // asks; nothing when in use
std::string Nou_Proveidor();  // its code; raises 80004005 when another terminal took it at the same moment
std::string Nom_Proveidor(const std::string& nif);  // empty when there is none
// NIF_PRO, RAO_SOCIAL_PRO, NOM_COMERCIAL_PRO, ADREÇA_PRO, CP_PRO, LOCALITAT_PRO; empty when missing.
std::array<std::string, 6> Dades_Proveidor(const std::string& nif);
bool Proveidor_Te_IVA(const std::string& nif);
bool Proveidor_En_Us(const std::string& nif);

// Statements of the list, of the editor and of the combo of a document.
std::string SQL_Proveidors();
std::string SQL_Proveidor(const std::string& nif);
std::string SQL_Combo_Proveidors();
inline constexpr Noms_Amb_Codi noms_proveidors = {SQL_Combo_Proveidors, "NIF_PRO", "RAO_SOCIAL_PRO"};
