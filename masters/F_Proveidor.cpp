#include "masters/F_Proveidor.h"

#include "core/controls/Controls.h"
#include "masters/M_Proveidors.h"
#include "masters/M_Venciments.h"
#include "ui_F_Proveidor.h"

F_Proveidor::F_Proveidor()
    : Fitxa(QStringLiteral("F_Proveidor"), "PROVEIDORS"), ui_(std::make_unique<Ui::F_Proveidor>()) {
  ui_->setupUi(this);
  Boto_Sortir(ui_->B_Exit);
  Seguir_CP(ui_->TXT_CP_PRO, ui_->TXT_LOCALITAT_PRO);
  Seguir_CP(ui_->TXT_CP_ENV_PRO, ui_->TXT_LOCALITAT_ENV_PRO);
  Descriure(ui_->TXT_VENCIMENT_PRO, ui_->NO_DESCRIPCIO_VEN, referencia_venciments);
}

F_Proveidor::~F_Proveidor() = default;

std::string F_Proveidor::Sentencia() const {
  return SQL_Proveidor(sessio.Nif_Proveidor);
}

void F_Proveidor::Mostrar_Altres() {
  sessio.Nif_Proveidor = rs_["NIF_PRO"].Text();
}
