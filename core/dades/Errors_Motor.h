// The one place where what an engine says becomes an error of the system: its number, words of our own that are the
// same on every engine, and the engine's words in the log of errors.
#pragma once

#include <string>
#include <string_view>

#include "core/dades/Error_Brollador.h"

// `paraules` are the engine's, with its own number and without values; `sql` is the statement's shape.
// A disk that is full or fails, a damaged file, and an error that is no failure of ours are shown with the engine's
// words behind ours.
[[noreturn]] void Llancar_Error_Motor(Falla falla, const char* motor, const std::string& paraules,
                                      std::string_view sql = {});
// A statement that the engine does not understand: 0x80040E14.
[[noreturn]] void Llancar_Sentencia_Motor(const char* motor, const std::string& paraules, std::string_view sql);
// The database at `lloc`, which the user is shown, cannot be opened.
[[noreturn]] void Llancar_Sense_Connexio(const char* motor, const std::string& paraules, const std::string& lloc);

// A relation that does not hold: a row that goes away is in use, one that is written lacks its parent.
Falla Falla_De_Relacio(std::string_view sql);
