#include "core/M_Funcions_Comuns.h"

#include <cmath>
#include <locale>

#include "tests/regles/Base.h"

using M_Funcions_Comuns = Base_Dades;

TEST(Arrodonir, rounds_halves_away_from_zero) {
  EXPECT_EQ(Arrodonir(0.125, 2), 0.13);
  EXPECT_EQ(Arrodonir(-0.125, 2), -0.13);
  EXPECT_EQ(Arrodonir(1.234565, 5), 1.23457);
}

TEST(Arrodonir, sees_the_number_at_15_digits_so_that_1_005_is_a_half) {
  EXPECT_EQ(Arrodonir(1.005, 2), 1.01);
  EXPECT_EQ(Arrodonir(-1.005, 2), -1.01);
  EXPECT_EQ(Arrodonir(2.675, 2), 2.68);
}

TEST(Arrodonir, refuses_what_it_cannot_hold_exactly) {
  for (const double valor : {15000000000000.0, -15000000000000.0, 1E300, 9999999999999.999})
    EXPECT_EQ(Error_De([&] { Arrodonir(valor, 2); }).Numero(), errors::desbordament) << valor;
  EXPECT_EQ(Error_De([] { Arrodonir(1E10, 5); }).Numero(), errors::desbordament);
  EXPECT_EQ(Arrodonir(9999999999999.0, 2), 9999999999999.0);
  EXPECT_EQ(Arrodonir(-1000000000000.0, 2), -1000000000000.0);
}

TEST(Arrodonir, gives_a_plain_zero_for_what_comes_to_nothing) {
  for (const double valor : {0.0, 0.004, -0.004}) {
    EXPECT_EQ(Arrodonir(valor, 2), 0);
    EXPECT_FALSE(std::signbit(Arrodonir(valor, 2)));
  }
}

TEST(Arrodonir, does_not_depend_on_the_locale_of_the_machine) {
  struct Coma_Estranya : std::numpunct<char> {
    char do_decimal_point() const override { return '#'; }
  };
  const std::locale abans = std::locale::global(std::locale(std::locale(), new Coma_Estranya));
  const double resultat = Arrodonir(1.005, 2);
  std::locale::global(abans);
  EXPECT_EQ(resultat, 1.01);
}

TEST(Nul_A_Defecte, takes_the_default_for_a_null_and_for_an_empty_text) {
  EXPECT_EQ(Nul_A_Defecte(Valor(), "x"), Valor("x"));
  EXPECT_EQ(Nul_A_Defecte("", "x"), Valor("x"));
  EXPECT_EQ(Nul_A_Defecte("a", "x"), Valor("a"));
  EXPECT_EQ(Nul_A_Defecte(0, "x"), Valor(0));
}

TEST(Nul_A_Defecte, of_a_null_text_shows_0_without_a_default) {
  EXPECT_EQ(Nul_A_Defecte(Valor()).Text(), "0");
}

TEST(Literals, dates_are_written_month_first_without_leading_zeros) {
  EXPECT_EQ(Data_SQL({2011, 3, 5}), "#3/5/2011#");
}

TEST(Literals, any_value_has_one) {
  EXPECT_EQ(Valor_SQL(Valor()), "NULL");
  EXPECT_EQ(Valor_SQL("d e"), "'d e'");
  EXPECT_EQ(Valor_SQL(true), "-1");
  EXPECT_EQ(Valor_SQL(7.5), "7.5");
  EXPECT_EQ(Valor_SQL(Data_Hora{2011, 3, 5}), "#3/5/2011#");
}

TEST(Literals, a_text_with_an_apostrophe_is_a_faulty_statement) {
  EXPECT_EQ(Error_De([] { Valor_SQL("d'Anoia"); }).Numero(), errors::sentencia);
}

TEST(Rellotge, stands_on_the_day_it_is_told) {
  Fixar_Avui({2011, 3, 5});
  EXPECT_EQ(Avui(), (Data_Hora{2011, 3, 5}));
  EXPECT_EQ(Ara().dia, 5);
  Deixar_Anar_Rellotge();
  EXPECT_GT(Avui().any, 2020);
}

