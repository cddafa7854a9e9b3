// Which articles to list.
#pragma once

#include <memory>

#include "core/formularis/Formulari.h"
#include "masters/M_Articles.h"

namespace Ui {
class F_ArticlesSelC;
}

class F_ArticlesSelC : public Formulari {
  Q_OBJECT
 public:
  F_ArticlesSelC();
  ~F_ArticlesSelC() override;
  void Carregar() override;
  Criteris_Articles Criteris() const;

 private:
  void Netejar();
  std::unique_ptr<Ui::F_ArticlesSelC> ui_;
};
