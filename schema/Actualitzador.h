// Brings the shared database of an older program up to this one. For the administrator, while nobody works.
#pragma once

#include <functional>
#include <string>

struct Opcions_Actualitzacio {
  std::string adreca;
  bool copia_feta = false;     // the administrator has made the copy by other means
  bool amb_bloquejos = false;  // documents stand locked, and their terminals are known to be closed
};

// Makes a copy, checks it, and takes the database through every step that it lacks, one transaction a step: when one
// fails the database stands as the step before left it. `dir` is told each thing done, a line of English each. Raises
// when the database is newer than the program, unsound, or when documents stand locked; then nothing was done.
void Actualitzar_Compartida(const Opcions_Actualitzacio& opcions, const std::function<void(const std::string&)>& dir);
