// The list of articles, by the criteria of the selection form.
#pragma once

#include <memory>

#include "core/menes/Llista_Mestra.h"

namespace Ui {
class F_ArticlesMC;
}

class F_ArticlesMC : public Llista_Mestra {
  Q_OBJECT
 public:
  F_ArticlesMC();
  ~F_ArticlesMC() override;
  void Carregar() override;
  void Activar() override;

 protected:
  std::string Sentencia() const override;
  void Nou() override;

 private:
  std::unique_ptr<Ui::F_ArticlesMC> ui_;
  bool acabada_de_llegir_ = false;
};