TEST_F(M_Funcions_Comuns, the_servers_clock_is_the_local_one_on_a_company_without_articles) {
  Fixar_Rellotge([] { return Data_Hora{2011, 3, 5, 10, 20, 30}; });
  EXPECT_EQ(Data_Hora_Servidor(), (Data_Hora{2011, 3, 5, 10, 20, 30}));
}

TEST_F(M_Funcions_Comuns, the_servers_clock_is_the_engines_when_there_are_articles) {
  Posar_Article({});
  EXPECT_GT(Data_Hora_Servidor().any, 2011);
  NOMES_AMB_FITXER();  // a server has a clock of its own
  Fixar_Rellotge([] { return Data_Hora{2011, 3, 5, 10, 20, 30}; });
  EXPECT_EQ(Data_Hora_Servidor(), (Data_Hora{2011, 3, 5, 10, 20, 30}));
}

class Reposicionar_Llista : public Base_Dades {
 protected:
  Recordset rs{"SELECT * FROM VENCIMENTS ORDER BY CODI_VEN", sessio.Connexio_Comuna};  // three rows
};

TEST_F(Reposicionar_Llista, goes_so_many_rows_from_the_first) {
  Reposicionar(rs, 1);
  EXPECT_EQ(rs.AbsolutePosition(), 2);
}

TEST_F(Reposicionar_Llista, beyond_the_last_row_ends_at_the_last) {
  Reposicionar(rs, 50);
  EXPECT_EQ(rs.AbsolutePosition(), 3);
}

TEST_F(Reposicionar_Llista, to_row_0_stays_where_the_requery_left_it) {
  rs.Requery();
  Reposicionar(rs, 0);
  EXPECT_EQ(rs.AbsolutePosition(), 1);
}

TEST_F(Reposicionar_Llista, does_nothing_on_an_empty_or_closed_list) {
  Recordset buida("SELECT * FROM CLIENTS", sessio.Connexio_Comuna);
  EXPECT_NO_THROW(Reposicionar(buida, 3));
  buida.Close();
  EXPECT_NO_THROW(Reposicionar(buida, 3));
}

TEST_F(Reposicionar_Llista, after_a_requery_the_row_that_was_current_is_current_again) {
  rs.MoveLast();
  Requerir_Alla_Mateix(rs);
  EXPECT_EQ(rs.AbsolutePosition(), 3);
  Requerir_Alla_Mateix(rs, "SELECT * FROM VENCIMENTS ORDER BY CODI_VEN DESC");
  EXPECT_EQ(rs.AbsolutePosition(), 3);
  EXPECT_EQ(rs.Source(), "SELECT * FROM VENCIMENTS ORDER BY CODI_VEN DESC");
}

TEST_F(Reposicionar_Llista, after_a_requery_that_finds_fewer_rows_the_last_one_is_current) {
  rs.MoveLast();
  sessio.Connexio_Comuna.Execute("DELETE * FROM VENCIMENTS WHERE CODI_VEN = " + Text_SQL(rs["CODI_VEN"].Text()));
  Requerir_Alla_Mateix(rs);
  EXPECT_EQ(rs.AbsolutePosition(), 2);
}

TEST_F(M_Funcions_Comuns, a_wait_is_the_screens_matter_and_one_of_no_seconds_is_none) {
  Esperar(3);
  EXPECT_EQ(pantalla.segons_esperats, 3);
  Esperar(0);
  Esperar(-1);
  EXPECT_EQ(pantalla.segons_esperats, 3);
}

TEST(Crear_Directori, makes_every_folder_of_the_path_and_gives_it_back_closed_by_a_slash) {
  const Carpeta_Temporal carpeta;
  std::string cami = carpeta.Cami() + "//un//dos";
  Crear_Directori(cami);
  EXPECT_EQ(cami, carpeta.Cami() + "/un/dos/");
  EXPECT_TRUE(std::filesystem::is_directory(cami));
  EXPECT_NO_THROW(Crear_Directori(cami));
}

