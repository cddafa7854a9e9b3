// F_Cerca over lists of every name.
#include <QComboBox>
#include <QLabel>
#include <QMdiArea>

#include "core/formularis/Pares.h"
#include "shell/F_Cerca.h"
#include "tests/pantalles/Formularis_De_Prova.h"

namespace {

const std::vector<Columna_Graella> columnes = {{"CP_CP", 1500, "CP"}, {"LOCALITAT_CP", 3000, "Localitat"}};
constexpr const char* codis_postals = "SELECT CP_CP, LOCALITAT_CP FROM CP ORDER BY CP_CP";

}  // namespace

class Cerca : public Amb_Principal {
 protected:
  Cerca() {
    Registrar_Formulari(QStringLiteral("F_CERCA"), [] { return new F_Cerca; });
    for (const char* nom : {"F_CPM", "F_CLIENTSM", "F_IVASM"}) Registrar_Llista(nom, codis_postals, columnes);
  }
  static Llista_De_Prova* Obrir_Llista(const char* nom) { return Obrir_I_Tenir<Llista_De_Prova>(nom); }
  static void Buscar(const char* text) {
    Obert("F_CERCA")->findChild<QLineEdit*>(QStringLiteral("TXT_CERCA"))->setText(QString::fromUtf8(text));
    QMetaObject::invokeMethod(Obert("F_CERCA")->findChild<QWidget*>(QStringLiteral("B_Cerca")), "click");
  }
};

TEST_F(Cerca, Twenty_three_lists_can_be_searched_and_all_are_forms_of_the_system) {
  QSet<QString> trobades;
  const auto mirar = [&](const char16_t* nom) {
    if (Es_Pot_Cercar(QString::fromUtf16(nom))) trobades << QString::fromUtf16(nom);
  };
  for (const Pare& pare : Taula_De_Pares()) mirar(pare.formulari);
  for (const char16_t* nom : Formularis_Sense_Pares()) mirar(nom);
  EXPECT_EQ(trobades.size(), 23);
  EXPECT_TRUE(Es_Pot_Cercar(QStringLiteral("F_CpM")));
  EXPECT_TRUE(Es_Pot_Cercar(QStringLiteral("F_ARTICLESMCS")));
  for (const char16_t* nom : {u"F_IVASM", u"F_COMANDESMCS", u"F_ALBARA", u"F_ALBARANSS", u"F_CERCA", u"F_HELP", u""}) {
    EXPECT_FALSE(Es_Pot_Cercar(QString::fromUtf16(nom))) << QString::fromUtf16(nom).toStdString();
  }
}

TEST_F(Cerca, It_stays_above_the_list_that_is_clicked) {
  Obrir_Cerca(Obrir_Llista("F_CPM"));
  principal.Portar_Al_Davant(qobject_cast<QMdiSubWindow*>(Obert("F_CPM")->parentWidget()));
  Assentar();
  EXPECT_EQ(principal.Del_Davant(), Obert("F_CPM"));
  EXPECT_EQ(principal.Area()->subWindowList(QMdiArea::StackingOrder).last()->widget(), Obert("F_CERCA"));
}

TEST_F(Cerca, Another_list_gets_its_rows_back_before_this_one_is_searched) {
  auto* codis = Obrir_Llista("F_CPM");
  Obrir_Cerca(codis);
  Buscar("7001");
  EXPECT_EQ(codis->Graella_Llista()->Files(), 1);
  auto* clients = Obrir_Llista("F_CLIENTSM");
  Obrir_Cerca(clients);
  EXPECT_EQ(codis->Graella_Llista()->Files(), 3);
  Buscar("0872");
  EXPECT_EQ(clients->Graella_Llista()->Files(), 1);
  Tancar("F_CERCA");
  EXPECT_EQ(clients->Graella_Llista()->Files(), 3);
}

TEST_F(Cerca, A_list_that_has_gone_is_nobodys_to_be_filtered) {
  Obrir_Cerca(Obrir_Llista("F_CPM"));
  Tancar("F_CPM");
  EXPECT_EQ(Obert("F_CERCA"), nullptr);
  EXPECT_EQ(sessio.Recordset_Cerca, nullptr);
  EXPECT_TRUE(installacio.pantalla.caixes.empty());
}

TEST_F(Cerca, A_list_without_text_fields_has_nothing_to_choose_and_says_so) {
  Registrar_Llista("F_STOCKSM", "SELECT PORC_IVA, RE_IVA FROM IVAS", {{"PORC_IVA", 1000, "IVA"}});
  auto* llista = Obrir_Llista("F_STOCKSM");
  Obrir_Cerca(llista);
  EXPECT_EQ(Obert("F_CERCA")->findChild<QComboBox*>(QStringLiteral("CMB_CAMPS"))->count(), 0);
  Buscar("21");
  ASSERT_EQ(installacio.pantalla.caixes.size(), 1U);
  EXPECT_EQ(installacio.pantalla.caixes[0].estil, estil::critic);
  EXPECT_NE(installacio.pantalla.caixes[0].text.find(" - "), std::string::npos);
  EXPECT_EQ(llista->Graella_Llista()->Files(), 4);
}

TEST_F(Cerca, The_rows_of_the_list_are_counted_while_the_search_is_in_front) {
  const auto compte = [this] {
    Assentar();
    return principal.findChild<QLabel*>(QStringLiteral("L_FILES"))->text();
  };
  Obrir_Cerca(Obrir_Llista("F_CPM"));
  EXPECT_EQ(compte(), QStringLiteral("3 files"));
  Buscar("7001");
  principal.Portar_Al_Davant(qobject_cast<QMdiSubWindow*>(Obert("F_CERCA")->parentWidget()));
  EXPECT_EQ(compte(), QStringLiteral("1 fila"));
  Tancar("F_CERCA");
  EXPECT_EQ(compte(), QStringLiteral("3 files"));
}
