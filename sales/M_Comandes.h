// Orders: what a customer has asked for, until delivery notes serve it. They move no stock. Reads and writes
// COMANDACAP, COMANDALIN, COMANDAPEU; through their modules PRESSUPOSTLIN, PRESSUPOSTCAP and the payment flags of the
// chain.
#pragma once

#include "documents/M_Linies_Document.h"

// What orders do of their own around their lines.
extern const Passos_Document passos_comanda;

std::int64_t Crear_Capcalera_Comanda();
std::int64_t Seguent_Numero_Comanda(const std::string& empresa);
std::int16_t Seguent_Linia_Comanda(std::int64_t numero, const std::string& empresa);
bool Existeix_Comanda(std::int64_t numero, const std::string& empresa);
std::int64_t Comptar_Linies_Comanda(std::int64_t numero, const std::string& empresa);

// Asks and deletes a whole order: delivery lines that serve it keep its number. Refused when it holds payments.
void Esborrar_Comanda(std::int64_t numero, const std::string& empresa);
// True when the order is served or any of its lines is in part.
bool Comanda_Bloquejada(std::int64_t numero, const std::string& empresa);

// Asks, deletes the line and frees the proposal's line that it came from. A line that is served, even in part, stays in
// silence. False when the user said no. Call it inside a transaction that has not written yet.
bool Esborrar_Linia_Comanda(std::int64_t numero, const std::string& empresa, std::int16_t linia,
                            const std::string& article);

// The customer's order of today that is still open; 0 without any.
std::int64_t Cercar_Comanda_Oberta(const std::string& client, const std::string& empresa);
// Units of the line were served, even a part. False for a line that does not exist.
bool Linia_Comanda_Servida(std::int64_t numero, const std::string& empresa, std::int16_t linia);
double Unitats_Servides(const Recordset& linia);  // of a row of COMANDALIN
// The order line that a proposal's line became (of a user without orders: the line of a note); number 0 for none.
Lloc_Linia Comanda_De_Linia_Pressupost(std::int64_t numero, const std::string& empresa, std::int16_t linia);
// The user of the session has no orders: proposals become delivery notes.
bool Es_Usuari_Sense_Comandes();

// Adds units (negative to undo) to SERVIDES_CL and updates the order's state. An order line that does not exist leaves
// everything as it is.
void Servir_Linia_Comanda(std::int64_t numero, const std::string& empresa, std::int16_t linia, double unitats);
// ESTAT_CC from the pending units. With F_Comanda loaded its box takes the state, whatever order it shows, and the
// table is not written.
void Actualitzar_Estat_Comanda(std::int64_t numero, const std::string& empresa);
void Posar_Estat_Comanda(std::int64_t numero, const std::string& empresa, bool estat);

// The lines of the customer's open orders that have units pending, the oldest order first. `article` and `descripcio`
// are parts of what is looked for; empty or "%": any.
std::string SQL_Comandes_Pendents(const std::string& client, const std::string& article, const std::string& descripcio);
// Why the order may not be served on that delivery note (payments stand at one level of a chain); null when it may.
const char* Per_Que_No_Es_Pot_Servir(std::int64_t comanda, std::int64_t albara);
