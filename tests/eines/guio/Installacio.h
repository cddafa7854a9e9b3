// The folder that a script works in: a copy of the base installation, with the shared database and one data folder a
// terminal. Reads and writes the databases on connections of its own, which never hold a transaction or a lock.
#pragma once

#include <QTemporaryDir>
#include <map>
#include <memory>

#include "core/dades/Connexio.h"
#include "tests/eines/guio/Terminal.h"

// Creates the base installation that the scripts of a run are copied from.
void Crear_Base_De_Guions(const QString& carpeta);

class Installacio {
 public:
  // `base` as Crear_Base_De_Guions left it; `guardar` leaves the folder behind.
  Installacio(const QString& base, bool guardar);

  QString Carpeta() const { return carpeta_.path(); }
  QString Adreca_Comuna() const { return Carpeta() + QStringLiteral("/comuna.db"); }

  // Made at its first mention.
  Terminal& De_Numero(int numero);
  std::map<int, std::unique_ptr<Terminal>>& Terminals() { return terminals_; }
  Connexio& Comuna();
  Connexio& Local(int numero);

 private:
  QString base_;
  QTemporaryDir carpeta_;
  Connexio comuna_;
  std::map<int, Connexio> locals_;
  std::map<int, std::unique_ptr<Terminal>> terminals_;
};
