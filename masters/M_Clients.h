// Customers, shared by all companies. Reads CLIENTS, CLIENTS_DADES and the heads of documents; writes CLIENTS,
// CLIENTS_DADES.
#pragma once

#include <array>
#include <string>

#include "core/M_Mestres.h"

bool Client_Te_IVA(const std::string& nif);
bool Client_Te_RE(const std::string& nif);
// NIF_CLI, RAO_SOCIAL_CLI, NOM_COMERCIAL_CLI, ADREÇA_CLI, CP_CLI, LOCALITAT_CLI, CODI_CLIENT_CLI; empty when missing.
std::array<std::string, 7> Dades_Client(const std::string& nif);
std::string Compte_Client(const std::string& nif);
std::string Email_Client(const std::string& nif);
bool Client_Existeix(const std::string& nif);
bool Client_En_Us(const std::string& nif);

// Creates a customer and its row of additional data; returns its code. Raises 80004005 when another terminal took the
// code at the same moment.
std::string Nou_Client();
void Esborrar_Client(const std::string& nif, const std::string& rao_social);  // asks; nothing when in use
// The customer's row of additional data, added when it is missing.
void Assegurar_Dades_Client(const std::string& nif);
// The additional data of the code `nif` that are not those of the code `nif_abans`. Writes CLIENTS_DADES.
void Esborrar_Dades_Sobreres(const std::string& nif, const std::string& nif_abans);
void Avisar_Client_Existent();  // the box of a tax code that is taken

// The e-mail addresses of a list's customers, in the order of their codes, joined by semicolons.
std::string Emails_Clients(Recordset& clients);

// The condition of a part of the name.
std::string Condicio_Nom_Client(const std::string& text);
// Statements: the list, by a part of the name (empty: all); the editor; its additional data; its sales, of all
// companies; the combo of a document.
std::string SQL_Clients(const std::string& text);
std::string SQL_Client(const std::string& nif);
std::string SQL_Client_Dades(const std::string& nif);
std::string SQL_Vendes_Client(const std::string& nif);
std::string SQL_Combo_Clients();
inline constexpr Noms_Amb_Codi noms_clients = {SQL_Combo_Clients, "NIF_CLI", "RAO_SOCIAL_CLI"};
