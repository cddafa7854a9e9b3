// Rows that are edited in their grid: from cell to cell, and the steps that a table adds to them.
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include "core/controls/Graella.h"
#include "core/formularis/Pantalla_Qt.h"
#include "tests/pantalles/Base_Pantalles.h"

namespace {

const std::vector<Columna_Graella> columnes = {{"CODI_MAR", 1500, "Marca"}, {"DESCRIPCIO_MAR", 3000, "Descripció"}};

}  // namespace

class Graella_Editable : public Base_Pantalles {
 protected:
  Graella_Editable() {
    Executar("INSERT INTO MARQUES (CODI_MAR, DESCRIPCIO_MAR) VALUES ('01', 'Primera')");
    Executar("INSERT INTO MARQUES (CODI_MAR, DESCRIPCIO_MAR) VALUES ('02', 'Segona')");
    auto* columna = new QVBoxLayout(&finestra);
    columna->addWidget(&graella);
    graella.Columnes(columnes);
    rs.Open("SELECT * FROM MARQUES ORDER BY CODI_MAR", sessio.Connexio_Comuna, Bloqueig::Pessimista);
    graella.Lligar(&rs);
    graella.Permetre_Canvis(true);
    finestra.resize(500, 300);
    finestra.show();
    QApplication::setActiveWindow(&finestra);
    graella.setFocus();
    QCoreApplication::processEvents();
  }
  ~Graella_Editable() override { graella.setParent(nullptr); }
  void Anar(int fila, int columna) {
    graella.setCurrentIndex(graella.model()->index(fila, columna));
    graella.setFocus();
  }
  static void Escriu(const char* text) {
    for (const char lletra : std::string(text)) QTest::keyClick(QApplication::focusWidget(), lletra);
  }
  static void Prem(Qt::Key tecla, Qt::KeyboardModifiers amb = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), tecla, amb);
    QTest::qWait(20);  // the editor goes, then the next cell comes
  }
  static bool Hi_Ha_Editor() { return qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr; }
  static std::string Marques() {
    std::string totes;
    for (Recordset r("SELECT * FROM MARQUES ORDER BY CODI_MAR", sessio.Connexio_Comuna); !r.Eof(); r.MoveNext())
      totes += r["CODI_MAR"].Text() + "=" + r["DESCRIPCIO_MAR"].Text() + ";";
    return totes;
  }

  Recordset rs;
  QWidget finestra;
  Graella graella;
};

TEST_F(Graella_Editable, Tab_at_the_end_of_a_new_row_goes_on_with_the_next_new_row) {
  Anar(2, 0);
  Escriu("09");
  Prem(Qt::Key_Tab);
  Escriu("Nova");
  Prem(Qt::Key_Tab);
  EXPECT_EQ(Marques(), "01=Primera;02=Segona;09=Nova;");
  EXPECT_EQ(graella.currentIndex().row(), 3);
  EXPECT_TRUE(Hi_Ha_Editor());
  Escriu("10");
  Prem(Qt::Key_Tab);
  Escriu("Una altra");
  Prem(Qt::Key_Tab);
  EXPECT_EQ(Marques(), "01=Primera;02=Segona;09=Nova;10=Una altra;");
}

