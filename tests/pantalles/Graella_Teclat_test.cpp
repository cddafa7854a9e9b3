// What a grid does under a hand: its keys, its width, its order, what it copies.
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QHelpEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "core/controls/Graella.h"
#include "tests/pantalles/Base_Pantalles.h"

namespace {

const std::vector<Columna_Graella> columnes = {{"CODI_ART", 1500, "Codi"},
                                               {"DESCRIPCIO_ART", 1500, "Descripció"},
                                               {"COST_ART", 1200, "Cost", true, "#,##0.00"},
                                               {"ACTIU_ART", 900, "Actiu", false, "", true}};

}  // namespace

class Graella_Sota_La_Ma : public Base_Pantalles {
 protected:
  Graella_Sota_La_Ma() {
    Article("A1", "Zinc", 10);
    Article("A2", "Àlgebra", 20.5);
    Article("A3", "Alberg", 3);
    Article("B1", "Un text tan llarg que no hi ha columna on càpiga", 1234.5);
    auto* columna = new QVBoxLayout(&finestra);
    columna->addWidget(&graella);
    graella.setObjectName(QStringLiteral("G_Prova"));
    graella.Columnes(columnes);
    rs.Open("SELECT CODI_ART, DESCRIPCIO_ART, COST_ART, ACTIU_ART FROM ARTICLES ORDER BY CODI_ART",
            sessio.Connexio_Comuna);
    graella.Lligar(&rs);
    finestra.resize(700, 300);
    finestra.show();
    QApplication::setActiveWindow(&finestra);
    graella.setFocus();
    QCoreApplication::processEvents();
  }
  ~Graella_Sota_La_Ma() override { graella.setParent(nullptr); }
  void Article(const std::string& codi, const std::string& descripcio, double cost) {
    Executar("INSERT INTO ARTICLES (CODI_ART, DESCRIPCIO_ART, COST_ART, ACTIU_ART) VALUES (" + Text_SQL(codi) + ", " +
             Text_SQL(descripcio) + ", " + Valor_SQL(cost) + ", -1)");
  }
  void Prem(Qt::Key tecla, Qt::KeyboardModifiers amb = Qt::NoModifier) { QTest::keyClick(&graella, tecla, amb); }
  QString Codi() const { return QString::fromStdString(graella.Valor_Actual("CODI_ART").Text()); }
  QPoint Centre(int fila, int columna) const {
    return graella.visualRect(graella.model()->index(fila, columna)).center();
  }
  static QString Copiat() { return QApplication::clipboard()->text(); }
  QString Consell(int fila, int columna) {
    QToolTip::hideText();
    QHelpEvent ajuda(QEvent::ToolTip, Centre(fila, columna), graella.viewport()->mapToGlobal(Centre(fila, columna)));
    QApplication::sendEvent(graella.viewport(), &ajuda);
    return QToolTip::text();
  }

  Recordset rs;
  QWidget finestra;
  Graella graella;
};

TEST_F(Graella_Sota_La_Ma, The_last_column_takes_what_the_others_leave) {
  EXPECT_EQ(graella.horizontalHeader()->length(), graella.viewport()->width());
  EXPECT_EQ(graella.columnWidth(0), 1500 / 15);
  finestra.resize(900, 300);
  QCoreApplication::processEvents();
  EXPECT_EQ(graella.horizontalHeader()->length(), graella.viewport()->width());
  finestra.resize(200, 300);
  QCoreApplication::processEvents();
  EXPECT_EQ(graella.columnWidth(3), graella.Amplada_Donada(3));
  EXPECT_GT(graella.horizontalHeader()->length(), graella.viewport()->width());
}

TEST_F(Graella_Sota_La_Ma, A_column_that_grows_takes_the_room_until_the_user_gives_it_a_width) {
  graella.Columnes({{"CODI_ART", 1500, "Codi"},
                    {.camp = "DESCRIPCIO_ART", .amplada = 1500, .titol = "Descripció", .creix = true},
                    {"COST_ART", 1200, "Cost", true, "#,##0.00"}});
  const int sobra = graella.viewport()->width() - 1500 / 15 - 1200 / 15;
  EXPECT_EQ(graella.columnWidth(1), sobra);
  EXPECT_EQ(graella.columnWidth(2), 1200 / 15);
  graella.setColumnWidth(1, 150);
  EXPECT_EQ(graella.columnWidth(1), 150);
  EXPECT_EQ(graella.horizontalHeader()->length(), graella.viewport()->width());
}

TEST_F(Graella_Sota_La_Ma, What_fills_the_width_is_not_remembered_as_the_users) {
  graella.Desar_Amplades();
  graella.Recuperar_Amplades();
  EXPECT_EQ(graella.Amplada_Donada(3), 900 / 15);
}

