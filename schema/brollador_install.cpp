// brollador-install: creates a terminal's data folder and the databases.
#include <termios.h>
#include <unistd.h>

#include <iostream>
#include <map>
#include <string>

#include "core/dades/Error_Brollador.h"
#include "schema/Demostracio.h"
#include "schema/Installador.h"
#include "session/M_Inici.h"

namespace {

constexpr const char* ajuda =
    "brollador-install --base | --demo | --empty | --terminal [--shared ADDRESS] [--data DIR]\n"
    "\n"
    "  --empty      a new office: asks for its first company and the administrator's password\n"
    "               (or takes --company-nif NIF --company-name NAME --password WORD)\n"
    "  --demo       a company in the middle of its year, to look around in\n"
    "  --base       the smallest installation that works; user ADMIN without a password\n"
    "  --terminal   a further terminal of an office: its data folder only; needs --shared\n"
    "  --shared     the shared database: a file, or postgresql://host/base\n"
    "               (a file of the data folder when it is not given)\n"
    "  --data       the data folder (the user's own when it is not given)\n"
    "\n"
    "Never writes over an installation that exists.\n";

struct Ordre_Installacio {
  std::string mode;
  std::map<std::string, std::string> valors;

  std::string Valor_De(const std::string& opcio) const {
    const auto it = valors.find(opcio);
    return it == valors.end() ? std::string() : it->second;
  }
};

bool Es_Mode(const std::string& text) {
  return text == "--base" || text == "--demo" || text == "--empty" || text == "--terminal";
}

// A terminal stands on a shared database that somebody names.
bool Te_Sentit(const Ordre_Installacio& ordre) {
  return !ordre.mode.empty() && (ordre.mode != "--terminal" || !ordre.Valor_De("--shared").empty());
}

// False when the words make no sense.
bool Llegir_Ordre(int argc, char** argv, Ordre_Installacio& ordre) {
  static const std::string amb_valor[] = {"--shared", "--data", "--company-nif", "--company-name", "--password"};
  for (int i = 1; i < argc; ++i) {
    const std::string paraula = argv[i];
    if (Es_Mode(paraula)) {
      if (!ordre.mode.empty()) return false;
      ordre.mode = paraula;
      continue;
    }
    const bool coneguda = std::find(std::begin(amb_valor), std::end(amb_valor), paraula) != std::end(amb_valor);
    if (!coneguda || i + 1 == argc) return false;
    ordre.valors[paraula] = argv[++i];
  }
  return Te_Sentit(ordre);
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
  std::string resposta;
  std::getline(std::cin, resposta);
  if (terminal) {
    tcsetattr(STDIN_FILENO, TCSAFLUSH, &abans);
    std::cout << '\n';
  }
  return resposta;
}

std::string Valor_O_Pregunta(const Ordre_Installacio& ordre, const char* opcio, const char* pregunta,
                             bool amagada = false) {
  const bool donat = ordre.valors.contains(opcio);
  return donat ? ordre.Valor_De(opcio) : Preguntar(pregunta, amagada);
}

void Crear_Oficina_Nova(const Ordre_Installacio& ordre, const Opcions_Installacio& opcions) {
  Primera_Empresa empresa{.nif = Valor_O_Pregunta(ordre, "--company-nif", "Tax code of the company (NIF): "),
                          .rao_social = Valor_O_Pregunta(ordre, "--company-name", "Name of the company: "),
                          .contrasenya = Valor_O_Pregunta(ordre, "--password", "Password of ADMIN: ", true)};
  if (empresa.nif.empty() || empresa.rao_social.empty()) {
    throw Error_Brollador(errors::general, "brollador-install", "a company needs a tax code and a name");
  }
  if (empresa.nif.find('\'') != std::string::npos) {
    throw Error_Brollador(errors::general, "brollador-install", "a tax code holds no quotes");
  }
  Crear_Buida(opcions, empresa);
}

void Executar(const Ordre_Installacio& ordre) {
  Fixar_Directoris();
  const std::string carpeta = ordre.Valor_De("--data");
  const Opcions_Installacio opcions{.carpeta = carpeta.empty() ? sessio.Dir_Dades : carpeta,
                                    .compartida = ordre.Valor_De("--shared")};
  if (ordre.mode == "--base") Crear_Base(opcions);
  if (ordre.mode == "--demo") Crear_Demostracio(opcions);
  if (ordre.mode == "--terminal") Crear_Terminal(opcions);
  if (ordre.mode == "--empty") Crear_Oficina_Nova(ordre, opcions);
  std::cout << "Created: " << opcions.carpeta << "\nShared database: " << Adreca_Compartida(opcions) << '\n';
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
