#include "documents/Documents.h"

#include "sales/M_Tipus_Venda.h"
#include "stock/M_Tipus_Estoc.h"
#include "tests/regles/Base.h"

class Documents : public Base_Dades {
 protected:
  static void Posar_Cap(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa = empresa_prova) {
    Executar("INSERT INTO " + std::string(tipus.cap.nom) + " (" + tipus.cap.Columna("NUMALB") + ", " +
             tipus.cap.Columna("EMPRESA") + ") VALUES(" + Numero_Document_SQL(tipus, numero) + ", " +
             Text_SQL(empresa) + ")");
  }
  static void Posar_Linia(const Tipus_Document& tipus, const Valor& numero, int linia) {
    Executar("INSERT INTO " + std::string(tipus.lin.nom) + " (" + tipus.lin.Columna("NUMALB") + ", " +
             tipus.lin.Columna("EMPRESA") + ", " + tipus.lin.Columna("LIN") + ", " + tipus.lin.Columna("DESCRIPCIO") +
             ") VALUES(" + Numero_Document_SQL(tipus, numero) + ", '" + empresa_prova + "', " + std::to_string(linia) +
             ", 'línia " + std::to_string(linia) + "')");
  }
  static void Posar_Peu(const Tipus_Document& tipus, const Valor& numero) {
    Executar("INSERT INTO " + std::string(tipus.peu.nom) + " (" + tipus.peu.Columna("NUMALB") + ", " +
             tipus.peu.Columna("EMPRESA") + ", " + tipus.peu.Columna("PORC_IVA") + ") VALUES(" +
             Numero_Document_SQL(tipus, numero) + ", '" + empresa_prova + "', 21)");
  }
  static std::int64_t Files_De(const Taula_Document& taula) { return Files("SELECT * FROM " + std::string(taula.nom)); }
};

TEST(Documents_SQL, a_column_is_a_role_word_and_the_suffix_of_its_table) {
  EXPECT_EQ(tipus_albara.lin.Columna("NUMALB"), "NUMALB_AL");
  EXPECT_EQ(tipus_albcompra.peu.Columna("PORC_IVA"), "PORC_IVA_ACP");
}

TEST(Documents_SQL, a_number_stands_bare_but_the_suppliers_own_one) {
  EXPECT_EQ(Numero_Document_SQL(tipus_albara, 12), "12");
  EXPECT_EQ(Numero_Document_SQL(tipus_albara, "12"), "12");
  EXPECT_EQ(Numero_Document_SQL(tipus_albcompra, "12/A"), "'12/A'");
}

TEST(Documents_SQL, the_editors_statements) {
  EXPECT_EQ(SQL_Capcalera(tipus_albara, 1, "01"), "SELECT * FROM ALBARACAP WHERE NUMALB_AC = 1 AND EMPRESA_AC = '01'");
  EXPECT_EQ(SQL_Capcalera(tipus_albcompra, "1", "01"),
            "SELECT * FROM ALBCOMPRACAP WHERE NUMALB_ACC = '1' AND EMPRESA_ACC = '01'");
  EXPECT_EQ(SQL_Peu(tipus_albara, 1, "01"),
            "SELECT TIPUS_IVA_AP, DESC_IVA_AP, PORC_IVA_AP, PORC_RE_AP, BASE_AP,IVA_AP, RE_AP, IMPORT_AP FROM "
            "ALBARAPEU WHERE NUMALB_AP = 1 AND EMPRESA_AP = '01' ORDER BY TIPUS_IVA_AP");
  EXPECT_EQ(
      SQL_Linies(tipus_comanda, 1, "01"),
      "SELECT NUMALB_CL, EMPRESA_CL, LIN_CL, ARTICLE_CL, DESCRIPCIO_CL, PREU_UNITARI_CL, UNITATS_CL, PORC_IVA_CL, "
      "PORC_RE_CL, IMPORT_NET_CL, DTE_CL, PVP_CL, SERVIDES_CL, COST_CL, PORC_MARGE_CL, MARGE_CL, IMPORT_BRUT_CL "
      "FROM COMANDALIN WHERE NUMALB_CL = 1 AND EMPRESA_CL = '01' ORDER BY LIN_CL");
}

TEST_F(Documents, the_statements_of_every_kind_run) {
  for (const Tipus_Document* tipus :
       {&tipus_pressupost, &tipus_comanda, &tipus_albara, &tipus_factura, &tipus_albcompra, &tipus_albmag}) {
    EXPECT_EQ(Files(SQL_Capcalera(*tipus, 1, empresa_prova)), 0);
    EXPECT_EQ(Files(SQL_Linies(*tipus, 1, empresa_prova)), 0);
    if (tipus->peu.nom.empty()) continue;
    EXPECT_EQ(Files(SQL_Peu(*tipus, 1, empresa_prova)), 0);
  }
}

