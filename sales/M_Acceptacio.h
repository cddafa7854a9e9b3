// A line on its way: a proposal's line accepted into an order (into a delivery note for a user without orders), an
// order's line served whole into a delivery note, and both taken back. The customer's open document of today takes the
// lines of the day; it is made for the first and goes with the last. Every one of these is a transaction of its own.
// Reads and writes the heads, lines and feet of the three kinds; through their modules STOCK, MOVIMIENTOS and the
// payment flags.
#pragma once

#include "documents/M_Detall_Linia.h"

extern const Passos_Detall detall_pressupost;
extern const Passos_Detall detall_comanda;
extern const Passos_Detall detall_albara;
extern const Passos_Detall detall_factura;

// The number of the customer's document of today that is still open; 0 without any. The lowest, when there are several.
std::int64_t Cercar_Document_Obert(const Tipus_Document& tipus, const std::string& client, const std::string& empresa);

// Into the order of today; a line that was accepted already stays as it is. Raises 80040E38 when another terminal took
// the line away, 1010 when the stock refuses it (already shown) or the chain of payments does.
void Acceptar_Linia_Pressupost(const Linia_Detall& linia);
// Out of its order, which goes when it was its last line. Refused, with a box, when the order has served it and for a
// user without orders.
void Descartar_Linia_Pressupost(const Linia_Detall& linia);
// The whole line into the note of today; one with units served stays as it is.
void Servir_Linia_Sencera(const Linia_Detall& linia);
// Out of all the notes that serve it; the invoiced ones stay, and are told of. Units with decimals are no statement
// (they are written with a comma) and raise that error.
void Retirar_Linia_Servida(const Linia_Detall& linia);
