// Prints the table of measured speed: figure | ours | bare | ratio. Every pair is measured in the same run, in turns.
#include <QApplication>
#include <cstdio>
#include <cstring>
#include <stdexcept>

#include "bench/Inici_Programa.h"
#include "bench/Mesura.h"

namespace {

std::vector<Figura> Mesurar_Tot() {
  std::vector<Figura> totes;
  for (auto* subjecte : {Mesurar_Linia_Albara, Mesurar_Servidor, Mesurar_Llista_Albarans, Mesurar_Llista_Mestres,
                         Mesurar_Inici, Mesurar_Calculs}) {
    for (auto& figura : subjecte()) totes.push_back(std::move(figura));
  }
  return totes;
}

}  // namespace

int main(int argc, char** argv) try {
  if (argc > 1 && std::strcmp(argv[1], "--login") == 0) return Arrencar_Fins_Al_Login(argc, argv);
  const QApplication aplicacio(argc, argv);
  Imprimir_Taula(Mesurar_Tot());
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
