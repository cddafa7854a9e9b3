// A screen script as it is read: one command a line, checked in its form before anything runs. Runs nothing itself.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "tests/eines/guio/Error_Guio.h"

struct Ordre {
  int linia = 0;
  QString text;              // as it was written, for reports
  QStringList mots;          // the command and its arguments; of an `expect` first what it looks at (see Llegir_Expect)
  bool de_terminal = false;  // carried out by the terminal's process
  std::vector<Ordre> juntes;  // the two commands of `together`
  QStringList comentaris;     // the comments above it

  bool Es_Comprovacio() const { return mots.first() == QLatin1String("expect"); }
};

struct Guio {
  QString fitxer;
  std::vector<Ordre> ordres;
};

// Raises Error_Guio with its line: an unknown command, an argument that is missing or is none of those allowed, a
// script without a single `expect`.
Guio Llegir_Guio(const QString& fitxer);
Ordre Llegir_Ordre(const QString& linia);

// `shared STATEMENT` or `local STATEMENT`, as data files and `run` have it: the base and the statement.
QStringList Llegir_Sentencia(const QString& linia);
