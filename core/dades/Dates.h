// The calendar behind dates: which days exist, how a date is stored, days that roll over.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/dades/Valor.h"

// A day of the calendar between the years 100 and 9999.
bool Es_Data(const Data_Hora& data);
// Months and days out of range roll over: 29/02/2011 is 01/03/2011.
Data_Hora Data_Serial(int any, int mes, int dia);

// The one stored form: YYYY-MM-DD, and " HH:MM:SS" behind it when it is not midnight. As texts these compare as the
// moments do, so that a date alone means its midnight.
std::string Data_Desada(const Data_Hora& data);
std::optional<Data_Hora> Llegir_Data_Desada(std::string_view text);

// The clock of this machine, in local time, which NOW() of a file tells; or the one that stands in for it.
Data_Hora Rellotge_Local();
void Fixar_Rellotge_Local(std::function<Data_Hora()> rellotge);  // empty: the machine's own
