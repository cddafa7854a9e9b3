#include "session/F_Usuari.h"

#include "session/M_Idiomes.h"
#include "session/M_Usuaris.h"
#include "ui_F_Usuari.h"

F_Usuari::F_Usuari() : Fitxa(QStringLiteral("F_Usuari"), "USUARIS"), ui_(std::make_unique<Ui::F_Usuari>()) {
  ui_->setupUi(this);
  Boto_Sortir(ui_->B_Exit);
  Exigir(ui_->TXT_ACTIU_USU,
         {[this] { return Es_Actiu_Valid(ui_->TXT_ACTIU_USU->text().toStdString()); }, Avisar_Actiu_Invalid});
  Exigir(ui_->CMB_IDIOMA_USU, {[this] { return !ui_->CMB_IDIOMA_USU->Codi().empty(); }, Avisar_Sense_Idioma});
  for (QLineEdit* dret : ui_->FR_DRETS->findChildren<QLineEdit*>()) {
    Exigir(dret, {[dret] { return Es_Dret_Valid(dret->text().toStdString()); }, Avisar_Dret_Invalid});
  }
}

F_Usuari::~F_Usuari() = default;

std::string F_Usuari::Sentencia() const {
  return SQL_Usuari(sessio.Codi_Usuari);
}

void F_Usuari::Abans_De_Mostrar() {
  ui_->CMB_IDIOMA_USU->Omplir("SELECT ID , DESCRIPTION FROM LANGUAGES ORDER BY ID", sessio.Connexio_Comuna, "ID", "ID",
                              "DESCRIPTION");
}

void F_Usuari::Mostrar_Altres() {
  sessio.Codi_Usuari = rs_["CODI_USU"].Text();
  const Valor idioma = rs_["IDIOMA_USU"];
  if (idioma == idioma_mostrat_) return;
  idioma_mostrat_ = idioma;
  ui_->TXT_DESCRIPTION->setText(idioma.Es_Nul() ? QString() : QString::fromStdString(Nom_Idioma(idioma.Enter())));
}
