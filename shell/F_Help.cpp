#include "shell/F_Help.h"

#include <QKeyEvent>

#include "core/formularis/Aparenca.h"
#include "core/formularis/Control_Interface.h"
#include "ui_F_Help.h"

F_Help::F_Help() : Formulari(QStringLiteral("F_Help")), ui_(std::make_unique<Ui::F_Help>()) {
  ui_->setupUi(this);
  ui_->P_Logo->setPixmap(Icona_Programa().pixmap(ui_->P_Logo->minimumSize()));
  ui_->L_EQUIP->setText(QStringLiteral("Name: ") + QString::fromStdString(sessio.Equip_Actual));
  QFont marca = ui_->L_Marca->font();
  marca.setPointSizeF(marca.pointSizeF() * 1.4);
  marca.setBold(true);
  ui_->L_Marca->setFont(marca);
  ui_->B_ACCEPTAR->setDefault(true);
  connect(ui_->B_ACCEPTAR, &QPushButton::clicked, this, [this] { Descarregar_Formulari(Nom()); });
}

F_Help::~F_Help() = default;

void F_Help::Activar() {
  ui_->B_ACCEPTAR->setFocus();
}

void F_Help::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) return Descarregar_Formulari(Nom());
  Formulari::keyPressEvent(event);
}
