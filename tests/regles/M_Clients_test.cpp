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
