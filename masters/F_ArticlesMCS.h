// The active articles, for the lines of documents to pick from.
#pragma once

#include <memory>

#include "core/menes/Llista.h"

namespace Ui {
class F_ArticlesMCS;
}

class F_ArticlesMCS : public Llista {
  Q_OBJECT
 public:
  F_ArticlesMCS();
  ~F_ArticlesMCS() override;
  void Carregar() override;

 protected:
  std::string Sentencia() const override;
  void Obrir_Fila() override;

 private:
  void Filtrar();
  bool filtrada_ = false;
  std::unique_ptr<Ui::F_ArticlesMCS> ui_;
};
