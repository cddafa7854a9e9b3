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
