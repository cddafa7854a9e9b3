#include "core/dades/Recordset.h"

#include <unistd.h>

#include "core/dades/Motor.h"
#include "tests/dades/Base_Dades.h"

using Conjunt = Base_Dades;

TEST_F(Conjunt, Walks_its_rows_and_tells_where_it_stands) {
  for (const char* nif : {"1", "2", "3"}) Client(nif, nif);
  Recordset rs("SELECT * FROM CLIENTS ORDER BY NIF_CLI", connexio);
  EXPECT_EQ(rs.RecordCount(), 3);
  EXPECT_EQ(rs.AbsolutePosition(), 1);
  rs.MoveLast();
  EXPECT_EQ(rs["NIF_CLI"], Valor("3"));
  rs.MoveNext();
  EXPECT_TRUE(rs.Eof());
  EXPECT_EQ(rs.AbsolutePosition(), -3);
  rs.Move_Des_Del_Primer(-5);
  EXPECT_TRUE(rs.Bof());
  EXPECT_EQ(rs.AbsolutePosition(), -2);
  rs.AbsolutePosition(2);
  EXPECT_EQ(rs["NIF_CLI"], Valor("2"));
}

TEST_F(Conjunt, An_empty_set_is_at_both_ends_and_cannot_be_read) {
  Recordset rs("SELECT * FROM CLIENTS", connexio);
  EXPECT_TRUE(rs.Eof() && rs.Bof());
  EXPECT_EQ(rs.RecordCount(), 0);
  EXPECT_EQ(Numero_Error([&] { (void)rs["NIF_CLI"]; }), errors::general);
  EXPECT_EQ(Numero_Error([&] { rs.MoveFirst(); }), errors::general);
}

TEST_F(Conjunt, A_field_that_is_not_there_is_an_error) {
  Recordset rs("SELECT * FROM CLIENTS", connexio);
  EXPECT_EQ(Numero_Error([&] { rs.Index_Camp("RES"); }), errors::camp_no_trobat);
}

TEST_F(Conjunt, A_new_row_takes_the_defaults_of_the_columns_that_were_not_set) {
  Recordset rs("SELECT * FROM CLIENTS WHERE NIF_CLI = 'none'", connexio, Bloqueig::Optimista);
  rs.AddNew();
  rs.Set("NIF_CLI", "7");
  rs.Set("iva_cli", 1);
  rs.Set("ALTA_CLI", Data_Hora{.any = 2026, .mes = 1, .dia = 2});
  rs.Update();
  EXPECT_EQ(rs["SALDO_CLI"], Valor(0.0));
  EXPECT_EQ(rs["IVA_CLI"], Valor(-1));
  EXPECT_TRUE(rs["RAO_SOCIAL_CLI"].Es_Nul());
  EXPECT_EQ(rs.RecordCount(), 1);
  EXPECT_EQ(Un_Valor("SELECT ALTA_CLI FROM CLIENTS"), Valor(Data_Hora{.any = 2026, .mes = 1, .dia = 2}));
}

TEST_F(Conjunt, An_autonumber_is_read_back) {
  Recordset rs("PAGS", connexio, Bloqueig::Optimista);
  for (int i = 1; i <= 2; ++i) {
    rs.AddNew();
    rs.Set("TEXT_P", "x");
    rs.Update();
    EXPECT_EQ(rs["ID_P"], Valor(i));
  }
}

TEST_F(Conjunt, A_table_without_key_can_be_written_too) {
  connexio.Execute("INSERT INTO DIARI (ARTICLE_D, UNITATS_D) VALUES ('A', 1)");
  connexio.Execute("INSERT INTO DIARI (ARTICLE_D, UNITATS_D) VALUES ('A', 1)");
  Recordset rs("SELECT UNITATS_D FROM DIARI WHERE ARTICLE_D = 'A'", connexio, Bloqueig::Optimista);
  rs.Set("UNITATS_D", 5);
  rs.Update();
  EXPECT_EQ(Un_Valor("SELECT SUM(UNITATS_D) FROM DIARI"), Valor(6.0));
}

