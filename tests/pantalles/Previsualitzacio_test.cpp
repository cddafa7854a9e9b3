// The preview of printed pages, as a hand works in it.
#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QFileDialog>
#include <QGraphicsView>
#include <QLabel>
#include <QLineEdit>
#include <QPrintPreviewWidget>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <set>

#include "core/formularis/Motius.h"
#include "output/informe/Impressora.h"
#include "output/informe/Ordres_Previa.h"
#include "output/informe/Sortida.h"
#include "output/informe/Treballs.h"
#include "tests/pantalles/Base_Informe.h"

namespace {

// The preview as a hand has it: the window stands open while `mans` works on it.
class Previa : public Base_Pantalles {
 protected:
  ~Previa() override {
    Fixar_Carpeta_Treballs({});
    Fixar_Copies_Treballs({});
  }

  bool Obrir(int quantes, const std::function<void()>& mans) {
    bool oberta = false;
    QTimer::singleShot(0, qApp, [&] {
      finestra_ = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (finestra_ == nullptr) return;
      oberta = finestra_->objectName() == u"F_Previsualitzar";
      (void)QTest::qWaitForWindowActive(finestra_);
      mans();
      QApplication::processEvents();
      if (finestra_ != nullptr && finestra_->isVisible()) finestra_->reject();
    });
    const bool fet = Previsualitzar(Fer_Pagines(quantes), nullptr);
    EXPECT_TRUE(oberta);
    return fet;
  }

  QAbstractButton& Boto(const char* nom) const {
    return *finestra_->findChild<QAbstractButton*>(QString::fromLatin1(nom));
  }
  void Premer(const char* nom) const { Boto(nom).click(); }
  void Tecla(Qt::Key tecla, Qt::KeyboardModifiers mes = Qt::NoModifier) const {
    QTest::keyClick(QApplication::focusWidget(), tecla, mes);
  }
  QLineEdit& Numero() const { return *finestra_->findChild<QLineEdit*>(u"TXT_PAGINA"_qs); }
  int Pagina_Actual() const {
    EXPECT_EQ(Numero().text().toInt(), Vista().currentPage());
    return Vista().currentPage();
  }
  QPrintPreviewWidget& Vista() const { return *finestra_->findChild<QPrintPreviewWidget*>(); }
  QScrollBar& Barra_Vertical() const { return *Vista().findChild<QGraphicsView*>()->verticalScrollBar(); }
  QString Ampliacio() const { return finestra_->findChild<QLabel*>(u"L_AMPLIACIO"_qs)->text(); }
  void Roda(int graus, Qt::KeyboardModifiers mes) const {
    QWidget* full = Vista().findChild<QGraphicsView*>()->viewport();
    QWheelEvent roda({50, 50}, full->mapToGlobal(QPointF(50, 50)), {}, {0, graus}, Qt::NoButton, mes, Qt::NoScrollPhase,
                     false);
    QApplication::sendEvent(full, &roda);
  }

  QPointer<QDialog> finestra_;
};

}  // namespace

TEST_F(Previa, Pages_are_turned_by_buttons) {
  Obrir(4, [&] {
    EXPECT_EQ(Pagina_Actual(), 1);
    EXPECT_EQ(finestra_->findChild<QLabel*>(u"L_PAGINES"_qs)->text().trimmed(), u"/ 4"_qs);
    EXPECT_FALSE(Boto("B_ANTERIOR").isEnabled());
    Premer("B_SEGUENT");
    EXPECT_EQ(Pagina_Actual(), 2);
    EXPECT_TRUE(Boto("B_ANTERIOR").isEnabled());
    Premer("B_DARRERA");
    EXPECT_EQ(Pagina_Actual(), 4);
    EXPECT_FALSE(Boto("B_SEGUENT").isEnabled() || Boto("B_DARRERA").isEnabled());
    Premer("B_ANTERIOR");
    EXPECT_EQ(Pagina_Actual(), 3);
    Premer("B_PRIMERA");
    EXPECT_EQ(Pagina_Actual(), 1);
  });
}

TEST_F(Previa, Pages_are_turned_by_keys) {
  Obrir(4, [&] {
    Tecla(Qt::Key_PageDown);
    Tecla(Qt::Key_PageDown);
    EXPECT_EQ(Pagina_Actual(), 3);
    Tecla(Qt::Key_PageUp);
    EXPECT_EQ(Pagina_Actual(), 2);
    Tecla(Qt::Key_End);
    EXPECT_EQ(Pagina_Actual(), 4);
    Tecla(Qt::Key_PageDown);
    EXPECT_EQ(Pagina_Actual(), 4);
    Tecla(Qt::Key_Home);
    EXPECT_EQ(Pagina_Actual(), 1);
  });
}

