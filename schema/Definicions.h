// The definitions that the program carries, put into a database, and the version that a database has of them.
//
// The shared database has a number, the highest of schema/upgrades; only the administrator brings it up. The local one
// has the digest of what it was made from, and whoever opens it makes it anew when that is not the program's own.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/dades/Connexio.h"

// Statements ended by ';' at the end of a line; lines of comment begin with --.
void Executar_Fitxer(Connexio& connexio, std::string_view text);

// Makes the local database, with the texts, in a file that is not there yet and that is the user's alone. Raises 1008.
void Crear_Local(const std::string& cami);
bool Es_Local_Al_Dia(Connexio& local);
// Makes the file of a local database anew, with the parameters of the one that is there. Nobody may have it open. When
// it fails the old one stands as it was.
void Renovar_Local(const std::string& cami);

// A step of the shared database to a later version.
struct Pas_De_Versio {
  int numero;
  std::string_view fitxer;  // its name among those that travel in the program
};
// By number, which begin at 2: a database without a version is the first one.
std::vector<Pas_De_Versio> Passos_De_Versio();
int Versio_Del_Programa();
// Reads VERSIO (shared).
int Versio_De(Connexio& comuna);
// Tables and version of a new shared database.
void Definir_Comuna(Connexio& comuna);
// One step, with the number that it leaves in VERSIO, kept or undone as one.
void Fer_Pas(Connexio& comuna, const Pas_De_Versio& pas);
