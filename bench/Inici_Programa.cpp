// From the start of the process to the login window on the screen, against a bare window with a menu.
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <filesystem>
#include <stdexcept>

#include "bench/Inici_Programa.h"
#include "bench/Mesura.h"
#include "bench/Primera_Pintura.h"
#include "shell/Aplicacio.h"
#include "tests/regles/Installacio_Prova.h"

namespace {

constexpr int voltes = 15;

std::filesystem::path Carpeta_Programes() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path();
}

// Runs a program to its first painting, and adds up its time and memory.
class Arrencada {
 public:
  Arrencada(const char* programa, std::vector<std::string> arguments)
      : cami_((Carpeta_Programes() / programa).string()), arguments_(std::move(arguments)) {}

  double Fer() {
    int canal[2];
    if (pipe(canal) != 0) throw std::runtime_error("pipe");
    const double temps = Mil_Segons([&] {
      const pid_t fill = fork();
      if (fill == 0) Executar(canal);
      close(canal[1]);
      Llegir_Memoria(canal[0]);
      waitpid(fill, nullptr, 0);
    });
    close(canal[0]);
    return temps;
  }
  double Memoria() const { return Mediana(memories_); }  // MiB

 private:
  [[noreturn]] void Executar(const int (&canal)[2]) const {
    dup2(canal[1], STDOUT_FILENO);
    std::vector<char*> arguments{const_cast<char*>(cami_.c_str())};
    for (const auto& argument : arguments_) arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    execv(cami_.c_str(), arguments.data());
    _exit(127);
  }
  void Llegir_Memoria(int canal) {
    std::string text;
    char lletra = 0;
    while (read(canal, &lletra, 1) == 1 && lletra != '\n') text += lletra;
    if (text.empty()) throw std::runtime_error(cami_ + " did not start");
    memories_.push_back(std::stod(text) / 1024);
  }

  std::string cami_;
  std::vector<std::string> arguments_;
  std::vector<double> memories_;
};

}  // namespace

int Arrencar_Fins_Al_Login(int argc, char** argv) {
  Aplicacio aplicacio(argc, argv);
  const Primera_Pintura pintura("F_SUBINICI");
  Fixar_Directoris();
  return Inici_Aplicacio() ? QApplication::exec() : 1;
}

std::vector<Figura> Mesurar_Inici() {
  const Carpeta_Temporal carpeta;
  Crear_Base(carpeta.Cami() + "/brollador");
  setenv("XDG_DATA_HOME", carpeta.Cami().c_str(), 1);
  Arrencada nostra("mesures", {"--login"});
  Arrencada nua("finestra_nua", {});
  nostra.Fer();  // both programs once, to have them in the disk's cache
  nua.Fer();
  Parella parella;
  for (int i = 0; i < voltes; ++i) {
    parella.nostre.push_back(nostra.Fer());
    parella.nu.push_back(nua.Fer());
  }
  unsetenv("XDG_DATA_HOME");
  return {parella.Fer_Figura("process start to login window", "ms", 2.0),
          {.nom = "memory then",
           .nostre = Amb_Decimals(nostra.Memoria(), 1) + " MiB",
           .nu = Amb_Decimals(nua.Memoria(), 1) + " MiB",
           .rao = nostra.Memoria() / nua.Memoria()}};
}
