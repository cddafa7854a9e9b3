#include "masters/M_Clients.h"

#include "tests/regles/Base.h"

class M_Clients : public Base_Dades {
 protected:
  void SetUp() override {
    Executar(
        "INSERT INTO CLIENTS (NIF_CLI, RAO_SOCIAL_CLI, ADREÇA_CLI, IVA_CLI, RE_CLI) "
        "VALUES('C1', 'Zeta SL', 'Carrer 1', -1, 0)");
    Executar("INSERT INTO CLIENTS (NIF_CLI, RAO_SOCIAL_CLI) VALUES('C2', 'Àvila SA')");
  }
};

TEST_F(M_Clients, tells_whether_the_customer_pays_taxes) {
  EXPECT_TRUE(Client_Te_IVA("C1"));
  EXPECT_FALSE(Client_Te_RE("C1"));
  EXPECT_FALSE(Client_Te_IVA("ZZ"));
}

TEST_F(M_Clients, the_printed_data_come_in_their_order_and_are_empty_when_missing) {
  EXPECT_EQ(Dades_Client("C1"), (std::array<std::string, 7>{"C1", "Zeta SL", "", "Carrer 1", "", "", ""}));
  EXPECT_EQ(Dades_Client("ZZ")[1], "");
}

TEST_F(M_Clients, the_combo_lists_them_by_name) {
  const Recordset rs(SQL_Combo_Clients(), sessio.Connexio_Comuna);
  EXPECT_EQ(rs["NIF_CLI"].Text(), "C2");
  EXPECT_EQ(rs.RecordCount(), 2);
}

// ---- Maintenance

TEST_F(M_Clients, a_new_customer_pays_vat_without_terms_and_has_its_additional_data) {
  EXPECT_EQ(Nou_Client(), "0000000001");
  const Recordset rs(SQL_Client("0000000001"), sessio.Connexio_Comuna);
  EXPECT_EQ(rs["RAO_SOCIAL_CLI"].Text(), "Client0000000001");
  EXPECT_EQ(rs["NOM_COMERCIAL_CLI"].Text(), "Client0000000001");
  EXPECT_EQ(rs["VENCIMENT_CLI"].Text(), "NO");
  EXPECT_TRUE(rs["IVA_CLI"].Boolea());
  EXPECT_FALSE(rs["RE_CLI"].Boolea());
  EXPECT_EQ(Text("SELECT CLIENT_DESC_CLID FROM CLIENTS_DADES WHERE NIF_CLID = '0000000001'"), "Client0000000001");
  EXPECT_TRUE(Client_Existeix("0000000001"));
  EXPECT_FALSE(Client_Existeix("0000000002"));
}

TEST_F(M_Clients, a_code_that_is_used_again_does_not_inherit_the_data_of_who_had_it) {
  const std::string codi = Nou_Client();
  Executar("UPDATE CLIENTS_DADES SET PROFESSIO_CLID = 'Fuster'");
  pantalla.respostes = {Resposta::Ok};
  Esborrar_Client(codi, "Client");
  EXPECT_EQ(Files("SELECT * FROM CLIENTS_DADES"), 1);
  EXPECT_EQ(Nou_Client(), codi);
  EXPECT_EQ(Files("SELECT * FROM CLIENTS_DADES"), 1);
  EXPECT_TRUE(Llegir("SELECT PROFESSIO_CLID FROM CLIENTS_DADES").Es_Nul());
}

TEST_F(M_Clients, one_value_of_a_customer_is_empty_when_it_is_missing) {
  Executar("INSERT INTO CLIENTS (NIF_CLI, COMPTE_CLI, EMAIL_CLI) VALUES ('B1', 'ES12', 'a@b.cat')");
  EXPECT_EQ(Compte_Client("B1"), "ES12");
  EXPECT_EQ(Email_Client("B1"), "a@b.cat");
  EXPECT_EQ(Compte_Client("B2"), "");
  EXPECT_EQ(Email_Client("B2"), "");
}

