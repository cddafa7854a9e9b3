#include "documents/M_Consultes.h"

#include "tests/regles/Base.h"

class M_Consultes : public Base_Dades {
 protected:
  const std::string curta =
      "SELECT NUMALB_AC, DATA_AC, CLIENT_DESC_AC, OBSR_AC, IMPORT_AC, ESTAT_AC FROM ALBARACAP WHERE EMPRESA_AC = "
      "'B00000000'";
};

// ---- Dates

TEST(Condicio_Data, is_a_range_a_bound_or_nothing) {
  const Data_Hora un{2011, 2, 1};
  const Data_Hora dos{2011, 3, 5};
  EXPECT_EQ(Condicio_Data(un, dos, "DATA_AC"), "DATA_AC BETWEEN #2/1/2011# AND #3/5/2011#");
  EXPECT_EQ(Condicio_Data(un, {}, "DATA_AC"), "DATA_AC >= #2/1/2011#");
  EXPECT_EQ(Condicio_Data({}, dos, "DATA_AC"), "DATA_AC <= #3/5/2011#");
  EXPECT_EQ(Condicio_Data({}, {}, "DATA_AC"), "");
}

TEST(Criteris_Per_Defecte, are_all_numbers_of_the_last_month) {
  Fixar_Avui({2011, 3, 5});
  const Criteris_Cerca criteris = Criteris_Per_Defecte();
  EXPECT_EQ(criteris.numero_entre, "0");
  EXPECT_EQ(criteris.numero_y, "999999999");
  EXPECT_EQ(criteris.data_entre, (Data_Hora{2011, 2, 5}));
  EXPECT_EQ(criteris.data_y, (Data_Hora{2011, 3, 5}));
  EXPECT_EQ(criteris.article, "%");
  Deixar_Anar_Rellotge();
}

TEST(Criteris_Per_Defecte, a_month_before_the_last_day_of_a_longer_month_is_the_last_day) {
  Fixar_Avui({2012, 3, 31});
  EXPECT_EQ(Criteris_Per_Defecte().data_entre, (Data_Hora{2012, 2, 29}));
  Fixar_Avui({2011, 1, 15});
  EXPECT_EQ(Criteris_Per_Defecte().data_entre, (Data_Hora{2010, 12, 15}));
  Deixar_Anar_Rellotge();
}

// ---- Delivery notes

TEST_F(M_Consultes, no_filter_lists_the_company) {
  EXPECT_EQ(Consulta_Albarans({}, false), curta);
}

TEST_F(M_Consultes, the_long_list_has_what_the_invoicing_run_needs) {
  EXPECT_EQ(Consulta_Albarans({}, true),
            "SELECT NUMALB_AC, DATA_AC, CLIENT_AC, CLIENT_DESC_AC, OBSR_AC, IMPORT_AC, IVA_AC, RE_AC, ESTAT_AC, "
            "NUMFAC_AC FROM ALBARACAP WHERE EMPRESA_AC = 'B00000000'");
}

TEST_F(M_Consultes, an_article_brings_a_join) {
  EXPECT_EQ(
      Consulta_Albarans({.article = "a1", .article_desc = ""}, false),
      "SELECT DISTINCT NUMALB_AC, DATA_AC, CLIENT_DESC_AC, OBSR_AC, IMPORT_AC, ESTAT_AC FROM ALBARACAP, ALBARALIN "
      "WHERE ALBARACAP.NUMALB_AC = ALBARALIN.NUMALB_AL AND ALBARACAP.EMPRESA_AC = ALBARALIN.EMPRESA_AL AND "
      "EMPRESA_AC = 'B00000000' AND ARTICLE_AL LIKE '%a1%'");
}

TEST_F(M_Consultes, a_percent_sign_or_nothing_as_article_makes_no_join) {
  EXPECT_EQ(Consulta_Albarans({.article = "%", .article_desc = ""}, false), curta);
}

TEST_F(M_Consultes, a_note_with_two_lines_of_the_article_shows_once) {
  Posar_Albara(7);
  Posar_Linia_Albara(7, 1, 21, 1, 1.21);
  Posar_Linia_Albara(7, 2, 21, 1, 1.21);
  EXPECT_EQ(Files(Consulta_Albarans({.article = "A1"}, false)), 1);
}

TEST_F(M_Consultes, the_range_of_numbers_is_left_out_only_when_it_is_the_whole) {
  EXPECT_EQ(Consulta_Albarans({.numero_entre = "1"}, false), curta + " AND NUMALB_AC BETWEEN 1 AND 999999999");
  EXPECT_EQ(Consulta_Albarans({.numero_y = "9"}, false), curta + " AND NUMALB_AC BETWEEN 0 AND 9");
}

TEST_F(M_Consultes, the_bounds_of_the_range_may_stand_in_either_order) {
  for (const int numero : {3, 5, 8}) Posar_Albara(numero);
  EXPECT_EQ(Files(Consulta_Albarans({.numero_entre = "6", .numero_y = "4"}, false)), 1);
}

TEST_F(M_Consultes, dates_and_customer_are_conditions) {
  EXPECT_EQ(Consulta_Albarans({.data_entre = Data_Hora{2011, 2, 1}, .client = "C1"}, false),
            curta + " AND DATA_AC >= #2/1/2011# AND CLIENT_AC = 'C1'");
}

TEST_F(M_Consultes, amounts_count_when_one_of_them_is_not_0_and_an_upper_bound_of_0_is_none) {
  EXPECT_EQ(Consulta_Albarans({.import_entre = 10.5, .import_y = 20}, false),
            curta + " AND IMPORT_AC BETWEEN 10.5 AND 20");
  EXPECT_EQ(Consulta_Albarans({.import_y = 20}, false), curta + " AND IMPORT_AC BETWEEN 0 AND 20");
  EXPECT_EQ(Consulta_Albarans({.import_entre = 10}, false), curta + " AND IMPORT_AC >= 10");
}

TEST_F(M_Consultes, pending_notes_are_those_not_yet_invoiced) {
  sessio.Nomes_Pendents = true;
  EXPECT_EQ(Consulta_Albarans({}, false), curta + " AND ESTAT_AC = 0");
}

TEST_F(M_Consultes, all_the_filters_together_run) {
  sessio.Nomes_Pendents = true;
  const Data_Hora dia{2011, 2, 1};
  EXPECT_EQ(Files(Consulta_Albarans({.numero_entre = "1",
                                     .data_entre = dia,
                                     .data_y = dia,
                                     .client = "C1",
                                     .import_entre = 1,
                                     .article = "x",
                                     .article_desc = "50 % [b]"},
                                    true)),
            0);
}

TEST_F(M_Consultes, a_quote_in_any_filter_is_a_faulty_statement) {
  for (const Criteris_Cerca& criteris :
       {Criteris_Cerca{.client = "d'Anoia"}, Criteris_Cerca{.article = "d'A"}, Criteris_Cerca{.article_desc = "'"}}) {
    EXPECT_EQ(Error_De([&] { Consulta_Albarans(criteris, false); }).Numero(), errors::sentencia);
  }
}

TEST_F(M_Consultes, a_number_that_is_none_is_a_faulty_statement) {
  for (const char* numero : {"", "abc", "1 OR 1=1"})
    EXPECT_EQ(Error_De([&] { Consulta_Albarans({.numero_entre = numero}, false); }).Numero(), errors::sentencia);
}
