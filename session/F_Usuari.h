// The editor of a user: who it is, its language, its rights.
#pragma once

#include <memory>

#include "core/menes/Fitxa.h"

namespace Ui {
class F_Usuari;
}

class F_Usuari : public Fitxa {
  Q_OBJECT
 public:
  F_Usuari();
  ~F_Usuari() override;

 protected:
  std::string Sentencia() const override;
  void Abans_De_Mostrar() override;
  void Mostrar_Altres() override;

 private:
  Valor idioma_mostrat_;
  std::unique_ptr<Ui::F_Usuari> ui_;
};
