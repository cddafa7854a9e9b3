// Customers as documents need them. Reads CLIENTS.
#pragma once

#include <array>
#include <string>

bool Client_Te_IVA(const std::string& nif);
bool Client_Te_RE(const std::string& nif);
// NIF_CLI, RAO_SOCIAL_CLI, NOM_COMERCIAL_CLI, ADREÇA_CLI, CP_CLI, LOCALITAT_CLI, CODI_CLIENT_CLI; empty when missing.
std::array<std::string, 7> Dades_Client(const std::string& nif);
// Statement of the customers' combo of a document.
std::string SQL_Combo_Clients();
