#include "core/pantalla/Control_Interface.h"

#include <QMdiArea>

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
