// The pending lines of the customer's orders, for the delivery note on the screen to serve.
#pragma once

#include <memory>

#include "core/menes/Llista_Filtrada.h"

namespace Ui {
class F_ComandesMCS;
}

class F_ComandesMCS : public Llista_Filtrada {
  Q_OBJECT
 public:
  F_ComandesMCS();
  ~F_ComandesMCS() override;

 protected:
  std::string Sentencia() const override;
  bool Admet_Retorn() override;

 private:
  std::unique_ptr<Ui::F_ComandesMCS> ui_;
};
