// prova_sentencies FILE: runs every statement of a list over a fresh base installation, each on its connection. The
// shared database stands on the tests' server when BROLLADOR_MOTOR=postgres. A SELECT is opened for reading and, where
// its rows can be written, for writing too.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "core/dades/Connexio.h"
#include "core/dades/Error_Brollador.h"
#include "core/dades/Recordset.h"
#include "schema/Installador.h"
#include "tests/servidor/Base_Servidor.h"

namespace {

constexpr int fallades_mostrades = 10;

// A temporary installation that goes with the object.
class Installacio {
 public:
  Installacio() {
    std::string plantilla = (std::filesystem::temp_directory_path() / "brollador-sentencies-XXXXXX").string();
    carpeta_ = mkdtemp(plantilla.data());
    const std::string compartida = Proves_Al_Servidor() ? servidor_.emplace().Adreca() : carpeta_ + "/dades/comuna.db";
    Crear_Base(carpeta_ + "/dades", compartida);
    comuna_.Open(compartida);
    local_.Open(carpeta_ + "/dades/dadeslocals.db");
  }
  ~Installacio() {
    comuna_.Close();
    local_.Close();
    std::error_code ignorat;  // a temporary folder
    std::filesystem::remove_all(carpeta_, ignorat);
  }
  Installacio(const Installacio&) = delete;
  Installacio& operator=(const Installacio&) = delete;

  void Executar(const std::string& connexio, const std::string& sentencia) {
    if (connexio != "shared" && connexio != "local") {
      throw Error_Brollador(errors::general, "prova_sentencies", "no such connection: " + connexio);
    }
    Connexio& on = connexio == "shared" ? comuna_ : local_;
    if (sentencia.starts_with("SELECT")) {
      const Recordset llegit(sentencia, on);
      const Recordset escrit(sentencia, on, Bloqueig::Optimista);
      if (llegit.Fields().size() != escrit.Fields().size()) {
        throw Error_Brollador(errors::general, "prova_sentencies", "a set for writing shows other columns");
      }
    } else {
      on.Execute(sentencia);
    }
  }

 private:
  std::string carpeta_;
  std::optional<Base_Servidor> servidor_;
  Connexio comuna_;
  Connexio local_;
};

struct Sentencia {
  int linia;
  std::string connexio;
  std::string text;
};

std::vector<Sentencia> Llegir(const char* cami) {
  std::ifstream fitxer(cami);
  std::vector<Sentencia> llista;
  int numero = 0;
  for (std::string linia; std::getline(fitxer, linia);) {
    ++numero;
    const std::size_t tab = linia.find('\t');
    if (linia.starts_with('#') || tab == std::string::npos) continue;
    llista.push_back({numero, linia.substr(0, tab), linia.substr(tab + 1)});
  }
  return llista;
}

std::string Llista_De_Camps(const std::string& text) {
  return text.substr(0, text.find(" FROM "));
}

// A list may hold the beginning of a statement that the program completes (its FROM or its joins come later). It cannot
// run alone; it runs as the whole statement with the same select list, which has to be in the list too.
const Sentencia* Sencera(const Sentencia& tros, const std::vector<Sentencia>& llista) {
  for (const Sentencia& altra : llista) {
    const bool mateixa_llista = Llista_De_Camps(altra.text) == Llista_De_Camps(tros.text);
    if (altra.connexio == tros.connexio && mateixa_llista && altra.text.size() > tros.text.size()) return &altra;
  }
  return nullptr;
}

// A sum that is still without its groups: the plain columns of its list.
std::optional<std::string> Amb_Els_Seus_Grups(const std::string& text) {
  const std::string llista = Llista_De_Camps(text).substr(std::string("SELECT ").size());
  if (llista.find("SUM(") == std::string::npos || text.find("GROUP BY") != std::string::npos) return std::nullopt;
  return text + " GROUP BY " + llista.substr(0, llista.find(", SUM("));
}

void Provar(Installacio& installacio, const Sentencia& sentencia, const std::vector<Sentencia>& llista) {
  try {
    installacio.Executar(sentencia.connexio, sentencia.text);
  } catch (const Error_Brollador& error) {
    if (error.Numero() != errors::sentencia) throw;
    if (const auto agrupada = Amb_Els_Seus_Grups(sentencia.text)) {
      installacio.Executar(sentencia.connexio, *agrupada);
      std::cout << "line " << sentencia.linia << " is a beginning: run with its groups\n";
      return;
    }
    const Sentencia* sencera = Sencera(sentencia, llista);
    if (sencera == nullptr) throw;
    installacio.Executar(sencera->connexio, sencera->text);
    std::cout << "line " << sentencia.linia << " is a beginning: run as line " << sencera->linia << '\n';
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "prova_sentencies FILE\n";
    return 2;
  }
  const std::vector<Sentencia> llista = Llegir(argv[1]);
  Installacio installacio;
  int bones = 0;
  int dolentes = 0;
  for (const Sentencia& sentencia : llista) {
    try {
      Provar(installacio, sentencia, llista);
      ++bones;
    } catch (const Error_Brollador& error) {
      if (++dolentes > fallades_mostrades) continue;
      std::cout << "FAILED " << argv[1] << ':' << sentencia.linia << ": " << error.Descripcio() << "\n   "
                << sentencia.connexio << '\t' << sentencia.text << '\n';
    }
  }
  std::cout << bones << " passed, " << dolentes << " failed\n";
  return dolentes == 0 && bones > 0 ? 0 : 1;
}
