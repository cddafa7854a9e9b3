// Tables edited in place: one on the terminal's own database, and the columns that take a code of another table.
#include "core/menes/Taula_Referencia.h"

#include <QComboBox>
#include <QHeaderView>

#include "core/M_Funcions_Comuns.h"
#include "session/M_Idiomes.h"
#include "shell/Aplicacio.h"
#include "tests/pantalles/Formularis_De_Prova.h"

class Taula_Local : public Amb_Principal {};

TEST_F(Taula_Local, A_table_may_stand_on_the_local_database) {
  static const Descripcio_Referencia parametres = {
      .formulari = u"F_MARQUESM",
      .titol = u"Paràmetres",
      .graella = u"G_MarquesM",
      .sentencia = [] { return std::string("SELECT * FROM CONFIGURACIO ORDER BY Parametre"); },
      .columnes = {{"Parametre", 3000, "Paràmetre"}, {"Valor", 3000, "Valor"}},
      .boto_esborrar = u"B_Esborrar",
      .esborrar = [](const Recordset&) {},
      .base = &Sessio::Connexio_Local};
  sessio.P_Articles = "M";
  Registrar_Formulari(QStringLiteral("F_MARQUESM"), [] { return new Taula_Referencia(parametres); });
  Graella* graella = Obrir_I_Tenir("F_MARQUESM")->Graella_Llista();
  const int fila = graella->model()->rowCount() - 1;
  graella->setCurrentIndex(graella->model()->index(fila, 0));
  graella->model()->setData(graella->model()->index(fila, 0), QStringLiteral("Nou"));
  graella->model()->setData(graella->model()->index(fila, 1), QStringLiteral("True"));
  EXPECT_TRUE(graella->Desar_Fila());
  EXPECT_EQ(Recordset("SELECT Valor FROM CONFIGURACIO WHERE Parametre = 'Nou'", sessio.Connexio_Local)[0],
            Valor("True"));
}

class Metode_De_Pagament : public Amb_Principal {
 protected:
  // The open list of the method of the first terms, in a language.
  static QTableView* Llista_En(std::int16_t idioma) {
    Posar_Idioma_Sessio(idioma);
    Graella* graella = Obrir_I_Tenir("F_VENCIMENTSM")->Graella_Llista();
    graella->setCurrentIndex(graella->model()->index(0, graella->Columna_De_Camp(QStringLiteral("FP_VEN"))));
    static_cast<QAbstractItemView*>(graella)->edit(graella->currentIndex());
    auto* combo = graella->findChild<QComboBox*>();
    return combo == nullptr ? nullptr : qobject_cast<QTableView*>(combo->view());
  }
};

TEST_F(Metode_De_Pagament, Its_list_shows_code_and_text_under_their_headings) {
  Registrar_Formularis();
  sessio.P_Venciments = "M";
  const std::vector<std::pair<QString, QString>> titols = {
      {QStringLiteral("Codi"), QStringLiteral("Forma de Pagament")},
      {QStringLiteral("Código"), QStringLiteral("Forma de Pago")},
      {QStringLiteral("Code"), QStringLiteral("Method of payment")}};
  for (std::int16_t idioma = 0; idioma < 3; ++idioma) {
    const QTableView* llista = Llista_En(idioma);
    ASSERT_NE(llista, nullptr);
    EXPECT_FALSE(llista->horizontalHeader()->isHidden());
    const QAbstractItemModel& files = *llista->model();
    const auto& [codi, text] = titols[static_cast<std::size_t>(idioma)];
    EXPECT_EQ(files.headerData(0, Qt::Horizontal).toString(), codi);
    EXPECT_EQ(files.headerData(1, Qt::Horizontal).toString(), text);
    EXPECT_EQ(files.index(1, 0).data().toString(), QStringLiteral("EF"));
    EXPECT_EQ(files.index(1, 1).data().toString(), QStringLiteral("Efectiu"));
    Tancar("F_VENCIMENTSM");
  }
}