TEST_F(Conjunt, A_row_that_another_terminal_changed_is_not_overwritten) {
  Client("1", "Old");
  Recordset rs("SELECT * FROM CLIENTS", connexio, Bloqueig::Optimista);
  altra.Execute("UPDATE CLIENTS SET RAO_SOCIAL_CLI = 'Theirs'");
  rs.Set("RAO_SOCIAL_CLI", "Mine");
  EXPECT_EQ(Numero_Error([&] { rs.Update(); }), errors::concurrencia);
  rs.CancelUpdate();
  EXPECT_EQ(Un_Valor("SELECT RAO_SOCIAL_CLI FROM CLIENTS"), Valor("Theirs"));
  rs.Requery();
  EXPECT_EQ(rs["RAO_SOCIAL_CLI"], Valor("Theirs"));
}

TEST_F(Conjunt, A_change_of_capitals_by_another_terminal_is_a_change) {
  Client("1", "name");
  Recordset rs("SELECT * FROM CLIENTS", connexio, Bloqueig::Optimista);
  altra.Execute("UPDATE CLIENTS SET RAO_SOCIAL_CLI = 'NAME'");
  rs.Set("RAO_SOCIAL_CLI", "Mine");
  EXPECT_EQ(Numero_Error([&] { rs.Update(); }), errors::concurrencia);
}

TEST_F(Conjunt, A_text_with_a_nought_in_it_is_refused_for_an_engine_would_cut_it) {
  Client("1", "name");
  Recordset rs("SELECT * FROM CLIENTS", connexio, Bloqueig::Optimista);
  EXPECT_EQ(Numero_Error([&] { rs.Set("RAO_SOCIAL_CLI", std::string("a\0b", 3)); }), errors::tipus);
  EXPECT_EQ(rs.EditMode(), Edicio::Cap);
}

TEST_F(Conjunt, Columns_that_are_not_written_do_not_conflict) {
  Client("1", "Name");
  Recordset rs("SELECT * FROM CLIENTS", connexio, Bloqueig::Optimista);
  altra.Execute("UPDATE CLIENTS SET ADREÇA_CLI = 'Theirs'");
  rs.Set("RAO_SOCIAL_CLI", "Mine");
  rs.Update();
  EXPECT_EQ(Un_Valor("SELECT ADREÇA_CLI FROM CLIENTS"), Valor("Theirs"));
}

TEST_F(Conjunt, A_deleted_row_is_a_conflict) {
  Client("1", "Name");
  Recordset rs("SELECT * FROM CLIENTS", connexio, Bloqueig::Optimista);
  altra.Execute("DELETE * FROM CLIENTS");
  EXPECT_EQ(Numero_Error([&] { rs.Delete(); }), errors::concurrencia);
}

TEST_F(Conjunt, A_duplicate_key_leaves_recordset_and_transaction_usable) {
  Client("1", "A");
  connexio.motor().BeginTrans();
  Client("2", "B");
  Recordset rs("SELECT * FROM CLIENTS", connexio, Bloqueig::Optimista);
  rs.AddNew();
  rs.Set("NIF_CLI", "1");
  EXPECT_EQ(Numero_Error([&] { rs.Update(); }), errors::general);
  EXPECT_EQ(rs.EditMode(), Edicio::Alta);
  rs.CancelUpdate();
  EXPECT_EQ(rs.RecordCount(), 2);
  rs.MoveFirst();
  rs.Set("RAO_SOCIAL_CLI", "A2");
  rs.Update();
  connexio.motor().CommitTrans();
  EXPECT_EQ(Columna_Sencera("SELECT RAO_SOCIAL_CLI FROM CLIENTS ORDER BY NIF_CLI"), "A2 B");
}

