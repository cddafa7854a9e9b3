// The folder that a script works in: a copy of the base installation, with the shared database (or a copy of it on the
// tests' server) and one data folder a terminal. Reads and writes the databases on connections of its own, which never
// hold a transaction or a lock.
#pragma once

#include <QTemporaryDir>
#include <map>
#include <memory>
#include <optional>

#include "core/dades/Connexio.h"
#include "tests/eines/guio/Terminal.h"
#include "tests/servidor/Base_Servidor.h"

// The base installation that the scripts of a run are copied from, in a folder.
class Base_De_Guions {
 public:
  explicit Base_De_Guions(const QString& carpeta);

 private:
  std::optional<Base_Servidor> servidor_;
};

class Installacio {
 public:
  // `base`: the folder of a Base_De_Guions; `guardar` leaves the folder behind.
  Installacio(const QString& base, bool guardar);

  QString Carpeta() const { return carpeta_.path(); }
  QString Adreca_Comuna() const;

  // Made at its first mention.
  Terminal& De_Numero(int numero);
  std::map<int, std::unique_ptr<Terminal>>& Terminals() { return terminals_; }
  Connexio& Comuna();
  const Base_Servidor& Al_Servidor() const;  // raises where the shared database is a file
  Connexio& Local(int numero);

 private:
  QString base_;
  QTemporaryDir carpeta_;
  std::optional<Base_Servidor> servidor_;
  Connexio comuna_;
  std::map<int, Connexio> locals_;
  std::map<int, std::unique_ptr<Terminal>> terminals_;
};
