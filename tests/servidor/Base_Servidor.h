// Databases of the tests' server. BROLLADOR_SERVIDOR is its address without a database, as ./test sets it; where it is
// not set, a server is started for the process and ends with it.
#pragma once

#include <string>

// The server runs, and processes started from here on find it.
void Assegurar_Servidor();

// It ends as in a power cut, and is started again as it was.
void Matar_Servidor();
void Tornar_A_Engegar_Servidor();

// Tests are to run on the server: BROLLADOR_MOTOR=postgres.
bool Proves_Al_Servidor();
// For a test of what only a file has: passed over on the server.
#define NOMES_AMB_FITXER() \
  if (Proves_Al_Servidor()) GTEST_SKIP() << "of a file"

// A database that goes with the object.
class Base_Servidor {
 public:
  Base_Servidor();                                   // a name, and nothing behind it yet
  explicit Base_Servidor(const std::string& model);  // a copy of another one, at which nobody may be connected
  ~Base_Servidor();
  Base_Servidor(const Base_Servidor&) = delete;
  Base_Servidor& operator=(const Base_Servidor&) = delete;

  const std::string& Nom() const { return nom_; }
  std::string Adreca() const;
  // The same by the way of a user who has the database's name.
  std::string Adreca_Del_Tocaio();
  // Ends every connection to it, as a server that is restarted does.
  void Tallar() const;
  // It goes away, until it is asked to come back: nobody is connected, nobody gets in.
  void Marxar() const;
  void Tornar() const;
  // One that a test made there by other means.
  static void Esborrar(const std::string& nom);
  // Its clock stands on that day, YYYY-MM-DD.
  void Fixar_Avui(const std::string& dia) const;

 private:
  std::string nom_;
  bool tocaio_ = false;  // there is a user of its name
};
