#include "session/M_Empresa.h"

#include "tests/regles/Base.h"

class M_Empresa : public Base_Dades {
 protected:
  static void Posar_Empresa(const std::string& nif, const std::string& nom, bool activa) {
    Executar("INSERT INTO EMPRESES (NIF_EMP, RAO_SOCIAL_EMP, ACTIU_EMP) VALUES(" + Text_SQL(nif) + "," + Text_SQL(nom) +
             "," + (activa ? "-1" : "0") + ")");
  }
};

TEST_F(M_Empresa, documents_are_headed_by_the_first_active_company_and_not_by_the_current_one) {
  Posar_Empresa("A1", "Inactiva", false);
  Posar_Empresa("C1", "Una altra", true);
  sessio.Empresa_Actual = "C1";
  EXPECT_EQ(Dades_Empresa()[0], "Empresa de prova");
  EXPECT_EQ(Dades_Empresa()[1], empresa_prova);
}

TEST_F(M_Empresa, the_heading_gives_eleven_texts_in_their_order_and_nulls_are_empty) {
  Executar("UPDATE EMPRESES SET ADREÇA_EMP = 'Carrer', TELEFON_EMP = '93', FACT_PEU1_EMP = 'Peu'");
  const auto dades = Dades_Empresa();
  EXPECT_EQ(dades[2], "Carrer");
  EXPECT_EQ(dades[3], "93");
  EXPECT_EQ(dades[4], "");
  EXPECT_EQ(dades[10], "Peu");
}

TEST_F(M_Empresa, without_an_active_company_the_heading_is_unknown) {
  Executar("UPDATE EMPRESES SET ACTIU_EMP = 0");
  EXPECT_EQ(Dades_Empresa()[0], "Desconegut");
  EXPECT_EQ(Dades_Empresa()[1], "");
}

TEST_F(M_Empresa, tells_whether_it_charges_taxes) {
  EXPECT_TRUE(Empresa_Te_IVA(empresa_prova));
  EXPECT_FALSE(Empresa_Te_RE(empresa_prova));
}

TEST_F(M_Empresa, a_missing_company_charges_nothing_and_is_called_a_dash) {
  EXPECT_FALSE(Empresa_Te_IVA("Z"));
  EXPECT_FALSE(Empresa_Te_RE("Z"));
  EXPECT_EQ(Nom_De_Empresa("Z"), "-");
  EXPECT_FALSE(Empresa_Existeix("Z"));
}

TEST_F(M_Empresa, becoming_current_is_remembered_on_the_users_row_and_shown_in_the_menu) {
  Posar_Empresa("C1", "Una altra", true);
  Empresa_Fixar("C1");
  EXPECT_EQ(sessio.Empresa_Actual, "C1");
  EXPECT_EQ(sessio.Nom_Empresa, "Una altra");
  EXPECT_EQ(Text("SELECT EMPRESA_USU FROM USUARIS WHERE CODI_USU = 'ADMIN'"), "C1");
  EXPECT_EQ(pantalla.menus_textos["M_Sel_Empresa"], "Empresa: Una altra");
}

TEST_F(M_Empresa, the_empty_company_is_current_all_the_same_and_a_dash_on_the_users_row) {
  Empresa_Fixar("");
  EXPECT_EQ(sessio.Empresa_Actual, "");
  EXPECT_EQ(sessio.Nom_Empresa, "-");
  EXPECT_EQ(Text("SELECT EMPRESA_USU FROM USUARIS WHERE CODI_USU = 'ADMIN'"), "-");
}

TEST_F(M_Empresa, the_chooser_offers_the_active_ones_by_name) {
  Posar_Empresa("C1", "Àrea", true);
  Posar_Empresa("C2", "Inactiva", false);
  const auto actives = Empreses_Actives();
  ASSERT_EQ(actives.size(), 2U);
  EXPECT_EQ(actives[0].nom, "Àrea");
  EXPECT_EQ(actives[1].nif, empresa_prova);
}
