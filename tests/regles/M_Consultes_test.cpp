#include "documents/M_Consultes.h"

#include "sales/M_Consultes_Venda.h"
#include "stock/M_Consultes_Estoc.h"
#include "tests/regles/Base.h"

class M_Consultes : public Base_Dades {
 protected:
  const std::string curta =
      "SELECT NUMALB_AC, DATA_AC, CLIENT_DESC_AC, OBSR_AC, IMPORT_AC, ESTAT_AC FROM ALBARACAP WHERE EMPRESA_AC = "
      "'B00000000'";
  // Every criterion of a kind in use at once.
  static Valors_Cerca Tots_Els_Criteris(const Descripcio_Consulta& consulta) {
    Valors_Cerca valors = Valors_Per_Defecte(consulta.criteris);
    const Data_Hora dia{2011, 2, 1};
    for (auto& [control, valor] : valors) valor = {.text = "1", .text_y = "20", .data = dia, .data_y = dia};
    return valors;
  }
};

const Descripcio_Consulta* const totes_les_consultes[] = {&consulta_pressupostos, &consulta_comandes,
                                                          &consulta_albarans,     &consulta_factures,
                                                          &consulta_albcompres,   &consulta_albmag};

TEST(Condicio_Data, is_a_range_a_bound_or_nothing) {
  const Data_Hora un{2011, 2, 1};
  const Data_Hora dos{2011, 3, 5};
  EXPECT_EQ(Condicio_Data(un, dos, "DATA_AC"), "DATA_AC BETWEEN #2/1/2011# AND #3/5/2011#");
  EXPECT_EQ(Condicio_Data(un, {}, "DATA_AC"), "DATA_AC >= #2/1/2011#");
  EXPECT_EQ(Condicio_Data({}, dos, "DATA_AC"), "DATA_AC <= #3/5/2011#");
  EXPECT_EQ(Condicio_Data({}, {}, "DATA_AC"), "");
}

TEST(Valors_Per_Defecte, are_all_numbers_of_the_last_month) {
  Fixar_Avui({2011, 3, 5});
  const Valors_Cerca valors = Valors_Per_Defecte(consulta_albarans.criteris);
  EXPECT_EQ(valors.at("TXT_ALBARA").text, "0");
  EXPECT_EQ(valors.at("TXT_ALBARA").text_y, "999999999");
  EXPECT_EQ(valors.at("DT_DATA").data, (Data_Hora{2011, 2, 5}));
  EXPECT_EQ(valors.at("DT_DATA").data_y, (Data_Hora{2011, 3, 5}));
  EXPECT_EQ(valors.at("TXT_ARTICLE").text, "%");
  EXPECT_EQ(valors.at("CMB_CLIENT").text, "");
  Deixar_Anar_Rellotge();
}

TEST(Valors_Per_Defecte, numbers_that_are_texts_reach_to_the_highest_text) {
  const Valors_Cerca valors = Valors_Per_Defecte(consulta_albcompres.criteris);
  EXPECT_EQ(valors.at("TXT_ALBARA").text, "0");
  EXPECT_EQ(valors.at("TXT_ALBARA").text_y, "ZZZZZZZZZZZZZZZ");
}

TEST(Valors_Per_Defecte, a_month_before_the_last_day_of_a_longer_month_is_the_last_day) {
  const auto des_de = [] { return Valors_Per_Defecte(consulta_albarans.criteris).at("DT_DATA").data; };
  Fixar_Avui({2012, 3, 31});
  EXPECT_EQ(des_de(), (Data_Hora{2012, 2, 29}));
  Fixar_Avui({2011, 1, 15});
  EXPECT_EQ(des_de(), (Data_Hora{2010, 12, 15}));
  Deixar_Anar_Rellotge();
}

TEST_F(M_Consultes, what_the_form_shows_when_it_is_cleared_asks_for_nothing_but_the_last_month) {
  Fixar_Avui({2011, 3, 5});
  for (const Descripcio_Consulta* consulta : totes_les_consultes) {
    const std::string sentencia = Consulta(*consulta, Valors_Per_Defecte(consulta->criteris));
    const std::string data = consulta->tipus.cap.Columna("DATA") + " BETWEEN #2/5/2011# AND #3/5/2011#";
    EXPECT_EQ(sentencia, Consulta(*consulta, {}) + " AND " + data);
  }
  Deixar_Anar_Rellotge();
}

TEST_F(M_Consultes, the_statements_of_every_kind_run_bare_and_with_all_their_criteria) {
  for (const bool pendents : {false, true}) {
    sessio.Nomes_Pendents = pendents;
    for (const Descripcio_Consulta* consulta : totes_les_consultes) {
      const std::string ordre = std::string(" ORDER BY ") + consulta->ordre;
      EXPECT_EQ(Files(Consulta(*consulta, {}) + ordre), 0) << consulta->cerca;
      EXPECT_EQ(Files(Consulta(*consulta, Tots_Els_Criteris(*consulta)) + ordre), 0) << consulta->cerca;
    }
  }
}