TEST(Documents_SQL, the_letters_of_locks_and_of_payments_are_two_matters) {
  EXPECT_EQ(tipus_albara.lletra_bloqueig, "AC");
  EXPECT_EQ(tipus_albara.lletra_pagament, "A");
  EXPECT_EQ(tipus_comanda.lletra_bloqueig, "P");
  EXPECT_EQ(tipus_comanda.lletra_pagament, "P");
  EXPECT_EQ(tipus_factura.lletra_pagament, "F");
  EXPECT_EQ(tipus_pressupost.lletra_pagament, "");
}

TEST(Numero_Escrit, is_a_whole_number_from_1_to_what_its_column_holds) {
  for (const char* text : {"12", " 12 ", "12,0"}) EXPECT_EQ(Numero_Escrit(tipus_albara, text), Valor(12)) << text;
  EXPECT_EQ(Numero_Escrit(tipus_albara, "2147483647"), Valor(2147483647));
  for (const char* text : {"", " ", "0", "-1", "1,5", "abc", "2147483648", "1e400"})
    EXPECT_EQ(Numero_Escrit(tipus_albara, text), std::nullopt) << text;
}

TEST(Numero_Escrit, is_any_text_where_numbers_are_texts) {
  EXPECT_EQ(Numero_Escrit(tipus_albcompra, " A/12-b "), Valor("A/12-b"));
  EXPECT_EQ(Numero_Escrit(tipus_albcompra, "007"), Valor("007"));
  EXPECT_EQ(Numero_Escrit(tipus_albcompra, "  "), std::nullopt);
}

TEST(Mateix_Numero, tells_no_capitals_apart) {
  EXPECT_TRUE(Mateix_Numero("a/12", "A/12"));
  EXPECT_TRUE(Mateix_Numero(7, 7));
  EXPECT_FALSE(Mateix_Numero("7", "07"));
}

TEST(Numero_Per_A_Fitxer, leaves_its_folder_in_no_case) {
  EXPECT_EQ(Numero_Per_A_Fitxer(12), "12");
  EXPECT_EQ(Numero_Per_A_Fitxer("A/12-b"), "A-12-b");
  EXPECT_EQ(Numero_Per_A_Fitxer("../../etc"), "------etc");
  EXPECT_EQ(Numero_Per_A_Fitxer("...\\\n"), "--.--");
}

TEST_F(Documents, each_kind_asks_in_its_own_words_and_Cancel_keeps_the_document) {
  for (const Tipus_Document* tipus : Tipus_Registrats()) {
    Posar_Cap(*tipus, 7);
    pantalla.respostes.push_back(Resposta::Cancel);
    Demanar_Esborrar_Document(*tipus, 7, empresa_prova);
    EXPECT_EQ(pantalla.caixes.back().text, tipus->pregunta_esborrar.catala + std::string("7 ?"));
    EXPECT_EQ(Files_De(tipus->cap), 1) << tipus->formulari;
    pantalla.respostes.push_back(Resposta::Ok);
    Demanar_Esborrar_Document(*tipus, 7, empresa_prova);
    EXPECT_EQ(Files_De(tipus->cap), 0) << tipus->formulari;
  }
}

TEST_F(Documents, a_document_that_the_database_keeps_is_refused_in_the_words_of_its_kind) {
  Posar_Cap(tipus_albcompra, 7);
  Posar_Linia(tipus_albcompra, 7, 1);
  pantalla.respostes.push_back(Resposta::Ok);
  Demanar_Esborrar_Document(tipus_albcompra, 7, empresa_prova);
  EXPECT_EQ(pantalla.caixes.back(),
            (Caixa_Vista{"No es pot esborrar l'Albarà de compra 7 !!!", estil::critic, "Brollador"}));
  EXPECT_EQ(Files_De(tipus_albcompra.cap), 1);
}

TEST_F(Documents, payments_keep_a_document_of_a_kind_that_takes_them) {
  Posar_Cap(tipus_comanda, 7);
  Posar_Pagament("P", 7);
  pantalla.respostes.push_back(Resposta::Ok);
  Demanar_Esborrar_Document(tipus_comanda, 7, empresa_prova);
  EXPECT_EQ(pantalla.caixes.back().text, "No es pot esborrar. Hi ha pagaments!");
  EXPECT_EQ(Files_De(tipus_comanda.cap), 1);
}