TEST_F(Graella_Editable, No_key_goes_by_itself_into_the_code_of_a_row_that_exists) {
  Anar(0, 1);
  Prem(Qt::Key_F2);
  Prem(Qt::Key_Tab);
  EXPECT_EQ(graella.currentIndex(), graella.model()->index(1, 0));
  EXPECT_FALSE(Hi_Ha_Editor());
  Escriu("9");
  EXPECT_FALSE(Hi_Ha_Editor());
  Anar(1, 1);
  Prem(Qt::Key_F2);
  Prem(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_FALSE(Hi_Ha_Editor());
  EXPECT_EQ(Marques(), "01=Primera;02=Segona;");
  // By hand it is changed as before, and letters change what is no code.
  Prem(Qt::Key_F2);
  EXPECT_TRUE(Hi_Ha_Editor());
  Prem(Qt::Key_Escape);
  Anar(1, 1);
  Escriu("Z");
  EXPECT_TRUE(Hi_Ha_Editor());
}

TEST_F(Graella_Editable, Where_rows_are_picked_letters_search) {
  graella.De_Triar(true);
  Anar(0, 1);
  Escriu("02");
  EXPECT_FALSE(Hi_Ha_Editor());
  EXPECT_EQ(graella.Fila_Actual(), 1);
  Prem(Qt::Key_F2);
  EXPECT_TRUE(Hi_Ha_Editor());
  const QSignalSpy lliurada(&graella, &Graella::Doble_Clic);
  Prem(Qt::Key_Return);
  EXPECT_EQ(lliurada.count(), 0);
  Prem(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(lliurada.count(), 1);
}

TEST_F(Graella_Editable, What_is_being_typed_is_written_before_the_row_is_handed_over) {
  graella.De_Triar(true);
  Anar(2, 0);
  Escriu("05");
  Prem(Qt::Key_Tab);
  Escriu("Cinc");
  const QSignalSpy lliurada(&graella, &Graella::Doble_Clic);
  Prem(Qt::Key_Return, Qt::ControlModifier);
  ASSERT_EQ(lliurada.count(), 1);
  EXPECT_EQ(Marques(), "01=Primera;02=Segona;05=Cinc;");
  EXPECT_EQ(graella.Valor_Actual("CODI_MAR"), Valor("05"));
}

TEST_F(Graella_Editable, A_second_click_edits_where_rows_are_picked) {
  graella.De_Triar(true);
  const QPoint on = graella.visualRect(graella.model()->index(1, 1)).center();
  QTest::mouseClick(graella.viewport(), Qt::LeftButton, {}, on);
  EXPECT_FALSE(Hi_Ha_Editor());
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  QTest::mouseClick(graella.viewport(), Qt::LeftButton, {}, on);
  EXPECT_EQ(rs.EditMode(), Edicio::Cap) << "half of a double click holds nothing";
  QTest::qWait(QApplication::doubleClickInterval() + 100);
  EXPECT_TRUE(Hi_Ha_Editor());
}

TEST_F(Graella_Editable, A_new_row_is_filled_by_its_first_value) {
  std::vector<std::string> passos;
  graella.Passos({.nova =
                      [&](const char* camp) {
                        passos.emplace_back(std::string("nova ") + camp);
                        if (rs["DESCRIPCIO_MAR"].Es_Nul()) rs.Set("DESCRIPCIO_MAR", Valor("Per omissió"));
                      },
                  .per_desar =
                      [&](const char* camp) {
                        passos.emplace_back(std::string("per desar ") + camp);
                        return rs["DESCRIPCIO_MAR"].Text() != "No";
                      },
                  .desada = [&] { passos.emplace_back("desada"); }});
  Anar(2, 0);
  Escriu("09");
  Prem(Qt::Key_Return);
  EXPECT_EQ(graella.Text_Cella(1, QStringLiteral("DESCRIPCIO_MAR")), QStringLiteral("Segona"));
  Anar(0, 1);
  EXPECT_EQ(Marques(), "01=Primera;02=Segona;09=Per omissió;");
  EXPECT_EQ(passos, (std::vector<std::string>{"nova CODI_MAR", "per desar DESCRIPCIO_MAR", "desada"}));
  // The step that says no gives the row up.
  passos.clear();
  Anar(0, 1);
  Prem(Qt::Key_F2);
  Escriu("No");
  Prem(Qt::Key_Return);
  Anar(1, 1);
  EXPECT_EQ(Marques(), "01=Primera;02=Segona;09=Per omissió;");
  EXPECT_EQ(passos, (std::vector<std::string>{"per desar DESCRIPCIO_MAR"}));
  EXPECT_FALSE(graella.En_Edicio());
}

TEST_F(Graella_Editable, A_column_that_is_never_typed_takes_no_key) {
  graella.Columnes(
      {{.camp = "CODI_MAR", .amplada = 1500, .titol = "Marca", .fixa = true}, {"DESCRIPCIO_MAR", 3000, "Descripció"}});
  graella.Lligar(&rs);
  Anar(0, 0);
  Prem(Qt::Key_F2);
  EXPECT_FALSE(Hi_Ha_Editor());
  EXPECT_EQ(rs.EditMode(), Edicio::Cap);
}

// Cells of numbers: what is no number stays where it was typed.
class Cella_De_Nombre : public Base_Pantalles {
 protected:
  Cella_De_Nombre() {
    auto* columna = new QVBoxLayout(&finestra);
    columna->addWidget(&graella);
    columna->addWidget(&camp);
    graella.Columnes({{"CODI_VEN", 1500, "Codi"}, {"DIES_VEN", 1500, "Dies"}, {"TERMINIS_VEN", 1500, "Terminis"}});
    rs.Open("SELECT * FROM VENCIMENTS ORDER BY CODI_VEN", sessio.Connexio_Comuna, Bloqueig::Pessimista);
    graella.Lligar(&rs);
    graella.Permetre_Canvis(true);
    finestra.resize(500, 300);
    finestra.show();
    QApplication::setActiveWindow(&finestra);
    Obrir(0, 2);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("dos"));
  }
  ~Cella_De_Nombre() override { graella.setParent(nullptr); }
  void Obrir(int fila, int columna) {
    graella.setCurrentIndex(graella.model()->index(fila, columna));
    graella.setFocus();
    Prem(Qt::Key_F2);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
  }
  static void Prem(Qt::Key tecla) {
    QTest::keyClick(QApplication::focusWidget(), tecla);
    QTest::qWait(20);
  }
  static QLineEdit* Editor() { return qobject_cast<QLineEdit*>(QApplication::focusWidget()); }
  void Exigir_Que_S_Hi_Queda() {
    QTest::qWait(20);
    ASSERT_NE(Editor(), nullptr);
    EXPECT_EQ(Editor()->text(), QStringLiteral("dos"));
    EXPECT_EQ(Editor()->selectedText(), QStringLiteral("dos"));
    EXPECT_EQ(graella.currentIndex(), graella.model()->index(0, 2));
    EXPECT_EQ(installacio.pantalla.caixes.size(), 1U) << "it is told once";
    EXPECT_EQ(installacio.pantalla.caixes[0].text.substr(0, 5), "13 - ");
  }
  static double Terminis() {
    return Recordset("SELECT TERMINIS_VEN FROM VENCIMENTS ORDER BY CODI_VEN", sessio.Connexio_Comuna)[0].Doble();
  }

  Recordset rs;
  QWidget finestra;
  QLineEdit camp;
  Graella graella;
};

TEST_F(Cella_De_Nombre, Keeps_what_is_none_whichever_key_leaves_it) {
  const double abans = Terminis();
  for (const Qt::Key tecla : {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Backtab}) {
    Prem(tecla);
    Exigir_Que_S_Hi_Queda();
  }
  EXPECT_EQ(Terminis(), abans);
  QTest::keyClicks(Editor(), QStringLiteral("4"));
  Prem(Qt::Key_Return);
  EXPECT_TRUE(graella.Desar_Fila());
  EXPECT_EQ(Terminis(), 4);
  EXPECT_EQ(installacio.pantalla.caixes.size(), 1U);
}

TEST_F(Cella_De_Nombre, Keeps_what_is_none_wherever_the_mouse_goes) {
  for (const QModelIndex& on : {graella.model()->index(0, 1), graella.model()->index(2, 2)}) {
    QTest::mouseClick(graella.viewport(), Qt::LeftButton, {}, graella.visualRect(on).center());
    Exigir_Que_S_Hi_Queda();
  }
  QTest::mouseClick(&camp, Qt::LeftButton);
  Exigir_Que_S_Hi_Queda();
  EXPECT_FALSE(graella.Desar_Fila()) << "the row is not written without it";
  EXPECT_TRUE(graella.En_Edicio());
}

TEST_F(Cella_De_Nombre, Is_given_up_with_Esc_and_then_its_row) {
  Prem(Qt::Key_Return);
  Prem(Qt::Key_Escape);
  EXPECT_EQ(Editor(), nullptr);
  EXPECT_TRUE(graella.En_Edicio());
  Prem(Qt::Key_Escape);
  EXPECT_FALSE(graella.En_Edicio());
  // Or both at once, by whoever closes the form.
  Obrir(0, 2);
  QTest::keyClicks(Editor(), QStringLiteral("tres"));
  Prem(Qt::Key_Return);
  graella.Descartar_Fila();
  EXPECT_EQ(graella.indexWidget(graella.currentIndex()), nullptr);
  EXPECT_FALSE(graella.En_Edicio());
  EXPECT_TRUE(graella.Desar_Fila());
}

TEST_F(Cella_De_Nombre, That_is_open_counts_when_its_row_is_written) {
  QTest::keyClick(Editor(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(Editor(), QStringLiteral("7"));
  EXPECT_TRUE(graella.Desar_Fila());
  EXPECT_EQ(Terminis(), 7);
}

// The real box takes the focus from the cell, and gives it back.
TEST_F(Cella_De_Nombre, Is_told_of_in_one_box_whatever_leaves_it) {
  Pantalla_Qt pantalla;
  sessio.pantalla = &pantalla;
  int caixes = 0;
  QTimer tanca;
  QObject::connect(&tanca, &QTimer::timeout, qApp, [&] {
    auto* caixa = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (caixa == nullptr) return;
    ++caixes;
    caixa->accept();
  });
  tanca.start(10);
  const auto esperar = [&] {
    QTest::qWait(60);
    QApplication::setActiveWindow(&finestra);  // as a window manager does when a box has gone
  };
  Prem(Qt::Key_Return);
  esperar();
  EXPECT_EQ(caixes, 1);
  ASSERT_NE(Editor(), nullptr);
  EXPECT_EQ(Editor()->text(), QStringLiteral("dos"));
  QTest::keyClicks(Editor(), QStringLiteral("tres"));
  QTest::mouseClick(&camp, Qt::LeftButton);
  esperar();
  EXPECT_EQ(caixes, 2) << "another text, another box";
  ASSERT_NE(Editor(), nullptr);
  EXPECT_EQ(Editor()->text(), QStringLiteral("tres"));
  sessio.pantalla = &installacio.pantalla;
}
