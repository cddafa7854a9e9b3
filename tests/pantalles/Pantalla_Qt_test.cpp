#include "core/formularis/Pantalla_Qt.h"

#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "shell/Instancia_Unica.h"
#include "tests/pantalles/Base_Pantalles.h"

namespace {

void Teclejar_A_La_Cua(QWidget* camp) {
  QCoreApplication::postEvent(camp, new QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a")));
}

}  // namespace

TEST(Pantalla_Qt, What_is_typed_during_a_save_is_swallowed) {
  Pantalla_Qt pantalla;
  QLineEdit camp;
  pantalla.Bloquejar_Entrada();
  QTest::keyClicks(&camp, QStringLiteral("x"));
  Teclejar_A_La_Cua(&camp);
  pantalla.Alliberar_Entrada();
  QCoreApplication::processEvents();
  EXPECT_EQ(camp.text(), QString());
  QTest::keyClicks(&camp, QStringLiteral("y"));
  EXPECT_EQ(camp.text(), QStringLiteral("y"));
}

TEST(Pantalla_Qt, No_window_closes_during_a_save_and_the_program_does_not_end) {
  Pantalla_Qt pantalla;
  QWidget finestra;
  finestra.show();
  pantalla.Bloquejar_Entrada();
  EXPECT_FALSE(finestra.close());
  QEvent acabar(QEvent::Quit);
  QCoreApplication::sendEvent(qApp, &acabar);
  EXPECT_FALSE(acabar.isAccepted());
  pantalla.Alliberar_Entrada();
  EXPECT_TRUE(finestra.isVisible());
  EXPECT_TRUE(finestra.close());
}

TEST(Pantalla_Qt, Events_that_rules_let_run_leave_the_keys_for_later) {
  Pantalla_Qt pantalla;
  QLineEdit camp;
  pantalla.Processar_Events();
  Teclejar_A_La_Cua(&camp);
  QCoreApplication::processEvents();
  EXPECT_EQ(camp.text(), QStringLiteral("a"));
}

TEST(Pantalla_Qt, A_wait_lets_events_run_and_sleeps_between_them) {
  Pantalla_Qt pantalla;
  QLineEdit camp;
  QSignalSpy desperta(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake);
  bool fet = false;
  QTimer::singleShot(100, qApp, [&] { fet = true; });
  Teclejar_A_La_Cua(&camp);
  pantalla.Esperar(1);
  EXPECT_TRUE(fet);
  EXPECT_LT(desperta.count(), 100);  // a loop at full speed wakes up hundreds of thousands of times
}

TEST(Pantalla_Qt, A_box_of_few_words_has_room_for_its_title) {
  Pantalla_Qt pantalla;
  Pantalla_Qt::Contestador = nullptr;
  int amplada = 0;
  QString titol;
  QTimer::singleShot(0, qApp, [&] {
    QWidget* caixa = QApplication::activeModalWidget();
    amplada = caixa->width() - caixa->fontMetrics().horizontalAdvance(caixa->windowTitle());
    titol = caixa->windowTitle();
    caixa->close();
  });
  pantalla.Caixa("!", estil::simple, "Usuari que encara no ha entrat");
  EXPECT_EQ(titol, QStringLiteral("Usuari que encara no ha entrat"));
  EXPECT_GE(amplada, 100);
}

TEST(Instancia_Unica, A_second_start_calls_the_first_one_and_stands_back) {
  const QTemporaryDir carpeta;
  const Instancia_Unica primera(carpeta.path());
  QSignalSpy cridada(&primera, &Instancia_Unica::Cridada);
  EXPECT_TRUE(primera.Es_La_Primera());
  const Instancia_Unica segona(carpeta.path());
  EXPECT_FALSE(segona.Es_La_Primera());
  EXPECT_TRUE(cridada.count() > 0 || cridada.wait(2000));
}

TEST(Instancia_Unica, Another_data_folder_is_another_terminal) {
  const QTemporaryDir carpeta;
  const QTemporaryDir altra;
  const Instancia_Unica primera(carpeta.path());
  const Instancia_Unica segona(altra.path());
  EXPECT_TRUE(primera.Es_La_Primera());
  EXPECT_TRUE(segona.Es_La_Primera());
}

TEST(Instancia_Unica, A_folder_that_is_not_there_stops_nobody) {
  const Instancia_Unica instancia(QStringLiteral("/no/such/folder"));
  EXPECT_TRUE(instancia.Es_La_Primera());
}

TEST(Pantalla_Qt, A_box_of_many_lines_is_scrolled_and_keeps_its_buttons_on_the_screen) {
  Pantalla_Qt pantalla;
  sessio.pantalla = &pantalla;
  std::string text = "Hi ha Albarans ja Facturats: \n";
  for (int nota = 1; nota <= 500; ++nota) text += "     " + std::to_string(nota) + "\n";
  bool vista = false;
  QTimer::singleShot(200, qApp, [&] {
    auto* caixa = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(caixa, nullptr);
    vista = true;
    EXPECT_LT(caixa->height(), caixa->screen()->availableGeometry().height());
    for (auto* boto : caixa->buttons()) EXPECT_LE(boto->geometry().bottom(), caixa->height());
    const auto* etiqueta = caixa->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    EXPECT_GT(etiqueta->height(), caixa->height()) << "the text is whole, behind a scroll bar";
    caixa->buttons().constFirst()->click();
  });
  pantalla.Caixa(text, estil::si_no);
  EXPECT_TRUE(vista);
}