TEST(Crear_Directori, says_which_folder_cannot_be_made) {
  const Carpeta_Temporal carpeta;
  std::string fitxer = carpeta.Cami() + "/fitxer";
  fclose(fopen(fitxer.c_str(), "w"));
  std::string cami = fitxer + "/dins";
  EXPECT_NE(Error_De([&] { Crear_Directori(cami); }).Descripcio().find("fitxer/"), std::string::npos);
}

TEST_F(M_Funcions_Comuns, recordsets_that_outlive_their_form_are_closed_once_and_forgotten) {
  Recordset cerca("SELECT * FROM CLIENTS", sessio.Connexio_Comuna);
  Recordset informe("SELECT * FROM IVAS", sessio.Connexio_Comuna);
  Recordset llista("SELECT * FROM CP", sessio.Connexio_Comuna);
  sessio.Recordset_Cerca = &cerca;
  sessio.Recordsets_Informe = {&informe};
  Tancar_Recordsets_Informe();
  EXPECT_FALSE(cerca.State());
  EXPECT_FALSE(informe.State());
  EXPECT_TRUE(llista.State());
  EXPECT_FALSE(Recordset_Registrat("SELECT * FROM IVAS"));
  EXPECT_EQ(sessio.Recordset_Cerca, nullptr);
  EXPECT_TRUE(sessio.Recordsets_Informe.empty());
  Tancar_Recordsets_Informe();
}

TEST_F(M_Funcions_Comuns, a_loaded_form_is_found_whatever_the_case_of_its_name) {
  pantalla.formularis = {"F_CERCA"};
  EXPECT_TRUE(Formulari_Carregat("F_Cerca"));
  EXPECT_FALSE(Formulari_Carregat("F_Albara"));
}

TEST(Missatge, speaks_the_language_of_the_session_and_nothing_in_another) {
  const Sessio_Nova nova;
  EXPECT_EQ(Missatge("ca", "es", "en"), "ca");
  sessio.Idioma_Actual = 1;
  EXPECT_EQ(Missatge("ca", "es", "en"), "es");
  sessio.Idioma_Actual = 2;
  EXPECT_EQ(Missatge("ca", "es", "en"), "en");
  sessio.Idioma_Actual = 3;
  EXPECT_EQ(Missatge("ca", "es", "en"), "");
}

TEST(Pantalla_Absent, is_a_mistake_of_ours_that_says_so) {
  const Sessio_Nova nova;
  EXPECT_THROW(Formulari_Carregat("F_CERCA"), std::logic_error);
}

TEST_F(M_Funcions_Comuns, an_error_shows_its_number_and_words_in_a_critical_box) {
  Mostrar_Error(Error_Brollador(1001, "", "No hi ha prou"));
  EXPECT_EQ(pantalla.caixes, (std::vector<Caixa_Vista>{{"1001 - No hi ha prou", 16, "Brollador"}}));
}

TEST_F(M_Funcions_Comuns, a_failure_is_shown_once_however_many_handlers_it_passes) {
  Mostrar_Error(Error_Brollador(1001, "", "No hi ha prou"));
  Mostrar_Error(Error_Brollador(1010, "", "Error en los Movimientos..."));
  EXPECT_EQ(pantalla.caixes.size(), 1U);
  sessio.Error_Mostrat = false;
  Mostrar_Error(Error_Brollador(1010, "", "Una altra"));
  EXPECT_EQ(pantalla.caixes.size(), 2U);
}

TEST_F(M_Funcions_Comuns, the_input_is_released_once_and_only_if_it_is_blocked) {
  Bloquejar_Entrada();
  EXPECT_TRUE(pantalla.entrada_blocada);
  Alliberar_Entrada();
  EXPECT_FALSE(pantalla.entrada_blocada);
  pantalla.entrada_blocada = true;  // somebody else's block
  Alliberar_Entrada();
  EXPECT_TRUE(pantalla.entrada_blocada);
}
