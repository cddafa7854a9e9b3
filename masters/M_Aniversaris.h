// The birthdays of customers. Reads CLIENTS and CLIENTS_DADES; the days of the warning are a parameter of the terminal.
#pragma once

#include <string>

// A birthday between today and so many days from now, in this year; never with less than one day.
bool Hi_Ha_Aniversaris(int dies);
// At a login: takes the days of the terminal's parameter, and tells whether to warn. Raises 13 when it is no number,
// 6 when it is too large a one.
bool Toca_Avisar_Aniversaris();
// The statement of their list, by a part of the name (empty: all).
std::string SQL_Aniversaris(const std::string& text);
