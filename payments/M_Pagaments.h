// Payments of documents ("P" order, "A" delivery note, "F" invoice) of the current company. Reads and writes PAGAMENTS;
// reads FORMES_PAGAMENT.
#pragma once

#include <cstdint>
#include <string>

#include "core/dades/Valor.h"

// Does the document hold payments.
bool Tenir_Pagaments(const std::string& document, std::int64_t numalb);
// What has been paid of it, in euros.
double Total_Pagaments_Document(const std::string& document, std::int64_t numalb);
// Would this amount, on top of what is paid, be more than the document's total (euros, compared as the cents that they
// are).
bool Supera_El_Total(double import, double pagat, double total);
// Asks, and deletes the payment of that code. True when it went.
bool Esborrar_Pagament(std::int64_t id);

// The statements of the payments of a document, and of what they add up to.
std::string SQL_Pagaments_Document(const std::string& document, std::int64_t numalb);
std::string SQL_Total_Pagaments(const std::string& document, std::int64_t numalb);
