// A line of a note by the keys of a person: what is painted for it, and that what is not painted is as it should be.
#include <QApplication>
#include <QScreen>
#include <QScrollBar>
#include <QTest>

#include "core/controls/Graella.h"
#include "core/formularis/Pantalla_Qt.h"
#include "shell/Aplicacio.h"
#include "tests/pantalles/Comptador_De_Pintura.h"
#include "tests/pantalles/Formularis_De_Prova.h"

namespace {

constexpr QSize display_petit(1366, 768);

class Linia_Per_Tecles : public Amb_Principal, public testing::WithParamInterface<int> {
 protected:
  Linia_Per_Tecles() {
    Executar("INSERT INTO CLIENTS (NIF_CLI, RAO_SOCIAL_CLI, IVA_CLI) VALUES ('B1', 'Ferreteria', -1)");
    Executar(
        "INSERT INTO ALBARACAP (NUMALB_AC, EMPRESA_AC, CLIENT_AC, CLIENT_DESC_AC, IVA_AC) VALUES (1, 'B00000000', "
        "'B1', "
        "'Ferreteria', -1)");
    for (int linia = 1; linia <= GetParam(); ++linia) {
      sessio.Connexio_Comuna.Afegir_Fila("ALBARALIN", {{"NUMALB_AL", 1},
                                                       {"EMPRESA_AL", "B00000000"},
                                                       {"LIN_AL", linia},
                                                       {"ARTICLE_AL", "VAR"},
                                                       {"UNITATS_AL", 1},
                                                       {"PORC_IVA_AL", 21},
                                                       {"IMPORT_NET_AL", linia}});
    }
    sessio.pantalla = &pantalla_;
    Registrar_Formularis();
    principal.resize(display_petit);
    QApplication::setActiveWindow(&principal);
    sessio.Numero_Albara = 1;
    Obrir(QStringLiteral("F_ALBARA"));
    Assentar();
    linies_ = Obert("F_ALBARA")->findChild<Graella*>(QStringLiteral("G_ALBLIN"));
    Camp("TXT_ARTICLE_AL")->setFocus();
    Assentar();
  }
  static QLineEdit* Camp(const char* nom) { return Obert("F_ALBARA")->findChild<QLineEdit*>(QString::fromLatin1(nom)); }
  static void Teclejar(const char* nom, const char* text) {
    for (int passos = 0; QApplication::focusWidget() != Camp(nom) && passos < 10; ++passos) Tab();
    ASSERT_EQ(QApplication::focusWidget(), Camp(nom));
    QTest::keyClicks(Camp(nom), QString::fromLatin1(text));
    Assentar();
  }
  static void Tab() {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    Assentar();
  }
  static void Afegir_Linia() {
    Teclejar("TXT_ARTICLE_AL", "VAR");
    Teclejar("TXT_PREU_UNITARI_AL", "12.5");
    Teclejar("TXT_UNITATS_AL", "4");
    Tab();
  }
  // What a person sees of the lines.
  QImage Vist() const {
    const QPoint lloc = linies_->mapTo(&principal, QPoint());
    return QApplication::primaryScreen()
        ->grabWindow(principal.winId(), lloc.x(), lloc.y(), linies_->width(), linies_->height())
        .toImage();
  }

  Graella* linies_ = nullptr;

 private:
  Pantalla_Qt pantalla_;
};

}  // namespace

TEST_P(Linia_Per_Tecles, Paints_what_has_changed_and_nothing_else) {
  Afegir_Linia();  // the first one shows what was not there: the buttons of lines
  const bool amb_barra = linies_->verticalScrollBar()->isVisible();
  Comptador_De_Pintura comptador(&principal);
  comptador.Comencar();
  Afegir_Linia();
  const bool s_ha_omplert = linies_->verticalScrollBar()->isVisible() && !amb_barra;  // the columns make room for a bar
  EXPECT_LE(comptador.Finestres(), s_ha_omplert ? 1.3 : 0.3);
  EXPECT_EQ(linies_->Files(), GetParam() + 2);
  EXPECT_EQ(linies_->Fila_Actual(), GetParam() + 1);
  EXPECT_EQ(QApplication::focusWidget(), Camp("TXT_ARTICLE_AL"));
  const QImage vist = Vist();
  ASSERT_FALSE(vist.isNull());
  linies_->Refrescar();
  linies_->repaint();
  Assentar();
  EXPECT_EQ(Vist(), vist);
}

// Before the grid is full, when it becomes so, and after.
INSTANTIATE_TEST_SUITE_P(De_Llarges_I_Curtes, Linia_Per_Tecles, testing::Values(0, 3, 13, 14, 15, 16, 60));