TEST_F(Conjunt, Cancelupdate_gives_the_row_back_as_it_was) {
  Client("1", "A");
  Recordset rs("SELECT * FROM CLIENTS", connexio, Bloqueig::Optimista);
  rs.Set("RAO_SOCIAL_CLI", "B");
  EXPECT_EQ(rs["RAO_SOCIAL_CLI"], Valor("B"));
  rs.CancelUpdate();
  EXPECT_EQ(rs["RAO_SOCIAL_CLI"], Valor("A"));
  EXPECT_EQ(rs.EditMode(), Edicio::Cap);
}

TEST_F(Conjunt, Leaving_a_row_in_edit_saves_it) {
  Client("1", "A");
  Recordset rs("SELECT * FROM CLIENTS", connexio, Bloqueig::Optimista);
  rs.Set("RAO_SOCIAL_CLI", "B");
  rs.MoveFirst();
  EXPECT_EQ(Un_Valor("SELECT RAO_SOCIAL_CLI FROM CLIENTS"), Valor("B"));
}

TEST_F(Conjunt, A_filter_shows_the_rows_that_match_and_the_empty_one_all) {
  Client("1", "Casa Àvila");
  Client("2", "Anoia");
  Client("3", "Vall d´Aran");
  Recordset rs("SELECT * FROM CLIENTS", connexio);
  rs.Filter("RAO_SOCIAL_CLI LIKE '%àvi%'");
  EXPECT_EQ(rs.RecordCount(), 1);
  EXPECT_EQ(rs["NIF_CLI"], Valor("1"));
  rs.Requery();
  EXPECT_EQ(rs.RecordCount(), 1);
  rs.Filter("NIF_CLI >= '2' AND RAO_SOCIAL_CLI <> 'anoia'");
  EXPECT_EQ(rs["NIF_CLI"], Valor("3"));
  rs.Filter("");
  EXPECT_EQ(rs.RecordCount(), 3);
}

TEST_F(Conjunt, A_faulty_filter_is_an_error_and_changes_nothing) {
  Client("1", "A");
  Recordset rs("SELECT * FROM CLIENTS", connexio);
  EXPECT_EQ(Numero_Error([&] { rs.Filter("RAO_SOCIAL_CLI LIKE '%d'Anoia%'"); }), errors::sentencia);
  EXPECT_EQ(Numero_Error([&] { rs.Filter(" LIKE '%x%'"); }), errors::sentencia);
  EXPECT_EQ(Numero_Error([&] { rs.Filter("RES LIKE '%x%'"); }), errors::camp_no_trobat);
  EXPECT_EQ(rs.RecordCount(), 1);
}

TEST_F(Conjunt, The_unique_table_of_a_join_is_written_by_its_hidden_key) {
  Client("1", "A");
  Document(1, {"X"});
  connexio.Execute("UPDATE CAP SET CLIENT_C = '1'");
  Recordset rs;
  rs.Unique_Table("CAP");
  rs.Open("SELECT IMPORT_C, RAO_SOCIAL_CLI FROM CAP INNER JOIN CLIENTS ON CAP.CLIENT_C = CLIENTS.NIF_CLI", connexio,
          Bloqueig::Optimista);
  rs.Set("IMPORT_C", 12.5);
  rs.Update();
  EXPECT_EQ(rs["RAO_SOCIAL_CLI"], Valor("A"));
  EXPECT_EQ(Un_Valor("SELECT IMPORT_C FROM CAP"), Valor(12.5));
  EXPECT_EQ(Numero_Error([&] { rs.Set("RAO_SOCIAL_CLI", "B"); }), errors::general);
}

