// The person at the terminal that is killed: opens a delivery note on the real screens and adds and deletes lines
// and payments of it, key by key, until the moment comes.
#pragma once

#include <random>
#include <string>

#include "tests/eines/talls/Proces.h"

namespace talls {

class Oficinista {
 public:
  // Starts the terminal, logs in and opens a note. Raises std::runtime_error with what the terminal says.
  explicit Oficinista(std::mt19937& atzar);

  // Works until the moment; the last command stays half done.
  void Treballar(Moment fins);
  bool Matar() { return terminal_.Matar(); }

 private:
  // False when the moment came before the answer.
  bool Fer(const std::string& ordre, Moment fins);
  void Fer_O_Fallar(const std::string& ordre);
  bool Afegir(Moment fins);
  bool Esborrar(Moment fins);
  bool Pagar(Moment fins);
  int Qualsevol(int des_de, int fins_a);

  std::mt19937& atzar_;
  Proces terminal_;
  std::string resposta_;
};

}  // namespace talls
