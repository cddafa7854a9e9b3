// Prints the table of measured speed: figure | ours | bare | ratio. Every pair is measured in the same run, in turns.
// Named subjects are measured alone.
#include <QApplication>
#include <cstdio>
#include <cstring>
#include <set>
#include <stdexcept>

#include "bench/Inici_Programa.h"
#include "bench/Mesura.h"

namespace {

struct Subjecte {
  const char* nom;
  std::vector<Figura> (*mesurar)();
};
constexpr Subjecte subjectes[] = {
    {"linia", Mesurar_Linia_Albara},     {"tecles", Mesurar_Linia_Per_Tecles}, {"servidor", Mesurar_Servidor},
    {"llista", Mesurar_Llista_Albarans}, {"mestres", Mesurar_Llista_Mestres},  {"inici", Mesurar_Inici},
    {"calculs", Mesurar_Calculs},        {"pdf", Mesurar_Document_PDF},        {"facturacio", Mesurar_Facturacio},
    {"acceptacio", Mesurar_Acceptacio},  {"llibre", Mesurar_Llibre_Factures}};

// Without names, every subject.
std::vector<Figura> Mesurar(const std::set<std::string>& noms) {
  std::vector<Figura> totes;
  for (const auto& [nom, mesurar] : subjectes) {
    if (!noms.empty() && !noms.contains(nom)) continue;
    for (auto& figura : mesurar()) totes.push_back(std::move(figura));
  }
  return totes;
}

}  // namespace

int main(int argc, char** argv) try {
  if (argc > 1 && std::strcmp(argv[1], "--login") == 0) return Arrencar_Fins_Al_Login(argc, argv);
  const QApplication aplicacio(argc, argv);
  Imprimir_Taula(Mesurar({argv + 1, argv + argc}));
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
