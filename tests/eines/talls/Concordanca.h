// Do lines, foot, stock, journal, served units and payment flags of a company tell one story, and is its file sound.
#pragma once

#include <string>
#include <vector>

namespace talls {

// What does not agree, in words; empty when all is well. On a session of its own (Obrir_Sessio).
std::vector<std::string> Discordances();

}  // namespace talls
