// What an engine has to give, whichever it is: the same comparisons, the same order, transactions that outlive a
// statement that fails.
#include "core/dades/Dates.h"
#include "core/dades/Motor.h"
#include "core/dades/Taula_Plegat.h"
#include "core/dades/Text.h"
#include "tests/dades/Base_Dades.h"

using Motors = Base_Dades;

TEST_F(Motors, Every_letter_of_every_alphabet_is_found_in_its_other_case) {
  std::string majuscules;
  std::string minuscules;
  for (std::size_t i = 0; i < nombre_trams_plegat; ++i) {
    const Tram_Plegat& tram = trams_plegat[i];
    for (std::uint32_t codi = tram.primer; codi <= tram.ultim; codi += tram.pas) {
      Afegir_Caracter(majuscules, codi);
      Afegir_Caracter(minuscules, static_cast<std::uint32_t>(static_cast<std::int32_t>(codi) + tram.distancia));
    }
  }
  Client("1", majuscules);
  EXPECT_EQ(Un_Valor("SELECT NIF_CLI FROM CLIENTS WHERE RAO_SOCIAL_CLI = " + Text_SQL(minuscules)), Valor("1"));
  EXPECT_EQ(Un_Valor("SELECT NIF_CLI FROM CLIENTS WHERE RAO_SOCIAL_CLI LIKE " + Text_SQL("%" + minuscules + "%")),
            Valor("1"));
}

TEST_F(Motors, Keys_tell_accents_apart_but_not_capitals) {
  Client("Çà", "u");
  EXPECT_EQ(Numero_Error([&] { Client("çÀ", "dos"); }), errors::general);
  Client("Ca", "tres");
  EXPECT_EQ(Un_Valor("SELECT COUNT(*) FROM CLIENTS"), Valor(2));
}

TEST_F(Motors, Texts_are_compared_without_case_wherever_they_stand) {
  Client("a1", "Anna");
  Client("B2", "BERTA");
  Document(1, {"x1"});
  connexio.Execute("UPDATE CAP SET CLIENT_C = 'A1' WHERE EMPRESA_C = 'e'");
  EXPECT_EQ(Columna_Sencera("SELECT NIF_CLI FROM CLIENTS WHERE NIF_CLI IN ('A1', 'b2') ORDER BY NIF_CLI"), "a1 B2");
  EXPECT_EQ(Columna_Sencera("SELECT NIF_CLI FROM CLIENTS WHERE NIF_CLI IN (SELECT CLIENT_C FROM CAP)"), "a1");
  EXPECT_EQ(Columna_Sencera("SELECT RAO_SOCIAL_CLI FROM CLIENTS, CAP WHERE CAP.CLIENT_C = CLIENTS.NIF_CLI"), "Anna");
  EXPECT_EQ(Columna_Sencera("SELECT NIF_CLI FROM CLIENTS WHERE NIF_CLI BETWEEN 'b' AND 'Z'"), "B2");
  EXPECT_EQ(Columna_Sencera("SELECT NIF_CLI FROM CLIENTS WHERE 'berta' = RAO_SOCIAL_CLI"), "B2");
  EXPECT_EQ(Columna_Sencera("SELECT NIF_CLI FROM CLIENTS WHERE NIF_CLI NOT LIKE 'A%'"), "B2");
  EXPECT_EQ(Columna_Sencera("SELECT NIF_CLI FROM CLIENTS WHERE NIF_CLI <> 'A1'"), "B2");
  EXPECT_EQ(Columna_Sencera("SELECT NUM_C FROM CAP WHERE NUM_C LIKE '%1%'"), "1");
}

TEST_F(Motors, Groups_and_distinct_rows_do_not_tell_capitals) {
  Client("1", "Anna");
  Client("2", "ANNA");
  Client("3", "berta");
  connexio.Execute("UPDATE CLIENTS SET SALDO_CLI = 2");
  const Recordset rs("SELECT RAO_SOCIAL_CLI, SUM(SALDO_CLI) AS TOTAL FROM CLIENTS GROUP BY RAO_SOCIAL_CLI", connexio);
  ASSERT_EQ(rs.RecordCount(), 2);
  EXPECT_EQ(rs.Fields()[0].nom, "RAO_SOCIAL_CLI");
  EXPECT_EQ(rs.Fields()[1].nom, "TOTAL");
  EXPECT_EQ(rs.Valor_De_Fila(0, 1), Valor(4.0));
  EXPECT_EQ(rs.Valor_De_Fila(1, 0), Valor("berta"));
  EXPECT_EQ(Recordset("SELECT DISTINCT RAO_SOCIAL_CLI FROM CLIENTS", connexio).RecordCount(), 2);
}

