// The tables that name every form of the system, those not built yet included: each hands its table to the form
// services.
#pragma once

// Which forms stand behind which.
void Posar_Taula_De_Pares();
// Which controls a right enables.
void Posar_Taula_De_Drets();
// Which button opens which list for which field, and what of the row goes where.
void Posar_Taula_De_Crides();
