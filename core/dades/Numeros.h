// Texts of numbers and dates: the only place where a number becomes text or a text a number.
// Decimal comma on screen, decimal point in statements, whatever the locale of the machine.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/dades/Valor.h"

// Plain text of a number: at most 15 significant digits, decimal comma, no grouping, "0,5" with its zero,
// exponent from 1E+15 on.
std::string Text_Numero(double valor);

// Reads a number as typed: optional sign, points as thousands where they group by three, decimal comma, exponent.
// None when the text is no number ("", "12a", "12.5").
std::optional<double> Numero_De_Text(std::string_view text);

// A number for a statement: decimal point, as many digits as give the same double back.
std::string Numero_SQL(double valor);

// Text of a number under a mask: "#,##0.00", "#,##0.000", "#,##0.00000", "0.00", "#,##0.00;; " (zero is blank).
// Comma and point are placed the continental way: 1234.5 under "#,##0.00" is "1.234,50". Halves go away from zero
// on the 15 significant digits of the number. An empty mask gives Text_Numero.
std::string Format_Numero(double valor, std::string_view mascara);

// Halves to the even digit, on the 15 significant digits of the number.
double Arrodonir_Parell(double valor, int decimals);

// DD/MM/YYYY; D/M/YYYY is read too. None when it is no date of the calendar.
std::string Text_Data(const Data_Hora& data);
std::optional<Data_Hora> Data_De_Text(std::string_view text);
