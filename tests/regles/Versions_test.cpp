// Databases of older and newer programs: what the start does with them, and how they are brought up.
#include <algorithm>
#include <fstream>
#include <iterator>

#include "core/dades/Esquema_PostgreSQL.h"
#include "core/dades/Motor.h"
#include "core/dades/Transaccio.h"
#include "schema/Actualitzador.h"
#include "schema/Definicions.h"
#include "tests/regles/Base.h"

namespace fs = std::filesystem;

namespace {

std::string Contingut(const std::string& fitxer) {
  std::ifstream obert(fitxer);
  return {std::istreambuf_iterator<char>(obert), {}};
}

// The definitions of the first program of all.
std::string Primera(const std::string& base) {
  return Contingut(CARPETA_PROVES "/esquemes/" + base + "_1.sql");
}

std::string Sense_Blancs(std::string text) {
  std::erase_if(text, [](char c) { return c == ' ' || c == '\n'; });
  return text;
}

// The tables of a file of definitions, parents first.
std::vector<std::string> Taules_En_Ordre(const std::string& definicions) {
  constexpr std::string_view paraules = "CREATE TABLE ";
  std::vector<std::string> noms;
  for (std::size_t i = definicions.find(paraules); i != std::string::npos; i = definicions.find(paraules, i + 1)) {
    const std::size_t inici = i + paraules.size();
    noms.push_back(definicions.substr(inici, definicions.find(' ', inici) - inici));
  }
  return noms;
}

// A value for any column: alike where relations want them alike.
Valor Valor_De_Prova(Tipus_Columna tipus) {
  switch (tipus) {
    case Tipus_Columna::Codi:
      return "Ç-1";
    case Tipus_Columna::Text:
      return "L'aigua és freda, «molt» 10 €";
    case Tipus_Columna::Doble:
      return 0.1;
    case Tipus_Columna::Boolea:
      return -1;
    case Tipus_Columna::Data:
    case Tipus_Columna::Data_Hora:
      return Data_Hora{.any = 2026, .mes = 3, .dia = 29};
    default:
      return 1;
  }
}

void Omplir(Connexio& connexio, const std::vector<std::string>& taules) {
  for (const auto& nom : taules) {
    std::vector<std::pair<std::string_view, Valor>> valors;
    for (const Columna& columna : connexio.Taules().Cercar(nom)->columnes) {
      if (columna.tipus != Tipus_Columna::Autonumeric) valors.emplace_back(columna.nom, Valor_De_Prova(columna.tipus));
    }
    connexio.Afegir_Fila(nom, valors);
  }
}

std::string Files_En_Text(Connexio& connexio, const std::string& taula) {
  std::string text;
  for (Recordset rs("SELECT * FROM " + taula, connexio); !rs.Eof(); rs.MoveNext()) {
    for (std::size_t i = 0; i < rs.Fields().size(); ++i) text += rs[static_cast<int>(i)].Text() + " | ";
    text += "\n";
  }
  return text;
}

// What a statement of the engine itself answers, a row a line, in order.
std::vector<std::string> Del_Motor(Connexio& connexio, const std::string& sql) {
  Files_Memoria files;
  connexio.motor().Consultar(sql, {}, files, nullptr);
  std::vector<std::string> linies;
  for (std::size_t i = 0; i < files.Files(); ++i) {
    linies.push_back(Sense_Blancs(files.Valor_De(i, 0, Tipus_Columna::Text).Text()));
  }
  std::sort(linies.begin(), linies.end());
  return linies;
}

// Everything that the engine knows of the database's form.
std::vector<std::string> Estructura(Connexio& connexio, bool servidor) {
  std::vector<std::string> tot;
  for (const auto& [clau, taula] : connexio.Taules().Taules()) {
    std::string linia = taula.nom + ":";
    for (const Columna& columna : taula.columnes)
      linia += columna.nom + " " + std::string(Nom_Tipus(columna.tipus)) + ",";
    for (const auto& columna : taula.clau) linia += "|" + columna;
    tot.push_back(linia);
  }
  const std::vector<std::string> preguntes =
      servidor
          ? std::vector<
                std::
                    string>{"SELECT indexdef FROM pg_indexes WHERE schemaname = current_schema()",
                            "SELECT conrelid::regclass || ' ' || pg_get_constraintdef(oid) FROM pg_constraint WHERE "
                            "connamespace = current_schema()::regnamespace",
                            "SELECT table_name || '.' || column_name || ' ' || data_type || ' ' || is_nullable || ' ' "
                            "|| "
                            "coalesce(column_default, '-') FROM information_schema.columns WHERE table_schema = "
                            "current_schema()",
                            "SELECT proname || prosrc FROM pg_proc WHERE pronamespace = current_schema()::regnamespace"}
          : std::vector<std::string>{
                "SELECT type || ' ' || name || ' ' || sql FROM sqlite_master WHERE sql IS "
                "NOT NULL AND name NOT LIKE 'sqlite_%'"};
  for (const auto& pregunta : preguntes) {
    for (auto& linia : Del_Motor(connexio, pregunta)) tot.push_back(std::move(linia));
  }
  return tot;
}

}  // namespace

