#include "core/M_Mestres.h"

#include "tests/regles/Base.h"

class Proxim_Codi_Taula : public Base_Dades {
 protected:
  static void Posar(const std::string& codi) {
    Executar("INSERT INTO CLIENTS (NIF_CLI) VALUES(" + Text_SQL(codi) + ")");
  }
};

TEST_F(Proxim_Codi_Taula, begins_at_one) {
  EXPECT_EQ(Proxim_Codi("CLIENTS"), "0000000001");
}

TEST_F(Proxim_Codi_Taula, follows_the_last) {
  Posar("0000000001");
  Posar("0000000002");
  EXPECT_EQ(Proxim_Codi("CLIENTS"), "0000000003");
}

TEST_F(Proxim_Codi_Taula, fills_the_first_gap) {
  Posar("0000000001");
  Posar("0000000003");
  EXPECT_EQ(Proxim_Codi("CLIENTS"), "0000000002");
}

TEST_F(Proxim_Codi_Taula, does_not_count_the_placeholder_of_zeros) {
  Posar("0000000000");
  EXPECT_EQ(Proxim_Codi("CLIENTS"), "0000000001");
}

TEST_F(Proxim_Codi_Taula, stops_at_a_code_that_somebody_typed) {
  Posar("0000000001");
  Posar("00000000015");  // sorts between 1 and 2
  Posar("0000000002");
  EXPECT_EQ(Proxim_Codi("CLIENTS"), "0000000002");
}

TEST_F(Proxim_Codi_Taula, reserves_nothing) {
  EXPECT_EQ(Proxim_Codi("CLIENTS"), Proxim_Codi("CLIENTS"));
}

TEST_F(Proxim_Codi_Taula, knows_the_code_column_of_each_table) {
  for (const char* taula : {"ARTICLES", "CLIENTS", "PROVEIDORS", "FAMILIES"})
    EXPECT_EQ(Proxim_Codi(taula), "0000000001") << taula;
  // ADMIN and the company's NIF sort above the codes: the walk stops there at once.
  EXPECT_EQ(Proxim_Codi("USUARIS"), "0000000001");
  EXPECT_EQ(Proxim_Codi("EMPRESES"), "0000000001");
}
