// brollador-install: creates a terminal's data folder and the databases, and brings the shared one up.
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <string>

#include "core/dades/Adreca.h"
#include "core/dades/Error_Brollador.h"
#include "schema/Actualitzador.h"
#include "schema/Demostracio.h"
#include "schema/Installador.h"
#include "session/M_Inici.h"

namespace {

constexpr const char* ajuda =
    "brollador-install --base | --demo | --empty | --terminal [--shared ADDRESS] [--data DIR]\n"
    "brollador-install --upgrade [--shared ADDRESS] [--data DIR] [--copied] [--with-locks]\n"
    "\n"
    "  --empty      a new office: asks for its first company and the administrator's password\n"
    "               (or takes --company-nif NIF --company-name NAME --password-file FILE)\n"
    "  --demo       a company in the middle of its year, to look around in\n"
    "  --base       the smallest installation that works; user ADMIN without a password\n"
    "  --terminal   a further terminal of an office: its data folder only; needs --shared\n"
    "  --upgrade    brings the shared database of an older program up to this one, after a copy of it\n"
    "\n"
    "  --shared     the shared database: a file, or postgresql://host/base\n"
    "               (a file of the data folder when it is not given; with --upgrade, what Brollador.ini says)\n"
    "  --shared-file FILE    the same, read from a file: for an address with a password in it\n"
    "  --password-file FILE  the administrator's password: the first line of a file\n"
    "               (- as FILE is the standard input, a line each, the address first)\n"
    "  --data       the data folder (the user's own when it is not given)\n"
    "  --copied     a copy was made by other means: makes none\n"
    "  --with-locks documents stand locked, and nobody works on them\n"
    "\n"
    "Never writes over an installation that exists.\n";

const std::set<std::string> modes = {"--base", "--demo", "--empty", "--terminal", "--upgrade"};
const std::set<std::string> senyals = {"--copied", "--with-locks"};
const std::set<std::string> amb_valor = {"--shared",      "--shared-file",  "--data",
                                         "--company-nif", "--company-name", "--password-file"};

struct Ordre_Installacio {
  std::string mode;
  std::map<std::string, std::string> valors;

