#include "session/F_Empresa.h"

#include "session/M_Empresa.h"
#include "ui_F_Empresa.h"

F_Empresa::F_Empresa() : Fitxa(QStringLiteral("F_Empresa"), "EMPRESES"), ui_(std::make_unique<Ui::F_Empresa>()) {
  ui_->setupUi(this);
  Boto_Sortir(ui_->B_Exit);
  Seguir_CP(ui_->TXT_CP_EMP, ui_->TXT_LOCALITAT_EMP);
}

F_Empresa::~F_Empresa() = default;

std::string F_Empresa::Sentencia() const {
  return SQL_Empresa(sessio.Nif_Empresa);
}

void F_Empresa::Mostrar_Altres() {
  sessio.Nif_Empresa = rs_["NIF_EMP"].Text();
}
