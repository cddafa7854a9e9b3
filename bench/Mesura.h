// Clocks, medians and the table of figures.
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <vector>

// Milliseconds that a piece of work takes.
double Mil_Segons(const std::function<void()>& feina);
double Mediana(std::vector<double> valors);
std::string Amb_Decimals(double valor, int decimals);
// Stops the run when ours and bare did not do the same work: their figures could not be compared.
void Exigir_Igual(const std::string& que, double nostre, double nu);

struct Figura {
  std::string nom;
  std::string nostre;
  std::string nu = "-";
  std::optional<double> rao = {};    // ours to bare, or as the name says
  std::optional<double> limit = {};  // what the ratio may come to
};
void Imprimir_Taula(const std::vector<Figura>& figures);

// Two works done in turns, so that both see the same machine: the median of each, milliseconds.
struct Parella {
  std::vector<double> nostre;
  std::vector<double> nu;
  Figura Fer_Figura(const std::string& nom, const std::string& unitat, std::optional<double> limit) const;
};

// The subjects, each in its file.
std::vector<Figura> Mesurar_Linia_Albara();
std::vector<Figura> Mesurar_Linia_Per_Tecles();
std::vector<Figura> Mesurar_Servidor();
std::vector<Figura> Mesurar_Llista_Albarans();
std::vector<Figura> Mesurar_Llista_Mestres();
std::vector<Figura> Mesurar_Inici();
std::vector<Figura> Mesurar_Calculs();
std::vector<Figura> Mesurar_Document_PDF();
std::vector<Figura> Mesurar_Facturacio();
std::vector<Figura> Mesurar_Acceptacio();
std::vector<Figura> Mesurar_Llibre_Factures();
