// prova_talls [--seed S] [N]
//
// Kills a terminal N times (100) at random moments while it adds and deletes lines of delivery notes and payments,
// passes lines of a proposal on and back, invoices notes and frees them, now on the real screens, now through the rules
// alone, which write faster. Looks after each kill whether the file is sound and lines, foot, stock, journal, served
// units, states, payment flags and invoices agree. With BROLLADOR_MOTOR=postgres all of it is on a server, which is
// killed and started again every third time, under the terminal at work. Prints the seed, what did not agree, how many
// kills fell in the middle of a write (of a file), and `N passed, N failed`.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <optional>
#include <random>
#include <stdexcept>
#include <string>
#include <thread>

#include "core/dades/Error_Brollador.h"
#include "session/M_Inici.h"
#include "tests/eines/talls/Concordanca.h"
#include "tests/eines/talls/Magatzem_De_Prova.h"
#include "tests/eines/talls/Oficinista.h"
#include "tests/eines/talls/Proces.h"
#include "tests/eines/talls/Treballador.h"
#include "tests/servidor/Base_Servidor.h"

namespace fs = std::filesystem;
using namespace talls;
using namespace std::chrono_literals;

namespace {

// Between the start of the work and its end, on a file.
constexpr std::chrono::microseconds feina_de_regles = 60ms;
constexpr std::chrono::microseconds feina_de_pantalles = 250ms;

class Carpeta_Temporal {
 public:
  Carpeta_Temporal() {
    std::string plantilla = (fs::temp_directory_path() / "talls-XXXXXX").string();
    if (mkdtemp(plantilla.data()) == nullptr)
      throw fs::filesystem_error(plantilla, std::error_code(errno, std::generic_category()));
    cami_ = plantilla;
  }
  ~Carpeta_Temporal() {
    std::error_code ignorat;  // what cannot be taken away stays in the folder of temporary files
    fs::remove_all(cami_, ignorat);
  }
  std::string Cami() const { return cami_ / "brollador"; }
  std::string Arrel() const { return cami_; }

 private:
  fs::path cami_;
};

std::vector<std::string> Mirar(const Lloc& lloc) {
  Pantalla_Muda pantalla;
  try {
    Obrir_Sessio(lloc, pantalla);
    auto queixes = Discordances();
    Tancar_Connexions();
    return queixes;
  } catch (const Error_Brollador& error) {
    Tancar_Connexions();
    return {std::to_string(error.Numero()) + " - " + error.Descripcio()};
  }
}

// The little company, in a folder and where it is asked for on a server.
struct Empresa_De_Prova {
  Empresa_De_Prova() {
    if (Proves_Al_Servidor()) base.emplace();
    lloc = {carpeta.Cami(), base ? base->Adreca() : carpeta.Cami() + "/comuna.db"};
    Crear_Magatzem(lloc);
  }
  Carpeta_Temporal carpeta;
  std::optional<Base_Servidor> base;
  Lloc lloc;
};

// A check that sees nothing would pass every kill: it must see what a half-written line leaves behind.
bool Es_Veu_El_Dany() {
  const char* const danys[] = {
      "UPDATE STOCK SET UNIDADES_ST = UNIDADES_ST - 1 WHERE CODI_ART_ST = 'A1'",
      ("INSERT INTO ALBARALIN (NUMALB_AL, EMPRESA_AL, LIN_AL, ARTICLE_AL, UNITATS_AL, IMPORT_NET_AL) VALUES (1, "
       "'B00000000', 1, 'S1', 1, 25)"),
      "INSERT INTO ALBARAPEU (NUMALB_AP, EMPRESA_AP, PORC_IVA_AP, BASE_AP) VALUES (2, 'B00000000', 21, 0)",
      "UPDATE COMANDALIN SET SERVIDES_CL = 1 WHERE NUMALB_CL = 1 AND LIN_CL = 1",
      "UPDATE COMANDACAP SET PAGAMENT_CC = 0 WHERE NUMALB_CC = 1",
      "INSERT INTO PAGAMENTS (DOCUMENT_PAG, NUMALB_PAG, EMPRESA_PAG) VALUES ('A', 3, 'B00000000')",
      "UPDATE ALBARACAP SET ESTAT_AC = -1, NUMFAC_AC = '7', PAGAMENT_AC = 0 WHERE NUMALB_AC = 101",
      "INSERT INTO FACTURACAP (NUMALB_FC, EMPRESA_FC, PAGAMENT_FC) VALUES (8, 'B00000000', 0)",
  };
  const Empresa_De_Prova nova;
  if (!Mirar(nova.lloc).empty()) return false;
  std::size_t vistes = 0;
  for (const char* dany : danys) {
    Connexio comuna;
    comuna.Open(nova.lloc.comuna);
    comuna.Execute(dany);
    const std::size_t ara = Mirar(nova.lloc).size();
    if (ara <= vistes) return false;
    vistes = ara;
  }
  return true;
}

struct Recompte {
  int passats = 0;
  int fallats = 0;
  int a_mitges = 0;  // kills that left a write half done
  int en_blanc = 0;  // kills before anything was saved
};

class Prova {
 public:
  explicit Prova(std::uint32_t llavor) : atzar_(llavor) {
    const std::string arrel = empresa_.carpeta.Arrel();
    setenv("XDG_DATA_HOME", arrel.c_str(), 1);
    setenv("XDG_RUNTIME_DIR", arrel.c_str(), 1);
    setenv("PROVA_IMPRESSIONS", arrel.c_str(), 1);
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
  }

