#include "bench/Mesura.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <stdexcept>

double Mil_Segons(const std::function<void()>& feina) {
  const auto inici = std::chrono::steady_clock::now();
  feina();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - inici).count();
}

double Mediana(std::vector<double> valors) {
  if (valors.empty()) throw std::logic_error("nothing was measured");
  const auto mig = valors.begin() + static_cast<std::ptrdiff_t>(valors.size() / 2);
  std::nth_element(valors.begin(), mig, valors.end());
  return *mig;
}

std::string Amb_Decimals(double valor, int decimals) {
  char text[64];
  std::snprintf(text, sizeof text, "%.*f", decimals, valor);
  return text;
}

void Exigir_Igual(const std::string& que, double nostre, double nu) {
  if (std::abs(nostre - nu) < 0.005) return;
  throw std::runtime_error(que + ": ours " + Amb_Decimals(nostre, 2) + ", bare " + Amb_Decimals(nu, 2));
}

Figura Parella::Fer_Figura(const std::string& nom, const std::string& unitat, std::optional<double> limit) const {
  const double temps_nostre = Mediana(nostre);
  const double temps_nu = Mediana(nu);
  const auto text = [&](double temps) { return Amb_Decimals(temps, temps < 10 ? 3 : 1) + " " + unitat; };
  return {nom, text(temps_nostre), text(temps_nu), temps_nostre / temps_nu, limit};
}

void Imprimir_Taula(const std::vector<Figura>& figures) {
  std::printf("%-58s | %16s | %16s | ratio\n", "figure", "ours", "bare");
  for (const auto& figura : figures) {
    std::string rao = figura.rao ? Amb_Decimals(*figura.rao, 2) : "-";
    if (figura.rao && figura.limit) {
      rao += (*figura.rao <= *figura.limit ? " (at most " : " OVER (at most ") + Amb_Decimals(*figura.limit, 1) + ")";
    }
    std::printf("%-58s | %16s | %16s | %s\n", figura.nom.c_str(), figura.nostre.c_str(), figura.nu.c_str(),
                rao.c_str());
  }
}
