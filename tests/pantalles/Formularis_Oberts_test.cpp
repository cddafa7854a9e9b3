#include "core/formularis/Formularis_Oberts.h"

#include <QMdiArea>
#include <QTest>

#include "shell/Aplicacio.h"
#include "tests/pantalles/Formularis_De_Prova.h"

namespace {

class Finestres : public Amb_Principal {
 protected:
  static QRect Marc(const char* nom) { return Obert(nom)->parentWidget()->geometry(); }
  QSize Lloc() const { return principal.Area()->viewport()->size(); }
};

}  // namespace

TEST_F(Finestres, A_form_opens_centred_a_little_above_the_middle) {
  Registrar("F_HELP");
  Obrir(QStringLiteral("F_HELP"));
  const QRect marc = Marc("F_HELP");
  EXPECT_EQ(marc.left(), (Lloc().width() - marc.width()) / 2);
  EXPECT_EQ(marc.top(), static_cast<int>(0.875 * Lloc().height() - marc.height()) / 2);
}

TEST_F(Finestres, A_form_larger_than_the_room_stays_inside_it) {
  Registrar_Formulari(QStringLiteral("F_HELP"), [] {
    auto* gran = new Formulari_De_Prova(QStringLiteral("F_HELP"));
    gran->Posar<QWidget>("gran")->setMinimumSize(5000, 700);
    return gran;
  });
  Obrir(QStringLiteral("F_HELP"));
  EXPECT_GE(Marc("F_HELP").left(), 0);
  EXPECT_GE(Marc("F_HELP").top(), 0);
}

TEST_F(Finestres, A_second_opening_finds_the_same_instance) {
  Registrar("F_HELP");
  const Formulari* primer = Obrir_I_Tenir("F_HELP");
  EXPECT_EQ(Obrir_I_Tenir("F_HELP"), primer);
  EXPECT_EQ(Formularis_Carregats().size(), 1U);
}

TEST_F(Finestres, The_right_button_searches_the_terms_and_the_methods_of_payment_alone) {
  Registrar_Formularis();
  for (const auto& [nom, cerca] : {std::pair("F_VENCIMENTSM", true), std::pair("F_FORMESPAGAMENTM", true),
                                   std::pair("F_MARQUESM", false), std::pair("F_CPM", false)}) {
    SCOPED_TRACE(nom);
    QWidget* vista = Obrir_I_Tenir(nom)->Graella_Llista()->viewport();
    QTest::mousePress(vista, Qt::LeftButton, {}, QPoint(20, 10));
    QTest::mouseRelease(vista, Qt::LeftButton, {}, QPoint(20, 10));
    EXPECT_EQ(Obert("F_CERCA"), nullptr);
    QTest::mousePress(vista, Qt::RightButton, {}, QPoint(20, 10));
    EXPECT_EQ(Obert("F_CERCA") != nullptr, cerca);
    Tancar(nom);
    EXPECT_EQ(Obert("F_CERCA"), nullptr);
  }
}
