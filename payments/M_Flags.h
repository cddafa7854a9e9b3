// Payment flags: in a chain of orders, delivery notes and invoices the customer's money stands at one level only, and
// the flag of a head says that it is there. The flag goes down the chain by itself as papers are served and invoiced,
// and stays where there are payments already. Reads what M_Cadena reads; writes the three flags and the work list
// FLAG_PAGAMENTS_TEMP (local). Letters of documents: "P" order, "A" delivery note, "F" invoice.
#pragma once

#include <string>
#include <vector>

#include "payments/M_Cadena.h"

// The walk over the whole chain of a document: every document of it is evaluated once. In a transaction of its own
// unless one is open. Raises 1010 with its text when the chain is not as it should be: it ends there, and what it wrote
// stays (unless the caller undoes it).
void Propagar_Flag_Pagaments(const std::string& document, std::int64_t numalb);
// The same from several documents, none of them twice.
void Propagar_Flag_Pagaments(const std::vector<Document_Pagable>& documents);
// The same over a chain that has been read already; it is in the caller's transaction.
void Propagar_Flag_Pagaments(Cadena& cadena, const Document_Pagable& document);

bool Flag_Pagament(const std::string& document, std::int64_t numalb);  // false without a row
// Through the form of that kind when it is loaded, whatever document it shows, and on the head otherwise.
void Posar_Flag_Pagament(const std::string& document, std::int64_t numalb, bool flag);

struct Flag_A_Posar {
  Document_Pagable document;
  bool flag;
};
// Before a line is added to a delivery note: a note whose orders carry the payments takes none. `comanda` is the order
// that the line serves, 0 for none. Writes nothing: the flags that have to be put right come back. Raises 1010.
std::vector<Flag_A_Posar> Comprovar_Linia_Albara(const Cadena& cadena, std::int64_t albara, std::int64_t comanda);
void Posar_Flags(Cadena& cadena, const std::vector<Flag_A_Posar>& flags);
