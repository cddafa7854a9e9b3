// The system's dialect of SQL, translated in one place for every engine.
//
// Escanejar lifts every literal of a statement into a parameter and leaves the statement's shape; statements that
// differ only in their values share a shape, which is translated and prepared once. Traduir rewrites a shape:
// DELETE *, TOP n, BETWEEN with its bounds in either order, an alias used again in its select list, a grouped set in
// the order of its groups, dictionary order for texts, derived tables without a name, hidden keys for sets that are
// written, names in any case. See docs/dialect.md.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/dades/Cataleg.h"
#include "core/dades/Valor.h"

// What an engine calls things, and what it does not do by itself.
struct Trets_Motor {
  char marcador;                  // before a parameter's number: ? or $
  std::string_view ordre_catala;  // behind an ORDER BY item that is a text
  std::string_view clau_oculta;   // the hidden key of a table's row
  std::string_view menor;         // scalar functions of two values
  std::string_view major;
  // The rest is for an engine whose columns cannot compare texts as the dialect does; left out otherwise.
  std::string_view plegar = {};        // the function that folds a text: what is compared is folded on both sides
  std::string_view prefix_propi = {};  // before the names of the dialect's own functions
  bool clau_en_la_taula = false;       // the hidden key is a column that * would show
  bool nuls_al_final = false;          // of an ascending order, where the dialect has them first
};

struct Sentencia_Escanejada {
  std::string forma;  // literals are ?1, ?2...
  std::vector<Valor> literals;
};

// Raises the faulty-statement error: an unclosed quote, a date that is none, more than one statement.
Sentencia_Escanejada Escanejar(std::string_view sentencia);

// A statement without its ORDER BY, which is what sorting by a header replaces; the words inside a literal, a name
// between quotes or a subquery are none of it.
std::string Sense_Ordre(std::string_view sentencia);

struct Sentencia_Traduida {
  std::string text;                        // in the engine's own SQL
  std::vector<std::pair<int, int>> entre;  // parameters (from 0) that are the two bounds of a BETWEEN
  std::vector<std::optional<Tipus_Columna>> tipus_expressions;  // of the select items that are no plain column
  std::vector<std::string> alies;                               // the names given by AS, as written; empty: none
  std::string taula_editable;  // the table whose hidden key was added as the last column
  std::string retencio;        // behind the text, holds the rows of that table until the transaction ends
};

// `taula_editable` asks for the hidden key of that table; "*" of the only table when there is just one.
Sentencia_Traduida Traduir(const std::string& forma, const Cataleg& taules, const Trets_Motor& trets,
                           std::string_view taula_editable = {});

// A definition: CREATE TABLE with the dialect's types, ALTER TABLE t ADD COLUMN, or CREATE INDEX.
struct Definicio {
  std::optional<Taula> taula;         // none for an index
  bool afegeix = false;               // `taula` exists already, and this is its new column
  std::vector<std::string> columnes;  // the rest of each column's text (NOT NULL, DEFAULT...), as many as in `taula`
  std::vector<std::string> regles;    // keys and relations
  std::string text;                   // of an index, as it stands
};
bool Es_Definicio(std::string_view sentencia);
Definicio Llegir_Definicio(std::string_view sentencia);