class Comuna_Vella : public testing::Test {
 protected:
  Carpeta_Temporal temporal;
  std::optional<Base_Servidor> base;
  std::optional<Base_Servidor> base_nova;
  const std::string adreca = Adreca(base, "vella.db");
  const std::string nova = Adreca(base_nova, "nova.db");
  const std::vector<std::string> taules = Taules_En_Ordre(Primera("comuna"));
  std::vector<std::string> dit;
  std::string copia;

  ~Comuna_Vella() override {
    if (Proves_Al_Servidor() && !copia.empty()) Base_Servidor::Esborrar(copia);
  }

  std::string Adreca(std::optional<Base_Servidor>& servidor, const std::string& fitxer) const {
    return Proves_Al_Servidor() ? servidor.emplace().Adreca() : temporal.Cami() + "/" + fitxer;
  }
  void Crear_Primera() {
    Crear_Base_Dades(adreca);
    Connexio comuna;
    comuna.Open(adreca);
    En_Transaccio(comuna, [&] {
      Executar_Fitxer(comuna, Primera("comuna"));
      Omplir(comuna, taules);
      comuna.Execute("DELETE * FROM LOCKS");
    });
  }
  void Actualitzar(bool amb_bloquejos = false) {
    Actualitzar_Compartida({.adreca = adreca, .copia_feta = false, .amb_bloquejos = amb_bloquejos},
                           [&](const std::string& linia) { Apuntar(linia); });
  }
  void Apuntar(const std::string& linia) {
    dit.push_back(linia);
    if (!linia.starts_with("Copy: ")) return;
    copia = Proves_Al_Servidor() ? Base_De_Adreca(linia.substr(6)) : linia.substr(6);
  }
  std::string Adreca_Copia() const { return Proves_Al_Servidor() ? Amb_Base(adreca, copia) : copia; }
  std::map<std::string, std::string> Tot(const std::string& d_on) const {
    Connexio comuna;
    comuna.Open(d_on);
    std::map<std::string, std::string> files;
    for (const auto& taula : taules) files[taula] = Files_En_Text(comuna, taula);
    return files;
  }
  static int Versio(const std::string& d_on) {
    Connexio comuna;
    comuna.Open(d_on);
    return Versio_De(comuna);
  }
};

