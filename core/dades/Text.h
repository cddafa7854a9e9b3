// How texts compare. Equality, keys and LIKE tell no upper case from lower case, in any alphabet; accents count. The
// table behind it is frozen in this program, so that no index of a database ever depends on a library's version.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// A character at the end of a UTF-8 text.
void Afegir_Caracter(std::string& text, std::uint32_t codi);
// The text with every letter in its folded (lower) case.
std::string Plegar(std::string_view text);
// <0, 0, >0 by the code points of the folded texts: the order of keys.
int Comparar_Plegats(std::string_view a, std::string_view b);
bool Iguals_Plegats(std::string_view a, std::string_view b);
// LIKE: % any run, _ any one character; every other character, [ and * among them, is itself.
bool Coincideix(std::string_view patro, std::string_view text);

// The order of a Catalan dictionary (accents beside their letter), for what a person reads. Never used by an index.
int Comparar_Catala(std::string_view a, std::string_view b);
