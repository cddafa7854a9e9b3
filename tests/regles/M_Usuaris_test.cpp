#include "session/M_Usuaris.h"

#include "session/M_Idiomes.h"
#include "tests/regles/Base.h"

class M_Usuaris : public Base_Dades {
 protected:
  static void Posar_Usuari(const std::string& clau = "'Clau'", const std::string& actiu = "S",
                           const std::string& empresa = empresa_prova, int idioma = 0) {
    Executar(
        "INSERT INTO USUARIS (CODI_USU, DESCRIPCIO_USU, CLAU_USU, ACTIU_USU, IDIOMA_USU, EMPRESA_USU, P_CLIENTS, "
        "P_PROVEIDORS, P_ARTICLES, P_USUARIS, P_CP, P_VENCIMENTS, P_PRESSUPOSTOS, P_COMANDES, P_ALBARANS, P_FACTURES) "
        "VALUES('ANNA', 'Anna', " +
        clau + ", " + Text_SQL(actiu) + ", " + std::to_string(idioma) + ", " + Text_SQL(empresa) +
        ", 'X', 'X', 'X', 'X', 'X', 'X', 'X', 'X', 'X', 'X')");
  }
  // Rights of ANNA, who is then the one at work.
  void Carregar(const std::string& columna, const std::string& lletra) {
    Posar_Usuari();
    Executar("UPDATE USUARIS SET " + columna + " = " + Text_SQL(lletra) + " WHERE CODI_USU = 'ANNA'");
    sessio.Usuari_Actual = "ANNA";
    Carregar_Drets("ANNA");
  }
  std::set<std::string> Habilitats() const {
    std::set<std::string> noms;
    for (const auto& [nom, habilitat] : pantalla.menus_habilitats)
      if (habilitat) noms.insert(nom);
    return noms;
  }
  // Entries that a person without any right can use.
  const std::set<std::string> generals = {"M_Mestres",     "M_Exit",        "M_Gestio",  "M_Forms",
                                          "M_Search",      "M_Languages",   "M_Windows", "M_Help",
                                          "M_CanviUsuari", "M_Sel_Empresa", "M_COPIA"};
  std::set<std::string> A_Mes_Dels_Generals() const {
    std::set<std::string> noms;
    for (const std::string& nom : Habilitats())
      if (!generals.contains(nom)) noms.insert(nom);
    return noms;
  }
};

TEST_F(M_Usuaris, a_good_login_fills_the_session) {
  Posar_Usuari("'Clau'", "S", empresa_prova, 1);
  sessio.Empresa_Actual.clear();
  ASSERT_TRUE(Iniciar_Sessio("ANNA", "Clau"));
  EXPECT_EQ(sessio.Usuari_Actual, "ANNA");
  EXPECT_EQ(sessio.Nom_Usuari, "Anna");
  EXPECT_EQ(sessio.Idioma_Usuari, 1);
  EXPECT_EQ(sessio.Idioma_Actual, 1);
  EXPECT_EQ(sessio.Empresa_Actual, empresa_prova);
  EXPECT_EQ(sessio.Nom_Empresa, "Empresa de prova");
  EXPECT_EQ(pantalla.tries_empresa, 0);
}

TEST_F(M_Usuaris, the_code_is_compared_without_case_and_the_session_takes_it_as_it_is_stored) {
  Posar_Usuari();
  ASSERT_TRUE(Iniciar_Sessio("anna", "Clau"));
  EXPECT_EQ(sessio.Usuari_Actual, "ANNA");
}

TEST_F(M_Usuaris, the_password_is_compared_exactly) {
  Posar_Usuari();
  EXPECT_FALSE(Iniciar_Sessio("ANNA", "clau"));
  EXPECT_FALSE(Iniciar_Sessio("ANNA", "Clau "));
  EXPECT_TRUE(Iniciar_Sessio("ANNA", "Clau"));
}

TEST_F(M_Usuaris, a_user_without_password_enters_with_an_empty_one) {
  Posar_Usuari("NULL");
  EXPECT_FALSE(Iniciar_Sessio("ANNA", "x"));
  EXPECT_TRUE(Iniciar_Sessio("ANNA", ""));
}

TEST_F(M_Usuaris, an_inactive_user_does_not_exist_for_the_login) {
  Posar_Usuari("'Clau'", "N");
  EXPECT_FALSE(Iniciar_Sessio("ANNA", "Clau"));
}

