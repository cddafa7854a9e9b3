// Filters of the search forms become statements here, and nowhere else. Touches no table.
#pragma once

#include <optional>
#include <string>

#include "core/dades/Valor.h"

// What a document search form asks for. Texts as typed; a text with a quote raises the faulty-statement error.
struct Criteris_Cerca {
  std::string numero_entre = "0";
  std::string numero_y = "999999999";
  std::optional<Data_Hora> data_entre{};
  std::optional<Data_Hora> data_y{};
  std::string client{};       // NIF_CLI; empty: all
  double import_entre = 0;    // euros; in use when either is not 0
  double import_y = 0;        // 0: no upper bound
  std::string article = "%";  // "%" or empty: no filter
  std::string article_desc = "%";
};

// Criteria that the search form shows when it is cleared: the last month, all numbers.
Criteris_Cerca Criteris_Per_Defecte();
// Statement of the list of delivery notes of the current company, without order; `llarga` gives the long field list.
std::string Consulta_Albarans(const Criteris_Cerca& criteris, bool llarga);
std::string Condicio_Data(const std::optional<Data_Hora>& des_de, const std::optional<Data_Hora>& fins_a,
                          const std::string& camp);
