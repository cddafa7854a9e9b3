// The company chooser under the hand of a user.
#include "session/Selector_Empresa.h"

#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include "tests/pantalles/Base_Pantalles.h"

class Triar_Empresa : public Base_Pantalles {
 protected:
  Triar_Empresa() {
    Executar("INSERT INTO EMPRESES (NIF_EMP, RAO_SOCIAL_EMP, ACTIU_EMP) VALUES ('A1', 'Zenit', -1)");
    Executar("INSERT INTO EMPRESES (NIF_EMP, RAO_SOCIAL_EMP, ACTIU_EMP) VALUES ('A2', 'Àlvarez', -1)");
    Executar("INSERT INTO EMPRESES (NIF_EMP, RAO_SOCIAL_EMP, ACTIU_EMP) VALUES ('A3', 'Tancada', 0)");
  }
  // What comes back when the user does that with the list.
  static std::string Tria(const std::string& actual, const std::function<void(QTableWidget&)>& fer) {
    Selector_Empresa selector(actual);
    QTimer::singleShot(0, &selector, [&] { fer(*selector.findChild<QTableWidget*>()); });
    return selector.Triar();
  }
  static void Tecla(QTableWidget& llista, Qt::Key tecla) { QTest::keyClick(&llista, tecla); }
};

TEST_F(Triar_Empresa, Shows_the_active_ones_by_name) {
  Tria("A1", [](QTableWidget& llista) {
    ASSERT_EQ(llista.rowCount(), 3);
    EXPECT_EQ(llista.item(0, 1)->text(), QStringLiteral("Àlvarez"));
    EXPECT_EQ(llista.item(1, 1)->text(), QStringLiteral("Empresa de prova"));
    EXPECT_EQ(llista.item(2, 0)->text(), QStringLiteral("A1"));
    Tecla(llista, Qt::Key_Escape);
  });
}

TEST_F(Triar_Empresa, Enter_takes_the_current_one_which_is_marked) {
  for (const char* actual : {"A1", "A2", "B00000000"}) {
    EXPECT_EQ(Tria(actual, [](QTableWidget& llista) { Tecla(llista, Qt::Key_Return); }), actual);
  }
}

TEST_F(Triar_Empresa, Without_a_current_one_the_first_is_marked) {
  for (const char* actual : {"", "A3", "NO HI ES"}) {
    EXPECT_EQ(Tria(actual, [](QTableWidget& llista) { Tecla(llista, Qt::Key_Return); }), "A2") << actual;
  }
}

TEST_F(Triar_Empresa, Arrows_and_letters_move_and_a_double_click_takes) {
  const auto baixar = [](QTableWidget& llista) {
    Tecla(llista, Qt::Key_Down);
    Tecla(llista, Qt::Key_Return);
  };
  EXPECT_EQ(Tria("A2", baixar), "B00000000");
  const auto lletra = [](QTableWidget& llista) {
    QTest::keyClicks(&llista, QStringLiteral("z"));
    Tecla(llista, Qt::Key_Enter);
  };
  EXPECT_EQ(Tria("A2", lletra), "A1");
  const auto doble_clic = [](QTableWidget& llista) {
    const QPoint on = llista.visualItemRect(llista.item(2, 1)).center();
    QTest::mouseClick(llista.viewport(), Qt::LeftButton, {}, on);
    QTest::mouseDClick(llista.viewport(), Qt::LeftButton, {}, on);
  };
  EXPECT_EQ(Tria("A2", doble_clic), "A1");
}

TEST_F(Triar_Empresa, Esc_gives_nothing) {
  EXPECT_EQ(Tria("A1", [](QTableWidget& llista) { Tecla(llista, Qt::Key_Escape); }), "");
}

TEST_F(Triar_Empresa, Without_companies_there_is_nothing_to_accept) {
  Executar("UPDATE EMPRESES SET ACTIU_EMP = 0");
  const auto mirar = [](QTableWidget& llista) {
    EXPECT_EQ(llista.rowCount(), 0);
    EXPECT_FALSE(llista.window()->findChild<QPushButton*>()->isEnabled());
    Tecla(llista, Qt::Key_Return);
    Tecla(llista, Qt::Key_Escape);
  };
  EXPECT_EQ(Tria("A1", mirar), "");
}

TEST_F(Triar_Empresa, Its_words_are_those_of_the_language) {
  const char* titols[] = {"Tria una empresa", "Elija una empresa", "Choose a company"};
  const char* accepta[] = {"D'&acord", "&Aceptar", "&OK"};
  for (std::int16_t idioma = 0; idioma < 3; ++idioma) {
    sessio.Idioma_Actual = idioma;
    const Selector_Empresa selector("A1");
    EXPECT_EQ(selector.windowTitle(), QString::fromUtf8(titols[idioma]));
    EXPECT_EQ(selector.findChild<QPushButton*>()->text(), QString::fromUtf8(accepta[idioma]));
  }
}
