// What the status line tells of a document: whether something that its user typed waits to be saved.
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "core/controls/Controls.h"
#include "core/controls/Focus_Camps.h"
#include "shell/Aplicacio.h"
#include "tests/pantalles/Formularis_De_Prova.h"

class Estat_Editor : public Amb_Principal {
 protected:
  void SetUp() override {
    for (const char* sql : {"INSERT INTO CLIENTS (NIF_CLI, RAO_SOCIAL_CLI, IVA_CLI) VALUES ('B1', 'Ferreteria', -1)",
                            "INSERT INTO ARTICLES (CODI_ART, DESCRIPCIO_ART, IVA_ART) VALUES ('VAR', 'Varis', 'GN')"})
      Executar(sql);
    sessio.P_Albarans = "M";
    Registrar_Formularis();
    QApplication::setActiveWindow(&principal);
    Obrir(QStringLiteral("F_ALBARANSS"));
    Obert("F_ALBARANSS")->findChild<QPushButton*>(QStringLiteral("B_Albarans"))->click();
    Obert("F_ALBARANSM")->findChild<QPushButton*>(QStringLiteral("B_NouAlbara"))->click();
    Assentar();
    Obert("F_ALBARA")->findChild<Combo_Codi*>(QStringLiteral("CMB_CLIENT_DESC_AC"))->Triar("B1", "Ferreteria");
  }
  std::string Diu() {
    Assentar();
    return principal.findChild<QLabel*>(QStringLiteral("L_ESTAT"))->text().toStdString();
  }
  static QLineEdit* Camp(const char* nom) { return Obert("F_ALBARA")->findChild<QLineEdit*>(QString::fromLatin1(nom)); }
  static void Escriure(const char* nom, const char* text) {
    Entrar_Al_Camp(Camp(nom));
    Camp(nom)->setText(QString::fromLatin1(text));
    Deixar_Camp(Camp(nom));
  }
};

TEST_F(Estat_Editor, A_line_in_its_frame_waits_and_a_line_that_was_saved_does_not) {
  EXPECT_EQ(Diu(), "Albarà 1 · desat");
  Posar_Focus(Camp("TXT_ARTICLE_AL"));
  QTest::keyClicks(Camp("TXT_ARTICLE_AL"), QStringLiteral("VAR"));
  EXPECT_EQ(Diu(), "Albarà 1 · per desar");
  Deixar_Camp(Camp("TXT_ARTICLE_AL"));
  Escriure("TXT_PREU_UNITARI_AL", "20");
  Escriure("TXT_UNITATS_AL", "1");
  EXPECT_EQ(Camp("TXT_IMPORT_AC")->text(), QStringLiteral("24,20"));
  EXPECT_TRUE(Obert("F_ALBARA")->Tot_Desat());
}

TEST_F(Estat_Editor, A_remark_that_was_typed_waits_until_the_note_is_saved) {
  Posar_Focus(Camp("TXT_OBSR_AC"));
  QTest::keyClicks(Camp("TXT_OBSR_AC"), QStringLiteral("fragil"));
  EXPECT_EQ(Diu(), "Albarà 1 · per desar");
}
