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

TEST(Recalcular_Preus, price_and_discount_follow_the_cost_and_the_margin) {
  EXPECT_EQ(Recalcular_Preus("MARGE_ART", {.cost = 100, .marge = 20}), (Preus{100, 20, 120, 16.66667}));
}
TEST(Recalcular_Preus, cost_and_margin_follow_the_discount) {
  EXPECT_EQ(Recalcular_Preus("DESCOMPTE_ART", {.pvp = 120, .descompte = 10}), (Preus{108, 11.11111, 120, 10}));
}
TEST(Recalcular_Preus, a_first_price_gives_margin_and_discount) {
  EXPECT_EQ(Recalcular_Preus("PVP_NET_ART", {.cost = 100, .pvp = 125}), (Preus{100, 25, 125, 20}));
}
TEST(Recalcular_Preus, afterwards_the_cost_gives_way_to_a_price) {
  EXPECT_EQ(Recalcular_Preus("PVP_NET_ART", {100, 20, 150, 16.66667}), (Preus{125, 20, 150, 16.66667}));
  EXPECT_EQ(Recalcular_Preus("PVP_NET_ART", {100, 20, 150, 0}), (Preus{150, 0, 150, 0}));
}
TEST(Recalcular_Preus, nothing_is_divided_by_a_price_or_a_cost_of_0) {
  EXPECT_EQ(Recalcular_Preus("MARGE_ART", {.marge = 20, .descompte = 5}), (Preus{0, 20, 0, 5}));
  EXPECT_EQ(Recalcular_Preus("DESCOMPTE_ART", {.marge = 7, .pvp = 10, .descompte = 100}), (Preus{0, 7, 10, 100}));
  EXPECT_EQ(Recalcular_Preus("PVP_NET_ART", {.cost = 10, .pvp = 0}), (Preus{10, -100, 0, 0}));
}
TEST(Recalcular_Preus, any_other_column_changes_nothing) {
  EXPECT_EQ(Recalcular_Preus("ULTIM_COST_ART", {1, 2, 3, 4}), (Preus{1, 2, 3, 4}));
}

class Llista_Articles : public Base_Dades {
 protected:
  Llista_Articles() {
    Executar("INSERT INTO FAMILIES (CODI_FAM, DESCRIPCIO_FAM) VALUES ('F', 'Ferros')");
    Executar(
        "INSERT INTO ARTICLES (CODI_ART, DESCRIPCIO_ART, FAMILIA_ART, IVA_ART, COST_ART, ULTIM_COST_ART, ACTIU_ART) "
        "VALUES ('A1', 'Clau', 'F', 'GN', 1, 1, -1)");
    Executar(
        "INSERT INTO ARTICLES (CODI_ART, DESCRIPCIO_ART, SUBFAMILIA_ART, MARCA_ART, IVA_ART, COST_ART, ULTIM_COST_ART, "
        "ACTIU_ART) VALUES ('A2', 'Clavilla', 'S', 'M', '?', 1, 2, 0)");
    Executar("INSERT INTO ARTICLES (CODI_ART) VALUES ('B3')");
  }
  static std::string Codis(const Criteris_Articles& criteris) {
    std::string codis;
    for (Recordset rs(SQL_Articles(criteris), sessio.Connexio_Comuna); !rs.Eof(); rs.MoveNext())
      codis += rs["CODI_ART"].Text() + " ";
    return codis;
  }
};

TEST_F(Llista_Articles, shows_them_all_with_the_words_of_their_codes_also_of_codes_that_are_gone) {
  const Recordset rs(SQL_Articles({}), sessio.Connexio_Comuna);
  ASSERT_EQ(rs.RecordCount(), 3);
  EXPECT_EQ(rs["DESCRIPCIO_FAM"].Text(), "Ferros");
  EXPECT_EQ(rs["PORC_IVA"].Doble(), 21);
}
TEST_F(Llista_Articles, takes_each_criterion_and_all_of_them_together) {
  EXPECT_EQ(Codis({.familia = "f"}), "A1 ");
  EXPECT_EQ(Codis({.subfamilia = "S"}), "A2 ");
  EXPECT_EQ(Codis({.marca = "M"}), "A2 ");
  EXPECT_EQ(Codis({.codi = "a"}), "A1 A2 ");
  EXPECT_EQ(Codis({.descripcio = "CLA"}), "A1 A2 ");
  EXPECT_EQ(Codis({.actiu = "-1"}), "A1 ");
  EXPECT_EQ(Codis({.ultim_cost = true}), "A2 ");
  EXPECT_EQ(Codis({.familia = "F", .codi = "2"}), "");
}
TEST_F(Llista_Articles, opens_empty_with_what_no_article_holds) {
  EXPECT_EQ(Codis({.codi = cap_article, .descripcio = cap_article}), "");
  EXPECT_EQ(Codis({.familia = cap_article}), "A1 A2 B3 ");
}
TEST_F(Llista_Articles, one_value_of_an_article) {
  EXPECT_EQ(Ultim_Cost("A2"), 2);
  EXPECT_EQ(Ultim_Cost("?"), 0);
  EXPECT_TRUE(Article_Existeix("a1"));
  EXPECT_FALSE(Article_Existeix("A"));
}
