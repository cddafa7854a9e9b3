// The list of delivery notes.
#pragma once

#include <memory>

#include "documents/F_Llista_Documents.h"

namespace Ui {
class F_AlbaransM;
}

class F_AlbaransM : public Llista_Documents {
  Q_OBJECT
 public:
  F_AlbaransM();
  ~F_AlbaransM() override;

 protected:
  std::string Sentencia() const override;
  Valor Crear_Document() override;
  void Esborrar(const Valor& numero) override;
  void Passar_Numero(const Valor& numero) override;

 private:
  std::unique_ptr<Ui::F_AlbaransM> ui_;
};
