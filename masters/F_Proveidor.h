// The editor of a supplier.
#pragma once

#include <memory>

#include "core/menes/Fitxa.h"

namespace Ui {
class F_Proveidor;
}

class F_Proveidor : public Fitxa {
  Q_OBJECT
 public:
  F_Proveidor();
  ~F_Proveidor() override;

 protected:
  std::string Sentencia() const override;
  void Mostrar_Altres() override;

 private:
  std::unique_ptr<Ui::F_Proveidor> ui_;
};
