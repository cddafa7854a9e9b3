// A connection to one database, in the system's own statements and transactions.
//
// The address is the path of a SQLite file (which must exist) or postgresql://host/base. Statements are written in
// the system's dialect (Dialecte.h); every literal becomes a bound parameter. A Transaccio only marks the start: the
// engine's transaction begins with the first write after it. A failed statement leaves the transaction usable.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/dades/Adreca.h"
#include "core/dades/Cataleg.h"
#include "core/dades/Transaccio.h"
#include "core/dades/Valor.h"

class Motor;

enum class Bloqueig { Lectura = 1, Pessimista = 2, Optimista = 3 };

class Connexio {
 public:
  Connexio();
  ~Connexio();
  Connexio(const Connexio&) = delete;
  Connexio& operator=(const Connexio&) = delete;

  static constexpr int espera_habitual = 8000;

  // Opens an existing database. Raises 0x80004005 with the engine's number and words. A database that another terminal
  // is writing is waited for, `espera` milliseconds at most; then the statement raises that error.
  void Open(const std::string& adreca, int espera = espera_habitual);
  void Close();
  bool Es_Oberta() const { return motor_ != nullptr; }
  const std::string& Adreca() const { return adreca_; }

  // Runs a statement and returns how many rows it touched (0 for a definition of a table).
  int Execute(std::string_view sentencia);
  // A write of a transaction whose answer nobody waits for. With a server it travels with the next statement, and an
  // error of its own comes up there; with a file it is Execute.
  void Execute_Despres(std::string_view sentencia);
  // A new row of a table, written like that.
  void Afegir_Fila(std::string_view taula, const std::vector<std::pair<std::string_view, Valor>>& valors);
  // A set that will be opened soon, in this transaction. With a server it is read on the way of the next statement, and
  // opening it then costs no trip; with a file it does nothing.
  void Demanar(std::string_view font, Bloqueig bloqueig = Bloqueig::Lectura);

  // A Transaccio is open.
  bool En_Transaccio() const;
  // It has written: until its end other terminals wait for what it holds.
  bool Te_Canvis() const;

  // Tables and columns as the dialect declares them.
  const Cataleg& Taules() const;
  // Trips to the server since Open; always 0 with a file. What is queued travels together and counts once: two readings
  // around a piece of work tell what it costs on a slow line.
  std::int64_t Viatges() const;
  // Empty when the database is sound, else what is wrong with it, in the engine's words.
  std::string Comprovar_Integritat();

  // Functions of ours that live in the database become those of this program.
  void Renovar_Funcions();

  Motor& motor();  // for Recordset

 private:
  friend class Transaccio;
  void BeginTrans();
  void CommitTrans();
  void RollbackTrans();

  std::unique_ptr<Motor> motor_;
  std::string adreca_;
  std::shared_ptr<Transaccio::Estat> transaccio_;  // of the one that is open
};

// Creates a new, empty database at the address for Open and CREATE TABLE: a file that does not exist yet, or our
// tables' place in a server's database (made too when the server has none of that name). Raises 1008 when there is an
// installation already.
void Crear_Base_Dades(const std::string& adreca);
// There is something at the address that Crear_Base_Dades would not write over.
bool Base_Dades_Ocupada(const std::string& adreca);
// A copy of the whole database at another address, where nothing is yet: another file, or another database of the same
// server, to which nobody may be connected meanwhile. Raises 1008 when the file is there.
void Copiar_Base_Dades(const std::string& adreca, const std::string& desti);
// Takes away what Crear_Base_Dades and the definitions after it made. A server's database itself stays.
void Esborrar_Base_Dades(const std::string& adreca);

// 'valor' between single quotes for a statement. Quotes are not doubled: a value that holds one is refused with the
// faulty-statement error, so that typed text never becomes part of a statement.
std::string Text_SQL(std::string_view valor);
// The same for a code that a row holds, such as one of an older installation: its quotes are doubled. For what was read
// of the database, never for what was typed.
std::string Codi_SQL(std::string_view valor);