TEST_F(Previa, A_page_is_reached_by_its_number) {
  Obrir(12, [&] {
    const auto escriure = [&](const QString& text) {
      Tecla(Qt::Key_G, Qt::ControlModifier);
      EXPECT_TRUE(Numero().hasFocus());
      QTest::keyClicks(&Numero(), text);
      Tecla(Qt::Key_Return);
      EXPECT_FALSE(Numero().hasFocus());
      EXPECT_TRUE(finestra_->isVisible());
      return Pagina_Actual();
    };
    EXPECT_EQ(escriure(u"11"_qs), 11);
    EXPECT_EQ(escriure(u"3"_qs), 3);
    EXPECT_EQ(escriure(u"99"_qs), 12) << "the nearest one";
    EXPECT_EQ(escriure(u"0"_qs), 1);
    EXPECT_EQ(escriure(u"cap"_qs), 1) << "what is no number goes nowhere";
    EXPECT_EQ(Numero().text(), u"1"_qs);
  });
}

TEST_F(Previa, Scrolling_tells_the_page_and_Home_goes_to_its_top) {
  Obrir(5, [&] {
    EXPECT_FALSE(Boto("B_PRIMERA").isEnabled());
    Barra_Vertical().setValue(Barra_Vertical().minimum() + 60);
    EXPECT_EQ(Pagina_Actual(), 1);
    Tecla(Qt::Key_Home);
    EXPECT_EQ(Barra_Vertical().value(), Barra_Vertical().minimum());
    Barra_Vertical().setValue(Barra_Vertical().maximum());
    EXPECT_EQ(Pagina_Actual(), 5);
  });
}

TEST_F(Previa, Leaving_the_number_as_it_was_does_not_move_the_page) {
  Obrir(5, [&] {
    Barra_Vertical().setValue(Barra_Vertical().minimum() + 80);
    const int on = Barra_Vertical().value();
    Tecla(Qt::Key_G, Qt::ControlModifier);
    Tecla(Qt::Key_Return);
    EXPECT_EQ(Barra_Vertical().value(), on);
  });
}

