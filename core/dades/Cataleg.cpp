#include "core/dades/Cataleg.h"

#include <array>

#include "core/dades/Text.h"

namespace {

// By the order of Tipus_Columna.
constexpr std::array<std::string_view, 9> noms_tipus = {"CODI",   "TEXT", "LLARG",     "CURT",       "DOBLE",
                                                        "BOOLEA", "DATA", "DATA_HORA", "AUTONUMERIC"};

}  // namespace

std::string_view Nom_Tipus(Tipus_Columna tipus) {
  return noms_tipus.at(static_cast<std::size_t>(tipus));
}

std::optional<Tipus_Columna> Tipus_De_Nom(std::string_view nom) {
  for (std::size_t i = 0; i < noms_tipus.size(); ++i) {
    if (nom == noms_tipus[i]) return static_cast<Tipus_Columna>(i);
  }
  return std::nullopt;
}

const Columna* Taula::Cercar(std::string_view nom_columna) const {
  for (const auto& columna : columnes) {
    if (Iguals_Plegats(columna.nom, nom_columna)) return &columna;
  }
  return nullptr;
}

void Cataleg::Afegir(Taula taula) {
  for (const auto& columna : taula.columnes) per_columna_.emplace(Plegar(columna.nom), columna);
  taules_[Plegar(taula.nom)] = std::move(taula);
}

void Cataleg::Afegir_Columnes(const Taula& noves) {
  Taula taula = taules_[Plegar(noves.nom)];
  taula.columnes.insert(taula.columnes.end(), noves.columnes.begin(), noves.columnes.end());
  Afegir(std::move(taula));
}

const Taula* Cataleg::Cercar(std::string_view nom) const {
  const auto it = taules_.find(Plegar(nom));
  return it == taules_.end() ? nullptr : &it->second;
}

const Columna* Cataleg::Cercar_Columna(std::string_view nom) const {
  const auto it = per_columna_.find(Plegar(nom));
  return it == per_columna_.end() ? nullptr : &it->second;
}
