// An installation in a temporary folder, by the routines of the installer and by its command.
#pragma once

#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

#include "schema/Installador.h"
#include "tests/regles/Base.h"

namespace fs = std::filesystem;

inline std::string Contingut(const fs::path& fitxer) {
  std::ifstream obert(fitxer);
  return {std::istreambuf_iterator<char>(obert), {}};
}

inline std::string Mida_I_Data(const fs::path& fitxer) {
  return std::to_string(fs::file_size(fitxer)) + " " +
         std::to_string(fs::last_write_time(fitxer).time_since_epoch().count());
}

// All rows of a statement: fields by " | ", rows by line breaks.
inline std::string Files_En_Text(Connexio& connexio, const std::string& sentencia) {
  Recordset rs(sentencia, connexio);
  std::string text;
  for (; !rs.Eof(); rs.MoveNext()) {
    for (std::size_t i = 0; i < rs.Fields().size(); ++i) {
      text += (i == 0 ? "" : " | ") + rs[static_cast<int>(i)].Text();
    }
    text += "\n";
  }
  return text;
}

class Installador : public testing::Test {
 protected:
  Carpeta_Temporal temporal;
  const std::string carpeta = temporal.Cami() + "/oficina/brollador";

  Opcions_Installacio Opcions(const std::string& compartida = {}) const {
    return {.carpeta = carpeta, .compartida = compartida};
  }
  bool Res_No_Queda() const { return fs::is_empty(temporal.Cami()); }
};

class Brollador_Install : public Installador {
 protected:
  // Its exit code; what it said is in `sortida`.
  int Executar(const std::string& arguments, const std::string& resposta = {}) {
    const std::string programa = (fs::read_symlink("/proc/self/exe").parent_path() / "brollador-install").string();
    const std::string diari = temporal.Cami() + "/../" + fs::path(temporal.Cami()).filename().string() + ".diari";
    const std::string ordre = "printf '" + resposta + "' | '" + programa + "' " + arguments + " > '" + diari + "' 2>&1";
    const int estat = std::system(ordre.c_str());
    sortida = Contingut(diari);
    fs::remove(diari);
    return WEXITSTATUS(estat);
  }
  std::string sortida;
};