TEST_F(M_Clients, the_addresses_of_a_list_come_by_code_without_the_empty_ones) {
  Executar("INSERT INTO CLIENTS (NIF_CLI, RAO_SOCIAL_CLI, EMAIL_CLI) VALUES ('B2', 'A', 'dos@x.cat')");
  Executar("INSERT INTO CLIENTS (NIF_CLI, RAO_SOCIAL_CLI, EMAIL_CLI) VALUES ('B1', 'B', 'un@x.cat')");
  Executar("INSERT INTO CLIENTS (NIF_CLI, RAO_SOCIAL_CLI) VALUES ('B3', 'C')");
  Recordset tots(SQL_Clients(""), sessio.Connexio_Comuna);
  EXPECT_EQ(Emails_Clients(tots), "un@x.cat;dos@x.cat");
  Recordset un(SQL_Clients("a"), sessio.Connexio_Comuna);
  EXPECT_EQ(Emails_Clients(un), "dos@x.cat");
  Recordset cap(SQL_Clients("zzz"), sessio.Connexio_Comuna);
  EXPECT_EQ(Emails_Clients(cap), "");
}

TEST_F(M_Clients, the_addresses_of_a_long_list_take_several_statements) {
  Transaccio transaccio(sessio.Connexio_Comuna);
  for (int i = 0; i < 1200; ++i)
    sessio.Connexio_Comuna.Afegir_Fila("CLIENTS", {{"NIF_CLI", std::to_string(10000 + i)}, {"EMAIL_CLI", "x"}});
  transaccio.Confirmar();
  Recordset tots(SQL_Clients(""), sessio.Connexio_Comuna);
  EXPECT_EQ(Emails_Clients(tots).size(), 1200U * 2 - 1);
}

// ---- Birthdays

class Aniversaris : public Base_Dades {
 protected:
  Aniversaris() { Fixar_Avui({2011, 12, 30}); }
  static void Neix(const std::string& nif, const std::string& data) {
    Executar("INSERT INTO CLIENTS (NIF_CLI, RAO_SOCIAL_CLI) VALUES (" + Text_SQL(nif) + ", 'Nom')");
    Executar("INSERT INTO CLIENTS_DADES (NIF_CLID, CLIENT_DESC_CLID, NAIXEMENT_CLID) VALUES (" + Text_SQL(nif) +
             ", 'Nom', " + data + ")");
  }
};

TEST_F(Aniversaris, fall_between_today_and_the_last_day_of_the_window) {
  Neix("B1", "#12/31/1970#");
  EXPECT_FALSE(Hi_Ha_Aniversaris(0));
  EXPECT_TRUE(Hi_Ha_Aniversaris(1));
  Fixar_Avui({2011, 12, 31});
  EXPECT_TRUE(Hi_Ha_Aniversaris(1));
  Fixar_Avui({2011, 12, 29});
  EXPECT_FALSE(Hi_Ha_Aniversaris(1));
}

TEST_F(Aniversaris, of_January_are_not_seen_in_December) {
  Neix("B1", "#1/2/1970#");
  EXPECT_FALSE(Hi_Ha_Aniversaris(15));
}

TEST_F(Aniversaris, of_the_last_of_February_come_on_the_first_of_March_of_a_short_year) {
  Neix("B1", "#2/29/1972#");
  Fixar_Avui({2011, 2, 28});
  EXPECT_TRUE(Hi_Ha_Aniversaris(1));
  Fixar_Avui({2011, 3, 2});
  EXPECT_FALSE(Hi_Ha_Aniversaris(1));
}

TEST_F(Aniversaris, need_the_name_and_the_code_of_the_customer) {
  Neix("B1", "#12/31/1970#");
  Executar("UPDATE CLIENTS SET RAO_SOCIAL_CLI = 'Un altre'");
  EXPECT_FALSE(Hi_Ha_Aniversaris(5));
}

TEST_F(Aniversaris, are_warned_of_by_the_days_of_the_terminal) {
  Neix("B1", "#12/31/1970#");
  EXPECT_FALSE(Toca_Avisar_Aniversaris());
  EXPECT_EQ(sessio.Dies_Avis_Aniversaris, 0);
  for (const auto& [dies, toca] : {std::pair("0", false), std::pair("-3", false), std::pair("1", true)}) {
    sessio.Parametres["P_Avis_Aniversaris_Dies"] = dies;
    EXPECT_EQ(Toca_Avisar_Aniversaris(), toca) << dies;
  }
  EXPECT_EQ(sessio.Dies_Avis_Aniversaris, 1);
  sessio.Parametres["P_Avis_Aniversaris_Dies"] = "un";
  EXPECT_EQ(Error_De([] { Toca_Avisar_Aniversaris(); }).Numero(), errors::tipus);
  sessio.Parametres["P_Avis_Aniversaris_Dies"] = "99999";
  EXPECT_EQ(Error_De([] { Toca_Avisar_Aniversaris(); }).Numero(), errors::desbordament);
}