TEST_F(Comuna_Vella, the_first_of_all_comes_up_with_every_row_and_is_as_a_new_one) {
  Crear_Primera();
  const auto abans = Tot(adreca);
  EXPECT_GT(taules.size(), 30U);
  EXPECT_EQ(std::count_if(abans.begin(), abans.end(), [](const auto& files) { return files.second.empty(); }), 1);
  EXPECT_EQ(Versio(adreca), 1);
  Actualitzar();
  EXPECT_EQ(Tot(adreca), abans);
  EXPECT_EQ(Versio(adreca), Versio_Del_Programa());
  Crear_Base_Dades(nova);
  Connexio vella;
  Connexio feta;
  vella.Open(adreca);
  feta.Open(nova);
  En_Transaccio(feta, [&] { Definir_Comuna(feta); });
  EXPECT_EQ(Estructura(vella, Proves_Al_Servidor()), Estructura(feta, Proves_Al_Servidor()))
      << "what schema/comuna.sql gained has to come in a file of schema/upgrades too";
}

TEST_F(Comuna_Vella, a_checked_copy_of_it_stays) {
  Crear_Primera();
  const auto abans = Tot(adreca);
  Actualitzar();
  ASSERT_FALSE(copia.empty());
  EXPECT_EQ(Versio(Adreca_Copia()), 1);
  EXPECT_EQ(Tot(Adreca_Copia()), abans);
}

TEST_F(Comuna_Vella, a_second_time_there_is_nothing_to_do) {
  Crear_Primera();
  Actualitzar();
  dit.clear();
  Actualitzar();
  ASSERT_EQ(dit.size(), 1U);
  EXPECT_NE(dit.front().find("nothing to do"), std::string::npos);
}

TEST_F(Comuna_Vella, is_left_alone_while_a_terminal_holds_a_document) {
  Crear_Primera();
  {
    Connexio comuna;
    comuna.Open(adreca);
    comuna.Execute("INSERT INTO LOCKS VALUES ('AC', 'E', '1', 'despatx/anna')");
  }
  EXPECT_NE(Error_De([&] { Actualitzar(); }).Descripcio().find("despatx/anna"), std::string::npos);
  EXPECT_EQ(Versio(adreca), 1);
  Actualitzar(true);
  EXPECT_EQ(Versio(adreca), Versio_Del_Programa());
}

TEST_F(Comuna_Vella, a_step_that_fails_half_way_leaves_nothing) {
  Crear_Primera();
  const auto abans = Tot(adreca);
  {
    Connexio comuna;
    comuna.Open(adreca);
    // Its first table goes in; the second one is there already.
    Error_De([&] { Fer_Pas(comuna, {.numero = 99, .fitxer = "comuna.sql"}); });
  }
  EXPECT_EQ(Versio(adreca), 1);
  EXPECT_EQ(Tot(adreca), abans);
}

TEST_F(Comuna_Vella, on_a_server_nobody_may_be_connected_while_it_is_copied) {
  if (!Proves_Al_Servidor()) GTEST_SKIP() << "of a server";
  Crear_Primera();
  Connexio un_altre;
  un_altre.Open(adreca);
  Error_De([&] { Actualitzar(); });
  EXPECT_EQ(Versio(adreca), 1);
}

TEST(Versions, steps_are_numbered_without_gaps) {
  int esperat = 2;
  for (const Pas_De_Versio& pas : Passos_De_Versio()) EXPECT_EQ(pas.numero, esperat++) << pas.fitxer;
  EXPECT_GT(esperat, 2);
}

TEST(Versions, functions_that_live_on_a_server_change_with_a_step) {
  std::uint64_t empremta = 14695981039346656037ULL;
  for (const auto& sql : Funcions_PostgreSQL("e")) {
    for (const char c : sql) empremta = (empremta ^ static_cast<unsigned char>(c)) * 1099511628211ULL;
  }
  constexpr std::uint64_t de_la_versio = 13918958446344288601ULL;
  EXPECT_EQ(empremta, de_la_versio) << "a database that stands gets them with a new file of schema/upgrades (which may "
                                       "hold a comment alone); the new number goes here";
}

class Inici_Amb_Versions : public testing::Test {
 protected:
  Installacio_Prova installacio;

