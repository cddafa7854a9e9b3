// Invoices: the end of the sales chain. A direct invoice is typed line by line and moves stock; one that is made of
// delivery notes, which is one that a note names, has their lines and keeps them. Reads and writes FACTURACAP,
// FACTURALIN, FACTURAPEU, ALBARACAP; through their modules STOCK, MOVIMIENTOS and the payment flags.
#pragma once

#include "documents/Documents.h"

// What invoices do of their own around their lines.
extern const Passos_Document passos_factura;

std::int64_t Crear_Capcalera_Factura();
std::int64_t Seguent_Factura();
std::int16_t Seguent_Linia_Factura(std::int64_t numero, const std::string& empresa);
bool Existeix_Factura(std::int64_t numero, const std::string& empresa);
std::int64_t Comptar_Linies_Factura(std::int64_t numero, const std::string& empresa);

// The lowest number that is missing above the first invoice of the company, or else the one after the last; 1 when
// there is none.
std::int64_t Primer_Forat_Factura();

// Is it made of delivery notes of the company.
bool Factura_Te_Albarans(std::int64_t numero, const std::string& empresa);
// How many delivery notes name that number, of whatever company.
std::int64_t Albarans_De_Factura(std::int64_t numero);

// The invoicing run: delivery notes of the list become one invoice. `albarans` is always the statement of the list with
// its long fields and the selection, without order.
// " AND NUMALB_AC IN(...)", which the statement of the list ends with; nothing without numbers: all of the list.
std::string Llista_Albarans_Seleccionats(const std::vector<std::int64_t>& numeros);
struct Facturacio {
  std::string albarans;
  std::string numero;  // as it was typed; "PROFORMA" makes the provisional invoice 0, which touches no note
  Valor data = {};     // null: none
};
// Asks first about notes that are invoiced already, and again when that changes meanwhile. One transaction: head, the
// lines of each note behind a heading, foot, the marks of the notes, flags. False when nothing was made: the user said
// no, or there are no notes. Raises 1005 when the notes differ in their tax conditions, 13 and 6 for a number that is
// none, 6 beyond line 32767, 80040E38 when other terminals keep changing the notes, the engine's when the number is
// taken. Nothing is left of a run that raises.
bool Facturar(const Facturacio& facturacio);
inline constexpr const char* proforma = "PROFORMA";

// Asks and deletes a whole invoice: its notes are open again, and no stock is moved. Refused when it holds payments.
void Esborrar_Factura(std::int64_t numero, const std::string& empresa);

// Writes a line: row, foot, stock and journal, flags. Raises 1010 when the invoice may have no payments, or when the
// stock could not be posted (already shown); 6, 13 or the engine's.
void Afegir_Linia_Factura(const Capcalera_Oberta& cap, const Linia_Entrada& linia, Recordset& linies,
                          Document_Obert& obert);
// Asks, deletes the line and gives its stock back. An invoice made of notes refuses. False when the line stays.
bool Esborrar_Linia_Factura(std::int64_t numero, const std::string& empresa, std::int16_t linia,
                            const std::string& article, double unitats);
