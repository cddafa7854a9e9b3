// The dialect through a real connection: what a statement of the system gives.
#include "core/dades/Dialecte.h"

#include "tests/dades/Base_Dades.h"

using Dialecte = Base_Dades;

TEST(Escanejar, Lifts_every_literal_out_of_the_statement) {
  const auto s = Escanejar("SELECT TOP 1 * FROM T WHERE A = 'x''y' AND B >= -2.5 AND C = #3/5/2011# AND D_1 IN(7,8)");
  EXPECT_EQ(s.forma, "SELECT TOP ?1 * FROM T WHERE A = ?2 AND B >= ?3 AND C = ?4 AND D_1 IN(?5,?6)");
  ASSERT_EQ(s.literals.size(), 6U);
  EXPECT_EQ(s.literals[1], Valor("x'y"));
  EXPECT_EQ(s.literals[2], Valor(-2.5));
  EXPECT_EQ(s.literals[3], Valor(Data_Hora{.any = 2011, .mes = 3, .dia = 5}));
}

TEST(Escanejar, Statements_that_differ_in_values_share_a_shape) {
  EXPECT_EQ(Escanejar("SELECT A FROM T WHERE B = 'one' AND C = 2").forma,
            Escanejar("SELECT A FROM T WHERE B = 'it is # 2' AND C = -33.5").forma);
}

TEST(Escanejar, A_subtraction_is_no_negative_literal) {
  EXPECT_EQ(Escanejar("SET A = A -1 WHERE B = -1").forma, "SET A = A -?1 WHERE B = ?2");
}

TEST(Escanejar, Refuses_unclosed_quotes_false_dates_and_second_statements) {
  for (const char* text : {"SELECT * FROM T WHERE A = 'd'Anoia'", "SELECT 'x", "SELECT #13/32/2011#", "SELECT #today#",
                           "SELECT #3/5/2011 24:00:00#", "SELECT #3/5/2011 9:05#", "SELECT #3/5/2011 #",
                           "DELETE * FROM A; DELETE * FROM B", "SELECT 1 -- x", "SELECT 12abc"}) {
    EXPECT_EQ(Numero_Error([&] { Escanejar(text); }), errors::sentencia) << text;
  }
}

TEST(Text_SQL, Refuses_a_value_that_would_end_its_literal) {
  EXPECT_EQ(Text_SQL("Anoia"), "'Anoia'");
  EXPECT_EQ(Numero_Error([] { Text_SQL("d'Anoia"); }), errors::sentencia);
  EXPECT_EQ(Numero_Error([] { Text_SQL("x' OR 'a'='a"); }), errors::sentencia);
  EXPECT_EQ(Numero_Error([] { Text_SQL(std::string("a\0b", 3)); }), errors::sentencia);
}

TEST_F(Dialecte, A_faulty_statement_runs_nothing) {
  Client("1", "Anoia");
  EXPECT_EQ(Numero_Error([&] { connexio.Execute("DELETE * FROM CLIENTS WHERE RAO_SOCIAL_CLI <> 'd'Anoia'"); }),
            errors::sentencia);
  EXPECT_EQ(Numero_Error([&] { connexio.Execute("UPDATE CLIENTS SET SALDO_CLI = 7,5"); }), errors::sentencia);
  EXPECT_EQ(Un_Valor("SELECT SALDO_CLI FROM CLIENTS"), Valor(0.0));
}

TEST_F(Dialecte, Delete_with_the_asterisk_and_top) {
  Client("1", "A");
  Client("2", "B");
  EXPECT_EQ(Columna_Sencera("SELECT TOP 1 NIF_CLI FROM CLIENTS ORDER BY NIF_CLI"), "1");
  EXPECT_EQ(connexio.Execute("DELETE * FROM CLIENTS"), 2);
}

TEST_F(Dialecte, Between_takes_its_bounds_in_either_order) {
  Document(1, {});
  Document(5, {});
  EXPECT_EQ(Columna_Sencera("SELECT NUM_C FROM CAP WHERE NUM_C BETWEEN 9 AND 2"), "5");
  EXPECT_EQ(Columna_Sencera("SELECT NUM_C FROM CAP WHERE DATA_C BETWEEN #12/31/2011# AND #1/1/2011# AND NUM_C = 1"),
            "1");
  EXPECT_EQ(Columna_Sencera("SELECT NUM_C FROM CAP WHERE 3 BETWEEN NUM_C + 3 AND NUM_C"), "1");
}

TEST_F(Dialecte, An_alias_may_be_used_again_in_its_list) {
  Document(1, {"A"});
  EXPECT_EQ(Un_Valor("SELECT SUM(DOBLE_U) FROM (SELECT (UNITATS_L + 1) AS UNIT, UNIT * 2 AS DOBLE_U FROM LIN)"),
            Valor(4.0));
}

TEST_F(Dialecte, An_alias_that_is_a_column_is_still_the_column) {
  Document(1, {"A", "B"});
  EXPECT_EQ(Un_Valor("SELECT SUM(UNITATS_L) AS UNITATS_L, MAX(UNITATS_L) AS M FROM LIN GROUP BY NUM_L"), Valor(2.0));
}