TEST_F(M_Consultes, a_quote_in_any_text_of_any_kind_is_a_faulty_statement) {
  for (const Descripcio_Consulta* consulta : totes_les_consultes) {
    for (const Criteri& criteri : consulta->criteris) {
      if (criteri.mena == Mena_Criteri::Dates) continue;
      const Valors_Cerca valors{{criteri.control, {.text = "d'A", .text_y = "9"}}};
      EXPECT_EQ(Error_De([&] { Consulta(*consulta, valors); }).Numero(), errors::sentencia) << criteri.control;
    }
  }
}

TEST_F(M_Consultes, proposals_orders_and_invoices) {
  EXPECT_EQ(Consulta_Pressupostos({}),
            "SELECT NUMALB_PC, DATA_PC, CLIENT_DESC_PC, OBSR_PC, IMPORT_PC, ESTAT_PC FROM PRESSUPOSTCAP WHERE "
            "EMPRESA_PC = 'B00000000'");
  EXPECT_EQ(Consulta_Factures({}),
            "SELECT NUMALB_FC, DATA_FC, CLIENT_DESC_FC, OBSR_FC, IMPORT_FC FROM FACTURACAP WHERE EMPRESA_FC = "
            "'B00000000'");
  sessio.Nomes_Pendents = true;
  EXPECT_EQ(Consulta_Comandes({}),
            "SELECT NUMALB_CC, DATA_CC, CLIENT_DESC_CC, OBSR_CC, IMPORT_CC, ESTAT_CC FROM COMANDACAP WHERE EMPRESA_CC "
            "= 'B00000000' AND ESTAT_CC = 0");
  EXPECT_EQ(Consulta_Factures({}).find("ESTAT"), std::string::npos);
}

TEST_F(M_Consultes, purchase_notes_join_their_supplier_and_compare_numbers_as_texts) {
  EXPECT_EQ(SQL_AlbCompres({}),
            "SELECT NUMALB_ACC, DATA_ACC, RAO_SOCIAL_PRO, OBSR_ACC, IMPORT_ACC, ESTAT_ACC FROM ALBCOMPRACAP, "
            "PROVEIDORS WHERE PROVEIDORS.NIF_PRO = ALBCOMPRACAP.PROVEIDOR_ACC AND EMPRESA_ACC = 'B00000000'");
  EXPECT_EQ(SQL_AlbCompres({{"TXT_ARTICLE", {.text = "a1"}},
                            {"TXT_ALBARA", {.text = "A/1", .text_y = "B"}},
                            {"CMB_PROVEIDOR", {.text = "P1"}},
                            {"TXT_IMPORT", {.text = "20", .text_y = "0"}}}),
            "SELECT DISTINCT NUMALB_ACC, DATA_ACC, RAO_SOCIAL_PRO, OBSR_ACC, IMPORT_ACC, ESTAT_ACC FROM ALBCOMPRACAP, "
            "ALBCOMPRALIN, PROVEIDORS WHERE ALBCOMPRACAP.NUMALB_ACC = ALBCOMPRALIN.NUMALB_ACL AND "
            "ALBCOMPRACAP.EMPRESA_ACC = ALBCOMPRALIN.EMPRESA_ACL AND PROVEIDORS.NIF_PRO = ALBCOMPRACAP.PROVEIDOR_ACC "
            "AND EMPRESA_ACC = 'B00000000' AND ARTICLE_ACL LIKE '%a1%' AND NUMALB_ACC BETWEEN 'A/1' AND 'B' AND "
            "PROVEIDOR_ACC = 'P1' AND IMPORT_ACC BETWEEN 20 AND 0");
}

TEST_F(M_Consultes, transfers_find_a_part_of_a_warehouse) {
  EXPECT_EQ(Consulta_AlbMag({{"TXT_ORI", {.text = "1"}}, {"TXT_DESTI", {.text = "%"}}}),
            "SELECT NUMALB_AAC, DATA_AAC, ORI_AAC, DEST_AAC, OBSR_AAC, IMPORT_AAC, ESTAT_AAC FROM ALBALMCAP WHERE "
            "EMPRESA_AAC = 'B00000000' AND ORI_AAC LIKE '%1%'");
}

