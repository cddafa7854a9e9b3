// Delivery notes: the document that moves stock, serves orders and is invoiced. Reads and writes ALBARACAP, ALBARALIN,
// ALBARAPEU; through their modules STOCK, MOVIMIENTOS, COMANDALIN, COMANDACAP, PRESSUPOSTLIN, PRESSUPOSTCAP.
#pragma once

#include "documents/Documents.h"

// What delivery notes do of their own around their lines.
extern const Passos_Document passos_albara;

std::int64_t Crear_Capcalera_Albara();
std::int64_t Seguent_Numero_Albara(const std::string& empresa);
std::int16_t Seguent_Linia_Albara(std::int64_t numero, const std::string& empresa);
bool Existeix_Albara(std::int64_t numero, const std::string& empresa);
std::int64_t Comptar_Linies_Albara(std::int64_t numero, const std::string& empresa);
double Total_Peu_Albara(std::int64_t numero, const std::string& empresa);
bool Hi_Ha_Descomptes_Albara(std::int64_t numero, const std::string& empresa);

// Asks and deletes a whole note: no stock, no served units, no order is touched. Refused when it holds payments.
void Esborrar_Albara(std::int64_t numero, const std::string& empresa);
// True when the note is invoiced or any of its lines serves an order.
bool Albara_Bloquejat(std::int64_t numero, const std::string& empresa);

// The latest date of the notes of a statement; today when there is none.
Data_Hora Data_Maxima_Albarans(const std::string& albarans);
// The customer's note of today that is still open; 0 without any.
std::int64_t Cercar_Albara_Obert(const std::string& client, const std::string& empresa);
bool Estat_Albara(std::int64_t numero, const std::string& empresa);  // true when it is invoiced

// Writes a line on the form's line recordset: row, link and served units of the order, foot, stock and journal.
// Call it inside a transaction that has not written yet: it may show the warning of the minimum before it writes.
// Raises 1010 when the stock could not be posted (already shown), 6, 13 or the engine's.
void Afegir_Linia_Albara(const Capcalera_Oberta& cap, const Linia_Entrada& linia, Recordset& linies,
                         Document_Obert& obert);
// Asks, deletes the line, undoes its links and gives the stock back. False when the user said no. Raises 1010 with "El
// document ja no existeix." when another terminal deleted the note, 80040E38 when the line is gone or another one; then
// nothing is written. Call it inside a transaction that has not written yet.
bool Esborrar_Linia_Albara(std::int64_t numero, const std::string& empresa, std::int16_t linia,
                           const std::string& article, double unitats);