TEST_F(Conjunt, Distinct_over_a_join_can_be_written_through_its_unique_table) {
  Document(1, {"X", "X"});
  Document(2, {"X"});
  Recordset rs;
  rs.Unique_Table("CAP");
  rs.Open(
      "SELECT DISTINCT NUM_C, IMPORT_C FROM CAP, LIN WHERE CAP.NUM_C = LIN.NUM_L AND CAP.EMPRESA_C = LIN.EMPRESA_L "
      "AND ARTICLE_L LIKE '%X%' ORDER BY NUM_C",
      connexio, Bloqueig::Optimista);
  EXPECT_EQ(rs.RecordCount(), 2);
  EXPECT_EQ(rs.Fields().size(), 2U);
  rs.MoveLast();
  rs.Set("IMPORT_C", 3);
  rs.Update();
  EXPECT_EQ(Un_Valor("SELECT IMPORT_C FROM CAP WHERE NUM_C = 2"), Valor(3.0));
}

TEST_F(Conjunt, A_set_of_several_tables_without_unique_table_is_read_only) {
  Document(1, {"X"});
  Recordset rs("SELECT NUM_C, LIN_L FROM CAP, LIN WHERE NUM_C = NUM_L", connexio, Bloqueig::Optimista);
  EXPECT_EQ(Numero_Error([&] { rs.Set("NUM_C", 3); }), errors::general);
  Recordset grup("SELECT NUM_L, COUNT(*) AS N FROM LIN GROUP BY NUM_L", connexio, Bloqueig::Optimista);
  EXPECT_EQ(Numero_Error([&] { grup.Set("NUM_L", 3); }), errors::general);
}

TEST_F(Conjunt, Values_are_converted_to_the_type_of_their_column) {
  Recordset rs("SELECT * FROM CLIENTS", connexio, Bloqueig::Optimista);
  rs.AddNew();
  rs.Set("NIF_CLI", 12);
  rs.Set("SALDO_CLI", "1.234,5");
  rs.Set("IVA_CLI", 3);
  EXPECT_EQ(Numero_Error([&] { rs.Set("DIA_PAG_CLI", 40000); }), errors::desbordament);
  EXPECT_EQ(Numero_Error([&] { rs.Set("SALDO_CLI", "abc"); }), errors::tipus);
  EXPECT_EQ(Numero_Error([&] { rs.Set("ALTA_CLI", "31/02/2026"); }), errors::tipus);
  rs.Update();
  EXPECT_EQ(rs["NIF_CLI"], Valor("12"));
  EXPECT_EQ(rs["SALDO_CLI"], Valor(1234.5));
  EXPECT_EQ(rs["IVA_CLI"], Valor(-1));
}

TEST_F(Conjunt, A_pessimistic_edit_holds_the_row_against_other_terminals) {
  Client("1", "A");
  Client("2", "B");
  Recordset mine("SELECT * FROM CLIENTS ORDER BY NIF_CLI", connexio, Bloqueig::Pessimista);
  Recordset theirs("SELECT * FROM CLIENTS ORDER BY NIF_CLI", altra, Bloqueig::Pessimista);
  mine.Edit();
  mine.Set("RAO_SOCIAL_CLI", "A2");
  EXPECT_EQ(Motiu_Error([&] { theirs.Edit(); }), Falla::Fila_Retinguda);
  theirs.Set("RAO_SOCIAL_CLI", "A3");
  EXPECT_EQ(Motiu_Error([&] { theirs.Update(); }), Falla::Fila_Retinguda);
  theirs.CancelUpdate();
  theirs.MoveNext();
  theirs.Set("RAO_SOCIAL_CLI", "B2");
  theirs.CancelUpdate();
  mine.Update();
  theirs.Requery();
  theirs.Set("RAO_SOCIAL_CLI", "A3");
  theirs.Update();
  EXPECT_EQ(Un_Valor("SELECT RAO_SOCIAL_CLI FROM CLIENTS"), Valor("A3"));
}

