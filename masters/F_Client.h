// The editor of a customer: its data, its sales, its additional data. Every field saves when it is left.
#pragma once

#include <memory>

#include "core/menes/Fitxa.h"

namespace Ui {
class F_Client;
}

class F_Client : public Fitxa {
  Q_OBJECT
 public:
  F_Client();
  ~F_Client() override;
  void Descarregar() override;
  // The tab of its documents, after one of them changed.
  void Refrescar_Documents();

 protected:
  std::string Sentencia() const override;
  void Abans_De_Mostrar() override;
  void Mostrar_Altres() override;
  void Abans_De_Desar() override;
  void Abans_D_Escriure() override;

 private:
  bool Amb_Dades_Addicionals() const;
  void Mostrar_Vendes();
  Recordset dades_;
  Recordset vendes_;
  std::unique_ptr<Ui::F_Client> ui_;
};
