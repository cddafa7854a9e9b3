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
  static Valor Llegir(const std::string& sentencia) { return Recordset(sentencia, sessio.Connexio_Comuna)[0]; }
  static QLineEdit* Camp(const char* nom) { return Obert("F_ALBARA")->findChild<QLineEdit*>(QString::fromLatin1(nom)); }
  static void Escriure(const char* nom, const char* text) {
    Entrar_Al_Camp(Camp(nom));
    Camp(nom)->setText(QString::fromLatin1(text));
    Deixar_Camp(Camp(nom));
  }
};

TEST_F(Estat_Editor, A_total_that_is_stored_on_closing_is_nothing_that_the_user_has_to_save) {
  EXPECT_EQ(Diu(), "Albarà 1 · desat");
  Escriure("TXT_ARTICLE_AL", "VAR");
  Escriure("TXT_PREU_UNITARI_AL", "20");
  EXPECT_EQ(Diu(), "Albarà 1 · per desar");
  Escriure("TXT_UNITATS_AL", "1");
  EXPECT_EQ(Camp("TXT_IMPORT_AC")->text(), QStringLiteral("24,20"));
  EXPECT_NE(Llegir("SELECT IMPORT_AC FROM ALBARACAP").Text(), "24,2");
  EXPECT_EQ(Diu(), "Albarà 1 · desat");
  Tancar("F_ALBARA");
  EXPECT_EQ(Llegir("SELECT IMPORT_AC FROM ALBARACAP").Text(), "24,2");
}

TEST_F(Estat_Editor, A_remark_that_was_typed_waits_until_the_note_is_saved) {
  Camp("TXT_OBSR_AC")->setFocus();
  QTest::keyClicks(Camp("TXT_OBSR_AC"), QStringLiteral("fràgil"));
  EXPECT_EQ(Diu(), "Albarà 1 · per desar");
  Tancar("F_ALBARA");
  EXPECT_EQ(Llegir("SELECT OBSR_AC FROM ALBARACAP").Text(), "fràgil");
}