TEST(Tipus_De_Document, all_six_are_told_and_are_told_once) {
  const Installacio_Prova installacio;
  Registrar_Tipus(tipus_albara);
  EXPECT_EQ(Tipus_Registrats().size(), 6U);
}

TEST_F(Documents, the_first_number_of_a_company_is_1_in_every_kind) {
  for (const Tipus_Document* tipus :
       {&tipus_pressupost, &tipus_comanda, &tipus_albara, &tipus_factura, &tipus_albcompra, &tipus_albmag}) {
    EXPECT_EQ(Crear_Capcalera(*tipus).Text(), "1") << tipus->formulari;
  }
}

TEST_F(Documents, a_new_head_carries_its_company_and_todays_date_and_nothing_else) {
  Fixar_Avui({2011, 3, 5});
  Crear_Capcalera(tipus_albara);
  const Recordset rs("SELECT * FROM ALBARACAP", sessio.Connexio_Comuna);
  EXPECT_EQ(rs["EMPRESA_AC"].Text(), empresa_prova);
  EXPECT_EQ(rs["EMP_DESC_AC"].Text(), "Empresa de prova");
  EXPECT_EQ(rs["DATA_AC"].Data(), (Data_Hora{2011, 3, 5}));
  EXPECT_TRUE(rs["CLIENT_AC"].Es_Nul());
  EXPECT_TRUE(rs["CLIENT_DESC_AC"].Es_Nul());
  EXPECT_FALSE(rs["ESTAT_AC"].Boolea());
  EXPECT_EQ(rs["IMPORT_AC"].Doble(), 0);
}

TEST_F(Documents, a_note_that_is_not_invoiced_has_the_empty_text_and_no_null_for_its_invoice) {
  Crear_Capcalera(tipus_albara);
  EXPECT_EQ(Files("SELECT * FROM ALBARACAP WHERE NUMFAC_AC = ''"), 1);
}

TEST_F(Documents, without_a_company_no_head_is_made) {
  for (const char* empresa : {"", "  "}) {
    sessio.Empresa_Actual = empresa;
    const Error_Brollador error = Error_De([] { Crear_Capcalera(tipus_albara); });
    EXPECT_EQ(error.Numero(), errors::refusat);
    EXPECT_EQ(error.Origen(), "Empresa");
    EXPECT_EQ(error.Descripcio(), "Empresa");
  }
  EXPECT_EQ(Files_De(tipus_albara.cap), 0);
}

TEST_F(Documents, numbers_are_one_above_the_highest_of_their_company) {
  Posar_Cap(tipus_albara, 7);
  Posar_Cap(tipus_albara, 99, "C1");
  EXPECT_EQ(Seguent_Numero(tipus_albara, empresa_prova).Enter(), 8);
}

TEST_F(Documents, the_highest_number_is_given_again_when_it_comes_free_and_a_lower_one_is_not) {
  for (const int numero : {1, 2, 3}) Posar_Cap(tipus_albara, numero);
  Esborrar_Document(tipus_albara, 3, empresa_prova);
  Esborrar_Document(tipus_albara, 1, empresa_prova);
  EXPECT_EQ(Seguent_Numero(tipus_albara, empresa_prova).Enter(), 3);
}

TEST_F(Documents, nothing_reserves_a_number_and_the_key_refuses_the_second_to_take_it) {
  const Valor numero = Seguent_Numero(tipus_albara, empresa_prova);
  EXPECT_EQ(Seguent_Numero(tipus_albara, empresa_prova), numero);
  Posar_Cap(tipus_albara, numero);
  EXPECT_EQ(Error_De([&] { Posar_Cap(tipus_albara, numero); }).Numero(), errors::general);
}

TEST_F(Documents, a_number_beyond_32_bits_is_an_overflow) {
  Posar_Cap(tipus_albara, 2147483647);
  EXPECT_EQ(Error_De([] { Crear_Capcalera(tipus_albara); }).Numero(), errors::desbordament);
}

TEST_F(Documents, a_purchase_note_with_letters_does_not_count_for_the_next_number_and_one_of_digits_does) {
  Posar_Cap(tipus_albcompra, "12/A");
  EXPECT_EQ(Seguent_Numero(tipus_albcompra, empresa_prova), Valor("1"));
  Posar_Cap(tipus_albcompra, "12");
  EXPECT_EQ(Seguent_Numero(tipus_albcompra, empresa_prova), Valor("13"));
}

