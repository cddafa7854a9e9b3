// Orders as delivery notes serve them. Reads and writes COMANDALIN, COMANDACAP.
#pragma once

#include <cstdint>
#include <string>

// Adds units (negative to undo) to SERVIDES_CL and updates the order's state. An order line that does not exist leaves
// everything as it is.
void Servir_Linia_Comanda(std::int64_t numero, const std::string& empresa, std::int16_t linia, double unitats);
// ESTAT_CC from the pending units. With F_Comanda loaded its box takes the state, whatever order it shows, and the
// table is not written.
void Actualitzar_Estat_Comanda(std::int64_t numero, const std::string& empresa);
void Posar_Estat_Comanda(std::int64_t numero, const std::string& empresa, bool estat);
