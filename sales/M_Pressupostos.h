// Proposals, as orders and delivery notes are made from their lines. A line of a proposal that was accepted names the
// line that it became (COMANDA_PL, COMANDA_LIN_PL): of an order, or of a delivery note where a user has no orders.
// Reads and writes PRESSUPOSTLIN, PRESSUPOSTCAP.
#pragma once

#include <cstdint>
#include <string>

// The line that it became is gone: the proposal's line is pending again, and so is the proposal. Nothing for a line
// that came from none.
void Alliberar_Linia_Pressupost(std::int64_t document, const std::string& empresa, std::int64_t linia);
// Do lines of proposals point at lines of this document.
bool Te_Linies_De_Pressupost(std::int64_t document, const std::string& empresa);
