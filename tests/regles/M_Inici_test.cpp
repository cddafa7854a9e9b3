#include "session/M_Inici.h"

#include <pwd.h>
#include <unistd.h>

#include <fstream>
#include <set>

#include "core/dades/Registre_Errors.h"
#include "core/dades/Text.h"

#include "tests/regles/Base.h"

namespace {

// The user's data folder of the desktop, moved to a temporary place.
class Inici : public testing::Test {
 protected:
  void SetUp() override { setenv("XDG_DATA_HOME", carpeta.Cami().c_str(), 1); }
  void TearDown() override { unsetenv("XDG_DATA_HOME"); }

  void Installar() {
    Crear_Base(carpeta.Cami() + "/brollador");
    Fixar_Directoris();
  }
  static void Escriure_Ini(const std::string& text) {
    std::filesystem::create_directories(sessio.Dir_Dades);
    std::ofstream(sessio.Fitxer_Ini, std::ios::binary) << text;
  }
  static std::string Llegit(const std::string& ini) {
    Fixar_Directoris();
    Escriure_Ini(ini);
    Llegir_Ini();
    return sessio.Fitxer_Comu;
  }
  static void Afegir_Parametre(const std::string& nom, const std::string& valor) {
    Connexio local;
    local.Open(sessio.Fitxer_Locals);
    local.Execute("INSERT INTO CONFIGURACIO (Parametre, Valor) VALUES(" + Text_SQL(nom) + "," + Text_SQL(valor) + ")");
  }

  Carpeta_Temporal carpeta;
  Sessio_Nova sessio_nova;
};

}  // namespace

TEST_F(Inici, everything_local_hangs_from_the_data_folder_of_the_user) {
  Fixar_Directoris();
  const std::string dades = carpeta.Cami() + "/brollador";
  EXPECT_EQ(sessio.Dir_Dades, dades);
  EXPECT_EQ(sessio.Fitxer_Ini, dades + "/Brollador.ini");
  EXPECT_EQ(sessio.Dir_Copia, dades + "/copia");
  EXPECT_EQ(sessio.Fitxer_Locals, dades + "/dadeslocals.db");
  EXPECT_EQ(sessio.Dir_Temp, dades + "/Temp/");
}

TEST_F(Inici, the_data_folder_is_the_desktops_usual_one_when_nothing_moves_it) {
  unsetenv("XDG_DATA_HOME");
  Fixar_Directoris();
  EXPECT_TRUE(sessio.Dir_Dades.starts_with('/'));
  EXPECT_TRUE(sessio.Dir_Dades.ends_with("/.local/share/brollador"));
}

TEST_F(Inici, a_relative_data_folder_is_ignored) {
  setenv("XDG_DATA_HOME", "dades", 1);
  Fixar_Directoris();
  EXPECT_TRUE(sessio.Dir_Dades.starts_with('/'));
}

TEST_F(Inici, a_terminal_is_named_after_its_computer_and_its_user_and_keeps_its_name) {
  sessio.Dir_Dades = std::string(getpwuid(geteuid())->pw_dir) + "/.local/share/brollador";
  const std::string nom = Nom_Equip();
  char equip[256] = {};
  gethostname(equip, sizeof equip - 1);
  EXPECT_TRUE(nom.starts_with(std::string(equip) + "/"));
  EXPECT_EQ(std::count(nom.begin(), nom.end(), '/'), 1);
  EXPECT_FALSE(nom.ends_with('/'));
  EXPECT_EQ(Nom_Equip(), nom);
}

TEST_F(Inici, two_data_folders_of_one_account_are_two_terminals) {
  std::set<std::string> noms;
  for (const char* carpeta_dades : {"/un", "/dos", "/d'Anoia"}) {
    sessio.Dir_Dades = carpeta.Cami() + carpeta_dades;
    noms.insert(Nom_Equip());
    EXPECT_NO_THROW(Text_SQL(Nom_Equip()));
  }
  EXPECT_EQ(noms.size(), 3U);
  for (const auto& nom : noms) EXPECT_EQ(std::count(nom.begin(), nom.end(), '/'), 2) << nom;
  sessio.Dir_Dades = carpeta.Cami() + "/tres/../un/";
  EXPECT_TRUE(noms.contains(Nom_Equip()));
}

TEST_F(Inici, accounts_whose_names_differ_in_capitals_alone_are_two_terminals) {
  sessio.Dir_Dades = "/home/anna/.local/share/brollador";
  const std::string anna = Nom_De_Terminal("pc", "anna", "/home/anna");
  EXPECT_EQ(anna, "pc/anna");
  for (const char* casa : {"/home/Anna", "/home/anna"}) {
    sessio.Dir_Dades = std::string(casa) + "/.local/share/brollador";
    EXPECT_NE(Plegar(Nom_De_Terminal("pc", "Anna", casa)), anna) << casa;
  }
}

TEST_F(Inici, errors_are_logged_in_the_data_folder) {
  Installar();
  Escriure_Ini(carpeta.Cami() + "/no-hi-es.db");
  EXPECT_EQ(Error_De(Preparar_Inici).Motiu(), Falla::Sense_Connexio);
  EXPECT_TRUE(std::filesystem::exists(sessio.Dir_Dades + "/errors.log"));
  Obrir_Registre_Errors({});
}

TEST_F(Inici, the_ini_file_is_one_path) {
  EXPECT_EQ(Llegit("/dades/comunes.db\n"), "/dades/comunes.db");
}

TEST_F(Inici, what_follows_the_first_item_of_the_ini_file_is_ignored) {
  EXPECT_EQ(Llegit("/dades/comunes.db\r\nuna altra\r\n"), "/dades/comunes.db");
}