TEST_F(Conjunt, A_row_written_at_once_is_held_by_nobody_afterwards) {
  Client("1", "A");
  Recordset mine("SELECT * FROM CLIENTS", connexio, Bloqueig::Pessimista);
  Recordset theirs("SELECT * FROM CLIENTS", altra, Bloqueig::Pessimista);
  const std::int64_t abans = connexio.Viatges();
  connexio.motor().BeginTrans();
  mine.Set("RAO_SOCIAL_CLI", "A2");
  mine.Update();
  connexio.motor().CommitTrans();
  EXPECT_LE(connexio.Viatges() - abans, 2);
  theirs.Set("RAO_SOCIAL_CLI", "stale");
  EXPECT_EQ(Numero_Error([&] { theirs.Update(); }), errors::concurrencia);
  theirs.CancelUpdate();
  theirs.Requery();
  theirs.Edit();
  EXPECT_EQ(Motiu_Error([&] { mine.Edit(); }), Falla::Fila_Retinguda);
  theirs.Set("RAO_SOCIAL_CLI", "A3");
  altra.motor().BeginTrans();
  theirs.Update();
  altra.motor().RollbackTrans();
  mine.Edit();
  mine.CancelUpdate();
  EXPECT_EQ(Un_Valor("SELECT RAO_SOCIAL_CLI FROM CLIENTS"), Valor("A2"));
}

TEST_F(Conjunt, A_hold_goes_with_the_connection_of_a_dead_terminal) {
  Client("1", "A");
  {
    Connexio morta;
    morta.Open(cami);
    auto rs = std::make_unique<Recordset>("SELECT * FROM CLIENTS", morta, Bloqueig::Pessimista);
    rs->Edit();
    morta.Close();
  }
  Recordset rs("SELECT * FROM CLIENTS", connexio, Bloqueig::Pessimista);
  // A server takes a moment to see that somebody went.
  for (int i = 0; i < 500 && Motiu_Error([&] { rs.Edit(); }) != Falla::Cap; ++i) usleep(10000);
  rs.Set("RAO_SOCIAL_CLI", "B");
  rs.Update();
  EXPECT_EQ(Un_Valor("SELECT RAO_SOCIAL_CLI FROM CLIENTS"), Valor("B"));
}

TEST_F(Conjunt, Reopen_takes_another_statement_and_a_faulty_one_leaves_the_old_set) {
  Client("1", "B");
  Client("2", "A");
  Recordset rs("SELECT * FROM CLIENTS ORDER BY NIF_CLI", connexio, Bloqueig::Optimista);
  rs.Reopen("SELECT * FROM CLIENTS ORDER BY RAO_SOCIAL_CLI");
  EXPECT_EQ(rs["NIF_CLI"], Valor("2"));
  EXPECT_EQ(Numero_Error([&] { rs.Reopen("SELECT * FROM CLIENTS ORDER BY RES_DE_RES"); }), errors::sentencia);
  EXPECT_EQ(rs.RecordCount(), 2);
  EXPECT_EQ(rs.Source(), "SELECT * FROM CLIENTS ORDER BY RAO_SOCIAL_CLI");
  rs.Set("ADREÇA_CLI", "Carrer");
  rs.Update();
}

TEST_F(Conjunt, A_set_that_cannot_be_read_again_keeps_its_rows_and_its_filter) {
  Client("1", "B");
  Client("2", "A");
  Recordset rs("SELECT * FROM CLIENTS ORDER BY NIF_CLI", connexio);
  rs.Filter("RAO_SOCIAL_CLI = 'A'");
  connexio.Close();
  EXPECT_EQ(Motiu_Error([&] { rs.Requery(); }), Falla::Sense_Connexio);
  EXPECT_EQ(Motiu_Error([&] { rs.Reopen("SELECT * FROM CAP"); }), Falla::Sense_Connexio);
  EXPECT_TRUE(rs.State());
  EXPECT_TRUE(Recordset_Registrat("SELECT * FROM CLIENTS ORDER BY NIF_CLI"));
  EXPECT_EQ(rs.RecordCount(), 1);
  EXPECT_EQ(rs["NIF_CLI"], Valor("2"));
  connexio.Open(cami);
  rs.Requery();
  EXPECT_EQ(rs.RecordCount(), 1);
  rs.Reopen("SELECT * FROM CLIENTS");
  EXPECT_EQ(rs.RecordCount(), 2);
}

