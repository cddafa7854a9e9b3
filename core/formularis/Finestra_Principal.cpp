#include "core/formularis/Finestra_Principal.h"

namespace {
Finestra_Principal* unica = nullptr;
}

Finestra_Principal::Finestra_Principal() {
  unica = this;
}

Finestra_Principal::~Finestra_Principal() {
  unica = nullptr;
}

Finestra_Principal* Finestra_Principal::Unica() {
  return unica;
}
