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

// Asks and deletes a whole invoice: its notes are open again, and no stock is moved. Refused when it holds payments.
void Esborrar_Factura(std::int64_t numero, const std::string& empresa);

// Writes a line: row, foot, stock and journal, flags. Raises 1010 when the invoice may have no payments, or when the
// stock could not be posted (already shown); 6, 13 or the engine's.
void Afegir_Linia_Factura(const Capcalera_Oberta& cap, const Linia_Entrada& linia, Recordset& linies,
                          Document_Obert& obert);
// Asks, deletes the line and gives its stock back. An invoice made of notes refuses. False when the line stays.
bool Esborrar_Linia_Factura(std::int64_t numero, const std::string& empresa, std::int16_t linia,
                            const std::string& article, double unitats);
