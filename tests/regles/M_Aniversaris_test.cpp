#include "masters/M_Aniversaris.h"

#include "tests/regles/Base.h"

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
