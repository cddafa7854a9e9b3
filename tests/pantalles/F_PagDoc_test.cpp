// The payments of a document, in their grid.
#include "payments/F_PagDoc.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "core/M_Funcions_Comuns.h"
#include "payments/M_Flags.h"
#include "tests/pantalles/Formularis_De_Prova.h"

class Pagaments_D_Un_Document : public Amb_Principal {
 protected:
  Pagaments_D_Un_Document() {
    Fixar_Avui({2011, 3, 15});
    sessio.P_Albarans = "M";
    sessio.Empresa_Actual = "B00000000";
    sessio.Pag_Document = "A";
    sessio.Pag_Numero = 7;
    sessio.Pag_Client = "B1";
    sessio.Pag_Total = 100;
    Executar("INSERT INTO ALBARACAP (NUMALB_AC, EMPRESA_AC, PAGAMENT_AC) VALUES (7, 'B00000000', -1)");
    Registrar_Formularis_Pagaments();
    Executar(
        "INSERT INTO PAGAMENTS (DOCUMENT_PAG, NUMALB_PAG, EMPRESA_PAG, PAGAMENT_PAG) VALUES ('A', 8, 'B00000000', "
        "'EF')");
    form = Obrir_I_Tenir<F_PagDoc>("F_PAGDOC");
    QApplication::setActiveWindow(&principal);
    graella = form->Graella_Llista();
    graella->setFocus();
  }
  // Cell by cell, as they are typed into the new row.
  void Escriure(int columna, const QString& valor) {
    const QModelIndex index = graella->model()->index(graella->model()->rowCount() - 1, columna);
    graella->setCurrentIndex(index);
    Formulari::Guardar_Event([&] { graella->model()->setData(index, valor); });
  }
  QString Text(const char* camp) const { return graella->Text_Cella(0, QString::fromLatin1(camp)); }
  static std::int64_t Desats() {
    return Recordset("SELECT * FROM PAGAMENTS WHERE NUMALB_PAG = 7 AND CLIENT_PAG = 'B1'", sessio.Connexio_Comuna)
        .RecordCount();
  }

  F_PagDoc* form = nullptr;
  Graella* graella = nullptr;
};

TEST_F(Pagaments_D_Un_Document, A_row_begins_with_what_the_form_fills_in) {
  EXPECT_EQ(graella->Files(), 0);
  Escriure(5, QStringLiteral("TR"));
  ASSERT_TRUE(graella->En_Edicio());
  EXPECT_EQ(graella->model()->index(0, 6).data().toString(), QStringLiteral("15/03/2011"));
  EXPECT_EQ(graella->model()->index(0, 7).data().toString(), QStringLiteral("0,00"));
  Escriure(7, QStringLiteral("60"));
  EXPECT_TRUE(graella->Desar_Fila());
  EXPECT_EQ(Desats(), 1);
  EXPECT_EQ(Text("PAGAMENT_PAG"), QStringLiteral("Transferència"));
  EXPECT_NE(Text("ID_PAG"), QString()) << "the database gives the number";
  EXPECT_TRUE(installacio.pantalla.caixes.empty());
}

TEST_F(Pagaments_D_Un_Document, Its_columns_have_their_widths_and_sides) {
  constexpr int twips_per_pixel = 15;
  const std::vector<std::pair<int, int>> amples = {{1500, 0}, {4000, 5}, {1500, 6}, {2000, 7}};
  for (const auto& [twips, columna] : amples) EXPECT_EQ(graella->Amplada_Donada(columna), twips / twips_per_pixel);
  for (int columna = 1; columna < 5; ++columna) EXPECT_TRUE(graella->isColumnHidden(columna));
  Escriure(5, QStringLiteral("TR"));
  for (const int columna : {0, 6, 7}) {
    const auto costat = Qt::Alignment(graella->model()->index(0, columna).data(Qt::TextAlignmentRole).toInt());
    EXPECT_TRUE(costat.testFlag(Qt::AlignRight)) << columna;
  }
}

