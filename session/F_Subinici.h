// The login form.
#pragma once

#include <memory>

#include "core/formularis/Formulari.h"

namespace Ui {
class F_Subinici;
}

class F_Subinici : public Formulari {
  Q_OBJECT
 public:
  F_Subinici();
  ~F_Subinici() override;
  void Activar() override;
  bool Pot_Tancar() const override { return ha_entrat_; }  // nobody could log in without it

 private:
  void Iniciar();
  void Rebutjar();
  bool ha_entrat_ = false;
  std::unique_ptr<Ui::F_Subinici> ui_;
};