TEST_F(M_Consultes, the_last_day_of_a_range_of_moments_is_whole) {
  const std::vector<Criteri> moments = {{Mena_Criteri::Moments, "DT_DATA", "FECHA_MOV"}};
  const Data_Hora dia{2011, 12, 31};
  EXPECT_EQ(Condicions(moments, {{"DT_DATA", {.data = dia, .data_y = dia}}}),
            " AND FECHA_MOV BETWEEN #12/31/2011# AND #1/1/2012#");
}

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
      Consulta_Albarans({{"TXT_ARTICLE", {.text = "a1"}}, {"TXT_ARTICLE_DESC", {.text = ""}}}, false),
      "SELECT DISTINCT NUMALB_AC, DATA_AC, CLIENT_DESC_AC, OBSR_AC, IMPORT_AC, ESTAT_AC FROM ALBARACAP, ALBARALIN "
      "WHERE ALBARACAP.NUMALB_AC = ALBARALIN.NUMALB_AL AND ALBARACAP.EMPRESA_AC = ALBARALIN.EMPRESA_AL AND "
      "EMPRESA_AC = 'B00000000' AND ARTICLE_AL LIKE '%a1%'");
}

TEST_F(M_Consultes, the_filters_on_the_lines_stand_before_those_of_the_head_and_the_pending_ones_last) {
  sessio.Nomes_Pendents = true;
  EXPECT_EQ(Consulta_Albarans({{"TXT_ARTICLE", {.text = "A%1"}},
                               {"TXT_ARTICLE_DESC", {.text = "ports"}},
                               {"TXT_ALBARA", {.text = "1", .text_y = "9"}},
                               {"DT_DATA", {.data = Data_Hora{2011, 2, 1}, .data_y = Data_Hora{2011, 3, 5}}},
                               {"CMB_CLIENT", {.text = "C1"}},
                               {"TXT_IMPORT", {.text = "10", .text_y = "20"}}},
                              true),
            "SELECT DISTINCT NUMALB_AC, DATA_AC, CLIENT_AC, CLIENT_DESC_AC, OBSR_AC, IMPORT_AC, IVA_AC, RE_AC, "
            "ESTAT_AC, NUMFAC_AC FROM ALBARACAP, ALBARALIN WHERE ALBARACAP.NUMALB_AC = ALBARALIN.NUMALB_AL AND "
            "ALBARACAP.EMPRESA_AC = ALBARALIN.EMPRESA_AL AND EMPRESA_AC = 'B00000000' AND ARTICLE_AL LIKE '%A%1%' AND "
            "DESCRIPCIO_AL LIKE '%ports%' AND NUMALB_AC BETWEEN 1 AND 9 AND DATA_AC BETWEEN #2/1/2011# AND #3/5/2011# "
            "AND CLIENT_AC = 'C1' AND IMPORT_AC BETWEEN 10 AND 20 AND ESTAT_AC = 0");
}

TEST_F(M_Consultes, a_percent_sign_or_nothing_as_article_makes_no_join) {
  EXPECT_EQ(Consulta_Albarans({{"TXT_ARTICLE", {.text = "%"}}, {"TXT_ARTICLE_DESC", {.text = ""}}}, false), curta);
}

TEST_F(M_Consultes, a_note_with_two_lines_of_the_article_shows_once) {
  Posar_Albara(7);
  Posar_Linia_Albara(7, 1, 21, 1, 1.21);
  Posar_Linia_Albara(7, 2, 21, 1, 1.21);
  EXPECT_EQ(Files(Consulta_Albarans({{"TXT_ARTICLE", {.text = "A1"}}}, false)), 1);
}

TEST_F(M_Consultes, the_range_of_numbers_is_left_out_only_when_it_is_the_whole) {
  EXPECT_EQ(Consulta_Albarans({{"TXT_ALBARA", {.text = "1", .text_y = "999999999"}}}, false),
            curta + " AND NUMALB_AC BETWEEN 1 AND 999999999");
  EXPECT_EQ(Consulta_Albarans({{"TXT_ALBARA", {.text = "0", .text_y = "9"}}}, false),
            curta + " AND NUMALB_AC BETWEEN 0 AND 9");
}

TEST_F(M_Consultes, the_bounds_of_the_range_may_stand_in_either_order) {
  for (const int numero : {3, 5, 8}) Posar_Albara(numero);
  EXPECT_EQ(Files(Consulta_Albarans({{"TXT_ALBARA", {.text = "6", .text_y = "4"}}}, false)), 1);
}

TEST_F(M_Consultes, dates_and_customer_are_conditions) {
  EXPECT_EQ(Consulta_Albarans({{"DT_DATA", {.data = Data_Hora{2011, 2, 1}}}, {"CMB_CLIENT", {.text = "C1"}}}, false),
            curta + " AND DATA_AC >= #2/1/2011# AND CLIENT_AC = 'C1'");
}