TEST_F(Previa, It_is_seen_larger_smaller_and_at_the_size_of_the_paper) {
  Obrir(2, [&] {
    Premer("B_MIDA_REAL");
    EXPECT_EQ(Ampliacio(), u"100 %"_qs);
    Premer("B_AMPLIAR");
    EXPECT_EQ(Ampliacio(), u"125 %"_qs);
    Premer("B_REDUIR");
    Premer("B_REDUIR");
    EXPECT_EQ(Ampliacio(), u"80 %"_qs);
    Tecla(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(Ampliacio(), u"100 %"_qs);
    Tecla(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Ampliacio(), u"80 %"_qs);
    Tecla(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(Ampliacio(), u"100 %"_qs);
  });
}

TEST_F(Previa, The_size_has_its_ends) {
  Obrir(2, [&] {
    for (int i = 0; i < 40; ++i) Premer("B_AMPLIAR");
    EXPECT_EQ(Ampliacio(), u"800 %"_qs);
    EXPECT_FALSE(Boto("B_AMPLIAR").isEnabled());
    for (int i = 0; i < 40; ++i) Premer("B_REDUIR");
    EXPECT_EQ(Ampliacio(), u"10 %"_qs);
    EXPECT_FALSE(Boto("B_REDUIR").isEnabled());
    EXPECT_TRUE(Boto("B_AMPLIAR").isEnabled());
  });
}

TEST_F(Previa, It_opens_at_the_width_of_the_window_and_follows_it) {
  Obrir(2, [&] {
    EXPECT_TRUE(Boto("B_AMPLADA").isChecked());
    const double abans = Vista().zoomFactor();
    finestra_->resize(finestra_->width() / 2, finestra_->height());
    QApplication::processEvents();
    EXPECT_NEAR(Vista().zoomFactor(), abans / 2, abans / 10);
    EXPECT_EQ(Ampliacio(), u"%1 %"_qs.arg(std::lround(Vista().zoomFactor() * 100)));
    Tecla(Qt::Key_2, Qt::ControlModifier);
    EXPECT_TRUE(Boto("B_PAGINA_SENCERA").isChecked());
    EXPECT_FALSE(Boto("B_AMPLADA").isChecked());
    Premer("B_AMPLIAR");
    EXPECT_FALSE(Boto("B_PAGINA_SENCERA").isChecked());
    Tecla(Qt::Key_1, Qt::ControlModifier);
    EXPECT_TRUE(Boto("B_AMPLADA").isChecked());
  });
}

TEST_F(Previa, A_mode_that_is_pressed_again_stays) {
  Obrir(2, [&] {
    Premer("B_AMPLADA");
    EXPECT_TRUE(Boto("B_AMPLADA").isChecked());
  });
}

TEST_F(Previa, The_wheel_scrolls_and_with_Ctrl_it_zooms) {
  Obrir(5, [&] {
    Premer("B_MIDA_REAL");
    Roda(120, Qt::ControlModifier);
    EXPECT_EQ(Ampliacio(), u"125 %"_qs);
    Roda(-120, Qt::ControlModifier);
    EXPECT_EQ(Ampliacio(), u"100 %"_qs);
    Roda(-120, Qt::NoModifier);
    EXPECT_EQ(Ampliacio(), u"100 %"_qs);
    EXPECT_GT(Barra_Vertical().value(), Barra_Vertical().minimum());
  });
}

TEST_F(Previa, Esc_leaves_it_also_from_the_number) {
  EXPECT_FALSE(Obrir(2, [&] {
    Tecla(Qt::Key_Escape);
    EXPECT_TRUE(finestra_ == nullptr || !finestra_->isVisible());
  }));
  EXPECT_FALSE(Obrir(2, [&] {
    Tecla(Qt::Key_G, Qt::ControlModifier);
    Tecla(Qt::Key_Escape);
    EXPECT_TRUE(finestra_ == nullptr || !finestra_->isVisible());
  }));
}

TEST_F(Previa, Its_size_is_remembered) {
  Obrir(1, [&] { finestra_->resize(800, 600); });
  Obrir(1, [&] { EXPECT_EQ(finestra_->size(), QSize(800, 600)); });
}

// Every button, whatever is added: words in three languages, a key of its own, and the tooltip tells both.
TEST_F(Previa, Every_button_tells_what_it_does_and_its_key_in_every_language) {
  for (std::int16_t idioma = 0; idioma < 3; ++idioma) {
    sessio.Idioma_Actual = idioma;
    std::set<QString> tecles;
    std::set<QString> paraules;
    Obrir(3, [&] {
      for (const Ordre_Previa& ordre : Ordres_De_La_Previa()) {
        SCOPED_TRACE(ordre.nom);
        const QString paraula = QString::fromUtf8(ordre.paraula[static_cast<std::size_t>(idioma)]);
        EXPECT_TRUE(paraules.insert(paraula).second);
        ASSERT_FALSE(ordre.tecles.isEmpty());
        for (const auto& tecla : ordre.tecles) EXPECT_TRUE(tecles.insert(tecla.toString()).second);
        EXPECT_TRUE(Boto(ordre.nom).toolTip().startsWith(paraula + u" ("_qs))
            << Boto(ordre.nom).toolTip().toStdString();
        EXPECT_TRUE(Boto(ordre.nom).toolTip().contains(ordre.tecles.first().toString(QKeySequence::NativeText)));
      }
      EXPECT_FALSE(Numero().toolTip().isEmpty());
    });
  }
}

TEST_F(Previa, Without_a_printer_the_button_says_so) {
  if (Hi_Ha_Impressora()) GTEST_SKIP() << "this computer has one";
  Obrir(1, [&] {
    EXPECT_FALSE(Boto("B_IMPRIMIR").isEnabled());
    EXPECT_EQ(Ajuda_De_Desactivat(Boto("B_IMPRIMIR")), u"Imprimir (Ctrl+P)\nAquest ordinador no té cap impressora"_qs);
  });
}

TEST_F(Previa, It_prints_and_stays_when_nothing_was_printed) {
  Fixar_Carpeta_Treballs(QString::fromStdString(installacio.Dir_Dades()));
  int copies = treballs::desdit;
  Fixar_Copies_Treballs([&] { return copies; });
  const int abans = Treballs_Impresos();
  EXPECT_TRUE(Obrir(3, [&] {
    Tecla(Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(finestra_->isVisible());
    EXPECT_EQ(Treballs_Impresos(), abans);
    copies = 2;
    Premer("B_IMPRIMIR");
  }));
  EXPECT_EQ(Treballs_Impresos(), abans + 1);
}

TEST_F(Previa, It_is_saved_as_PDF_and_stays_when_no_file_was_told) {
  const QString fitxer = QString::fromStdString(installacio.Dir_Dades()) + u"/previa.pdf"_qs;
  const auto contestar = [&](bool acceptar) {
    QTimer::singleShot(0, qApp, [&, acceptar] {
      auto* dialeg = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialeg, nullptr);
      dialeg->findChild<QLineEdit*>()->setText(fitxer);
      acceptar ? static_cast<QDialog*>(dialeg)->accept() : dialeg->reject();
    });
  };
  EXPECT_TRUE(Obrir(3, [&] {
    contestar(false);
    Tecla(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(finestra_->isVisible());
    EXPECT_FALSE(QFile::exists(fitxer));
    contestar(true);
    Premer("B_PDF");
  }));
  EXPECT_TRUE(QFile::exists(fitxer));
}
