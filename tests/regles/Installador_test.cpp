// How an installation is made, and what is left when one cannot be made.
#include <sys/stat.h>

#include "schema/Definicions.h"
#include "session/M_Usuaris.h"
#include "tests/regles/Base_Installador.h"

TEST_F(Installador, the_shared_database_goes_where_it_is_told) {
  const std::string compartida = temporal.Cami() + "/comu, de tots.db";
  Crear_Base(Opcions(compartida));
  EXPECT_EQ(Contingut(carpeta + "/Brollador.ini"), "\"" + compartida + "\"\n");
  EXPECT_TRUE(fs::exists(compartida));
  EXPECT_FALSE(fs::exists(carpeta + "/comuna.db"));
}

TEST_F(Installador, an_address_is_whole_whatever_folder_the_program_starts_in) {
  const std::string aqui = fs::current_path().string();
  EXPECT_EQ(Adreca_Compartida({.carpeta = "dades", .compartida = ""}), aqui + "/dades/comuna.db");
  EXPECT_EQ(Adreca_Compartida({.carpeta = "dades", .compartida = "c.db"}), aqui + "/c.db");
  EXPECT_EQ(Adreca_Compartida({.carpeta = "dades", .compartida = "postgresql://servidor/base"}),
            "postgresql://servidor/base");
}

TEST_F(Installador, an_installation_is_never_written_over) {
  Crear_Base(Opcions());
  const std::string abans = Mida_I_Data(carpeta + "/comuna.db") + Mida_I_Data(carpeta + "/Brollador.ini");
  const Error_Brollador error = Error_De([&] { Crear_Base(Opcions()); });
  EXPECT_EQ(error.Numero(), errors::fitxer_existent);
  EXPECT_NE(error.Descripcio().find(carpeta + "/Brollador.ini"), std::string::npos) << error.Descripcio();
  EXPECT_EQ(Mida_I_Data(carpeta + "/comuna.db") + Mida_I_Data(carpeta + "/Brollador.ini"), abans);
}

TEST_F(Installador, a_shared_database_is_never_written_over) {
  const std::string compartida = temporal.Cami() + "/comuna.db";
  std::ofstream(compartida) << "ours";
  EXPECT_EQ(Error_De([&] { Crear_Base(Opcions(compartida)); }).Numero(), errors::fitxer_existent);
  EXPECT_EQ(Contingut(compartida), "ours");
  EXPECT_FALSE(fs::exists(carpeta));
}

TEST_F(Installador, when_the_shared_folder_is_missing_nothing_is_left_and_a_second_try_works) {
  Error_De([&] { Crear_Base(Opcions(temporal.Cami() + "/no_hi_es/comuna.db")); });
  EXPECT_TRUE(Res_No_Queda());
  Crear_Base(Opcions());
  EXPECT_TRUE(fs::exists(carpeta + "/comuna.db"));
}

TEST_F(Installador, when_the_work_on_top_fails_nothing_is_left) {
  const auto fallar = [] { throw Error_Brollador(errors::general, "prova", "the disk is full"); };
  EXPECT_EQ(Error_De([&] { Crear_Buida(Opcions(), {"B1", "Una SL", ""}, fallar); }).Descripcio(), "the disk is full");
  EXPECT_TRUE(Res_No_Queda());
}

TEST_F(Installador, what_was_in_the_folder_stays_when_it_fails) {
  fs::create_directories(carpeta);
  std::ofstream(carpeta + "/notes.txt") << "ours";
  Error_De([&] { Crear_Base(Opcions(temporal.Cami() + "/no_hi_es/comuna.db")); });
  EXPECT_EQ(std::distance(fs::directory_iterator(carpeta), {}), 1);
}

TEST_F(Installador, an_address_that_the_configuration_file_cannot_hold_is_refused) {
  Error_De([&] { Crear_Base(Opcions(temporal.Cami() + "/a\"b.db")); });
  EXPECT_TRUE(Res_No_Queda());
}

TEST_F(Installador, a_new_office_has_its_company_its_password_and_what_the_program_asks_for) {
  Crear_Buida(Opcions(), {"B17", "L'Oficina, SL", "clau d'aquí"});
  Connexio comuna;
  comuna.Open(carpeta + "/comuna.db");
  EXPECT_EQ(Files_En_Text(comuna, "SELECT NIF_EMP, RAO_SOCIAL_EMP, ACTIU_EMP, IVA_EMP, RE_EMP FROM EMPRESES"),
            "B17 | L'Oficina, SL | -1 | -1 | 0\n");
  EXPECT_EQ(Files_En_Text(comuna, "SELECT CODI_USU, CLAU_USU, EMPRESA_USU FROM USUARIS"),
            "ADMIN | clau d'aquí | B17\n");
  EXPECT_EQ(Recordset("SELECT * FROM IVAS WHERE CODI_IVA = 'GN' OR PORC_IVA = 0", comuna).RecordCount(), 2);
  EXPECT_EQ(Recordset("SELECT * FROM VENCIMENTS WHERE CODI_VEN = 'NO'", comuna).RecordCount(), 1);
  EXPECT_EQ(Recordset("SELECT * FROM ALMACENES", comuna).RecordCount(), 1);
}

TEST_F(Installador, a_further_terminal_shares_the_database_and_has_texts_of_its_own) {
  const std::string compartida = temporal.Cami() + "/comuna.db";
  Crear_Base(Opcions(compartida));
  const std::string segon = temporal.Cami() + "/segon";
  Crear_Terminal({.carpeta = segon, .compartida = compartida});
  EXPECT_EQ(Contingut(segon + "/Brollador.ini"), Contingut(carpeta + "/Brollador.ini"));
  Connexio local;
  local.Open(segon + "/dadeslocals.db");
  EXPECT_GT(Recordset("SELECT * FROM TEXTS", local).RecordCount(), 300);
}

TEST_F(Installador, a_terminal_is_not_made_on_a_database_that_is_not_there) {
  Error_De([&] { Crear_Terminal(Opcions(temporal.Cami() + "/comuna.db")); });
  EXPECT_TRUE(Res_No_Queda());
}

TEST_F(Installador, a_file_of_statements_leaves_its_comments_out) {
  Crear_Base(Opcions());
  Connexio comuna;
  comuna.Open(carpeta + "/comuna.db");
  Executar_Fitxer(comuna,
                  "-- a title; with a semicolon\n"
                  "INSERT INTO FAMILIES\n  (CODI_FAM) VALUES ('1');\n\n"
                  "INSERT INTO FAMILIES (CODI_FAM) VALUES ('2');\n");
  EXPECT_EQ(Recordset("SELECT * FROM FAMILIES", comuna).RecordCount(), 2);
}

TEST_F(Installador, the_data_folder_and_what_lies_in_it_are_the_users_alone) {
  const mode_t abans = umask(0);
  Crear_Base(Opcions());
  umask(abans);
  constexpr auto fitxer = fs::perms::owner_read | fs::perms::owner_write;
  for (const char* cami : {"", "/copia", "/Temp"}) {
    EXPECT_EQ(fs::status(carpeta + cami).permissions(), fs::perms::owner_all) << cami;
  }
  for (const char* cami : {"/Brollador.ini", "/dadeslocals.db"}) {
    EXPECT_EQ(fs::status(carpeta + cami).permissions(), fitxer) << cami;
  }
}