TEST_F(Graella_Sota_La_Ma, The_arrow_stands_over_the_column_of_the_order) {
  const QHeaderView& capcalera = *graella.horizontalHeader();
  EXPECT_TRUE(capcalera.isSortIndicatorShown());
  EXPECT_EQ(capcalera.sortIndicatorSection(), 0);
  for (int cop = 0; cop < 2; ++cop) {
    QTest::mouseClick(capcalera.viewport(), Qt::LeftButton, {}, {capcalera.sectionViewportPosition(1) + 20, 8});
    EXPECT_EQ(capcalera.sortIndicatorSection(), 1);
    EXPECT_EQ(capcalera.sortIndicatorOrder(), Qt::AscendingOrder);
    EXPECT_EQ(graella.Text_Cella(0, QStringLiteral("CODI_ART")), QStringLiteral("A3"));
  }
}

TEST_F(Graella_Sota_La_Ma, A_text_of_the_statement_is_not_its_order) {
  Recordset altre("SELECT * FROM ARTICLES WHERE DESCRIPCIO_ART <> 'x ORDER BY COST_ART' ORDER BY DESCRIPCIO_ART DESC",
                  sessio.Connexio_Comuna);
  graella.Lligar(&altre);
  EXPECT_EQ(graella.Columna_De_L_Ordre(), 1);
  EXPECT_EQ(graella.horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
  graella.Lligar(nullptr);
}

TEST_F(Graella_Sota_La_Ma, Sorting_keeps_the_row_of_the_user) {
  graella.Anar_A_Fila(0);
  graella.Ordenar_Per(QStringLiteral("DESCRIPCIO_ART"));
  EXPECT_EQ(Codi(), QStringLiteral("A1"));
  EXPECT_EQ(graella.Fila_Actual(), 3);
  EXPECT_EQ(rs["CODI_ART"], Valor("A1"));
}

TEST_F(Graella_Sota_La_Ma, A_grid_with_an_order_of_its_own_does_not_sort) {
  graella.Permetre_Ordre(false);
  const QHeaderView& capcalera = *graella.horizontalHeader();
  QTest::mouseClick(capcalera.viewport(), Qt::LeftButton, {}, {capcalera.sectionViewportPosition(1) + 20, 8});
  EXPECT_EQ(graella.Text_Cella(0, QStringLiteral("CODI_ART")), QStringLiteral("A1"));
  EXPECT_FALSE(capcalera.isSortIndicatorShown());
}

TEST_F(Graella_Sota_La_Ma, Home_and_End_go_to_rows) {
  for (const auto amb : {Qt::NoModifier, Qt::ControlModifier}) {
    Prem(Qt::Key_End, amb);
    EXPECT_EQ(Codi(), QStringLiteral("B1"));
    Prem(Qt::Key_Home, amb);
    EXPECT_EQ(Codi(), QStringLiteral("A1"));
  }
}

TEST_F(Graella_Sota_La_Ma, Letters_find_a_row_in_the_column_of_the_order) {
  Prem(Qt::Key_B);
  EXPECT_EQ(Codi(), QStringLiteral("B1"));
  graella.Ordenar_Per(QStringLiteral("DESCRIPCIO_ART"));
  Prem(Qt::Key_Escape);
  QTest::keyClicks(&graella, QStringLiteral("al"));
  EXPECT_EQ(Codi(), QStringLiteral("A3"));
  QTest::keyClicks(&graella, QStringLiteral("g"));
  EXPECT_EQ(Codi(), QStringLiteral("A2")) << "an accent is not asked for";
  QTest::keyClicks(&graella, QStringLiteral("q"));
  EXPECT_EQ(Codi(), QStringLiteral("A2")) << "what no row begins with moves nothing";
}

TEST_F(Graella_Sota_La_Ma, Rows_are_copied_with_their_headings_as_a_table) {
  graella.Anar_A_Fila(1);
  Prem(Qt::Key_Down, Qt::ShiftModifier);
  Prem(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Copiat(), QStringLiteral("Codi\tDescripció\tCost\tActiu\nA2\tÀlgebra\t20,50\t✓\nA3\tAlberg\t3,00\t✓\n"));
  graella.setCurrentIndex(graella.model()->index(3, 2));
  Prem(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Copiat(), QStringLiteral("1.234,50"));
}

TEST_F(Graella_Sota_La_Ma, Rows_and_selected_rows_are_counted) {
  const QSignalSpy canvis(&graella, &Graella::Compte_Canviat);
  EXPECT_EQ(graella.Compte(), QStringLiteral("4 files"));
  graella.selectAll();
  EXPECT_EQ(graella.Compte(), QStringLiteral("4 files, 4 seleccionades"));
  EXPECT_GT(canvis.count(), 0);
}

TEST_F(Graella_Sota_La_Ma, A_list_of_several_rows_opens_with_a_current_row_and_none_selected) {
  graella.Seleccio_Multiple(true);
  graella.Lligar(&rs);
  EXPECT_EQ(graella.Fila_Actual(), 0);
  EXPECT_TRUE(graella.Files_Seleccionades().empty());
  EXPECT_EQ(graella.Compte(), QStringLiteral("4 files, 0 seleccionades"));
  QTest::mouseClick(graella.viewport(), Qt::LeftButton, Qt::NoModifier, Centre(1, 0));
  QTest::mouseClick(graella.viewport(), Qt::LeftButton, Qt::ShiftModifier, Centre(2, 0));
  EXPECT_EQ(graella.Files_Seleccionades(), (std::vector<std::int64_t>{1, 2}));
  QTest::mouseClick(graella.viewport(), Qt::LeftButton, Qt::ControlModifier, Centre(1, 0));
  EXPECT_EQ(graella.Files_Seleccionades(), (std::vector<std::int64_t>{2}));
  Prem(Qt::Key_End, Qt::ShiftModifier);
  EXPECT_EQ(graella.Files_Seleccionades(), (std::vector<std::int64_t>{1, 2, 3}));
}

TEST_F(Graella_Sota_La_Ma, An_empty_grid_says_so_in_words) {
  EXPECT_EQ(graella.Text_Buit(), QString());
  Recordset buit("SELECT * FROM ARTICLES WHERE CODI_ART = 'Z'", sessio.Connexio_Comuna);
  graella.Lligar(&buit);
  EXPECT_EQ(graella.Text_Buit(), QStringLiteral("No hi ha cap fila"));
  const QImage amb_text = graella.grab().toImage();
  buit.Close();
  graella.Refrescar();
  EXPECT_NE(amb_text, graella.grab().toImage());
}

TEST_F(Graella_Sota_La_Ma, Enter_never_goes_past_the_grid) {
  auto* boto = new QPushButton(&finestra);
  boto->setDefault(true);
  const QSignalSpy premut(boto, &QPushButton::clicked);
  Executar("DELETE * FROM ARTICLES");
  rs.Requery();
  graella.Refrescar();
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QApplication::sendEvent(&graella, &enter);
  EXPECT_TRUE(enter.isAccepted());
  EXPECT_EQ(premut.count(), 0);
}

TEST_F(Graella_Sota_La_Ma, A_tooltip_tells_what_a_cell_cuts_and_nothing_else) {
  EXPECT_EQ(Consell(0, 1), QString());
  EXPECT_EQ(Consell(3, 3), QString());
  EXPECT_EQ(Consell(3, 1), QStringLiteral("Un text tan llarg que no hi ha columna on càpiga"));
}

TEST_F(Graella_Sota_La_Ma, A_grid_that_a_right_disables_is_read_and_copied_from) {
  for (int i = 0; i < 40; ++i) Article("C" + std::to_string(100 + i), "Molts", 1);
  rs.Requery();
  graella.Refrescar();
  graella.setEnabled(false);
  QCoreApplication::processEvents();
  const QSignalSpy doble(&graella, &Graella::Doble_Clic);
  EXPECT_FALSE(graella.isEnabled());
  const QPointF on = graella.viewport()->rect().center();
  QWheelEvent roda(on, graella.viewport()->mapToGlobal(on), {}, {0, -480}, Qt::NoButton, Qt::NoModifier,
                   Qt::NoScrollPhase, false);
  QApplication::sendEvent(graella.viewport(), &roda);
  EXPECT_GT(graella.verticalScrollBar()->value(), 0);
  EXPECT_TRUE(graella.verticalScrollBar()->isEnabled());
  graella.verticalScrollBar()->setValue(0);
  QTest::mouseClick(graella.viewport(), Qt::LeftButton, {}, Centre(1, 0));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(Copiat().contains(u"A2\tÀlgebra")) << Copiat().toStdString();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  EXPECT_EQ(Codi(), QStringLiteral("A3"));
  QTest::mouseDClick(graella.viewport(), Qt::LeftButton, {}, Centre(2, 0));
  EXPECT_EQ(doble.count(), 0);
  // With its form it is as dead as the rest.
  finestra.setEnabled(false);
  QTest::mouseClick(graella.viewport(), Qt::LeftButton, {}, Centre(0, 0));
  EXPECT_EQ(Codi(), QStringLiteral("A3"));
}