TEST_F(Motors, The_last_of_some_texts_is_told_as_it_is_written) {
  EXPECT_TRUE(Un_Valor("SELECT MAX(NIF_CLI) AS MAXIM FROM CLIENTS").Es_Nul());
  for (const char* nif : {"10", "9", "B1", "a2"}) Client(nif, "x");
  EXPECT_EQ(Un_Valor("SELECT MAX(NIF_CLI) AS MAXIM FROM CLIENTS"), Valor("B1"));
  EXPECT_EQ(Un_Valor("SELECT MIN(NIF_CLI) AS MINIM FROM CLIENTS"), Valor("10"));
  EXPECT_EQ(Un_Valor("SELECT MAX(NIF_CLI) AS MAXIM FROM CLIENTS WHERE ISNUMERIC(NIF_CLI) = -1"), Valor("9"));
}

TEST_F(Motors, Words_are_in_the_order_of_a_dictionary_and_codes_as_written_with_nothing_first) {
  int nif = 0;
  for (const char* nom : {"zebra", "Àlvarez", "alvarez", "Bosch", "çedilla", "Cases", "l·l", "lola"}) {
    Client(std::to_string(++nif), nom);
  }
  connexio.Execute("INSERT INTO CLIENTS (NIF_CLI) VALUES ('n')");
  EXPECT_EQ(Columna_Sencera("SELECT RAO_SOCIAL_CLI FROM CLIENTS ORDER BY RAO_SOCIAL_CLI"),
            " alvarez Àlvarez Bosch Cases çedilla l·l lola zebra");
  EXPECT_EQ(Columna_Sencera("SELECT RAO_SOCIAL_CLI FROM CLIENTS ORDER BY RAO_SOCIAL_CLI DESC"),
            "zebra lola l·l çedilla Cases Bosch Àlvarez alvarez ");
  EXPECT_EQ(Columna_Sencera("SELECT NIF_CLI FROM CLIENTS WHERE NIF_CLI >= '7' ORDER BY NIF_CLI"), "7 8 n");
}

TEST_F(Motors, Rows_come_as_they_were_written_when_no_order_is_asked) {
  for (const char* nif : {"c", "a", "b"}) Client(nif, "x");
  connexio.Execute("UPDATE CLIENTS SET RAO_SOCIAL_CLI = 'y' WHERE NIF_CLI = 'c'");
  EXPECT_EQ(Columna_Sencera("SELECT NIF_CLI, RAO_SOCIAL_CLI FROM CLIENTS"), "c a b");
}

TEST_F(Motors, Texts_and_numbers_meet_in_a_comparison) {
  Client("12", "Dotze");
  Document(12, {});
  EXPECT_EQ(Un_Valor("SELECT RAO_SOCIAL_CLI FROM CLIENTS WHERE NIF_CLI = 12"), Valor("Dotze"));
  EXPECT_EQ(Un_Valor("SELECT NUM_C FROM CAP WHERE NUM_C = '12'"), Valor(12));
  connexio.Execute("INSERT INTO CLIENTS (NIF_CLI, DIA_PAG_CLI) VALUES (13, '5')");
  EXPECT_EQ(Un_Valor("SELECT DIA_PAG_CLI FROM CLIENTS WHERE NIF_CLI = '13'"), Valor(5));
}

TEST_F(Motors, All_columns_of_a_joined_table_do_not_show_the_hidden_key) {
  Client("1", "Anna");
  Document(1, {});
  const Recordset un("SELECT * FROM CLIENTS", connexio, Bloqueig::Optimista);
  EXPECT_EQ(un.Fields().size(), 7U);
  const Recordset dos("SELECT CAP.*, RAO_SOCIAL_CLI FROM CAP, CLIENTS", connexio);
  EXPECT_EQ(dos.Fields().size(), 7U);
  EXPECT_EQ(dos["RAO_SOCIAL_CLI"], Valor("Anna"));
}

TEST_F(Motors, A_sum_cannot_show_a_column_that_it_does_not_group_by) {
  EXPECT_EQ(Numero_Error([&] { Un_Valor("SELECT NIF_CLI, SUM(SALDO_CLI) AS S FROM CLIENTS"); }), errors::sentencia);
}

TEST_F(Motors, A_transaction_goes_on_after_any_statement_that_fails) {
  connexio.motor().BeginTrans();
  EXPECT_EQ(Numero_Error([&] { connexio.Execute("UPDATE NO_HI_ES SET A = 1"); }), errors::sentencia);
  Client("1", "Anna");
  EXPECT_EQ(Numero_Error([&] { Client("1", "repetida"); }), errors::general);
  EXPECT_EQ(Numero_Error([&] { Un_Valor("SELECT NO_HI_ES FROM CLIENTS"); }), errors::sentencia);
  Client("2", "Berta");
  connexio.Execute_Despres("UPDATE CLIENTS SET SALDO_CLI = 7 WHERE NIF_CLI = '1'");
  connexio.Execute_Despres("UPDATE CLIENTS SET SALDO_CLI = 8 WHERE NIF_CLI = '2'");
  connexio.motor().CommitTrans();
  EXPECT_EQ(Recordset("SELECT NIF_CLI FROM CLIENTS WHERE SALDO_CLI > 6", altra).RecordCount(), 2);
}

