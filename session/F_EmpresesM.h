// The list of companies; the current one stands out.
#pragma once

#include <memory>

#include "core/menes/Llista_Mestra.h"

namespace Ui {
class F_EmpresesM;
}

class F_EmpresesM : public Llista_Mestra {
  Q_OBJECT
 public:
  F_EmpresesM();
  ~F_EmpresesM() override;

 protected:
  std::string Sentencia() const override;

 private:
  std::unique_ptr<Ui::F_EmpresesM> ui_;
};
