// The active articles, for the lines of documents to pick from.
#pragma once

#include <memory>

#include "core/menes/Llista_Filtrada.h"

namespace Ui {
class F_ArticlesMCS;
}

class F_ArticlesMCS : public Llista_Filtrada {
  Q_OBJECT
 public:
  F_ArticlesMCS();
  ~F_ArticlesMCS() override;

 protected:
  std::string Sentencia() const override;
  void Obrir_Fila() override;

 private:
  std::unique_ptr<Ui::F_ArticlesMCS> ui_;
};
