// Arithmetic that stands in every field and line: calls a second.
#include <cmath>

#include "bench/Mesura.h"
#include "core/M_Funcions_Comuns.h"
#include "documents/M_Linies.h"

namespace {

constexpr int voltes = 7;
constexpr int crides = 200000;

// What is added up is looked at, so that no call can be left out.
double Crides_Per_Segon(const std::function<double(int)>& crida) {
  std::vector<double> ritmes;
  for (int volta = 0; volta < voltes; ++volta) {
    double suma = 0;
    const double temps = Mil_Segons([&] {
      for (int i = 0; i < crides; ++i) suma += crida(i);
    });
    if (!std::isfinite(suma) || suma == 0) throw std::runtime_error("the calls gave nothing");
    ritmes.push_back(crides / temps * 1000);
  }
  return Mediana(ritmes);
}

std::string Milions(double ritme) {
  return Amb_Decimals(ritme / 1e6, 2) + " M/s";
}

}  // namespace

std::vector<Figura> Mesurar_Calculs() {
  const double arrodonir = Crides_Per_Segon([](int i) { return Arrodonir(i * 1.005, 2); });
  const double nu = Crides_Per_Segon([](int i) { return std::round(i * 1.005 * 100) / 100; });
  const double linia = Crides_Per_Segon([](int i) {
    return Calcular_Linia(10, 1 + i % 9, 30, 0, 21, 0, 13 + i % 50, 0, i % 10, "PREU_UNITARI_PL").import_brut;
  });
  return {
      {.nom = "Arrodonir (bare: std::round, whose result differs)", .nostre = Milions(arrodonir), .nu = Milions(nu)},
      {.nom = "Calcular_Linia", .nostre = Milions(linia)}};
}
