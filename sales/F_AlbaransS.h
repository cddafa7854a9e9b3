// The search form of delivery notes.
#pragma once

#include <memory>

#include "documents/F_Cerca_Document.h"

namespace Ui {
class F_AlbaransS;
}

class F_AlbaransS : public Cerca_Document {
  Q_OBJECT
 public:
  F_AlbaransS();
  ~F_AlbaransS() override;

 private:
  std::unique_ptr<Ui::F_AlbaransS> ui_;
};
