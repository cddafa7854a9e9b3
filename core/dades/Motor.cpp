#include "core/dades/Motor.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "core/dades/Error_Brollador.h"
#include "core/dades/Text.h"

namespace {

constexpr std::size_t traduccions_guardades = 1000;

Tipus_Columna Tipus_Apuntat(const std::string& nom) {
  if (const auto tipus = Tipus_De_Nom(nom)) return *tipus;
  throw Error_Brollador(errors::general, "Motor", "ESQUEMA: " + nom);
}

}  // namespace

Cataleg Llegir_Esquema(const Files_Memoria& files) {
  struct Apuntada {
    Taula taula;
    std::map<std::int64_t, std::string> clau;
  };
  std::vector<Apuntada> apuntades;
  // The rows of a table stand together, but for columns that were added later.
  const auto de_nom = [&](const std::string& nom) -> Apuntada& {
    const auto it = std::find_if(apuntades.rbegin(), apuntades.rend(),
                                 [&](const Apuntada& apuntada) { return apuntada.taula.nom == nom; });
    if (it != apuntades.rend()) return *it;
    apuntades.push_back({.taula = {.nom = nom, .columnes = {}, .clau = {}}, .clau = {}});
    return apuntades.back();
  };
  for (std::size_t i = 0; i < files.Files(); ++i) {
    const auto text = [&](std::size_t columna) { return files.Valor_De(i, columna, Tipus_Columna::Text).Text(); };
    Apuntada& apuntada = de_nom(text(0));
    apuntada.taula.columnes.push_back({text(1), Tipus_Apuntat(text(2))});
    if (const auto lloc = files.Llegir(i, 3).enter; lloc > 0) apuntada.clau.emplace(lloc, text(1));
  }
  Cataleg taules;
  for (Apuntada& apuntada : apuntades) {
    for (const auto& [lloc, columna] : apuntada.clau) apuntada.taula.clau.push_back(columna);
    taules.Afegir(std::move(apuntada.taula));
  }
  return taules;
}

std::vector<std::vector<Valor>> Files_Esquema(const Taula& taula) {
  std::vector<std::vector<Valor>> files;
  for (const auto& columna : taula.columnes) {
    std::int64_t lloc = 0;
    for (std::size_t k = 0; k < taula.clau.size(); ++k) {
      if (Iguals_Plegats(taula.clau[k], columna.nom)) lloc = static_cast<std::int64_t>(k) + 1;
    }
    files.push_back({taula.nom, columna.nom, Nom_Tipus(columna.tipus), lloc});
  }
  return files;
}

// FNV-1a, kept inside the range of a file's offsets.
std::int64_t Empremta_Fila(const std::string& taula, const Valor& clau) {
  std::uint64_t hash = 14695981039346656037ULL;
  for (const char c : taula + '\n' + clau.Text()) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211ULL;
  return static_cast<std::int64_t>(hash >> 2);
}

struct Motor::Record_Traduccions {
  std::unordered_map<std::string, Traduccio_Guardada> per_forma;
};

Motor::Traduccio_Guardada& Motor::Traduccio(const std::string& forma, std::string_view taula_editable) {
  if (!traduccions_) traduccions_ = std::make_shared<Record_Traduccions>();
  auto& record = traduccions_->per_forma;
  std::string clau = forma;
  clau.append(1, '\n').append(taula_editable);
  if (const auto it = record.find(clau); it != record.end()) return it->second;
  if (record.size() >= traduccions_guardades) record.clear();
  Traduccio_Guardada nova{Traduir(forma, Taules(), Trets(), taula_editable), nullptr};
  return record.emplace(std::move(clau), std::move(nova)).first->second;
}

void Motor::Oblidar_Traduccions() {
  traduccions_.reset();
}
