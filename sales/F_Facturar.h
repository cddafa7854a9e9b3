// The dialog of the invoicing run: the number and the date of the invoice that the delivery notes of the list become.
#pragma once

#include <memory>

#include "core/formularis/Formulari.h"

namespace Ui {
class F_Facturar;
}

class F_Facturar : public Formulari {
  Q_OBJECT
 public:
  F_Facturar();
  ~F_Facturar() override;
  void Carregar() override;
  void Activar() override;

 private:
  void Proposar_Forat();
  void Continuar();
  void Dir_Que_Treballa();
  std::unique_ptr<Ui::F_Facturar> ui_;
};