TEST_F(M_Usuaris, a_failed_login_changes_nothing) {
  EXPECT_FALSE(Iniciar_Sessio("NINGU", ""));
  EXPECT_EQ(sessio.Usuari_Actual, "ADMIN");
}

TEST_F(M_Usuaris, an_apostrophe_in_the_code_is_a_faulty_statement) {
  EXPECT_EQ(Error_De([] { Iniciar_Sessio("x' OR 'a' = 'a", ""); }).Numero(), errors::sentencia);
}

TEST_F(M_Usuaris, whose_company_is_gone_gets_the_chooser) {
  Posar_Usuari("'Clau'", "S", "B99999999");
  pantalla.empresa_triada = empresa_prova;
  ASSERT_TRUE(Iniciar_Sessio("ANNA", "Clau"));
  EXPECT_EQ(pantalla.tries_empresa, 1);
  EXPECT_EQ(sessio.Empresa_Actual, empresa_prova);
  EXPECT_EQ(Text("SELECT EMPRESA_USU FROM USUARIS WHERE CODI_USU = 'ANNA'"), empresa_prova);
  EXPECT_TRUE(pantalla.caixes.empty());
}

TEST_F(M_Usuaris, who_chooses_no_company_is_told_and_works_without_one) {
  Posar_Usuari("'Clau'", "S", "-");
  ASSERT_TRUE(Iniciar_Sessio("ANNA", "Clau"));
  EXPECT_EQ(pantalla.caixes, (std::vector<Caixa_Vista>{{"Has de seleccionar una Empresa!", 16, "Brollador"}}));
  EXPECT_EQ(sessio.Empresa_Actual, "");
  EXPECT_EQ(sessio.Nom_Empresa, "-");
  EXPECT_EQ(Text("SELECT EMPRESA_USU FROM USUARIS WHERE CODI_USU = 'ANNA'"), "-");
}

TEST_F(M_Usuaris, before_a_login_only_the_masters_and_the_exit_work) {
  Habilitar_Menus(false);
  EXPECT_EQ(Habilitats(), (std::set<std::string>{"M_Mestres", "M_Exit"}));
  EXPECT_EQ(pantalla.menus_habilitats.size(), 26U);
}

TEST_F(M_Usuaris, a_login_leaves_the_entries_of_the_modules_to_the_rights) {
  Habilitar_Menus(false);
  Habilitar_Menus(true);
  EXPECT_EQ(Habilitats(), generals);
}

TEST(Te_Acces, is_for_C_S_and_M_exactly) {
  for (const char* dret : {"C", "S", "M"}) EXPECT_TRUE(Te_Acces(dret)) << dret;
  for (const char* dret : {"", "X", "c", "m", "MM"}) EXPECT_FALSE(Te_Acces(dret)) << dret;
}

TEST_F(M_Usuaris, with_all_rights_at_X_only_the_general_entries_work) {
  Habilitar_Menus(false);
  Carregar("P_CLIENTS", "X");
  EXPECT_EQ(Habilitats(), generals);
}

TEST_F(M_Usuaris, each_right_opens_its_entries_of_the_menu) {
  const std::map<std::string, std::set<std::string>> entrades = {
      {"P_ARTICLES",
       {"M_Articles_C", "M_Marques", "M_Families", "M_Subfamilies", "M_Magatzems", "M_Stocks", "M_Moviments",
        "M_Empresa"}},
      {"P_CLIENTS", {"M_Clients"}},
      {"P_PROVEIDORS", {"M_Proveidors"}},
      {"P_USUARIS", {"M_Usuaris"}},
      {"P_CP", {"M_CP"}},
      {"P_VENCIMENTS", {"M_Venciments", "M_FormesPagament"}},
      {"P_PRESSUPOSTOS", {"M_Pressupostos"}},
      {"P_COMANDES", {"M_Comandes"}},
      {"P_ALBARANS", {"M_Albarans", "M_AlbMag", "M_Compres"}},
      {"P_FACTURES", {"M_Factures"}}};
  for (const auto& [columna, esperades] : entrades) {
    Executar("DELETE * FROM USUARIS WHERE CODI_USU = 'ANNA'");
    Carregar(columna, "C");
    EXPECT_EQ(A_Mes_Dels_Generals(), esperades) << columna;
  }
}

