// The editor of an article: its codes, its prices, which follow each other, its stock.
#pragma once

#include <memory>

#include "core/menes/Fitxa.h"

namespace Ui {
class F_Article;
}

class F_Article : public Fitxa {
  Q_OBJECT
 public:
  F_Article();
  ~F_Article() override;

 protected:
  std::string Sentencia() const override;
  void Mostrar_Altres() override;

 private:
  void Refer_Preus(const char* columna);
  std::unique_ptr<Ui::F_Article> ui_;
};
