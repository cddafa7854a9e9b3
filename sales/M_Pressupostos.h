// Proposals: priced offers that move no stock and take no payments. A line that was accepted names the line that it
// became (COMANDA_PL, COMANDA_LIN_PL): of an order, or of a delivery note where a user has no orders. Reads and writes
// PRESSUPOSTCAP, PRESSUPOSTLIN, PRESSUPOSTPEU.
#pragma once

#include "documents/Documents.h"

// What proposals do of their own around their lines.
extern const Passos_Document passos_pressupost;

std::int64_t Crear_Capcalera_Pressupost();
// Asks and deletes a whole proposal: what was made from its lines stays as it is.
void Esborrar_Pressupost(std::int64_t numero, const std::string& empresa);
// 2: all its lines are accepted. 1: some are. 0: none.
int Estat_Bloqueig_Pressupost(std::int64_t numero, const std::string& empresa);

// Asks, and deletes the line. One that was accepted stays in silence. False when the user said no. Call it inside a
// transaction that has not written yet.
bool Esborrar_Linia_Pressupost(std::int64_t numero, const std::string& empresa, std::int16_t linia,
                               const std::string& article);

// True when the line was accepted.
bool Estat_Linia_Pressupost(std::int64_t numero, const std::string& empresa, std::int16_t linia);
// The box of F_Pressupost, when it is loaded, says whether every line is accepted; the table is not written.
void Actualitzar_Estat_Pressupost(std::int64_t numero, const std::string& empresa);

// The line that it became is gone: the proposal's line is pending again, and so is the proposal. Nothing for a line
// that came from none.
void Alliberar_Linia_Pressupost(std::int64_t document, const std::string& empresa, std::int64_t linia);
// Do lines of proposals point at lines of this document.
bool Te_Linies_De_Pressupost(std::int64_t document, const std::string& empresa);
