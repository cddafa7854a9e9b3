// The terminal that is killed: adds and deletes lines of delivery notes and payments, passes lines of a proposal on and
// back, and invoices notes, through the rules, as the screens do, until its end comes from outside.
#pragma once

#include <cstdint>
#include <string>

#include "tests/eines/talls/Magatzem_De_Prova.h"

namespace talls {

// Writes a line when the work begins. Returns only when something goes wrong: what it was.
std::string Treballar_Sense_Fi(const Lloc& lloc, std::uint32_t llavor);

}  // namespace talls
