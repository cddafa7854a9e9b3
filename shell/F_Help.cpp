#include "shell/F_Help.h"

#include <QAction>
#include <QHeaderView>
#include <QTableWidget>
#include <vector>

#include "core/formularis/Aparenca.h"
#include "core/formularis/Formularis_Oberts.h"
#include "shell/F_Principal.h"
#include "shell/Menu_Principal.h"
#include "ui_F_Help.h"

namespace {

struct Tecla {
  QString tecla;
  QString que_fa;
};

// Those of the menu first, by the words that it shows.
std::vector<Tecla> Totes_Les_Tecles() {
  std::vector<Tecla> tecles;
  for (const Entrada_Menu& entrada : Entrades_De_Menu()) {
    if (*entrada.drecera == '\0' || !Te_Feina(entrada)) continue;
    const QAction* accio = F_Principal::Unica()->Accio(QString::fromUtf16(entrada.nom));
    tecles.push_back({accio->shortcut().toString(QKeySequence::NativeText), accio->text().remove(u'&')});
  }
  for (const Tecla_General& general : Tecles_Generals()) {
    tecles.push_back(
        {QKeySequence(QString::fromLatin1(general.tecla)).toString(QKeySequence::NativeText), general.que_fa});
  }
  return tecles;
}

void Omplir(QTableWidget& taula) {
  const auto tecles = Totes_Les_Tecles();
  taula.setColumnCount(2);
  taula.horizontalHeader()->hide();
  Vestir_Taula(taula);
  taula.setRowCount(static_cast<int>(tecles.size()));
  for (int fila = 0; fila < taula.rowCount(); ++fila) {
    taula.setItem(fila, 0, new QTableWidgetItem(tecles[static_cast<std::size_t>(fila)].tecla));
    taula.setItem(fila, 1, new QTableWidgetItem(tecles[static_cast<std::size_t>(fila)].que_fa));
  }
  taula.resizeColumnToContents(0);
}

}  // namespace

F_Help::F_Help() : Formulari(QStringLiteral("F_Help")), ui_(std::make_unique<Ui::F_Help>()) {
  ui_->setupUi(this);
  ui_->P_Logo->setPixmap(Icona_Programa().pixmap(ui_->P_Logo->minimumSize()));
  ui_->L_EQUIP->setText(QStringLiteral("Name: ") + QString::fromStdString(sessio.Equip_Actual));
  QFont marca = ui_->L_Marca->font();
  marca.setPointSizeF(marca.pointSizeF() * 1.4);
  marca.setBold(true);
  ui_->L_Marca->setFont(marca);
  Omplir(*ui_->T_TECLES);
  ui_->B_ACCEPTAR->setDefault(true);
  connect(ui_->B_ACCEPTAR, &QPushButton::clicked, this, [this] { Descarregar_Formulari(Nom()); });
}

F_Help::~F_Help() = default;

void F_Help::Activar() {
  ui_->B_ACCEPTAR->setFocus();
}
