#include "masters/M_Articles.h"

#include "tests/regles/Base.h"

using M_Articles = Base_Dades;

TEST_F(M_Articles, ten_texts_in_their_order_with_decimal_comma) {
  Posar_Article({.codi = "A1", .iva = "RD", .cost = 10.5, .dte = 2.25, .minim = 3, .magatzem = "2"});
  Executar("UPDATE ARTICLES SET MARGE_ART = 20, PVP_NET_ART = 12.6");
  const auto dades = Dades_Article("A1");
  EXPECT_EQ(dades, (std::array<std::string, 10>{"A1", "Article de prova", "10,5", "RD", "20", "2,25", "12,6", "-1", "3",
                                                "2"}));
}

TEST_F(M_Articles, nulls_read_as_0_GN_or_nothing) {
  Executar(
      "INSERT INTO ARTICLES (CODI_ART, COST_ART, MARGE_ART, DESCOMPTE_ART, PVP_NET_ART, STOCK_MINIM_ART) "
      "VALUES('A2', NULL, NULL, NULL, NULL, NULL)");
  EXPECT_EQ(Dades_Article("A2"), (std::array<std::string, 10>{"A2", "", "0", "GN", "0", "0", "0", "0", "0", ""}));
}

TEST_F(M_Articles, an_unknown_code_is_three_question_marks) {
  EXPECT_EQ(Dades_Article("ZZ"), (std::array<std::string, 10>{"ZZ", "???", "0", "GN", "0", "0", "0", "0", "0", ""}));
}

TEST_F(M_Articles, VAR_is_a_manual_description_without_any_query) {
  sessio.Connexio_Comuna.Close();
  EXPECT_EQ(Dades_Article("VAR"),
            (std::array<std::string, 10>{"VAR", "Descripció Manual", "0", "GN", "0", "0", "0", "0", "0", ""}));
  EXPECT_EQ(Magatzem_Article("VAR"), "");
}

TEST_F(M_Articles, the_warehouse_is_the_articles_own) {
  Posar_Article({.magatzem = "2"});
  EXPECT_EQ(Magatzem_Article("A1"), "2");
  EXPECT_EQ(Magatzem_Article("ZZ"), "");
}
