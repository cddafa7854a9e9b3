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

 private:
  void Iniciar();
  void Rebutjar();
  std::unique_ptr<Ui::F_Subinici> ui_;
};
