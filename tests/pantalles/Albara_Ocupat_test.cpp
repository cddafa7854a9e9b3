// An open delivery note while another terminal holds the database: nothing is left half done, and nothing typed is
// lost.
#include <QApplication>
#include <QCloseEvent>
#include <QTimer>
#include <thread>

#include "core/controls/Focus_Camps.h"
#include "core/controls/Graella.h"
#include "core/formularis/Pantalla_Qt.h"
#include "session/M_Locks.h"
#include "shell/Aplicacio.h"
#include "tests/pantalles/Formularis_De_Prova.h"

namespace {

// The other terminal: it changes a row and keeps its transaction open until it is let go.
class Altre_Terminal {
 public:
  Altre_Terminal() {
    connexio_.Open(sessio.Connexio_Comuna.Adreca());
    transaccio_.emplace(connexio_);
    connexio_.Execute("UPDATE STOCK SET UNIDADES_ST = UNIDADES_ST");
  }
  void Deixar_Anar() { transaccio_.reset(); }

 private:
  Connexio connexio_;
  std::optional<Transaccio> transaccio_;
};

class Albara_Ocupat : public Amb_Principal {
 protected:
  Albara_Ocupat() {
    for (const char* sql : {"INSERT INTO CLIENTS (NIF_CLI, RAO_SOCIAL_CLI, IVA_CLI) VALUES ('B1', 'Ferreteria', -1)",
                            "INSERT INTO ARTICLES (CODI_ART, DESCRIPCIO_ART, IVA_ART, COST_ART, STOCK_ART, "
                            "STOCK_MINIM_ART, MAGATZEM_ART) VALUES ('MARTELL', 'Martell', 'GN', 10, -1, 10, '2')",
                            "INSERT INTO STOCK (EMPRESA_ST, CODI_ART_ST, ALMACEN_ST, UNIDADES_ST) VALUES "
                            "('B00000000', 'MARTELL', '2', 2)",
                            "INSERT INTO ALBARACAP (NUMALB_AC, EMPRESA_AC, CLIENT_AC, CLIENT_DESC_AC, IVA_AC) VALUES "
                            "(1, 'B00000000', 'B1', 'Ferreteria', -1)"})
      Executar(sql);
    sessio.pantalla = &pantalla_;
    Pantalla_Qt::Contestador = [this](const QString& text, int, const QString&) {
      caixes_.push_back(text.toStdString());
      return Resposta::Ok;
    };
    Registrar_Formularis();
    QApplication::setActiveWindow(&principal);
  }
  ~Albara_Ocupat() override {
    Descarregar_Tots();
    Pantalla_Qt::Contestador = nullptr;
  }

  // As the list opens it.
  void Obrir_Albara() {
    sessio.Numero_Albara = 1;
    sessio.Crida_Mestre = "F_ALBARANSM;EDIT";
    Bloquejar_Per_Tipus("AC", "1");
    albara_ = Obrir_I_Tenir("F_ALBARA");
    Assentar();
  }
  QLineEdit* Camp(const char* nom) const { return albara_->findChild<QLineEdit*>(QString::fromLatin1(nom)); }
  void Escriure(const char* nom, const char* text) const {
    Entrar_Al_Camp(Camp(nom));
    Camp(nom)->setText(QString::fromLatin1(text));
    Deixar_Camp(Camp(nom));
  }
  void Escriure_Linia(const char* unitats) const {
    Escriure("TXT_ARTICLE_AL", "MARTELL");
    Escriure("TXT_PREU_UNITARI_AL", "20");
    Escriure("TXT_UNITATS_AL", unitats);
  }
  static std::int64_t Files(const char* taula) { return Recordset(taula, sessio.Connexio_Comuna).RecordCount(); }
  static double Saldo() { return Recordset("STOCK", sessio.Connexio_Comuna)["UNIDADES_ST"].Doble(); }

  Pantalla_Qt pantalla_;
  Formulari* albara_ = nullptr;
  std::vector<std::string> caixes_;
};

}  // namespace

// Asked to close by its window, by the desktop and by what is in the queue: first the line, whole.
TEST_F(Albara_Ocupat, A_terminal_that_is_asked_to_close_in_the_middle_of_a_save_ends_it_and_stays) {
  Obrir_Albara();
  Altre_Terminal altre;
  std::jthread deixar_anar([&altre] {
    std::this_thread::sleep_for(std::chrono::seconds(2));
    altre.Deixar_Anar();
  });
  QTimer::singleShot(0, &principal, &QWidget::close);
  QCoreApplication::postEvent(&principal, new QCloseEvent);
  QCoreApplication::postEvent(qApp, new QEvent(QEvent::Quit));
  Escriure_Linia("4");
  deixar_anar.join();
  Assentar();
  ASSERT_NE(Obert("F_ALBARA"), nullptr);
  EXPECT_TRUE(principal.isVisible());
  EXPECT_EQ(caixes_, std::vector<std::string>{"MARTELL: Article sota mínims."});
  EXPECT_EQ(Files("ALBARALIN"), 1);
  EXPECT_EQ(Files("MOVIMIENTOS"), 1);
  EXPECT_EQ(Files("LOCKS"), 1);
  EXPECT_EQ(Saldo(), -2);
}

TEST_F(Albara_Ocupat, The_main_window_does_not_close_over_work_that_is_not_committed) {
  const Transaccio transaccio(sessio.Connexio_Comuna);
  EXPECT_FALSE(principal.close());
  EXPECT_TRUE(principal.isVisible());
}

TEST_F(Albara_Ocupat, A_line_that_another_terminal_keeps_from_being_written_stays_to_be_tried_again) {
  const std::string adreca = sessio.Connexio_Comuna.Adreca();
  sessio.Connexio_Comuna.Close();
  sessio.Connexio_Comuna.Open(adreca, 100);
  Obrir_Albara();
  Altre_Terminal altre;
  Escriure_Linia("1,5");
  Assentar();
  EXPECT_EQ(caixes_.size(), 1U);
  EXPECT_EQ(Camp("TXT_ARTICLE_AL")->text(), QStringLiteral("MARTELL"));
  EXPECT_EQ(Camp("TXT_UNITATS_AL")->text(), QStringLiteral("1,5"));
  EXPECT_EQ(Camp("TXT_PREU_UNITARI_AL")->text(), QStringLiteral("20"));
  EXPECT_TRUE(Camp("TXT_UNITATS_AL")->hasFocus());
  EXPECT_EQ(Files("ALBARALIN"), 0);
  altre.Deixar_Anar();
  Deixar_Camp(Camp("TXT_UNITATS_AL"));
  EXPECT_EQ(caixes_.size(), 1U);
  EXPECT_EQ(Camp("TXT_ARTICLE_AL")->text(), QString());
  EXPECT_EQ(Files("ALBARALIN"), 1);
  EXPECT_EQ(Saldo(), 0.5);
}
