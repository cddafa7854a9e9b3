// The list of users.
#pragma once

#include <memory>

#include "core/menes/Llista_Mestra.h"

namespace Ui {
class F_UsuarisM;
}

class F_UsuarisM : public Llista_Mestra {
  Q_OBJECT
 public:
  F_UsuarisM();
  ~F_UsuarisM() override;

 protected:
  std::string Sentencia() const override;

 private:
  std::unique_ptr<Ui::F_UsuarisM> ui_;
};
