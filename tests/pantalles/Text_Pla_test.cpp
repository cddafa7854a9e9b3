// Nothing that a row or TEXTS holds is read as markup, on any screen.
#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QTextEdit>
#include <QToolTip>

#include "core/controls/Graella.h"
#include "tests/pantalles/Cada_Pantalla.h"

namespace {

constexpr const char* hostil = "<img src=\"/dev/zero\"><b>x</b>";

// Every text that a person reads, in every table.
void Omplir_De_Marques() {
  for (const auto& [nom, taula] : sessio.Connexio_Comuna.Taules().Taules()) {
    for (const Columna& columna : taula.columnes) {
      if (columna.tipus != Tipus_Columna::Text) continue;
      sessio.Connexio_Comuna.Execute("UPDATE " + taula.nom + " SET " + columna.nom + " = " + Text_SQL(hostil));
    }
  }
  sessio.Connexio_Local.Execute("UPDATE TEXTS SET F_TEXT = " + Text_SQL(hostil));
}

const QLabel* Consell_Obert() {
  for (const QWidget* finestra : QApplication::topLevelWidgets()) {
    if (finestra->inherits("QTipLabel") && finestra->isVisible()) return static_cast<const QLabel*>(finestra);
  }
  return nullptr;
}

void Exigir_Consell_Pla(QWidget& sobre, QPoint on, const std::string& qui) {
  QToolTip::hideText();
  QHelpEvent ajuda(QEvent::ToolTip, on, sobre.mapToGlobal(on));
  QApplication::sendEvent(&sobre, &ajuda);
  const QLabel* consell = Consell_Obert();
  if (consell == nullptr) return;
  EXPECT_EQ(consell->textFormat(), Qt::PlainText) << qui << ": " << consell->text().toStdString();
}

void Exigir_Consells_De_Graella(const Graella& graella, const std::string& qui) {
  for (int columna = 0; graella.Files() > 0 && columna < graella.model()->columnCount(); ++columna) {
    if (!graella.isColumnHidden(columna))
      Exigir_Consell_Pla(*graella.viewport(), graella.visualRect(graella.model()->index(0, columna)).center(), qui);
  }
}

}  // namespace

class Text_De_Cada_Pantalla : public Cada_Pantalla {};

TEST_P(Text_De_Cada_Pantalla, Is_shown_as_it_is_written) {
  Omplir_De_Marques();
  Tancar_I_Obrir();
  ASSERT_NE(Obert(), nullptr);
  for (const auto* etiqueta : Obert()->findChildren<QLabel*>())
    EXPECT_EQ(etiqueta->textFormat(), Qt::PlainText) << etiqueta->objectName().toStdString();
  for (const auto* text : Obert()->findChildren<QTextEdit*>())
    EXPECT_FALSE(text->acceptRichText()) << text->objectName().toStdString();
  for (auto* control : Obert()->findChildren<QWidget*>()) {
    const std::string qui = control->objectName().toStdString();
    if (auto* graella = qobject_cast<Graella*>(control)) {
      Exigir_Consells_De_Graella(*graella, qui);
    } else if (control->isVisible()) {
      control->setToolTip(QString::fromLatin1(hostil));
      Exigir_Consell_Pla(*control, control->rect().center(), qui);
      EXPECT_NE(Consell_Obert(), nullptr) << qui;
    }
  }
  QToolTip::hideText();
}

INSTANTIATE_TEST_SUITE_P(Totes, Text_De_Cada_Pantalla, testing::ValuesIn(Camins().begin(), Camins().end()),
                         Nom_De_Prova);

TEST_P(Text_De_Cada_Pantalla, Hidden_labels_too_are_plain_when_they_are_shown) {
  Tancar_I_Obrir();
  ASSERT_NE(Obert(), nullptr);
  auto* etiqueta = new QLabel(QString::fromLatin1(hostil), Obert());
  etiqueta->show();
  EXPECT_EQ(etiqueta->textFormat(), Qt::PlainText);
}
