// The editor of a company.
#pragma once

#include <memory>

#include "core/menes/Fitxa.h"

namespace Ui {
class F_Empresa;
}

class F_Empresa : public Fitxa {
  Q_OBJECT
 public:
  F_Empresa();
  ~F_Empresa() override;

 protected:
  std::string Sentencia() const override;
  void Mostrar_Altres() override;

 private:
  std::unique_ptr<Ui::F_Empresa> ui_;
};
