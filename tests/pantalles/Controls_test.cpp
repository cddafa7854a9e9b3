#include "core/controls/Controls.h"

#include <QSignalSpy>
#include <QTest>
#include <tuple>

#include "core/controls/Focus_Camps.h"
#include "tests/pantalles/Base_Pantalles.h"
#include "tests/pantalles/Finestra_De_Camps.h"

TEST(Camp_Numeric, The_period_gives_a_comma) {
  Camp_Numeric camp;
  QTest::keyClicks(&camp, QStringLiteral("12.5"));
  EXPECT_EQ(camp.text(), QStringLiteral("12,5"));
  EXPECT_EQ(camp.Numero(), 12.5);
}

TEST(Camp_Numeric, Thousands_can_be_typed_as_they_are_written) {
  const std::tuple<const char*, const char*, double> escrits[] = {
      {"1.234,50", "1.234,50", 1234.5},
      {"1.234.567", "1.234.567", 1234567},
      {"1.234.567,8", "1.234.567,8", 1234567.8},
      {"-1,5", "-1,5", -1.5},
      {"+3", "+3", 3},
  };
  for (const auto& [tecles, text, valor] : escrits) {
    Camp_Numeric camp;
    QTest::keyClicks(&camp, QString::fromLatin1(tecles));
    EXPECT_EQ(camp.text(), QString::fromLatin1(text)) << tecles;
    EXPECT_EQ(camp.Numero(), valor) << tecles;
  }
}

TEST(Camp_Numeric, A_point_before_the_decimals_is_of_thousands) {
  Camp_Numeric camp;
  camp.setText(QStringLiteral("1234,50"));
  camp.setCursorPosition(1);
  QTest::keyClicks(&camp, QStringLiteral("."));
  EXPECT_EQ(camp.text(), QStringLiteral("1.234,50"));
}

TEST(Camp_Numeric, A_mark_typed_over_the_decimals_is_theirs) {
  Camp_Numeric camp;
  camp.setText(QStringLiteral("12,50"));
  camp.setSelection(2, 3);
  QTest::keyClicks(&camp, QStringLiteral(".7"));
  EXPECT_EQ(camp.text(), QStringLiteral("12,7"));
  camp.selectAll();
  QTest::keyClicks(&camp, QStringLiteral(".7"));
  EXPECT_EQ(camp.text(), QStringLiteral(",7"));
}

TEST(Camp_Numeric, Shows_its_number_under_its_mask) {
  Camp_Numeric camp;
  camp.Mascara("#,##0.00000");
  camp.Numero(1234.5);
  EXPECT_EQ(camp.text(), QStringLiteral("1.234,50000"));
  EXPECT_EQ(camp.Numero(), 1234.5);
}

TEST(Camp_Numeric, Tells_what_is_no_number) {
  Camp_Numeric camp;
  camp.setText(QStringLiteral("12a"));
  EXPECT_FALSE(camp.Es_Numeric());
}

TEST(Selector_Data, Takes_a_day_or_nothing_and_tells_when_it_changed) {
  auto* data = new Selector_Data;
  Finestra_De_Camps finestra(data);
  const QSignalSpy senyal(data, &Selector_Data::Canviada);
  QTest::keyClicks(data->Camp_Text(), QStringLiteral("5/3/2026"));
  finestra.Sortir();
  EXPECT_EQ(data->Text(), QStringLiteral("05/03/2026"));
  EXPECT_EQ(senyal.count(), 1);
  data->Camp_Text()->setFocus();
  data->Camp_Text()->clear();
  finestra.Sortir();
  EXPECT_FALSE(data->Data());
  EXPECT_EQ(senyal.count(), 2);
}

TEST(Selector_Data, Keeps_the_focus_on_what_is_no_day) {
  auto* data = new Selector_Data;
  Finestra_De_Camps finestra(data);
  QTest::keyClicks(data->Camp_Text(), QStringLiteral("31/02/2026"));
  finestra.Sortir();
  EXPECT_TRUE(finestra.Te_Focus());
  EXPECT_EQ(data->Camp_Text()->selectedText(), QStringLiteral("31/02/2026"));
}

class Combo_De_Clients : public Base_Pantalles {
 protected:
  Combo_De_Clients() {
    Executar("INSERT INTO CLIENTS (NIF_CLI, RAO_SOCIAL_CLI) VALUES ('1', 'Àlvarez')");
    Executar("INSERT INTO CLIENTS (NIF_CLI, RAO_SOCIAL_CLI) VALUES ('2', 'Bosch')");
    combo->Omplir("SELECT NIF_CLI, RAO_SOCIAL_CLI FROM CLIENTS ORDER BY RAO_SOCIAL_CLI", sessio.Connexio_Comuna,
                  "NIF_CLI", "RAO_SOCIAL_CLI");
  }
  void Escriure(const QString& text) {
    combo->setFocus();
    combo->setEditText(text);
    finestra.Sortir();
  }

  Combo_Codi* combo = new Combo_Codi;
  Finestra_De_Camps finestra{combo};
};

TEST_F(Combo_De_Clients, Nothing_is_chosen_at_first) {
  EXPECT_EQ(combo->Codi(), "");
  EXPECT_EQ(combo->currentText(), QString());
  EXPECT_EQ(combo->count(), 2);
}

TEST_F(Combo_De_Clients, A_name_typed_in_full_chooses_its_entry) {
  const QSignalSpy senyal(combo, &Combo_Codi::Triat);
  Escriure(QStringLiteral("bosch"));
  EXPECT_EQ(combo->Codi(), "2");
  EXPECT_EQ(combo->Nom(), "Bosch");
  EXPECT_EQ(senyal.count(), 1);
}

TEST_F(Combo_De_Clients, A_name_that_is_none_gives_way_to_the_choice) {
  combo->Posar("1", "Àlvarez");
  Escriure(QStringLiteral("ningú"));
  EXPECT_EQ(combo->currentText(), QStringLiteral("Àlvarez"));
  EXPECT_EQ(combo->Codi(), "1");
}

TEST_F(Combo_De_Clients, Shows_a_name_that_the_list_does_not_hold) {
  combo->Posar("9", "Gone long ago");
  EXPECT_EQ(combo->currentText(), QStringLiteral("Gone long ago"));
  EXPECT_EQ(combo->Codi(), "9");
}