TEST_F(Documents, what_counts_as_a_number_gives_its_whole_part_to_the_next_one) {
  for (const auto& [escrit, seguent] :
       std::vector<std::pair<std::string, std::string>>{{"$5", "6"},
                                                        {"12,5", "13"},
                                                        {"$ 7", "8"},
                                                        {"1.234", "1235"},
                                                        {"20260000123456", "20260000123457"},
                                                        {"123456789012345678", "123456789012345679"},
                                                        {"9999999999999999", "10000000000000000"},
                                                        {"007", "8"},
                                                        {"1E20", "1E+20"}}) {
    Executar("DELETE * FROM ALBCOMPRACAP");
    Posar_Cap(tipus_albcompra, escrit);
    EXPECT_EQ(Seguent_Numero(tipus_albcompra, empresa_prova), Valor(seguent)) << escrit;
    EXPECT_EQ(Crear_Capcalera(tipus_albcompra), Valor(seguent)) << escrit;
  }
}

TEST_F(Documents, the_highest_purchase_number_is_that_of_texts_so_that_9_beats_10) {
  Posar_Cap(tipus_albcompra, "9");
  Posar_Cap(tipus_albcompra, "10");
  EXPECT_EQ(Seguent_Numero(tipus_albcompra, empresa_prova), Valor("10"));
  EXPECT_EQ(Error_De([] { Crear_Capcalera(tipus_albcompra); }).Numero(), errors::general);
}

TEST_F(Documents, a_document_exists_in_its_company) {
  Posar_Cap(tipus_albara, 7);
  EXPECT_TRUE(Existeix_Document(tipus_albara, 7, empresa_prova));
  EXPECT_FALSE(Existeix_Document(tipus_albara, 8, empresa_prova));
  EXPECT_FALSE(Existeix_Document(tipus_albara, 7, "C1"));
}

TEST_F(Documents, lines_are_numbered_from_1_and_a_removed_line_leaves_its_gap) {
  Posar_Cap(tipus_albara, 7);
  EXPECT_EQ(Seguent_Linia(tipus_albara, 7, empresa_prova), 1);
  for (const int linia : {1, 2, 3}) Posar_Linia(tipus_albara, 7, linia);
  Executar("DELETE * FROM ALBARALIN WHERE LIN_AL = 2");
  EXPECT_EQ(Seguent_Linia(tipus_albara, 7, empresa_prova), 4);
  EXPECT_EQ(Comptar_Linies(tipus_albara, 7, empresa_prova), 2);
}

TEST_F(Documents, line_32767_is_the_last) {
  Posar_Cap(tipus_albara, 7);
  Posar_Linia(tipus_albara, 7, 32766);
  EXPECT_EQ(Seguent_Linia(tipus_albara, 7, empresa_prova), 32767);
  Posar_Linia(tipus_albara, 7, 32767);
  EXPECT_EQ(Error_De([] { Seguent_Linia(tipus_albara, 7, empresa_prova); }).Numero(), errors::desbordament);
}

TEST_F(Documents, has_discounts_when_a_line_has_one) {
  Posar_Cap(tipus_albara, 7);
  Posar_Linia(tipus_albara, 7, 1);
  EXPECT_FALSE(Hi_Ha_Descomptes(tipus_albara, 7, empresa_prova));
  Executar("UPDATE ALBARALIN SET DTE_AL = 5");
  EXPECT_TRUE(Hi_Ha_Descomptes(tipus_albara, 7, empresa_prova));
}

class Linies_Que_Es_Mouen : public Documents {
 protected:
  void SetUp() override {
    Posar_Cap(tipus_albara, 7);
    for (const int linia : {1, 2, 5}) Posar_Linia(tipus_albara, 7, linia);
  }
  static std::string Ordre() {
    std::string ordre;
    Recordset rs(SQL_Linies(tipus_albara, 7, empresa_prova), sessio.Connexio_Comuna);
    for (; !rs.Eof(); rs.MoveNext()) ordre += rs["LIN_AL"].Text() + ":" + rs["DESCRIPCIO_AL"].Text() + " ";
    return ordre;
  }
};

TEST_F(Linies_Que_Es_Mouen, down_takes_the_number_of_the_next_one_across_a_gap) {
  EXPECT_TRUE(Intercanviar_Linia(tipus_albara, 7, empresa_prova, 2, true));
  EXPECT_EQ(Ordre(), "1:línia 1 2:línia 5 5:línia 2 ");
  EXPECT_FALSE(sessio.Transaccio_Oberta());
}