  void Un_Tall(int numero, Recompte& recompte) {
    std::vector<std::string> queixes;
    cau_el_servidor_ = Proves_Al_Servidor() && numero % 3 == 0;
    const std::int64_t abans = Moviments();
    try {
      const bool mort = numero % 2 == 0 ? Tallar_Regles() : Tallar_Pantalles();
      if (!mort && !cau_el_servidor_) queixes.push_back("the terminal ended by itself");
    } catch (const std::runtime_error& error) {
      queixes.push_back(error.what());
    }
    if (cau_el_servidor_) Tornar_A_Engegar_Servidor();
    if (Hi_Ha_Escriptura_A_Mitges()) ++recompte.a_mitges;
    if (Moviments() == abans) ++recompte.en_blanc;
    for (const std::string& queixa : Mirar(empresa_.lloc)) queixes.push_back(queixa);
    ++(queixes.empty() ? recompte.passats : recompte.fallats);
    for (const std::string& queixa : queixes) std::printf("kill %d: %s\n", numero, queixa.c_str());
  }

 private:
  bool Tallar_Regles() {
    Proces terminal("prova_talls",
                    {"--treballar", empresa_.lloc.carpeta, empresa_.lloc.comuna, std::to_string(atzar_())});
    if (!terminal.Llegir_Linia(std::chrono::steady_clock::now() + 30s))
      throw std::runtime_error("the terminal did not start");
    std::this_thread::sleep_for(Qualsevol(feina_de_regles));
    if (cau_el_servidor_) Matar_Servidor();
    return terminal.Matar();
  }

  bool Tallar_Pantalles() {
    Oficinista oficinista(atzar_);
    oficinista.Treballar(std::chrono::steady_clock::now() + Qualsevol(feina_de_pantalles));
    if (cau_el_servidor_) Matar_Servidor();
    return oficinista.Matar();
  }

  std::int64_t Moviments() const {
    Connexio comuna;
    comuna.Open(empresa_.lloc.comuna);
    const Recordset rs("SELECT COUNT(*) AS N FROM MOVIMIENTOS", comuna);
    return rs["N"].Enter();
  }

  bool Hi_Ha_Escriptura_A_Mitges() const {
    std::error_code sense;
    const auto mida = fs::file_size(empresa_.lloc.carpeta + "/comuna.db-journal", sense);
    return !sense && mida > 0;
  }

  std::chrono::microseconds Qualsevol(std::chrono::microseconds fins_a) {
    const int lentitud = Proves_Al_Servidor() ? 3 : 1;
    return std::chrono::microseconds(std::uniform_int_distribution<std::int64_t>(0, lentitud * fins_a.count())(atzar_));
  }

  Empresa_De_Prova empresa_;
  std::mt19937 atzar_;
  bool cau_el_servidor_ = false;
};

int Tallar(int talls, std::uint32_t llavor) {
  std::printf("seed %u\n", llavor);
  if (!Es_Veu_El_Dany()) {
    std::printf("the check does not see a damaged company\n0 passed, 1 failed\n");
    return EXIT_FAILURE;
  }
  Recompte recompte;
  Prova prova(llavor);
  for (int i = 1; i <= talls; ++i) prova.Un_Tall(i, recompte);
  std::printf("%d of %d kills fell in the middle of a write, %d before the first one ended\n", recompte.a_mitges, talls,
              recompte.en_blanc);
  std::printf("%d passed, %d failed\n", recompte.passats, recompte.fallats);
  return recompte.fallats == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) try {
  if (argc == 5 && std::strcmp(argv[1], "--treballar") == 0) {
    const std::string queixa = Treballar_Sense_Fi({argv[2], argv[3]}, static_cast<std::uint32_t>(std::stoul(argv[4])));
    std::fprintf(stderr, "terminal: %s\n", queixa.c_str());
    return EXIT_FAILURE;
  }
  std::uint32_t llavor = std::random_device{}();
  int talls = 100;
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], "--seed") == 0 && i + 1 < argc) {
      llavor = static_cast<std::uint32_t>(std::stoul(argv[++i]));
    } else {
      talls = std::stoi(argv[i]);
    }
  }
  return Tallar(talls, llavor);
} catch (const std::exception& error) {
  std::fprintf(stderr, "prova_talls: %s\n", error.what());
  return EXIT_FAILURE;
}
