#include "core/dades/Cataleg.h"

#include "core/dades/Text.h"

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

const Taula* Cataleg::Cercar(std::string_view nom) const {
  const auto it = taules_.find(Plegar(nom));
  return it == taules_.end() ? nullptr : &it->second;
}

const Columna* Cataleg::Cercar_Columna(std::string_view nom) const {
  const auto it = per_columna_.find(Plegar(nom));
  return it == per_columna_.end() ? nullptr : &it->second;
}
