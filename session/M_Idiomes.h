// Languages. Reads LANGUAGES; writes USUARIS.
#pragma once

#include "core/Sessio.h"

std::string Nom_Idioma(std::int64_t id);  // "-" when there is none
// The session speaks this language from now on, its own errors included.
void Posar_Idioma_Sessio(std::int16_t id);
// Writes the language of the user and of the session (the screens then translate themselves).
void Fixar_Idioma(std::int16_t id);