TEST_F(Inici, a_path_with_a_comma_is_cut_there_unless_it_stands_in_quotes) {
  EXPECT_EQ(Llegit("/dades/a,b.db"), "/dades/a");
  EXPECT_EQ(Llegit("\"/dades/a,b.db\", res"), "/dades/a,b.db");
}

TEST_F(Inici, blanks_around_the_item_and_the_editors_mark_are_skipped) {
  EXPECT_EQ(Llegit("\xEF\xBB\xBF  /dades/amb blancs.db \t\n"), "/dades/amb blancs.db");
}

TEST_F(Inici, a_quote_that_is_never_closed_ends_with_the_line) {
  EXPECT_EQ(Llegit("\"/dades/a.db\nb"), "/dades/a.db");
}

TEST_F(Inici, an_empty_ini_file_gives_no_path) {
  EXPECT_EQ(Llegit(""), "");
}

TEST_F(Inici, a_missing_ini_file_is_error_53) {
  Fixar_Directoris();
  EXPECT_EQ(Error_De(Llegir_Ini).Numero(), errors::fitxer_no_trobat);
}

TEST_F(Inici, a_sound_installation_starts_with_both_connections_open) {
  Installar();
  Preparar_Inici();
  EXPECT_TRUE(sessio.Connexio_Comuna.Es_Oberta());
  EXPECT_TRUE(sessio.Connexio_Local.Es_Oberta());
  EXPECT_EQ(sessio.Equip_Actual, Nom_Equip());
  Tancar_Connexions();
  EXPECT_FALSE(sessio.Connexio_Comuna.Es_Oberta());
  EXPECT_FALSE(sessio.Connexio_Local.Es_Oberta());
}

TEST_F(Inici, a_missing_ini_file_is_passed_over_and_the_connection_fails_instead) {
  Installar();
  std::filesystem::remove(sessio.Fitxer_Ini);
  const Error_Brollador error = Error_De(Preparar_Inici);
  EXPECT_NE(error.Numero(), errors::fitxer_no_trobat);
  EXPECT_FALSE(sessio.Connexio_Comuna.Es_Oberta());
}

TEST_F(Inici, an_empty_ini_file_fails_the_connection) {
  Installar();
  Escriure_Ini("");
  EXPECT_EQ(Error_De(Preparar_Inici).Numero(), errors::general);
}

TEST_F(Inici, a_path_that_does_not_exist_fails_and_makes_no_new_database) {
  Installar();
  Escriure_Ini(carpeta.Cami() + "/no-hi-es.db");
  EXPECT_EQ(Error_De(Preparar_Inici).Numero(), errors::general);
  EXPECT_FALSE(std::filesystem::exists(carpeta.Cami() + "/no-hi-es.db"));
}

TEST_F(Inici, no_parameters_are_no_trouble) {
  Installar();
  Preparar_Inici();
  EXPECT_TRUE(sessio.Parametres.empty());
}

TEST_F(Inici, parameters_are_read_and_their_names_tell_upper_from_lower_case) {
  Installar();
  Afegir_Parametre("P_Comandes", "X");
  Afegir_Parametre("p_comandes", "M");
  Preparar_Inici();
  EXPECT_EQ(sessio.Parametres.at("P_Comandes"), "X");
  EXPECT_EQ(sessio.Parametres.at("p_comandes"), "M");
}

TEST_F(Inici, a_parameter_that_stands_twice_stops_the_start) {
  Installar();
  Afegir_Parametre("P_Comandes", "X");
  Afegir_Parametre("P_Comandes", "X");
  EXPECT_EQ(Error_De(Preparar_Inici).Numero(), errors::general);
}

TEST_F(Inici, the_box_of_a_failed_start_gives_number_and_words_under_its_first_line) {
  EXPECT_EQ(Text_Inici_Fallit(Error_Brollador(14, "", "unable to open database file")),
            "Avui no estàs de sort !!!, \n14/unable to open database file");
}

TEST_F(Inici, the_folder_of_an_older_installation_becomes_the_users_alone) {
  const auto tothom = std::filesystem::perms::all;
  Fixar_Directoris();
  const std::string compartida = carpeta.Cami() + "/comuna.db";
  Crear_Base(sessio.Dir_Dades, compartida);
  for (const auto& cami : {sessio.Dir_Dades, sessio.Fitxer_Ini, sessio.Fitxer_Locals}) {
    std::filesystem::permissions(cami, tothom);
  }
  Preparar_Inici();
  const auto drets = [](const std::string& cami) { return std::filesystem::status(cami).permissions(); };
  EXPECT_EQ(drets(sessio.Dir_Dades), std::filesystem::perms::owner_all);
  EXPECT_EQ(static_cast<int>(drets(sessio.Fitxer_Ini)), 0600);
  EXPECT_EQ(static_cast<int>(drets(sessio.Fitxer_Locals)), 0600);
}

TEST_F(Inici, a_folder_that_holds_the_shared_database_stays_as_its_owner_wants_it) {
  Installar();
  std::filesystem::permissions(sessio.Dir_Dades, std::filesystem::perms::all);
  std::filesystem::permissions(sessio.Dir_Temp, std::filesystem::perms::all);
  Preparar_Inici();
  EXPECT_EQ(std::filesystem::status(sessio.Dir_Dades).permissions(), std::filesystem::perms::all);
  EXPECT_EQ(std::filesystem::status(sessio.Dir_Temp).permissions(), std::filesystem::perms::owner_all);
}
