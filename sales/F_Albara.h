// The editor of delivery notes.
#pragma once

#include "documents/F_Editor_Document.h"

namespace Ui {
class F_Albara;
}

class F_Albara : public Editor_Document {
  Q_OBJECT
 public:
  F_Albara();
  ~F_Albara() override;

 protected:
  Valor Numero_A_Obrir() const override;
  bool Bloquejat() const override;
  void Afegir_Linia(const Capcalera_Oberta& cap, const Linia_Entrada& linia) override;
  bool Esborrar_Linia() override;
  void Recalcular_Linies(const Capcalera_Oberta& cap) override;
  bool Moure_Linia(std::int16_t linia, bool avall) override;
  void Esborrar_Buit() override;
  void Desar_Camps_Propis() override;
  void Mostrar_Camps_Propis() override;

 private:
  std::unique_ptr<Ui::F_Albara> ui_;
};