TEST_F(M_Consultes, amounts_count_when_one_of_them_is_not_0_and_an_upper_bound_of_0_is_none) {
  const auto amb_imports = [](const char* des_de, const char* fins_a) {
    return Consulta_Albarans({{"TXT_IMPORT", {.text = des_de, .text_y = fins_a}}}, false);
  };
  EXPECT_EQ(amb_imports("10,5", "20"), curta + " AND IMPORT_AC BETWEEN 10.5 AND 20");
  EXPECT_EQ(amb_imports("0,00", "20"), curta + " AND IMPORT_AC BETWEEN 0 AND 20");
  EXPECT_EQ(amb_imports("10", ""), curta + " AND IMPORT_AC >= 10");
  EXPECT_EQ(amb_imports("", "0,00"), curta);
}

TEST_F(M_Consultes, pending_notes_are_those_not_yet_invoiced) {
  sessio.Nomes_Pendents = true;
  EXPECT_EQ(Consulta_Albarans({}, false), curta + " AND ESTAT_AC = 0");
}

TEST_F(M_Consultes, a_number_that_is_none_is_a_faulty_statement) {
  for (const char* numero : {"", "abc", "1 OR 1=1"}) {
    const Valors_Cerca valors{{"TXT_ALBARA", {.text = numero, .text_y = "9"}}};
    EXPECT_EQ(Error_De([&] { Consulta_Albarans(valors, false); }).Numero(), errors::sentencia);
  }
}

TEST_F(M_Consultes, margins_are_sums_over_the_lines_that_fit) {
  EXPECT_EQ(
      Consulta_Marges_Albarans({{"TXT_ARTICLE", {.text = "A1"}}, {"CMB_CLIENT", {.text = "C1"}}}),
      "SELECT NUMALB_AC, DATA_AC, CLIENT_DESC_AC, SUM(COST_AL * UNITATS_AL) AS COST_NET_AL, SUM(IMPORT_NET_AL) AS "
      "IMPORT_NET_AL, SUM(MARGE_AL) AS MARGE_AL FROM ALBARACAP, ALBARALIN WHERE ALBARACAP.NUMALB_AC = "
      "ALBARALIN.NUMALB_AL AND ALBARACAP.EMPRESA_AC = ALBARALIN.EMPRESA_AL AND EMPRESA_AC = 'B00000000' AND "
      "ARTICLE_AL LIKE '%A1%' AND CLIENT_AC = 'C1' GROUP BY NUMALB_AC, DATA_AC, CLIENT_DESC_AC");
  EXPECT_EQ(
      Consulta_Marges_Factures({}),
      "SELECT NUMALB_FC, DATA_FC, CLIENT_DESC_FC, SUM(COST_FL * UNITATS_FL) AS COST_NET_FL, SUM(IMPORT_NET_FL) AS "
      "IMPORT_NET_FL, SUM(MARGE_FL) AS MARGE_FL FROM FACTURACAP, FACTURALIN WHERE FACTURACAP.NUMALB_FC = "
      "FACTURALIN.NUMALB_FL AND FACTURACAP.EMPRESA_FC = FACTURALIN.EMPRESA_FL AND EMPRESA_FC = 'B00000000' GROUP "
      "BY NUMALB_FC, DATA_FC, CLIENT_DESC_FC");
}

TEST_F(M_Consultes, margins_look_at_all_notes_whatever_the_last_button_asked_for) {
  Posar_Albara(7);
  Executar("UPDATE ALBARACAP SET ESTAT_AC = -1");
  Posar_Linia_Albara(7, 1, 21, 10, 12.1);
  Posar_Linia_Albara(7, 2, 21, 20, 24.2);
  Executar("UPDATE ALBARALIN SET UNITATS_AL = 2, COST_AL = 3");
  sessio.Nomes_Pendents = true;
  const Recordset rs(Consulta_Marges_Albarans({}), sessio.Connexio_Comuna);
  ASSERT_EQ(rs.RecordCount(), 1);
  EXPECT_EQ(rs["COST_NET_AL"].Doble(), 12);
  EXPECT_EQ(rs["IMPORT_NET_AL"].Doble(), 30);
}

TEST_F(M_Consultes, the_book_of_invoices_adds_the_feet_and_looks_at_no_line) {
  EXPECT_EQ(Consulta_Llistat_Factures({{"TXT_ARTICLE", {.text = "A1"}}, {"TXT_FACTURA", {.text = "1", .text_y = "9"}}}),
            "SELECT NUMALB_FC, DATA_FC, CLIENT_DESC_FC, SUM(BASE_FP) AS BASE, SUM(IVA_FP) AS IVA, SUM(RE_FP) AS RE, "
            "SUM(IMPORT_FP) AS TOTAL FROM FACTURACAP, FACTURAPEU WHERE FACTURACAP.NUMALB_FC = FACTURAPEU.NUMALB_FP AND "
            "FACTURACAP.EMPRESA_FC = FACTURAPEU.EMPRESA_FP AND EMPRESA_FC = 'B00000000' AND +NUMALB_FC BETWEEN 1 AND 9 "
            "GROUP BY NUMALB_FC, DATA_FC, CLIENT_DESC_FC");
}
