#include "core/dades/Funcions_SQLite.h"

#include <sqlite3.h>

#include <string>
#include <string_view>

#include "core/dades/Dates.h"
#include "core/dades/Numeros.h"
#include "core/dades/Text.h"

namespace {

std::string_view Text_De(sqlite3_value* valor) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(valor));
  return text == nullptr ? std::string_view()
                         : std::string_view(text, static_cast<std::size_t>(sqlite3_value_bytes(valor)));
}

bool Es_Nul(sqlite3_value* valor) {
  return sqlite3_value_type(valor) == SQLITE_NULL;
}

void Tornar_Text(sqlite3_context* context, std::string_view text) {
  sqlite3_result_text(context, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

template <int (*comparar)(std::string_view, std::string_view)>
int Collacio(void* /*dada*/, int mida_a, const void* a, int mida_b, const void* b) {
  return comparar({static_cast<const char*>(a), static_cast<std::size_t>(mida_a)},
                  {static_cast<const char*>(b), static_cast<std::size_t>(mida_b)});
}

// x LIKE pattern arrives as like(pattern, x).
void Like(sqlite3_context* context, int /*quants*/, sqlite3_value** valors) {
  if (Es_Nul(valors[0]) || Es_Nul(valors[1])) return sqlite3_result_null(context);
  sqlite3_result_int(context, Coincideix(Text_De(valors[0]), Text_De(valors[1])) ? 1 : 0);
}

void Ara_Del_Motor(sqlite3_context* context, int /*quants*/, sqlite3_value** /*valors*/) {
  Tornar_Text(context, Data_Desada(Rellotge_Local()));
}

void Data_De_Parts(sqlite3_context* context, int /*quants*/, sqlite3_value** valors) {
  for (int i = 0; i < 3; ++i) {
    if (Es_Nul(valors[i])) return sqlite3_result_null(context);
  }
  Tornar_Text(context, Data_Desada(Data_Serial(sqlite3_value_int(valors[0]), sqlite3_value_int(valors[1]),
                                               sqlite3_value_int(valors[2]))));
}

void Part_De_Data(sqlite3_context* context, std::string_view part, sqlite3_value* valor) {
  const auto data = Llegir_Data_Desada(Text_De(valor));
  if (!data) return sqlite3_result_null(context);
  if (Iguals_Plegats(part, "m")) return sqlite3_result_int(context, data->mes);
  if (Iguals_Plegats(part, "d")) return sqlite3_result_int(context, data->dia);
  if (Iguals_Plegats(part, "yyyy")) return sqlite3_result_int(context, data->any);
  sqlite3_result_error(context, "DATEPART", -1);
}

void Datepart(sqlite3_context* context, int /*quants*/, sqlite3_value** valors) {
  Part_De_Data(context, Text_De(valors[0]), valors[1]);
}

void Day(sqlite3_context* context, int /*quants*/, sqlite3_value** valors) {
  Part_De_Data(context, "d", valors[0]);
}

void Isnumeric(sqlite3_context* context, int /*quants*/, sqlite3_value** valors) {
  std::string_view text = Text_De(valors[0]);
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  if (!text.empty() && text.front() == '$') text.remove_prefix(1);
  sqlite3_result_int(context, !Es_Nul(valors[0]) && Numero_De_Text(text) ? -1 : 0);
}

void Round(sqlite3_context* context, int quants, sqlite3_value** valors) {
  if (Es_Nul(valors[0])) return sqlite3_result_null(context);
  sqlite3_result_double(
      context, Arrodonir_Parell(sqlite3_value_double(valors[0]), quants > 1 ? sqlite3_value_int(valors[1]) : 0));
}

struct Funcio {
  const char* nom;
  int arguments;
  bool determinista;
  void (*rutina)(sqlite3_context*, int, sqlite3_value**);
};

constexpr Funcio funcions[] = {
    {"like", 2, true, Like},
    {"now", 0, false, Ara_Del_Motor},
    {"dateserial", 3, true, Data_De_Parts},
    {"datepart", 2, true, Datepart},
    {"day", 1, true, Day},
    {"isnumeric", 1, true, Isnumeric},
    {"round", 1, true, Round},
    {"round", 2, true, Round},
};

}  // namespace

void Registrar_Funcions_SQLite(sqlite3* base) {
  sqlite3_create_collation_v2(base, "PLEGAT", SQLITE_UTF8, nullptr, Collacio<Comparar_Plegats>, nullptr);
  sqlite3_create_collation_v2(base, "CATALA", SQLITE_UTF8, nullptr, Collacio<Comparar_Catala>, nullptr);
  for (const auto& f : funcions) {
    const int trets = SQLITE_UTF8 | (f.determinista ? SQLITE_DETERMINISTIC : 0);
    sqlite3_create_function_v2(base, f.nom, f.arguments, trets, nullptr, f.rutina, nullptr, nullptr, nullptr);
  }
}
