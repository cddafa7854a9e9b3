// A form whose controls stand in a .ui file and whose behaviour in a description: Registrar_Formulari("F_ALBARANSM",
// Fabrica_De<Llista_Documents, Ui::F_AlbaransM>(descripcio)). The kind of screen finds the controls in Muntar.
#pragma once

#include <functional>

class Formulari;

template <class Mena, class Ui, class Descripcio>
class Amb_Ui : public Mena {
 public:
  explicit Amb_Ui(const Descripcio& descripcio) : Mena(descripcio) {
    ui_.setupUi(this);
    this->Muntar();
  }

 private:
  Ui ui_;
};

// `descripcio` is a constant of the program: the forms keep it.
template <class Mena, class Ui, class Descripcio>
std::function<Formulari*()> Fabrica_De(const Descripcio& descripcio) {
  return [&descripcio]() -> Formulari* { return new Amb_Ui<Mena, Ui, Descripcio>(descripcio); };
}
