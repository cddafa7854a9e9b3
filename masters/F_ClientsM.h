// The list of customers, by a part of the name or by the coming birthdays.
#pragma once

#include <memory>

#include "core/menes/Llista_Mestra.h"

namespace Ui {
class F_ClientsM;
}

class F_ClientsM : public Llista_Mestra {
  Q_OBJECT
 public:
  F_ClientsM();
  ~F_ClientsM() override;
  void Carregar() override;
  void Descarregar() override;

 protected:
  std::string Sentencia() const override;

 private:
  void Reobrir();
  void Canviar_Aniversaris();
  void Copiar_Adreces();
  std::unique_ptr<Ui::F_ClientsM> ui_;
};
