#include "core/controls/Graella.h"

#include <QSignalSpy>
#include <QTest>

#include "tests/pantalles/Base_Pantalles.h"

namespace {

const std::vector<Columna_Graella> columnes = {{"CODI_ART", 1500, "Codi"},
                                               {"COST_ART", 1200, "Cost", true, "#,##0.00"},
                                               {"ALTA_ART", 1200, "Alta"},
                                               {"ACTIU_ART", 600, "Actiu", false, "", true},
                                               {"DESCRIPCIO_ART", 0, ""}};

}  // namespace

class Graella_D_Articles : public Base_Pantalles {
 protected:
  Graella_D_Articles() {
    Article("B", 1234.5, -1);
    Article("A", 2, 0);
    Article("C", -0.005, -1);
    graella.setObjectName(QStringLiteral("G_Prova"));
    graella.Columnes(columnes);
    rs.Open("SELECT * FROM ARTICLES WHERE CODI_ART <> 'Z' ORDER BY CODI_ART DESC", sessio.Connexio_Comuna);
    graella.Lligar(&rs);
  }
  void Article(const std::string& codi, double cost, int actiu) {
    Executar("INSERT INTO ARTICLES (CODI_ART, COST_ART, ALTA_ART, ACTIU_ART) VALUES (" + Text_SQL(codi) + ", " +
             Valor_SQL(cost) + ", #3/5/2026#, " + std::to_string(actiu) + ")");
  }
  QString Text(int fila, const char* camp) const { return graella.Text_Cella(fila, QString::fromLatin1(camp)); }

  Recordset rs;
  Graella graella;
};

TEST_F(Graella_D_Articles, Shows_each_value_in_its_own_form) {
  EXPECT_EQ(graella.Files(), 3);
  EXPECT_EQ(Text(1, "CODI_ART"), QStringLiteral("B"));
  EXPECT_EQ(Text(1, "COST_ART"), QStringLiteral("1.234,50"));
  EXPECT_EQ(Text(0, "COST_ART"), QStringLiteral("-0,01"));
  EXPECT_EQ(Text(1, "ALTA_ART"), QStringLiteral("05/03/2026"));
  EXPECT_EQ(Text(1, "ACTIU_ART"), QStringLiteral("on"));
  EXPECT_EQ(Text(2, "ACTIU_ART"), QStringLiteral("off"));
}

TEST_F(Graella_D_Articles, A_column_without_width_is_hidden_but_known) {
  EXPECT_TRUE(graella.isColumnHidden(graella.Columna_De_Camp(QStringLiteral("descripcio_art"))));
}

TEST_F(Graella_D_Articles, The_recordset_stands_on_the_row_of_the_user) {
  graella.Anar_A_Fila(2);
  EXPECT_EQ(rs["CODI_ART"], Valor("A"));
  EXPECT_EQ(graella.Valor_Actual("CODI_ART"), Valor("A"));
}

TEST_F(Graella_D_Articles, Sorting_keeps_the_conditions_and_is_ascending_both_times) {
  for (int i = 0; i < 2; ++i) {
    graella.Ordenar_Per(QStringLiteral("CODI_ART"));
    EXPECT_EQ(rs.Source(), "SELECT * FROM ARTICLES WHERE CODI_ART <> 'Z' ORDER BY CODI_ART");
    EXPECT_EQ(Text(0, "CODI_ART"), QStringLiteral("A"));
  }
}

TEST_F(Graella_D_Articles, A_row_takes_the_style_of_its_name) {
  graella.Estil_De_Fila([](std::int64_t fila) { return fila == 1 ? QStringLiteral("OK") : QString(); });
  EXPECT_EQ(graella.Estil(1), QStringLiteral("OK"));
  EXPECT_TRUE(graella.model()->data(graella.model()->index(1, 0), Qt::BackgroundRole).isValid());
  EXPECT_FALSE(graella.model()->data(graella.model()->index(0, 0), Qt::BackgroundRole).isValid());
}

TEST_F(Graella_D_Articles, Enter_on_a_row_is_a_double_click) {
  const QSignalSpy senyal(&graella, &Graella::Doble_Clic);
  graella.Anar_A_Fila(1);
  QTest::keyClick(&graella, Qt::Key_Return);
  ASSERT_EQ(senyal.count(), 1);
  EXPECT_EQ(senyal.first().first().toLongLong(), 1);
}

TEST_F(Graella_D_Articles, The_widths_that_the_user_gave_come_back) {
  graella.setColumnWidth(0, 222);
  graella.Desar_Amplades();
  Graella altra;
  altra.setObjectName(QStringLiteral("G_Prova"));
  altra.Columnes(columnes);
  altra.Recuperar_Amplades();
  EXPECT_EQ(altra.columnWidth(0), 222);
  EXPECT_EQ(altra.columnWidth(1), 1200 / 15);
}

TEST_F(Graella_D_Articles, A_width_put_back_as_it_was_is_forgotten) {
  graella.setColumnWidth(0, 222);
  graella.Desar_Amplades();
  graella.setColumnWidth(0, 100);
  graella.Desar_Amplades();
  graella.setColumnWidth(0, 150);
  graella.Recuperar_Amplades();
  EXPECT_EQ(graella.columnWidth(0), 150);
}

TEST_F(Graella_D_Articles, Another_user_has_widths_of_their_own) {
  graella.setColumnWidth(0, 222);
  graella.Desar_Amplades();
  graella.setColumnWidth(0, 100);
  sessio.Usuari_Actual = "MARIA";
  graella.Recuperar_Amplades();
  EXPECT_EQ(graella.columnWidth(0), 100);
}

TEST_F(Graella_D_Articles, A_closed_recordset_shows_no_rows) {
  rs.Close();
  graella.Refrescar();
  EXPECT_EQ(graella.Files(), 0);
  EXPECT_EQ(graella.Fila_Actual(), -1);
}
