// Filters of the search forms become statements here, and nowhere else. A search form and this module walk the same
// rows of criteria. Touches no table.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "core/M_Condicions.h"
#include "documents/Documents.h"

// How a criterion becomes a condition. A range has two controls, its name with _ENTRE and with _Y.
enum class Mena_Criteri {
  Numeros,  // none when it is the whole, from 0 to 999999999
  Textos,   // numbers that are texts: none from "0" to "ZZZZZZZZZZZZZZZ"
  Imports,  // euros: none when both are 0; an upper bound of 0 is none
  Limits,   // euros: none when both are 0, else both bounds as they are
  Dates,    // each may be empty
  Moments,  // the same on a column with hours: the last day is whole
  Codi,     // of the name chosen in a combo: none when it is empty
  Conte     // a part of the text: none when it is empty or "%"
};

struct Criteri {
  Mena_Criteri mena;
  const char* control;                  // TXT_ALBARA, DT_DATA, CMB_CLIENT
  const char* columna;                  // NUMALB_AC
  bool de_linies = false;               // a column of the lines: their table is joined
  const Noms_Amb_Codi* noms = nullptr;  // of a combo
};

// What is asked for, by the control of the criterion: as typed, or the code of a combo. What is not there is no
// condition. A text with a quote raises the faulty-statement error, and so does a number that is none.
struct Valor_Criteri {
  std::string text{};
  std::string text_y{};
  std::optional<Data_Hora> data{};
  std::optional<Data_Hora> data_y{};
};
using Valors_Cerca = std::map<std::string, Valor_Criteri, std::less<>>;

// A button that prints what the criteria find.
struct Boto_De_Llistat {
  const char* boto;
  void (*imprimir)(const Valors_Cerca& valors);
};

// What the form shows when it is cleared: everything, of the last month.
Valors_Cerca Valors_Per_Defecte(const std::vector<Criteri>& criteris);

// The list of a kind of document, as a statement.
struct Descripcio_Consulta {
  const Tipus_Document& tipus;
  const char* cerca;  // the form that asks: F_ALBARANSS
  std::vector<Criteri> criteris;
  const char* camps;                   // what the list shows
  const char* camps_llargs = nullptr;  // what others read from it
  const char* taula_unida = "";        // a further table, with the condition that joins it
  const char* unio = "";
  const char* estat = nullptr;  // 0 in a document that is pending; null: this kind has no such thing
  const char* ordre;
};

// Statement of the list for the current company, without order.
std::string Consulta(const Descripcio_Consulta& descripcio, const Valors_Cerca& valors, bool llarga = false);
// What each document that the criteria find cost, was sold for and left: the sums of its lines, those on the lines that
// fit the criteria on lines. Whether it is pending plays no part.
std::string Consulta_Marges(const Descripcio_Consulta& descripcio, const Valors_Cerca& valors);
// What each document comes to by its foot: base, taxes and total. A document without foot is none of them.
std::string Consulta_Peus(const Descripcio_Consulta& descripcio, const Valors_Cerca& valors);
// " AND ..." for each row that is a condition, in their order: those on the lines, or the others.
std::string Condicions(const std::vector<Criteri>& criteris, const Valors_Cerca& valors, bool de_linies = false);
