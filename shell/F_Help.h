// What the program is, at which terminal it runs and where suggestions go.
#pragma once

#include <memory>

#include "core/formularis/Formulari.h"

namespace Ui {
class F_Help;
}

class F_Help : public Formulari {
  Q_OBJECT
 public:
  F_Help();
  ~F_Help() override;
  void Activar() override;

 private:
  std::unique_ptr<Ui::F_Help> ui_;
};
