// The tables of a database with the types that the system's dialect gives their columns.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// CODI is a text that identifies (ordered as written); TEXT is one that is read (ordered as a dictionary does).
// Neither tells upper case from lower case; accents count.
enum class Tipus_Columna { Codi, Text, Llarg, Curt, Doble, Boolea, Data, Data_Hora, Autonumeric };

std::string_view Nom_Tipus(Tipus_Columna tipus);
std::optional<Tipus_Columna> Tipus_De_Nom(std::string_view nom);

struct Columna {
  std::string nom;
  Tipus_Columna tipus = Tipus_Columna::Text;
};

struct Taula {
  std::string nom;
  std::vector<Columna> columnes;
  std::vector<std::string> clau;  // columns of the primary key, in order; empty: none

  const Columna* Cercar(std::string_view nom_columna) const;  // any case
};

// A column of a statement's result.
struct Camp {
  std::string nom;                   // as the statement shows it
  std::string taula;                 // empty for an expression
  std::string origen;                // column of the table, empty for an expression
  const Columna* columna = nullptr;  // the same in the catalogue
  Tipus_Columna tipus = Tipus_Columna::Text;
};

class Cataleg {
 public:
  void Afegir(Taula taula);
  // New columns of a table that is there.
  void Afegir_Columnes(const Taula& noves);
  const Taula* Cercar(std::string_view nom) const;            // any case
  const Columna* Cercar_Columna(std::string_view nom) const;  // in any table; column names are unique in practice
  const std::map<std::string, Taula>& Taules() const { return taules_; }

 private:
  std::map<std::string, Taula> taules_;         // by folded name
  std::map<std::string, Columna> per_columna_;  // by folded name
};
