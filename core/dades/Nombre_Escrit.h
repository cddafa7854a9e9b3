// A number as people type it or paste it from a sheet, a page or a message.
#pragma once

#include <optional>
#include <string_view>

// Reads an amount, a quantity or a percentage: a sign, thousands, decimals, and around it blanks, "€", "EUR" or "%",
// which say nothing ("1,5%" is 1.5). None when the text is no number.
//
// Which mark is which:
//  - comma and point together: the last one parts the decimals, the other the thousands ("1.234,50", "1,234.50");
//  - commas: one parts the decimals, also before three digits ("1,234" is 1.234); more part thousands;
//  - points: they part thousands where they can, since that is how every field shows them ("1.234" is 1234,
//  "1.234.567"),
//    and one that cannot parts the decimals ("12.5", "0.125", "1234.567");
//  - blanks and apostrophes part thousands ("1 234,50").
// Thousands go by three. A point that is typed never comes here alone: the field shows a comma for it (Punt_Per_Coma).
std::optional<double> Nombre_Escrit(std::string_view text);
