// The fields of every screen, found by walking the screens: what nobody may change, what the wheel leaves alone, what
// the keys of the labels reach.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QWheelEvent>

#include "core/controls/Controls.h"
#include "core/controls/Focus_Camps.h"
#include "core/controls/Graella.h"
#include "core/formularis/Drets.h"
#include "documents/Documents.h"
#include "tests/pantalles/Cada_Pantalla.h"

namespace {

// The page of tabs that a control stands on, in its tabs; none for a control that stands on none.
struct Pagina {
  QTabWidget* pestanyes = nullptr;
  QWidget* pagina = nullptr;
};
Pagina Pagina_De(const QWidget* control) {
  QWidget* pagina = control->parentWidget();
  while (pagina != nullptr && qobject_cast<QStackedWidget*>(pagina->parentWidget()) == nullptr)
    pagina = pagina->parentWidget();
  if (pagina == nullptr) return {};
  return {qobject_cast<QTabWidget*>(pagina->parentWidget()->parentWidget()), pagina};
}

bool Mostrar(QWidget* control) {
  const Pagina on = Pagina_De(control);
  if (on.pestanyes != nullptr) on.pestanyes->setCurrentWidget(on.pagina);
  return control->isVisible();
}

bool Es_Pot_Canviar(QWidget* control) {
  if (!control->isEnabled() || !Mostrar(control)) return false;
  if (const auto* camp = qobject_cast<QLineEdit*>(control)) return !camp->isReadOnly();
  if (const auto* notes = qobject_cast<QPlainTextEdit*>(control)) return !notes->isReadOnly();
  if (const auto* graella = qobject_cast<Graella*>(control))
    return graella->editTriggers() != QAbstractItemView::NoEditTriggers;
  return qobject_cast<QCheckBox*>(control) != nullptr || qobject_cast<QComboBox*>(control) != nullptr ||
         qobject_cast<Selector_Data*>(control) != nullptr;
}

class Camps_De_Cada_Pantalla : public Cada_Pantalla {
 protected:
  static void Donar_Lletra(const char* lletra) {
    for (auto dret : {&Sessio::P_Clients, &Sessio::P_Proveidors, &Sessio::P_Articles, &Sessio::P_Usuaris, &Sessio::P_CP,
                      &Sessio::P_Venciments, &Sessio::P_Pressupostos, &Sessio::P_Comandes, &Sessio::P_Albarans,
                      &Sessio::P_Factures})
      sessio.*dret = lletra;
  }
  // Everything that the shared database holds, but for who is in which document.
  static std::string Tot() {
    std::string tot;
    for (const auto& [nom, taula] : sessio.Connexio_Comuna.Taules().Taules()) {
      if (taula.nom == "LOCKS") continue;
      const Recordset rs("SELECT * FROM " + taula.nom, sessio.Connexio_Comuna);
      for (std::int64_t fila = 0; fila < rs.RecordCount(); ++fila) {
        tot += taula.nom;
        for (std::size_t camp = 0; camp < rs.Fields().size(); ++camp)
          tot += "|" + rs.Valor_De_Fila(fila, static_cast<int>(camp)).Text();
        tot += "\n";
      }
    }
    return tot;
  }
  // A search, a login or a filter is no change of anything that is kept: all the others are looked at by their names.
  bool Es_Editor() const {
    const QString nom = Nom();
    const bool document = std::ranges::any_of(
        Tipus_Registrats(), [&](const Tipus_Document* tipus) { return nom.toStdString() == tipus->formulari; });
    return nom == u"F_CLIENT" || nom == u"F_PROVEIDOR" || nom == u"F_ARTICLE" || nom == u"F_EMPRESA" ||
           nom == u"F_USUARI" || document || S_Edita_En_Lloc(nom);
  }
  static void Canviar(QWidget* control) {
    if (auto* casella = qobject_cast<QCheckBox*>(control)) return casella->click();
    Posar_Focus(control);
    if (auto* camp = qobject_cast<QLineEdit*>(control)) {
      camp->insert(QStringLiteral("7"));
      Q_EMIT camp->textEdited(camp->text());
    } else if (auto* notes = qobject_cast<QPlainTextEdit*>(control)) {
      notes->setPlainText(QStringLiteral("7"));
    }
    QTest::keyClick(control, Qt::Key_Tab);
    Assentar();
  }
};

class Camps_De_Cada_Fitxa : public Camps_De_Cada_Pantalla {};

void Girar_La_Roda(QWidget* sobre) {
  QWheelEvent roda(QPointF(5, 5), sobre->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120), Qt::NoButton,
                   Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(sobre, &roda);
}

QString Estat(const QWidget* control) {
  if (const auto* combo = qobject_cast<const QComboBox*>(control))
    return combo->currentText() + QString::number(combo->currentIndex());
  if (const auto* pestanyes = qobject_cast<const QTabWidget*>(control))
    return QString::number(pestanyes->currentIndex());
  if (const auto* barra = qobject_cast<const QTabBar*>(control)) return QString::number(barra->currentIndex());
  if (const auto* camp = qobject_cast<const QLineEdit*>(control)) return camp->text();
  return {};
}

}  // namespace