TEST_F(Pagaments_D_Un_Document, The_methods_are_listed_by_their_description_with_their_codes) {
  const QModelIndex cella = graella->model()->index(0, 5);
  graella->setCurrentIndex(cella);
  static_cast<QTableView*>(graella)->edit(cella);
  const auto* combo = qobject_cast<QComboBox*>(graella->indexWidget(cella));
  ASSERT_NE(combo, nullptr);
  QStringList files;
  for (int i = 0; i < combo->count(); ++i) files << combo->model()->index(i, 0).data().toString() + combo->itemText(i);
  EXPECT_EQ(files, (QStringList{QString(), QStringLiteral("EFEfectiu"), QStringLiteral("RERebut domiciliat"),
                                QStringLiteral("TRTransferència")}));
  EXPECT_EQ(combo->model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Codi"));
  EXPECT_EQ(combo->model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Forma de Pagament"));
}

TEST_F(Pagaments_D_Un_Document, A_row_that_is_changed_and_the_closing_walk_the_chain_as_a_new_row_does) {
  Escriure(5, QStringLiteral("EF"));
  ASSERT_TRUE(graella->Desar_Fila());
  Executar("UPDATE ALBARACAP SET PAGAMENT_AC = 0");
  graella->setCurrentIndex(graella->model()->index(0, 7));
  Formulari::Guardar_Event([&] { graella->model()->setData(graella->currentIndex(), QStringLiteral("5")); });
  ASSERT_TRUE(graella->Desar_Fila());
  EXPECT_TRUE(Flag_Pagament("A", 7));
  Executar("UPDATE ALBARACAP SET PAGAMENT_AC = 0");
  Tancar("F_PAGDOC");
  EXPECT_TRUE(Flag_Pagament("A", 7));
}

TEST_F(Pagaments_D_Un_Document, What_is_said_of_a_refused_cell_covers_nothing) {
  const QSize abans = form->parentWidget()->size();
  Escriure(5, QStringLiteral("TR"));
  const QModelIndex cella = graella->model()->index(0, 7);
  graella->setCurrentIndex(cella);
  static_cast<QTableView*>(graella)->edit(cella);
  QTest::keyClicks(graella->indexWidget(cella), QStringLiteral("x"));
  QTest::keyClick(graella->indexWidget(cella), Qt::Key_Return);
  QTest::qWait(20);
  const QWidget* nota = form->Cercar_Control(QStringLiteral("L_REFUS"));
  ASSERT_TRUE(nota != nullptr && nota->isVisible());
  for (const char* nom : {"L_PAGAMENTS_DOCPAG", "B_EsborrarPag", "L_REFUS"})
    EXPECT_FALSE(form->Cercar_Control(QLatin1String(nom))->geometry().intersects(graella->geometry())) << nom;
  QTest::keyClick(graella->indexWidget(cella), Qt::Key_Escape);
  EXPECT_FALSE(nota->isVisible());
  EXPECT_EQ(form->parentWidget()->size(), abans);
}

TEST_F(Pagaments_D_Un_Document, A_row_that_is_refused_before_it_is_written_is_given_up) {
  installacio.pantalla.respostes.push_back(Resposta::No);
  Escriure(5, QStringLiteral("EF"));
  Escriure(7, QStringLiteral("100,01"));
  graella->Desar_Fila();
  EXPECT_EQ(installacio.pantalla.caixes.size(), 1U);
  EXPECT_FALSE(graella->En_Edicio());
  EXPECT_EQ(Desats(), 0);
  // Left from another column it is not asked.
  Escriure(5, QStringLiteral("EF"));
  Escriure(7, QStringLiteral("200"));
  graella->setCurrentIndex(graella->model()->index(0, 6));
  EXPECT_TRUE(graella->Desar_Fila());
  EXPECT_EQ(installacio.pantalla.caixes.size(), 1U);
  EXPECT_EQ(Desats(), 1);
}

TEST_F(Pagaments_D_Un_Document, Its_current_row_is_deleted_by_the_button_alone) {
  Escriure(5, QStringLiteral("EF"));
  ASSERT_TRUE(graella->Desar_Fila());
  graella->Anar_A_Fila(0);
  installacio.pantalla.respostes.push_back(Resposta::Ok);
  QMetaObject::invokeMethod(form->Cercar_Control(QStringLiteral("B_EsborrarPag")), "click");
  EXPECT_EQ(graella->Files(), 0);
  EXPECT_EQ(Desats(), 0);
}

TEST_F(Pagaments_D_Un_Document, A_row_begun_in_another_column_is_a_payment_of_the_document_too) {
  Escriure(7, QStringLiteral("25"));
  EXPECT_TRUE(graella->Desar_Fila());
  EXPECT_EQ(Desats(), 1);
  EXPECT_EQ(Text("IMPORT_PAG"), QStringLiteral("25,00"));
  EXPECT_EQ(Text("DATA_PAG"), QStringLiteral("15/03/2011"));
}

// The order that the note serves holds a payment as well: the chain is told of at the row, and again on closing.
TEST_F(Pagaments_D_Un_Document, A_chain_that_is_not_as_it_should_be_leaves_the_payment_written) {
  Executar("INSERT INTO COMANDACAP (NUMALB_CC, EMPRESA_CC, PAGAMENT_CC) VALUES (3, 'B00000000', -1)");
  Executar("INSERT INTO ALBARALIN (NUMALB_AL, EMPRESA_AL, LIN_AL, COMANDA_AL) VALUES (7, 'B00000000', 1, 3)");
  Executar("INSERT INTO PAGAMENTS (DOCUMENT_PAG, NUMALB_PAG, EMPRESA_PAG) VALUES ('P', 3, 'B00000000')");
  Escriure(5, QStringLiteral("EF"));
  graella->Desar_Fila();
  ASSERT_EQ(installacio.pantalla.caixes.size(), 1U);
  EXPECT_EQ(installacio.pantalla.caixes[0].text, "1010 - Error: l'albarà té pagaments i no en pot tenir!");
  EXPECT_FALSE(graella->En_Edicio());
  EXPECT_EQ(Desats(), 1);
  Tancar("F_PAGDOC");
  EXPECT_EQ(installacio.pantalla.caixes.size(), 2U);
  EXPECT_EQ(Desats(), 1);
}

TEST_F(Pagaments_D_Un_Document, Closed_without_rows_no_flag_is_looked_at) {
  Executar("UPDATE ALBARACAP SET PAGAMENT_AC = 0");
  Tancar("F_PAGDOC");
  EXPECT_FALSE(Flag_Pagament("A", 7));
}

TEST_F(Pagaments_D_Un_Document, A_payment_takes_six_trips_at_most) {
  if (!Proves_Al_Servidor()) GTEST_SKIP() << "of a server";
  Executar("INSERT INTO COMANDACAP (NUMALB_CC, EMPRESA_CC, PAGAMENT_CC) VALUES (3, 'B00000000', -1)");
  Executar("INSERT INTO ALBARALIN (NUMALB_AL, EMPRESA_AL, LIN_AL, COMANDA_AL) VALUES (7, 'B00000000', 1, 3)");
  Executar("INSERT INTO FACTURACAP (NUMALB_FC, EMPRESA_FC, PAGAMENT_FC) VALUES (4, 'B00000000', 0)");
  Executar("UPDATE ALBARACAP SET NUMFAC_AC = '4'");
  const auto pagar = [&] {
    Escriure(5, QStringLiteral("EF"));
    Escriure(7, QStringLiteral("1"));
    ASSERT_TRUE(graella->Desar_Fila());
  };
  pagar();  // what is prepared once is prepared
  const std::int64_t abans = sessio.Connexio_Comuna.Viatges();
  pagar();
  EXPECT_LE(sessio.Connexio_Comuna.Viatges() - abans, 6);
}
