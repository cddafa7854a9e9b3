// What the master tables have in common: a column of a row by its code, whether a code is named anywhere, and a
// deletion that asks first.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "core/Sessio.h"

struct Lloc {
  const char* taula;
  const char* columna;
};

// A column of the row of that code, or null. Reads `clau.taula`.
Valor Camp_De(const Lloc& clau, const std::string& codi, const char* camp);

// A table of codes and their descriptions.
struct Referencia {
  Lloc clau;
  const char* descripcio;
};
std::string Descripcio_De(const Referencia& referencia, const std::string& codi);  // empty for a code without a row
// The first code of that description, in any case; empty when there is none.
std::string Codi_De(const Referencia& referencia, const std::string& descripcio);

// The names that a combo offers, and the codes behind them.
struct Noms_Amb_Codi {
  std::string (*sentencia)();
  const char* codi;  // columns of the statement
  const char* nom;
};

// A row of these tables names the code: they are asked in their order, up to the first that does. All companies count.
bool Es_En_Us(std::span<const Lloc> llocs, const std::string& codi);

struct Pregunta {
  const char* catala;
  const char* castella;
  const char* angles;
};
// The words, what it is about and " ?", with OK and Cancel; true on OK.
bool Confirmar(const Pregunta& paraules, const std::string& que, int icona = 0);

// The question, and on OK the row deleted unless its code is in use; then nothing is done and nothing said.
// Writes `clau.taula`.
void Esborrar_Mestre(const Pregunta& paraules, const std::string& que, const Lloc& clau, const std::string& codi,
                     std::span<const Lloc> us);

// A new row, whole or not at all. Raises 80004005 when the code is taken.
void Crear_Fila(const char* taula, const std::vector<std::pair<std::string_view, Valor>>& valors);

// First free ten-digit code of a table (ARTICLES, CLIENTS, PROVEIDORS, USUARIS, FAMILIES, EMPRESES).
std::string Proxim_Codi(const std::string& taula);