  bool Te(const std::string& opcio) const { return valors.contains(opcio); }
  std::string Valor_De(const std::string& opcio) const {
    const auto it = valors.find(opcio);
    return it == valors.end() ? std::string() : it->second;
  }
};

[[noreturn]] void Refusar(const std::string& motiu) {
  throw Error_Brollador(errors::general, "brollador-install", motiu);
}

// A terminal stands on a shared database that somebody names; only an upgrade makes copies.
bool Te_Sentit(const Ordre_Installacio& ordre) {
  const bool compartida = ordre.Te("--shared") || ordre.Te("--shared-file");
  const bool d_actualitzar = ordre.Te("--copied") || ordre.Te("--with-locks");
  if (ordre.mode.empty() || (ordre.Te("--shared") && ordre.Te("--shared-file"))) return false;
  if (ordre.mode == "--terminal" && !compartida) return false;
  return !d_actualitzar || ordre.mode == "--upgrade";
}

// False when the words make no sense.
bool Llegir_Ordre(int argc, char** argv, Ordre_Installacio& ordre) {
  for (int i = 1; i < argc; ++i) {
    const std::string paraula = argv[i];
    if (modes.contains(paraula)) {
      if (!ordre.mode.empty()) return false;
      ordre.mode = paraula;
    } else if (senyals.contains(paraula)) {
      ordre.valors[paraula] = "";
    } else if (amb_valor.contains(paraula) && i + 1 < argc) {
      ordre.valors[paraula] = argv[++i];
    } else {
      return false;
    }
  }
  return Te_Sentit(ordre);
}

std::string Primera_Linia(std::istream& origen) {
  std::string linia;
  std::getline(origen, linia);
  if (linia.ends_with('\r')) linia.pop_back();
  return linia;
}

std::string Llegir_De(const std::string& fitxer) {
  if (fitxer == "-") return Primera_Linia(std::cin);
  std::ifstream obert(fitxer);
  if (!obert) Llancar_Error(errors::fitxer_no_trobat, "brollador-install", fitxer);
  return Primera_Linia(obert);
}

std::string Preguntar(const char* pregunta, bool amagada = false) {
  std::cout << pregunta << std::flush;
  termios abans{};
  const bool terminal = amagada && tcgetattr(STDIN_FILENO, &abans) == 0;
  if (terminal) {
    termios muda = abans;
    muda.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    tcsetattr(STDIN_FILENO, TCSAFLUSH, &muda);
  }
  std::string resposta = Primera_Linia(std::cin);
  if (terminal) {
    tcsetattr(STDIN_FILENO, TCSAFLUSH, &abans);
    std::cout << '\n';
  }
  return resposta;
}

std::string Valor_O_Pregunta(const Ordre_Installacio& ordre, const char* opcio, const char* pregunta) {
  return ordre.Te(opcio) ? ordre.Valor_De(opcio) : Preguntar(pregunta);
}

// Everybody on the machine may read the words of a running command.
std::string Adreca_Donada(const Ordre_Installacio& ordre) {
  if (ordre.Te("--shared-file")) return Llegir_De(ordre.Valor_De("--shared-file"));
  std::string adreca = ordre.Valor_De("--shared");
  if (Te_Contrasenya(adreca)) {
    Refusar(
        "a password does not go into the command line: put it into ~/.pgpass, or the address into a file "
        "(--shared-file)");
  }
  return adreca;
}

void Crear_Oficina_Nova(const Ordre_Installacio& ordre, const Opcions_Installacio& opcions) {
  Exigir_Lloc_Lliure(opcions);
  Primera_Empresa empresa{.nif = Valor_O_Pregunta(ordre, "--company-nif", "Tax code of the company (NIF): "),
                          .rao_social = Valor_O_Pregunta(ordre, "--company-name", "Name of the company: "),
                          .contrasenya = ordre.Te("--password-file") ? Llegir_De(ordre.Valor_De("--password-file"))
                                                                     : Preguntar("Password of ADMIN: ", true)};
  if (empresa.nif.empty() || empresa.rao_social.empty()) Refusar("a company needs a tax code and a name");
  if (empresa.nif.find('\'') != std::string::npos) Refusar("a tax code holds no quotes");
  Crear_Buida(opcions, empresa);
}

void Actualitzar(const Ordre_Installacio& ordre, Opcions_Installacio opcions) {
  if (opcions.compartida.empty()) {
    sessio.Fitxer_Ini = opcions.carpeta + "/Brollador.ini";
    Llegir_Ini();
    opcions.compartida = sessio.Fitxer_Comu;
  }
  Actualitzar_Compartida({.adreca = Adreca_Compartida(opcions),
                          .copia_feta = ordre.Te("--copied"),
                          .amb_bloquejos = ordre.Te("--with-locks")},
                         [](const std::string& fet) { std::cout << fet << std::endl; });
}

void Executar(const Ordre_Installacio& ordre) {
  Fixar_Directoris();
  const std::string carpeta = ordre.Valor_De("--data");
  const Opcions_Installacio opcions{.carpeta = carpeta.empty() ? sessio.Dir_Dades : carpeta,
                                    .compartida = Adreca_Donada(ordre)};
  if (ordre.mode == "--upgrade") return Actualitzar(ordre, opcions);
  if (ordre.mode == "--base") Crear_Base(opcions);
  if (ordre.mode == "--demo") Crear_Demostracio(opcions);
  if (ordre.mode == "--terminal") Crear_Terminal(opcions);
  if (ordre.mode == "--empty") Crear_Oficina_Nova(ordre, opcions);
  std::cout << "Created: " << opcions.carpeta << "\nShared database: " << Adreca_Per_Mostrar(Adreca_Compartida(opcions))
            << '\n';
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2 && std::string_view(argv[1]) == "--help") {
    std::cout << ajuda;
    return 0;
  }
  Ordre_Installacio ordre;
  if (!Llegir_Ordre(argc, argv, ordre)) {
    std::cerr << ajuda;
    return 2;
  }
  try {
    Executar(ordre);
    return 0;
  } catch (const std::exception& error) {
    std::cerr << "brollador-install: " << error.what() << '\n';
    return 1;
  }
}
