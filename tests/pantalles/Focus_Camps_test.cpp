// Fields as the user comes to them, leaves them and is kept in them.
#include "core/controls/Focus_Camps.h"

#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "core/controls/Controls.h"
#include "core/formularis/Formulari.h"
#include "tests/pantalles/Formularis_De_Prova.h"

TEST(Focus_Camps, A_field_that_goes_with_its_window_is_not_left) {
  int vegades = 0;
  {
    QWidget finestra;
    auto* camp = new QLineEdit(&finestra);
    En_Sortir(camp, [&] { ++vegades; });
    finestra.show();
    QApplication::setActiveWindow(&finestra);
    camp->setFocus();
    EXPECT_TRUE(camp->hasFocus());
  }
  EXPECT_EQ(vegades, 0);
}

TEST(Focus_Camps, Leaving_runs_before_entering_and_neither_runs_while_the_focus_is_kept) {
  QStringList fets;
  QWidget finestra;
  QLineEdit a(&finestra);
  QLineEdit b(&finestra);
  En_Sortir(&a, [&] {
    fets << QStringLiteral("leaves a");
    if (a.text() == u"bad") Retenir_Focus(&a);
  });
  En_Entrar(&b, [&] { fets << QStringLiteral("enters b"); });
  En_Sortir(&b, [&] { fets << QStringLiteral("leaves b"); });
  finestra.show();
  QApplication::setActiveWindow(&finestra);
  a.setFocus();
  b.setFocus(Qt::TabFocusReason);
  EXPECT_EQ(fets, (QStringList{QStringLiteral("leaves a"), QStringLiteral("enters b")}));
  a.setFocus(Qt::TabFocusReason);
  a.setText(QStringLiteral("bad"));
  fets.clear();
  b.setFocus(Qt::TabFocusReason);
  QApplication::processEvents();
  EXPECT_EQ(fets, QStringList{QStringLiteral("leaves a")});
  EXPECT_TRUE(a.hasFocus());
  EXPECT_EQ(a.selectedText(), QStringLiteral("bad"));
}

namespace {

void Girar_La_Roda(QWidget* sobre) {
  QWheelEvent roda(QPointF(5, 5), sobre->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120), Qt::NoButton,
                   Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(sobre, &roda);
}

}  // namespace

TEST(Roda, Changes_no_field_that_nobody_is_in_and_no_code_but_in_its_list) {
  Vigilar_Aplicacio();
  QWidget finestra;
  QVBoxLayout columna(&finestra);
  auto* altre = new QLineEdit;
  auto* codi = new Combo_Codi;
  auto* simple = new QComboBox;
  auto* nombre = new QSpinBox;
  for (QWidget* control : std::initializer_list<QWidget*>{altre, codi, simple, nombre}) columna.addWidget(control);
  for (QComboBox* combo : std::initializer_list<QComboBox*>{codi, simple})
    combo->addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
  codi->setCurrentIndex(0);
  finestra.show();
  QApplication::setActiveWindow(&finestra);
  altre->setFocus();
  for (QWidget* control : std::initializer_list<QWidget*>{codi, codi->lineEdit(), simple, nombre})
    Girar_La_Roda(control);
  EXPECT_EQ(codi->currentIndex(), 0);
  EXPECT_EQ(simple->currentIndex(), 0);
  EXPECT_EQ(nombre->value(), 0);
  codi->setFocus();
  Girar_La_Roda(codi->lineEdit());
  EXPECT_EQ(codi->currentIndex(), 0);
  simple->setFocus();
  Girar_La_Roda(simple);
  EXPECT_EQ(simple->currentIndex(), 1);
}

TEST(Refus, Is_seen_in_the_field_with_the_focus_in_its_tooltip_and_below_the_form) {
  Formulari formulari(QStringLiteral("F_Prova"));
  QVBoxLayout columna(&formulari);
  auto* camp = new Camp_Numeric;
  auto* altre = new QLineEdit;
  columna.addWidget(camp);
  columna.addWidget(altre);
  En_Sortir(camp, [camp] {
    if (!camp->Es_Numeric()) Retenir_Focus(camp);
  });
  camp->setToolTip(QStringLiteral("Quants"));
  const QColor abans = camp->palette().color(QPalette::Base);
  formulari.show();
  QApplication::setActiveWindow(&formulari);
  camp->setFocus();
  QTest::keyClicks(camp, QStringLiteral("abc"));
  altre->setFocus(Qt::TabFocusReason);
  QApplication::processEvents();
  ASSERT_TRUE(camp->hasFocus());
  EXPECT_NE(camp->palette().color(QPalette::Base), abans);
  EXPECT_EQ(camp->toolTip(), QStringLiteral("No és cap nombre."));
  auto* nota = formulari.findChild<QLabel*>(QStringLiteral("L_REFUS"));
  ASSERT_NE(nota, nullptr);
  EXPECT_TRUE(nota->isVisible());
  EXPECT_EQ(nota->text(), camp->toolTip());
  QTest::keyClicks(camp, QStringLiteral("12"));
  EXPECT_FALSE(nota->isVisible());
  EXPECT_EQ(camp->toolTip(), QStringLiteral("Quants"));
  EXPECT_EQ(camp->palette().color(QPalette::Base), abans);
}

