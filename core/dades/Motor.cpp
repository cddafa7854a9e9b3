#include "core/dades/Motor.h"

#include <unordered_map>

namespace {
constexpr std::size_t traduccions_guardades = 1000;
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