TEST_F(M_Usuaris, the_letter_S_opens_the_menu_and_a_lower_case_letter_does_not) {
  Carregar("P_CLIENTS", "S");
  EXPECT_TRUE(pantalla.menus_habilitats["M_Clients"]);
  Executar("UPDATE USUARIS SET P_CLIENTS = 'm' WHERE CODI_USU = 'ANNA'");
  Carregar_Drets("ANNA");
  EXPECT_FALSE(pantalla.menus_habilitats["M_Clients"]);
}

TEST_F(M_Usuaris, the_VAT_types_are_for_the_code_ADMIN_whatever_the_rights_say) {
  Carregar("P_ARTICLES", "M");
  EXPECT_FALSE(pantalla.menus_habilitats["M_IVA"]);
  sessio.Usuari_Actual = "ADMIN";
  Executar("UPDATE USUARIS SET P_ARTICLES = 'X' WHERE CODI_USU = 'ADMIN'");
  Carregar_Drets("ADMIN");
  EXPECT_TRUE(pantalla.menus_habilitats["M_IVA"]);
}

TEST_F(M_Usuaris, who_is_not_found_has_no_rights) {
  sessio.P_Clients = "M";
  Carregar_Drets("NINGU");
  EXPECT_EQ(sessio.P_Clients, "X");
  EXPECT_EQ(sessio.P_Factures, "X");
}

TEST_F(M_Usuaris, the_terminal_can_take_the_orders_away_from_everyone) {
  sessio.Parametres["P_Comandes"] = "X";
  Carregar("P_COMANDES", "M");
  EXPECT_EQ(sessio.P_Comandes, "X");
  EXPECT_FALSE(pantalla.menus_habilitats["M_Comandes"]);
}

TEST_F(M_Usuaris, the_terminal_cannot_give_orders_by_any_other_letter) {
  sessio.Parametres["P_Comandes"] = "M";
  Carregar("P_COMANDES", "X");
  EXPECT_EQ(sessio.P_Comandes, "X");
}

TEST_F(M_Usuaris, proposals_and_orders_are_visible_unless_the_terminal_hides_them) {
  Carregar("P_COMANDES", "M");
  EXPECT_TRUE(pantalla.menus_visibles["M_Comandes"]);
  EXPECT_TRUE(pantalla.menus_visibles["M_Pressupostos"]);
  sessio.Parametres["M_Comandes_Visible"] = "FALSE";
  sessio.Parametres["M_Pressupostos_Visible"] = "0";
  Carregar_Drets("ANNA");
  EXPECT_FALSE(pantalla.menus_visibles["M_Comandes"]);
  EXPECT_FALSE(pantalla.menus_visibles["M_Pressupostos"]);
}

TEST_F(M_Usuaris, a_visibility_is_True_or_any_number_but_0) {
  Posar_Usuari();
  for (const char* valor : {"true", "True", "-1", "2", "0,5", "0.5"}) {
    sessio.Parametres["M_Comandes_Visible"] = valor;
    Carregar_Drets("ANNA");
    EXPECT_TRUE(pantalla.menus_visibles["M_Comandes"]) << valor;
  }
}

TEST_F(M_Usuaris, a_visibility_that_is_no_truth_value_is_a_type_error) {
  Posar_Usuari();
  for (const char* valor : {"Cert", "Sí", ""}) {
    sessio.Parametres["M_Comandes_Visible"] = valor;
    EXPECT_EQ(Error_De([] { Carregar_Drets("ANNA"); }).Numero(), errors::tipus) << valor;
  }
}

TEST_F(M_Usuaris, the_menu_bar_says_who_works_and_for_whom) {
  Actualitzar_Menu_Sessio();
  EXPECT_EQ(pantalla.menus_textos["M_CanviUsuari"], "Usuari: Administrador");
  EXPECT_EQ(pantalla.menus_textos["M_Sel_Empresa"], "Empresa: Empresa de prova");
  sessio.Idioma_Actual = 2;
  Actualitzar_Menu_Sessio();
  EXPECT_EQ(pantalla.menus_textos["M_CanviUsuari"], "User: Administrador");
  EXPECT_EQ(pantalla.menus_textos["M_Sel_Empresa"], "Company: Empresa de prova");
}

TEST_F(M_Usuaris, the_menu_ticks_the_language_of_the_session_alone) {
  sessio.Idioma_Actual = 1;
  Actualitzar_Menu_Sessio();
  EXPECT_EQ(pantalla.menus_marcats,
            (std::map<std::string, bool>{{"M_Catalan", false}, {"M_Spanish", true}, {"M_English", false}}));
}

