#include "sales/F_AlbaransS.h"

#include "ui_F_AlbaransS.h"

F_AlbaransS::F_AlbaransS() : Cerca_Document(QStringLiteral("F_AlbaransS")), ui_(std::make_unique<Ui::F_AlbaransS>()) {
  ui_->setupUi(this);
  Muntar(QStringLiteral("ALBARA"), QStringLiteral("F_ALBARANSM"), ui_->B_Albarans, ui_->B_PENDENTS);
}

F_AlbaransS::~F_AlbaransS() = default;
