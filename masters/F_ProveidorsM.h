// The list of suppliers.
#pragma once

#include <memory>

#include "core/menes/Llista_Mestra.h"

namespace Ui {
class F_ProveidorsM;
}

class F_ProveidorsM : public Llista_Mestra {
  Q_OBJECT
 public:
  F_ProveidorsM();
  ~F_ProveidorsM() override;

 protected:
  std::string Sentencia() const override;

 private:
  std::unique_ptr<Ui::F_ProveidorsM> ui_;
};
