// Runs the scripts of a run, several at a time, each in a process of its own that runs one script; prints their
// lines in the order of the files, and the sum at the end.
#pragma once

#include <QStringList>

struct Opcions_Cua {
  QStringList fitxers;
  QStringList arguments;  // for the processes, before the file
  int alhora = 2;
};

// True when all passed.
bool Executar_Cua(const Opcions_Cua& opcions);
