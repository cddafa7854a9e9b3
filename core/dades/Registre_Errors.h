// The log of errors of a terminal: a line for each, with what the user is not shown. It never grows: a full file steps
// back (.1, .2, .3) and the oldest goes. Only its owner reads it, and neither passwords nor typed texts are in it.
#pragma once

#include <string>
#include <string_view>

class Error_Brollador;

// From here on errors are written to that file; an empty path ends it. Nothing is written before.
void Obrir_Registre_Errors(std::string cami);
// Moment, number, source, words. Never raises: a log that cannot be written is no reason to stop.
void Apuntar_Error(int numero, std::string_view origen, std::string_view paraules) noexcept;
// An error on its way to the user. What an engine said was written where it was raised, and is not written again; of
// the others the words are those of the number alone, since what stands behind them may have been typed.
void Apuntar_Error(const Error_Brollador& error) noexcept;