TEST_F(Dialecte, A_grouped_set_comes_in_the_order_of_its_groups) {
  for (const int n : {9, 3, 7}) Document(n, {"A"});
  EXPECT_EQ(Columna_Sencera("SELECT NUM_L, COUNT(*) AS N FROM LIN GROUP BY NUM_L"), "3 7 9");
}

TEST_F(Dialecte, Dates_compare_as_moments_and_a_date_means_its_midnight) {
  Document(1, {});
  connexio.Execute("UPDATE CAP SET HORA_C = #3/5/2011#");
  EXPECT_EQ(Columna_Sencera("SELECT NUM_C FROM CAP WHERE HORA_C = #3/5/2011#"), "1");
  Recordset rs("SELECT * FROM CAP", connexio, Bloqueig::Optimista);
  rs.Set("HORA_C", Data_Hora{.any = 2011, .mes = 3, .dia = 6, .segon = 1});
  rs.Update();
  EXPECT_EQ(Columna_Sencera("SELECT NUM_C FROM CAP WHERE HORA_C BETWEEN #3/4/2011# AND #3/6/2011#"), "");
  EXPECT_EQ(Columna_Sencera("SELECT NUM_C FROM CAP WHERE HORA_C > #3/6/2011#"), "1");
  EXPECT_EQ(Columna_Sencera("SELECT NUM_C FROM CAP WHERE HORA_C = #3/6/2011 0:00:01#"), "1");
  EXPECT_EQ(Columna_Sencera("SELECT NUM_C FROM CAP WHERE HORA_C BETWEEN #3/6/2011# AND #3/6/2011 23:59:59#"), "1");
  connexio.Execute("UPDATE CAP SET HORA_C = #3/7/2011 9:05:30#");
  EXPECT_EQ(Un_Valor("SELECT HORA_C FROM CAP"), Valor(Data_Hora{2011, 3, 7, 9, 5, 30}));
  connexio.Execute("UPDATE CAP SET HORA_C = #3/7/2011 0:00:00#");
  EXPECT_EQ(Columna_Sencera("SELECT NUM_C FROM CAP WHERE HORA_C = #3/7/2011#"), "1");
}

TEST_F(Dialecte, Functions_of_the_dialect) {
  Document(1, {});
  EXPECT_EQ(Un_Valor("SELECT DATESERIAL(2011, 2, 29) AS D FROM CAP"),
            Valor(Data_Hora{.any = 2011, .mes = 3, .dia = 1}));
  EXPECT_EQ(Un_Valor("SELECT DATEPART('m', DATA_C) FROM CAP"), Valor(3));
  EXPECT_EQ(Un_Valor("SELECT DAY(DATA_C) FROM CAP"), Valor(5));
  EXPECT_EQ(Un_Valor("SELECT ROUND(2.675, 2) FROM CAP"), Valor(2.68));
  EXPECT_EQ(Un_Valor("SELECT ROUND(0.125, 2) FROM CAP"), Valor(0.12));
  EXPECT_TRUE(Un_Valor("SELECT TOP 1 NOW() AS ARA FROM CAP").Es_Data());
  EXPECT_TRUE(Un_Valor("SELECT MAX(DATA_C) AS D FROM CAP").Es_Data());
}

TEST_F(Dialecte, Isnumeric_takes_what_looks_like_a_number) {
  for (const char* text : {"12", "1,5", "1E3", "$5", " 12 "}) Client(text, "si");
  for (const char* text : {"12/A", "", "ABC"}) Client(text, "no");
  EXPECT_EQ(Un_Valor("SELECT COUNT(*) FROM CLIENTS WHERE ISNUMERIC(NIF_CLI) = -1 AND RAO_SOCIAL_CLI = 'si'"), Valor(5));
  EXPECT_EQ(Un_Valor("SELECT COUNT(*) FROM CLIENTS WHERE ISNUMERIC(NIF_CLI) = -1 AND RAO_SOCIAL_CLI = 'no'"), Valor(0));
}

TEST_F(Dialecte, Equality_keys_and_like_ignore_case_for_all_letters) {
  Client("àb", "Façana Àvila");
  EXPECT_EQ(Un_Valor("SELECT NIF_CLI FROM CLIENTS WHERE NIF_CLI = 'ÀB'"), Valor("àb"));
  EXPECT_EQ(Un_Valor("SELECT NIF_CLI FROM CLIENTS WHERE RAO_SOCIAL_CLI LIKE '%FAÇANA à%'"), Valor("àb"));
  EXPECT_TRUE(Un_Valor("SELECT NIF_CLI FROM CLIENTS WHERE RAO_SOCIAL_CLI LIKE '%facana%'").Es_Nul());
  EXPECT_EQ(Numero_Error([&] { Client("ÀB", "x"); }), errors::general);
  Client("ab", "another key");
}

