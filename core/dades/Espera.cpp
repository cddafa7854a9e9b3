#include "core/dades/Espera.h"

namespace {
std::function<void()>& Oient() {
  static std::function<void()> oient;
  return oient;
}
}  // namespace

void En_Esperar_Torn(std::function<void()> rutina) {
  Oient() = std::move(rutina);
}

void Avisar_De_L_Espera() {
  if (Oient()) Oient()();
}