TEST_F(M_Usuaris, an_unknown_language_leaves_the_menu_bar_empty) {
  Posar_Idioma_Sessio(7);
  Actualitzar_Menu_Sessio();
  EXPECT_EQ(pantalla.menus_textos["M_CanviUsuari"], "");
  EXPECT_EQ(pantalla.menus_textos["M_Sel_Empresa"], "");
}

TEST_F(M_Usuaris, a_new_user_is_active_without_password_or_access_in_the_language_of_the_session) {
  sessio.Idioma_Actual = 2;
  EXPECT_EQ(Nou_Usuari(), "0000000001");
  const Recordset rs("SELECT * FROM USUARIS WHERE CODI_USU = '0000000001'", sessio.Connexio_Comuna);
  ASSERT_EQ(rs.RecordCount(), 1);
  EXPECT_EQ(rs["DESCRIPCIO_USU"].Text(), "Usuari0000000001");
  EXPECT_EQ(rs["CLAU_USU"], Valor(""));
  EXPECT_EQ(rs["ACTIU_USU"].Text(), "S");
  EXPECT_EQ(rs["IDIOMA_USU"].Enter(), 2);
  for (const char* dret : {"P_CLIENTS", "P_PROVEIDORS", "P_ARTICLES", "P_USUARIS", "P_CP", "P_VENCIMENTS",
                           "P_PRESSUPOSTOS", "P_COMANDES", "P_ALBARANS", "P_FACTURES"})
    EXPECT_EQ(rs[dret].Text(), "X") << dret;
  EXPECT_EQ(Nou_Usuari(), "0000000002");
}

TEST_F(M_Usuaris, a_user_is_deleted_once_the_question_is_answered) {
  Posar_Usuari();
  pantalla.respostes = {Resposta::Cancel, Resposta::Ok};
  Esborrar_Usuari("ANNA", "Anna");
  EXPECT_EQ(Files("SELECT * FROM USUARIS WHERE CODI_USU = 'ANNA'"), 1);
  Esborrar_Usuari("ANNA", "Anna");
  EXPECT_EQ(Files("SELECT * FROM USUARIS WHERE CODI_USU = 'ANNA'"), 0);
  const Caixa_Vista pregunta{"Segur d'esborrar l'usuari Anna ?", 1, "Brollador"};
  EXPECT_EQ(pantalla.caixes, (std::vector<Caixa_Vista>{pregunta, pregunta}));
}

TEST_F(M_Usuaris, neither_the_administrator_nor_who_is_at_work_is_deleted) {
  Posar_Usuari();
  const Caixa_Vista no_es_pot{"No es pot esborrar ni l'Administrador ni l'usuari Actual.", 0, "Brollador"};
  for (const auto& [qui, actual] :
       {std::pair("ADMIN", "ANNA"), std::pair("ADMIN", "ADMIN"), std::pair("ANNA", "ANNA")}) {
    sessio.Usuari_Actual = actual;
    pantalla.caixes.clear();
    pantalla.respostes = {Resposta::Ok};
    Esborrar_Usuari(qui, "Algú");
    ASSERT_EQ(pantalla.caixes.size(), 2U);
    EXPECT_EQ(pantalla.caixes[1], no_es_pot);
    EXPECT_EQ(Files("SELECT * FROM USUARIS"), 2);
  }
}

TEST_F(M_Usuaris, the_editor_takes_S_and_N_and_the_letters_M_C_and_X_exactly) {
  for (const char* valor : {"S", "N"}) EXPECT_TRUE(Es_Actiu_Valid(valor)) << valor;
  for (const char* valor : {"", "s", "X", "SN", "Sí"}) EXPECT_FALSE(Es_Actiu_Valid(valor)) << valor;
  for (const char* valor : {"M", "C", "X"}) EXPECT_TRUE(Es_Dret_Valid(valor)) << valor;
  for (const char* valor : {"", "m", "S", "MC"}) EXPECT_FALSE(Es_Dret_Valid(valor)) << valor;
  Avisar_Actiu_Invalid();
  Avisar_Dret_Invalid();
  EXPECT_EQ(pantalla.caixes, (std::vector<Caixa_Vista>{{"Valors Autoritzats: S/N", 16, "Brollador"},
                                                       {"Valors Autoritzats: M/C/X", 16, "Brollador"}}));
}