TEST_F(Motors, A_write_that_nobody_waited_for_fails_the_transaction_before_it_is_kept) {
  Client("1", "Anna");
  connexio.motor().BeginTrans();
  const int numero = Numero_Error([&] {
    connexio.Execute_Despres("INSERT INTO CLIENTS (NIF_CLI) VALUES ('2')");
    connexio.Execute_Despres("INSERT INTO CLIENTS (NIF_CLI) VALUES ('1')");
    connexio.motor().CommitTrans();
  });
  EXPECT_EQ(numero, errors::general);
  connexio.motor().RollbackTrans();
  EXPECT_EQ(Recordset("SELECT * FROM CLIENTS", altra).RecordCount(), 1);
  Client("2", "Berta");
}

TEST_F(Motors, The_clock_is_the_engines_and_has_seconds) {
  Document(1, {});
  const Data_Hora ara = Un_Valor("SELECT TOP 1 NOW() AS ARA FROM CAP").Data();
  EXPECT_EQ(ara.any, Rellotge_Local().any);
  EXPECT_TRUE(Un_Valor("SELECT TOP 1 NOW() AS ARA FROM CLIENTS").Es_Nul());
}

TEST_F(Motors, A_row_read_to_be_written_in_a_transaction_does_not_change_under_it) {
  Client("1", "Anna");
  connexio.motor().BeginTrans();
  connexio.Execute("UPDATE CLIENTS SET SALDO_CLI = 1 WHERE NIF_CLI = 'no hi es'");
  Recordset mine("SELECT * FROM CLIENTS WHERE NIF_CLI = '1'", connexio, Bloqueig::Optimista);
  Connexio impacient;
  impacient.Open(cami, 50);
  EXPECT_EQ(Numero_Error([&] { impacient.Execute("UPDATE CLIENTS SET SALDO_CLI = 9 WHERE NIF_CLI = '1'"); }),
            errors::general);
  mine.Set("SALDO_CLI", 2);
  mine.Update();
  connexio.motor().CommitTrans();
  EXPECT_EQ(Un_Valor("SELECT SALDO_CLI FROM CLIENTS"), Valor(2.0));
}

TEST_F(Motors, Trips_to_the_server_are_counted_and_what_travels_together_counts_once) {
  Client("1", "Anna");
  const auto viatges = [this](const auto& feina) {
    const std::int64_t abans = connexio.Viatges();
    feina();
    return connexio.Viatges() - abans;
  };
  const std::int64_t un = Proves_Al_Servidor() ? 1 : 0;
  Un_Valor("SELECT COUNT(*) FROM CLIENTS");  // the first read of a connection asks for the names of the columns too
  EXPECT_EQ(viatges([&] { Un_Valor("SELECT RAO_SOCIAL_CLI FROM CLIENTS"); }), un);
  Transaccio transaccio(connexio);
  EXPECT_EQ(viatges([&] {
              connexio.Execute_Despres("UPDATE CLIENTS SET SALDO_CLI = 1");
              connexio.Execute_Despres("UPDATE CLIENTS SET SALDO_CLI = 2");
            }),
            0);
  EXPECT_EQ(viatges([&] { transaccio.Confirmar(); }), un);
  EXPECT_EQ(Connexio().Viatges(), 0);
}

TEST_F(Motors, A_server_that_was_away_is_found_again_by_the_next_statement) {
  if (!Proves_Al_Servidor()) GTEST_SKIP() << "of a server";
  Client("1", "Anna");
  servidor->Tallar();
  EXPECT_EQ(Un_Valor("SELECT RAO_SOCIAL_CLI FROM CLIENTS WHERE NIF_CLI = '1'"), Valor("Anna"));
  servidor->Tallar();
  connexio.motor().BeginTrans();
  Client("2", "Berta");
  connexio.motor().CommitTrans();
  EXPECT_EQ(Un_Valor("SELECT COUNT(*) FROM CLIENTS"), Valor(2));
}

TEST_F(Motors, A_transaction_that_lost_its_server_is_undone_whole_and_the_next_one_works) {
  if (!Proves_Al_Servidor()) GTEST_SKIP() << "of a server";
  connexio.motor().BeginTrans();
  Client("1", "Anna");
  servidor->Tallar();
  EXPECT_EQ(Numero_Error([&] { Client("2", "Berta"); }), errors::general);
  EXPECT_EQ(Numero_Error([&] { Client("3", "Carme"); }), errors::general);
  EXPECT_EQ(Numero_Error([&] { connexio.motor().CommitTrans(); }), errors::general);
  connexio.motor().RollbackTrans();
  EXPECT_EQ(Un_Valor("SELECT COUNT(*) FROM CLIENTS"), Valor(0));
  connexio.motor().BeginTrans();
  Client("1", "Anna");
  connexio.motor().CommitTrans();
  EXPECT_EQ(Un_Valor("SELECT COUNT(*) FROM CLIENTS"), Valor(1));
}