TEST_P(Camps_De_Cada_Pantalla, Nothing_of_an_editor_can_be_changed_with_the_letter_C) {
  Donar_Lletra("C");
  Tancar_I_Obrir();
  ASSERT_NE(Obert(), nullptr);
  if (Es_Editor()) {
    for (auto* control : Obert()->findChildren<QWidget*>())
      EXPECT_FALSE(Es_Pot_Canviar(control)) << control->objectName().toStdString();
  }
  const std::string abans = Tot();
  QList<QPointer<QWidget>> controls;
  for (auto* control : Obert()->findChildren<QWidget*>()) controls << control;
  for (const auto& control : controls) {
    if (control && qobject_cast<Graella*>(control) == nullptr && Es_Pot_Canviar(control)) Canviar(control);
  }
  Descarregar_Tots();
  Assentar();
  EXPECT_EQ(Tot(), abans);
}

TEST_P(Camps_De_Cada_Pantalla, The_wheel_changes_no_field_that_nobody_is_in) {
  Tancar_I_Obrir();
  ASSERT_NE(Obert(), nullptr);
  for (auto* control : Obert()->findChildren<QWidget*>()) {
    const QWidget* focus = QApplication::focusWidget();
    if (focus != nullptr && (focus == control || control->isAncestorOf(focus))) continue;
    const QString abans = Estat(control);
    Girar_La_Roda(control);
    EXPECT_EQ(Estat(control).toStdString(), abans.toStdString()) << control->objectName().toStdString();
  }
}

TEST_P(Camps_De_Cada_Pantalla, The_key_of_every_label_reaches_its_field) {
  Tancar_I_Obrir();
  ASSERT_NE(Obert(), nullptr);
  for (auto* etiqueta : Obert()->findChildren<QLabel*>()) {
    QWidget* camp = etiqueta->buddy();
    if (camp == nullptr || !etiqueta->text().contains(u'&') || !camp->isEnabled() || !Mostrar(camp)) continue;
    QString text = etiqueta->text();
    const QChar lletra = text.at(text.indexOf(u'&') + 1).toUpper();
    Obert()->setFocus();
    QTest::keyClick(Obert(), static_cast<Qt::Key>(lletra.unicode()), Qt::AltModifier);
    Assentar();
    const QWidget* focus = QApplication::focusWidget();
    EXPECT_TRUE(focus == camp || camp->isAncestorOf(focus))
        << etiqueta->objectName().toStdString() << " Alt+" << QString(lletra).toStdString() << " goes to "
        << (focus == nullptr ? std::string("nothing") : focus->objectName().toStdString());
  }
}

// The additional data of a customer are a second table, which goes along with its name and its tax code.
TEST_P(Camps_De_Cada_Fitxa, A_field_of_a_card_is_saved_in_two_trips_to_a_server_at_most) {
  if (sessio.Connexio_Comuna.Viatges() == 0) GTEST_SKIP() << "a file is no trip away";
  sessio.Parametres.erase("Fitxa_Client_Dades_Visible");
  Tancar_I_Obrir();
  int desats = 0;
  for (auto* camp : Obert()->findChildren<QLineEdit*>()) {
    if (camp->objectName().startsWith(u"qt_") || !Es_Pot_Canviar(camp)) continue;
    const QString nom = camp->objectName().isEmpty() ? camp->parentWidget()->objectName() : camp->objectName();
    Posar_Focus(camp);
    camp->setText(nom.startsWith(u"DT_")      ? QStringLiteral("1/2/11")
                  : nom.startsWith(u"TXT_P_") ? QStringLiteral("C")
                                              : QStringLiteral("8"));
    const auto abans = sessio.Connexio_Comuna.Viatges();
    const std::size_t caixes = caixes_.size();
    QTest::keyClick(camp, Qt::Key_Tab);
    EXPECT_LE(sessio.Connexio_Comuna.Viatges() - abans, 2) << nom.toStdString();
    Assentar();
    if (caixes_.size() == caixes && sessio.Connexio_Comuna.Viatges() > abans) ++desats;
    if (Focus_Retingut() || caixes_.size() != caixes) QTest::keyClick(camp, Qt::Key_Escape);
  }
  EXPECT_GT(desats, 4);
}

INSTANTIATE_TEST_SUITE_P(Cada_Pantalla, Camps_De_Cada_Pantalla, testing::ValuesIn(Camins().begin(), Camins().end()),
                         Nom_De_Prova);

// The cards: their fields are saved as they are left.
static std::vector<Cami> Camins_De_Fitxes() {
  std::vector<Cami> fitxes;
  for (const Cami& cami : Camins()) {
    const QString nom = QString::fromLatin1(cami.formulari);
    if (nom == u"F_CLIENT" || nom == u"F_PROVEIDOR" || nom == u"F_ARTICLE" || nom == u"F_EMPRESA" || nom == u"F_USUARI")
      fitxes.push_back(cami);
  }
  return fitxes;
}
INSTANTIATE_TEST_SUITE_P(Cada_Fitxa, Camps_De_Cada_Fitxa, testing::ValuesIn(Camins_De_Fitxes()), Nom_De_Prova);
