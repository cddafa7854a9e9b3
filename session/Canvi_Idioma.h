#pragma once

#include <cstdint>

// The language of the user and of every open form.
void Canviar_Idioma(std::int16_t id);
