// The terminal that is killed: adds and deletes lines of delivery notes through the rules, as the editor does, until
// its end comes from outside.
#pragma once

#include <cstdint>
#include <string>

namespace talls {

// Writes a line when the work begins. Returns only when something goes wrong: what it was.
std::string Treballar_Sense_Fi(const std::string& carpeta, std::uint32_t llavor);

}  // namespace talls