TEST_F(Aniversaris, are_listed_by_day_and_name_and_filtered_by_a_part_of_it) {
  Neix("B1", "#12/31/1970#");
  Neix("B2", "NULL");
  Fixar_Avui({2011, 12, 20});
  Neix("B3", "#12/21/1990#");
  sessio.Dies_Avis_Aniversaris = 20;
  const Recordset rs(SQL_Aniversaris(""), sessio.Connexio_Comuna);
  ASSERT_EQ(rs.RecordCount(), 2);
  EXPECT_EQ(rs["NIF_CLI"].Text(), "B3");
  EXPECT_EQ(Files(SQL_Aniversaris("zzz")), 0);
}

// ---- Due dates

class Venciments : public Base_Dades {
 protected:
  static std::array<std::string, 3> De(const std::string& dies, const std::string& terminis, int dia, double import,
                                       Data_Hora data = {2011, 1, 31}, const std::string& descripcio = "Tal") {
    Executar("DELETE * FROM CLIENTS");
    Executar("DELETE * FROM VENCIMENTS WHERE CODI_VEN = 'T'");
    Executar("INSERT INTO VENCIMENTS (CODI_VEN, DESCRIPCIO_VEN, DIES_VEN, TERMINIS_VEN) VALUES ('T', " +
             Text_SQL(descripcio) + ", " + dies + ", " + terminis + ")");
    Executar("INSERT INTO CLIENTS (NIF_CLI, VENCIMENT_CLI, DIA_PAG_CLI) VALUES ('B1', 'T', " + std::to_string(dia) +
             ")");
    return Venciments_Factura("B1", data, import);
  }
};

TEST_F(Venciments, step_from_the_last_one_and_not_from_the_invoice) {
  EXPECT_EQ(De("30", "2", 0, 100)[2], "28/02/2011 50 ; 28/03/2011 50 ; ");
}
TEST_F(Venciments, come_on_the_day_of_payment) {
  EXPECT_EQ(De("30", "1", 25, 100, {2011, 3, 15})[2], "25/04/2011 100 ; ");
  EXPECT_EQ(De("30", "1", 31, 100)[2], "31/03/2011 100 ; ");
}
TEST_F(Venciments, leave_the_lost_cents_to_the_last_one) {
  EXPECT_EQ(De("0", "3", 0, 100)[2], "31/01/2011 33,33 ; 31/01/2011 33,33 ; 31/01/2011 33,34 ; ");
}
TEST_F(Venciments, are_none_for_nothing_but_the_description_stays) {
  EXPECT_EQ(De("30", "2", 0, 0), (std::array<std::string, 3>{"", "Tal", ""}));
  EXPECT_EQ(De("30", "0", 0, 100), (std::array<std::string, 3>{"", "Tal", ""}));
  EXPECT_EQ(De("30", "2", 0, -5)[2], "");
}
TEST_F(Venciments, called_NO_in_any_case_have_no_description) {
  EXPECT_EQ(De("0", "0", 0, 100, {2011, 1, 1}, "no")[1], "");
  EXPECT_EQ(De("0", "0", 0, 100, {2011, 1, 1}, "Nou")[1], "Nou");
}
TEST_F(Venciments, of_45_days_count_days) {
  EXPECT_EQ(De("45", "1", 0, 10)[2], "17/03/2011 10 ; ");
}
TEST_F(Venciments, do_not_look_for_ever_for_a_day_that_no_month_has) {
  EXPECT_EQ(De("30", "1", 40, 10)[2], "28/02/2011 10 ; ");
}
TEST_F(Venciments, of_nobody_are_those_of_the_code_0) {
  EXPECT_EQ(Venciments_Factura("?", {2011, 1, 1}, 10), (std::array<std::string, 3>{"", "", ""}));
}
