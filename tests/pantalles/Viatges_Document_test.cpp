// How many trips to a server the daily acts on a delivery note cost: each may take 20 ms there and back.
#include <QApplication>
#include <QPushButton>

#include "core/controls/Controls.h"
#include "core/controls/Focus_Camps.h"
#include "core/controls/Graella.h"
#include "shell/Aplicacio.h"
#include "tests/pantalles/Formularis_De_Prova.h"

class Viatges_Document : public Amb_Principal {
 protected:
  void SetUp() override {
    if (!Proves_Al_Servidor()) GTEST_SKIP() << "of a server";
    for (const char* sql : {"INSERT INTO CLIENTS (NIF_CLI, RAO_SOCIAL_CLI, IVA_CLI) VALUES ('B1', 'Ferreteria', -1)",
                            "INSERT INTO ARTICLES (CODI_ART, DESCRIPCIO_ART, IVA_ART, COST_ART, STOCK_ART, "
                            "MAGATZEM_ART) VALUES ('MARTELL', 'Martell', 'GN', 10, -1, '2')",
                            "INSERT INTO STOCK (EMPRESA_ST, CODI_ART_ST, ALMACEN_ST, UNIDADES_ST) VALUES "
                            "('B00000000', 'MARTELL', '2', 50)"})
      Executar(sql);
    Registrar_Formularis();
    QApplication::setActiveWindow(&principal);
    Obrir(QStringLiteral("F_ALBARANSS"));
    Obert("F_ALBARANSS")->findChild<QPushButton*>(QStringLiteral("B_Albarans"))->click();
    Nou();
    Triar_Client();
    Afegir_Linia();
    Tancar("F_ALBARA");  // what is prepared once is prepared
  }

  static void Nou() {
    Obert("F_ALBARANSM")->findChild<QPushButton*>(QStringLiteral("B_NouAlbara"))->click();
    Assentar();
  }
  static void Triar_Client() {
    Obert("F_ALBARA")->findChild<Combo_Codi*>(QStringLiteral("CMB_CLIENT_DESC_AC"))->Triar("B1", "Ferreteria");
  }
  static void Escriure(const char* nom, const char* text) {
    auto* camp = Obert("F_ALBARA")->findChild<QLineEdit*>(QString::fromLatin1(nom));
    Entrar_Al_Camp(camp);
    camp->setText(QString::fromLatin1(text));
    Deixar_Camp(camp);
  }
  static void Omplir_Linia() {
    Escriure("TXT_ARTICLE_AL", "MARTELL");
    Escriure("TXT_PREU_UNITARI_AL", "20");
  }
  static void Desar_Linia() { Escriure("TXT_UNITATS_AL", "1"); }
  static void Afegir_Linia() {
    Omplir_Linia();
    Desar_Linia();
  }
  static std::int64_t Viatges(const std::function<void()>& feina) {
    const std::int64_t abans = sessio.Connexio_Comuna.Viatges();
    feina();
    return sessio.Connexio_Comuna.Viatges() - abans;
  }
};

TEST_F(Viatges_Document, A_new_note_takes_six_at_most) {
  EXPECT_LE(Viatges(Nou), 6);
}

TEST_F(Viatges_Document, A_customer_chosen_on_an_empty_note_takes_six_at_most) {
  Nou();
  EXPECT_LE(Viatges(Triar_Client), 6);
}

TEST_F(Viatges_Document, A_note_closed_unchanged_takes_four_at_most) {
  Obert("F_ALBARANSM")->Graella_Llista()->Anar_A_Fila(0);
  Q_EMIT Obert("F_ALBARANSM")->Graella_Llista()->Doble_Clic(0);
  ASSERT_NE(Obert("F_ALBARA"), nullptr);
  EXPECT_LE(Viatges([] { Tancar("F_ALBARA"); }), 4);
}

TEST_F(Viatges_Document, A_line_typed_through_the_editor_takes_eight_at_most) {
  Nou();
  Triar_Client();
  Afegir_Linia();
  EXPECT_LE(Viatges(Afegir_Linia), 8);
}

TEST_F(Viatges_Document, A_line_saved_on_a_note_of_one_order_and_one_invoice_takes_ten_at_most) {
  Nou();
  Triar_Client();
  Afegir_Linia();
  for (const char* sql : {"INSERT INTO COMANDACAP (NUMALB_CC, EMPRESA_CC, PAGAMENT_CC) VALUES (3, 'B00000000', -1)",
                          "INSERT INTO FACTURACAP (NUMALB_FC, EMPRESA_FC, PAGAMENT_FC) VALUES (4, 'B00000000', 0)",
                          "UPDATE ALBARALIN SET COMANDA_AL = 3", "UPDATE ALBARACAP SET NUMFAC_AC = '4'"})
    Executar(sql);
  Omplir_Linia();
  EXPECT_LE(Viatges(Desar_Linia), 10);
}