TEST_F(Conjunt, A_set_whose_server_is_away_closes_without_raising) {
  if (!Proves_Al_Servidor()) GTEST_SKIP() << "of a server";
  Client("1", "B");
  auto rs = std::make_unique<Recordset>("SELECT * FROM CLIENTS", connexio, Bloqueig::Pessimista);
  rs->Edit();
  servidor->Marxar();
  EXPECT_EQ(Motiu_Error([&] { rs->Requery(); }), Falla::Sense_Connexio);
  EXPECT_EQ(rs->RecordCount(), 1);
  EXPECT_EQ(rs->EditMode(), Edicio::Cap);
  EXPECT_NO_THROW(rs->Close());
  EXPECT_NO_THROW(rs.reset());
  servidor->Tornar();
  EXPECT_EQ(Un_Valor("SELECT RAO_SOCIAL_CLI FROM CLIENTS"), Valor("B"));
}

TEST_F(Conjunt, A_row_held_in_a_transaction_that_wrote_nothing_is_let_go_also_when_its_server_is_cut) {
  if (!Proves_Al_Servidor()) GTEST_SKIP() << "of a server";
  Client("1", "B");
  Recordset rs("SELECT * FROM CLIENTS", connexio, Bloqueig::Pessimista);
  rs.Edit();
  connexio.motor().BeginTrans();
  rs.CancelUpdate();
  servidor->Tallar();
  EXPECT_NO_THROW(connexio.motor().CommitTrans());
  EXPECT_EQ(Un_Valor("SELECT RAO_SOCIAL_CLI FROM CLIENTS"), Valor("B"));
}

TEST_F(Conjunt, A_set_whose_last_row_was_deleted_is_at_both_ends) {
  Client("1", "A");
  Recordset rs("SELECT * FROM CLIENTS", connexio, Bloqueig::Optimista);
  rs.Delete();
  EXPECT_TRUE(rs.Eof() && rs.Bof());
  EXPECT_EQ(rs.AbsolutePosition(), -1);
}

TEST_F(Conjunt, The_registry_follows_opening_and_closing) {
  const std::size_t abans = Comptar_Recordsets_Oberts();
  {
    const Recordset rs("SELECT * FROM CLIENTS", connexio);
    EXPECT_TRUE(Recordset_Registrat("SELECT * FROM CLIENTS"));
  }
  EXPECT_FALSE(Recordset_Registrat("SELECT * FROM CLIENTS"));
  EXPECT_EQ(Comptar_Recordsets_Oberts(), abans);
}

TEST_F(Conjunt, Two_recordsets_with_one_source_share_an_entry) {
  const Recordset primer("SELECT * FROM CLIENTS", connexio);
  auto segon = std::make_unique<Recordset>("SELECT * FROM CLIENTS", connexio);
  EXPECT_EQ(Comptar_Recordsets_Oberts(), 1U);
  segon.reset();
  EXPECT_TRUE(Recordset_Registrat("SELECT * FROM CLIENTS"));
  EXPECT_EQ(Comptar_Recordsets_Oberts(), 1U);
  Tancar_Recordsets();
  EXPECT_FALSE(primer.State());
  EXPECT_EQ(Comptar_Recordsets_Oberts(), 0U);
}

TEST_F(Conjunt, Tancar_Recordsets_closes_every_open_one) {
  const Recordset a("SELECT * FROM CLIENTS", connexio);
  const Recordset b("SELECT * FROM CAP", connexio);
  Tancar_Recordsets();
  EXPECT_FALSE(a.State() || b.State());
  EXPECT_EQ(Comptar_Recordsets_Oberts(), 0U);
}
