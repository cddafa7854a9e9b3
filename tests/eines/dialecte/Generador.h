// Statements and filters made up from a seed: whole ones, whole ones with their words spoilt, and plain noise.
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "core/dades/Valor.h"

// In every text that stands as a value, and nowhere else.
inline constexpr const char* marca_de_valor = "zqvalor";

struct Tros {
  std::string text;
  bool literal = false;
  Valor valor = {};  // of a literal: what has to come out of it
};

struct Inventada {
  std::vector<Tros> trossos;
  bool sencera = true;  // nothing of it was spoilt: its literals come out as they went in
  bool soroll = false;  // there is nothing to be known about its values
  std::string Text() const;
  std::vector<Valor> Literals() const;
};

class Generador {
 public:
  explicit Generador(std::uint64_t llavor) : atzar_(llavor) {}
  Inventada Sentencia();
  Inventada Filtre();
  std::string Bytes();  // anything at all
  std::size_t Un_De(std::size_t quants) { return static_cast<std::size_t>(atzar_() % quants); }

 private:
  template <std::size_t N>
  const char* De(const char* const (&llista)[N]) {
    return llista[Un_De(N)];
  }
  void Posar(const std::string& text) { actual_.trossos.push_back({text + " "}); }
  void Literal();
  void Literal_De_Text();
  void Columna();
  void Condicions(std::size_t fondaria);
  void Comparacio(std::size_t fondaria);
  void Seleccio(std::size_t fondaria);
  void Canvi();
  void Alta();
  void Baixa();
  void Llista_De_Columnes();
  Inventada Acabar();
  void Espatllar();
  std::string Lletres_Soltes();

  std::mt19937_64 atzar_;
  Inventada actual_;
};