  static void Posar_Versio(int numero) {
    sessio.Connexio_Comuna.Execute("UPDATE VERSIO SET NUMERO_VER = " + std::to_string(numero));
  }
  static void Tornar_A_Obrir() {
    Tancar_Connexions();
    Obrir_Connexions();
  }
  static std::string Files_Locals(const std::string& taula) { return Files_En_Text(sessio.Connexio_Local, taula); }
};

TEST_F(Inici_Amb_Versions, a_shared_database_of_a_newer_program_is_refused_in_words) {
  Posar_Versio(Versio_Del_Programa() + 1);
  const std::string text = Error_De(Tornar_A_Obrir).Descripcio();
  EXPECT_NE(text.find("més nova que aquest programa"), std::string::npos) << text;
}

TEST_F(Inici_Amb_Versions, one_of_an_older_program_waits_for_the_administrator) {
  Posar_Versio(Versio_Del_Programa() - 1);
  const std::string text = Error_De(Tornar_A_Obrir).Descripcio();
  EXPECT_NE(text.find("brollador-install --upgrade"), std::string::npos) << text;
}

TEST_F(Inici_Amb_Versions, the_first_local_database_of_all_gets_texts_and_tables_and_keeps_its_parameters) {
  const std::string textos = Files_Locals("TEXTS");
  const auto estructura = Estructura(sessio.Connexio_Local, false);
  Tancar_Connexions();
  fs::remove(sessio.Fitxer_Locals);
  Crear_Base_Dades(sessio.Fitxer_Locals);
  {
    Connexio local;
    local.Open(sessio.Fitxer_Locals);
    Executar_Fitxer(local, Primera("local"));
    Omplir(local, Taules_En_Ordre(Primera("local")));
    local.Execute("INSERT INTO CONFIGURACIO (Parametre, Valor) VALUES ('P_Comandes', 'X')");
    local.Execute("INSERT INTO CONFIGURACIO (Parametre, Valor) VALUES ('P_Comandes', 'X')");
  }
  Obrir_Connexions();
  EXPECT_EQ(Files_Locals("TEXTS"), textos);
  EXPECT_EQ(Estructura(sessio.Connexio_Local, false), estructura);
  EXPECT_EQ(Files_Locals("CONFIGURACIO"),
            "Ç-1 | L'aigua és freda, «molt» 10 € | \nP_Comandes | X | \nP_Comandes | X | \n");
  EXPECT_EQ(Files_Locals("FLAG_PAGAMENTS_TEMP"), "");
}

TEST_F(Inici_Amb_Versions, a_local_database_with_the_texts_of_another_program_is_made_anew) {
  const std::string textos = Files_Locals("TEXTS");
  sessio.Connexio_Local.Execute("UPDATE TEXTS SET F_TEXT = 'vell'");
  Tornar_A_Obrir();
  EXPECT_NE(Files_Locals("TEXTS"), textos);  // of its own program, it stays as somebody wants it
  sessio.Connexio_Local.Execute("UPDATE VERSIO SET EMPREMTA_VER = 'vella'");
  std::ofstream(sessio.Fitxer_Locals + ".nova") << "what a start that was cut short left";
  Tornar_A_Obrir();
  EXPECT_EQ(Files_Locals("TEXTS"), textos);
  EXPECT_FALSE(fs::exists(sessio.Fitxer_Locals + ".nova"));
  EXPECT_EQ(fs::status(sessio.Fitxer_Locals).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(Inici_Amb_Versions, when_it_cannot_be_made_anew_the_old_one_stands) {
  sessio.Connexio_Local.Execute("UPDATE VERSIO SET EMPREMTA_VER = 'vella'");
  fs::create_directories(sessio.Fitxer_Locals + ".nova/plena");
  Error_De(Tornar_A_Obrir);
  fs::remove_all(sessio.Fitxer_Locals + ".nova");
  Connexio local;
  local.Open(sessio.Fitxer_Locals);
  EXPECT_EQ(Files_En_Text(local, "VERSIO"), "vella | \n");
}