TEST_F(Dialecte, Names_are_ordered_as_a_catalan_dictionary_and_codes_as_written) {
  for (const char* nom : {"Zapata", "Àlvarez", "Alzina", "alba", "Çelik", "Casals"}) Client(nom, nom);
  EXPECT_EQ(Columna_Sencera("SELECT RAO_SOCIAL_CLI FROM CLIENTS ORDER BY RAO_SOCIAL_CLI"),
            "alba Àlvarez Alzina Casals Çelik Zapata");
  EXPECT_EQ(Columna_Sencera("SELECT NIF_CLI FROM CLIENTS ORDER BY NIF_CLI"), "alba Alzina Casals Zapata Àlvarez Çelik");
}

TEST_F(Dialecte, Names_of_columns_are_found_in_any_case_accents_and_cedilla_included) {
  Client("1", "A");
  connexio.Execute("update clients set adreça_cli = 'Carrer' where nif_cli = '1'");
  const Recordset rs("select adreça_cli, Rao_Social_Cli from Clients", connexio);
  EXPECT_EQ(rs["ADREÇA_CLI"], Valor("Carrer"));
  EXPECT_EQ(rs["adreça_cli"], Valor("Carrer"));
  EXPECT_EQ(rs["rao_social_CLI"], Valor("A"));
}

TEST_F(Dialecte, A_column_of_another_table_is_an_error_and_no_text) {
  EXPECT_EQ(Numero_Error([&] { Un_Valor("SELECT NIF_CLI FROM CAP"); }), errors::sentencia);
  EXPECT_EQ(Numero_Error([&] { Un_Valor("SELECT NIF_CLI"); }), errors::sentencia);
}

TEST_F(Dialecte, A_set_over_a_derived_table_is_read_only) {
  Document(1, {});
  Recordset rs("SELECT MAX(NUM_C) AS M FROM (SELECT NUM_C FROM CAP)", connexio, Bloqueig::Optimista);
  EXPECT_EQ(rs["M"], Valor(1));
  EXPECT_EQ(Numero_Error([&] { rs.Set("M", 2); }), errors::general);
}

TEST_F(Dialecte, A_derived_table_needs_no_name) {
  Document(1, {});
  EXPECT_EQ(Un_Valor("SELECT MAX(NUM_C) FROM (SELECT NUM_C FROM CAP)"), Valor(1));
}

TEST_F(Dialecte, What_cannot_be_a_statement_is_refused_and_not_read_for_ever) {
  for (const char* sentencia :
       {"SELECT [a\"b] FROM CLIENTS", "SELECT * FROM CLIENTS WHERE ALTA_CLI > #3/5/2011#0", "SELECT \"a FROM CLIENTS",
        "SELECT [a FROM CLIENTS", "SELECT * FROM CLIENTS WHERE NIF_CLI LIKE", "SELECT",
        "SELECT * FROM CLIENTS WHERE ("}) {
    EXPECT_EQ(Numero_Error([&] { connexio.Execute(sentencia); }), errors::sentencia) << sentencia;
  }
}

TEST_F(Dialecte, A_bare_question_mark_is_a_faulty_statement) {
  EXPECT_EQ(Numero_Error([&] { Escanejar("SELECT * FROM CLIENTS WHERE NIF_CLI = ?"); }), errors::sentencia);
  EXPECT_EQ(Numero_Error([&] { Escanejar("SELECT ?1"); }), errors::sentencia);
  EXPECT_EQ(Escanejar("SELECT '?' FROM CLIENTS").literals.front(), Valor("?"));
}

TEST_F(Dialecte, A_statement_is_cut_at_its_order_wherever_else_these_words_stand) {
  EXPECT_EQ(Sense_Ordre("SELECT * FROM CLIENTS ORDER BY NIF_CLI"), "SELECT * FROM CLIENTS");
  EXPECT_EQ(Sense_Ordre("SELECT * FROM CLIENTS order \n by NIF_CLI DESC "), "SELECT * FROM CLIENTS");
  EXPECT_EQ(Sense_Ordre("SELECT * FROM CLIENTS "), "SELECT * FROM CLIENTS");
  const std::string amb_paraules = "SELECT * FROM CLIENTS WHERE RAO_SOCIAL_CLI LIKE '%ORDER BY d''x%'";
  EXPECT_EQ(Sense_Ordre(amb_paraules), amb_paraules);
  EXPECT_EQ(Sense_Ordre(amb_paraules + " ORDER BY RAO_SOCIAL_CLI"), amb_paraules);
  const std::string amb_noms = "SELECT REORDER, BY_1, \"ORDER BY\" FROM CLIENTS";
  EXPECT_EQ(Sense_Ordre(amb_noms), amb_noms);
  const std::string amb_derivada = "SELECT * FROM (SELECT TOP 1 NIF_CLI FROM CLIENTS ORDER BY NIF_CLI) WHERE 1 = 1";
  EXPECT_EQ(Sense_Ordre(amb_derivada + " ORDER BY 1"), amb_derivada);
}
