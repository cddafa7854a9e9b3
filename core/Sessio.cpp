#include "core/Sessio.h"

#include <stdexcept>

Sessio sessio;

Pantalla* Port_Pantalla::operator->() const {
  if (!pantalla_) throw std::logic_error("sessio.pantalla is not set: a rule needs the screen port");
  return pantalla_;
}