TEST(Focus_Camps, A_button_pressed_by_its_key_leaves_the_field_first_and_waits_for_one_that_refuses) {
  QStringList fets;
  Formulari formulari(QStringLiteral("F_Prova"));
  QVBoxLayout columna(&formulari);
  auto* camp = new QLineEdit;
  auto* fer = new QPushButton(QStringLiteral("&Fer"));
  auto* netejar = new QPushButton(QStringLiteral("&Netejar"));
  netejar->setObjectName(QStringLiteral("B_NETEJAR"));
  for (QWidget* control : std::initializer_list<QWidget*>{camp, fer, netejar}) columna.addWidget(control);
  En_Sortir(camp, [&] {
    fets << QStringLiteral("leaves");
    if (camp->text() == u"bad") Retenir_Focus(camp);
  });
  QObject::connect(fer, &QPushButton::clicked, &formulari, [&] { fets << QStringLiteral("acts"); });
  QObject::connect(netejar, &QPushButton::clicked, &formulari, [&] { fets << QStringLiteral("clears"); });
  formulari.show();
  QApplication::setActiveWindow(&formulari);
  camp->setFocus();
  const auto premer = [&](Qt::Key lletra) {
    fets.clear();
    QTest::keyClick(camp, lletra, Qt::AltModifier);
    QTest::qWait(150);  // a button that is pressed by its key stays down for a moment
  };
  premer(Qt::Key_F);
  EXPECT_EQ(fets, (QStringList{QStringLiteral("leaves"), QStringLiteral("acts")}));
  EXPECT_TRUE(camp->hasFocus());
  camp->setText(QStringLiteral("bad"));
  premer(Qt::Key_F);
  EXPECT_EQ(fets, QStringList{QStringLiteral("leaves")});
  premer(Qt::Key_N);
  EXPECT_EQ(fets, (QStringList{QStringLiteral("leaves"), QStringLiteral("clears")}));
}

class Camps_En_Tancar : public Amb_Principal {};

TEST_F(Camps_En_Tancar, Closing_a_form_leaves_its_field_and_nobody_is_kept) {
  int vegades = 0;
  auto* formulari = new Formulari(QStringLiteral("F_Prova"));
  auto* camp = new QLineEdit(formulari);
  En_Sortir(camp, [&] {
    ++vegades;
    Retenir_Focus(camp);
  });
  En_Sortir(
      camp, [&] { vegades += 100; }, Sortida::Fa_La_Feina);
  formulari->show();
  QApplication::setActiveWindow(formulari);
  camp->setFocus();
  formulari->close();
  EXPECT_EQ(vegades, 1);
  EXPECT_FALSE(Focus_Retingut());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST_F(Camps_En_Tancar, The_key_of_the_exit_button_leaves_the_field_once_and_again_when_it_was_typed_in_meanwhile) {
  int vegades = 0;
  auto* formulari = new Formulari(QStringLiteral("F_Prova"));
  auto* camp = new QLineEdit(formulari);
  auto* sortir = new QPushButton(QStringLiteral("&Sortir"), formulari);
  sortir->setObjectName(QStringLiteral("B_Exit"));
  En_Sortir(camp, [&] { ++vegades; });
  formulari->show();
  QApplication::setActiveWindow(formulari);
  camp->setFocus();
  ASSERT_TRUE(Deixar_El_Camp_Pel_Boto(sortir));
  EXPECT_EQ(vegades, 1);
  QTest::keyClicks(camp, QStringLiteral("x"));
  Deixar_El_Camp_En_Tancar(formulari);
  EXPECT_EQ(vegades, 2);
  ASSERT_TRUE(Deixar_El_Camp_Pel_Boto(sortir));
  EXPECT_EQ(vegades, 3);
  formulari->close();
  EXPECT_EQ(vegades, 3);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST(Focus_Camps, Refusing_a_thousand_times_makes_no_connection_more) {
  QWidget finestra;
  QLineEdit camp(&finestra);
  En_Sortir(&camp, [&] { Retenir_Focus(&camp); });
  QLineEdit altre(&finestra);
  finestra.show();
  QApplication::setActiveWindow(&finestra);
  camp.setFocus();
  const auto fills = [&] { return camp.findChildren<QObject*>().size(); };
  const auto refusar = [&] {
    altre.setFocus(Qt::TabFocusReason);
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  };
  refusar();
  const auto abans = fills();
  for (int i = 0; i < 1000; ++i) refusar();
  EXPECT_EQ(fills(), abans);
}
