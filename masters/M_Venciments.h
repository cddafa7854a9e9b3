// Payment terms and payment methods. Reads VENCIMENTS, FORMES_PAGAMENT, CLIENTS, PROVEIDORS, PAGAMENTS; writes
// VENCIMENTS, FORMES_PAGAMENT.
#pragma once

#include <string>

#include "core/M_Mestres.h"

inline constexpr Referencia referencia_venciments = {{"VENCIMENTS", "CODI_VEN"}, "DESCRIPCIO_VEN"};

void Esborrar_Venciment(const std::string& codi);           // asks; nothing when a customer or a supplier has them
std::string Descripcio_Venciment(const std::string& codi);  // empty when there is none
bool Venciment_En_Us(const std::string& codi);

void Esborrar_Forma_Pagament(const std::string& codi);  // asks; nothing when a payment or terms name it
bool Forma_Pagament_En_Us(const std::string& codi);