TEST_F(Linies_Que_Es_Mouen, up_takes_the_number_of_the_one_before) {
  EXPECT_TRUE(Intercanviar_Linia(tipus_albara, 7, empresa_prova, 5, false));
  EXPECT_EQ(Ordre(), "1:línia 1 2:línia 5 5:línia 2 ");
}

TEST_F(Linies_Que_Es_Mouen, the_first_does_not_go_up_nor_the_last_down) {
  EXPECT_FALSE(Intercanviar_Linia(tipus_albara, 7, empresa_prova, 1, false));
  EXPECT_FALSE(Intercanviar_Linia(tipus_albara, 7, empresa_prova, 5, true));
  EXPECT_EQ(Ordre(), "1:línia 1 2:línia 2 5:línia 5 ");
}

TEST_F(Documents, lines_and_foot_go_with_the_head_of_a_sales_document) {
  for (const Tipus_Document* tipus : {&tipus_pressupost, &tipus_comanda, &tipus_albara, &tipus_factura}) {
    Posar_Cap(*tipus, 7);
    Posar_Linia(*tipus, 7, 1);
    Posar_Peu(*tipus, 7);
    Esborrar_Document(*tipus, 7, empresa_prova);
    EXPECT_EQ(Files_De(tipus->cap) + Files_De(tipus->lin) + Files_De(tipus->peu), 0) << tipus->formulari;
  }
}

TEST_F(Documents, lines_and_foot_follow_the_number_of_their_head) {
  for (const Tipus_Document* tipus :
       {&tipus_pressupost, &tipus_comanda, &tipus_albara, &tipus_factura, &tipus_albcompra}) {
    Posar_Cap(*tipus, 7);
    Posar_Linia(*tipus, 7, 1);
    Posar_Peu(*tipus, 7);
    Executar("UPDATE " + std::string(tipus->cap.nom) + " SET " + tipus->cap.Columna("NUMALB") + " = " +
             Numero_Document_SQL(*tipus, 8));
    EXPECT_EQ(Comptar_Linies(*tipus, 8, empresa_prova), 1) << tipus->formulari;
    EXPECT_EQ(Files(SQL_Peu(*tipus, 8, empresa_prova)), 1) << tipus->formulari;
  }
}

TEST_F(Documents, a_purchase_or_transfer_note_with_lines_cannot_go) {
  for (const Tipus_Document* tipus : {&tipus_albcompra, &tipus_albmag}) {
    Posar_Cap(*tipus, 7);
    Posar_Linia(*tipus, 7, 1);
    EXPECT_EQ(Error_De([&] { Esborrar_Document(*tipus, 7, empresa_prova); }).Numero(), errors::general);
    EXPECT_EQ(Files_De(tipus->cap), 1) << tipus->formulari;
  }
}

TEST_F(Documents, the_foot_does_not_hold_back_a_purchase_note) {
  Posar_Cap(tipus_albcompra, 7);
  Posar_Peu(tipus_albcompra, 7);
  Esborrar_Document(tipus_albcompra, 7, empresa_prova);
  EXPECT_EQ(Files_De(tipus_albcompra.cap) + Files_De(tipus_albcompra.peu), 0);
}

TEST_F(Documents, an_empty_one_goes_on_closing_and_its_number_comes_free) {
  const Valor numero = Crear_Capcalera(tipus_albara);
  EXPECT_EQ(Esborrar_Document_Buit(tipus_albara, numero, empresa_prova), Buit::Esborrat);
  EXPECT_EQ(Esborrar_Document_Buit(tipus_albara, numero, empresa_prova), Buit::Perdut);
  EXPECT_EQ(Crear_Capcalera(tipus_albara), numero);
}

TEST_F(Documents, one_with_lines_or_with_payments_stays_on_closing) {
  Posar_Cap(tipus_albara, 7);
  Posar_Linia(tipus_albara, 7, 1);
  Posar_Cap(tipus_albara, 8);
  Posar_Pagament("A", 8);
  EXPECT_EQ(Esborrar_Document_Buit(tipus_albara, 7, empresa_prova), Buit::Es_Queda);
  EXPECT_EQ(Esborrar_Document_Buit(tipus_albara, 8, empresa_prova), Buit::Es_Queda);
  EXPECT_EQ(Files_De(tipus_albara.cap), 2);
}

TEST_F(Documents, payments_stay_on_the_old_number_of_a_note_that_is_renumbered) {
  Posar_Cap(tipus_albara, 7);
  Posar_Pagament("A", 7);
  Executar("UPDATE ALBARACAP SET NUMALB_AC = 8");
  EXPECT_EQ(Numero("SELECT NUMALB_PAG FROM PAGAMENTS"), 7);
}
