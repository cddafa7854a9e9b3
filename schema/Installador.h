// Creates the data folder of a terminal and the two databases, with the rows that an installation starts from.
// Never writes over an installation that exists: raises 1008 before anything is touched. When it fails half-way,
// what it had made is taken away again.
#pragma once

#include <functional>
#include <string>

#include "core/dades/Connexio.h"

struct Opcions_Installacio {
  std::string carpeta;     // data folder: Brollador.ini, dadeslocals.db, copia, Temp
  std::string compartida;  // address of the shared database; empty: comuna.db in the data folder
};

// Raises 1008 when a part of the installation stands already, before anybody is asked for anything.
void Exigir_Lloc_Lliure(const Opcions_Installacio& opcions);

// The base installation: one company, the administrator without a password, and the smallest reference tables.
void Crear_Base(const Opcions_Installacio& opcions);
void Crear_Base(const std::string& carpeta, const std::string& compartida = {});

// The first company of an office and its administrator's password.
struct Primera_Empresa {
  std::string nif;
  std::string rao_social;
  std::string contrasenya;
};
// `despres`: work that belongs to the installation; when it raises, nothing of it all is left.
void Crear_Buida(const Opcions_Installacio& opcions, const Primera_Empresa& empresa,
                 const std::function<void()>& despres = {});

// A further terminal of an office: data folder and local database on a shared database that exists.
void Crear_Terminal(const Opcions_Installacio& opcions);

// The shared address of the options, as Brollador.ini holds it: a whole path whatever folder the program starts in.
std::string Adreca_Compartida(const Opcions_Installacio& opcions);
