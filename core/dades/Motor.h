// What an engine has to offer to the data layer: the two of them stand behind this and nothing else knows which one
// is at work. Everything of one engine alone stays in its own file.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/dades/Cataleg.h"
#include "core/dades/Dialecte.h"
#include "core/dades/Files_Memoria.h"
#include "core/dades/Valor.h"

struct Columna_Resultat {
  std::string nom;
  std::string taula;   // empty for an expression
  std::string origen;  // column of the table
};

class Motor {
 public:
  virtual ~Motor() = default;

  virtual const Cataleg& Taules() const = 0;
  virtual const Trets_Motor& Trets() const = 0;

  // Statements in the engine's own SQL, kept prepared by their text. Reading fills `files` and, when asked, tells the
  // columns. Both return how many rows were written; a write begins the transaction that BeginTrans marked.
  virtual int Executar(const std::string& sql, const std::vector<Valor>& parametres) = 0;
  virtual int Consultar(const std::string& sql, const std::vector<Valor>& parametres, Files_Memoria& files,
                        std::vector<Columna_Resultat>* columnes) = 0;
  // A write whose answer nobody waits for: it may travel with the next statement, and its error come up there.
  virtual void Executar_Despres(const std::string& sql, const std::vector<Valor>& parametres) {
    Executar(sql, parametres);
  }
  // A read that will be wanted soon, in this transaction: it may travel behind the next statement. Consultar of the
  // same statement then finds its answer, unless its tables were written meanwhile.
  virtual void Demanar(const std::string& /*sql*/, const std::vector<Valor>& /*parametres*/) {}
  // A definition of a table, a column or an index, entered in the catalogue.
  virtual void Definir(const Definicio& definicio) = 0;
  // Functions of ours that live in the database become those of this program.
  virtual void Renovar_Funcions() {}

  virtual void BeginTrans() = 0;
  virtual void CommitTrans() = 0;
  virtual void RollbackTrans() = 0;
  virtual bool En_Transaccio() const = 0;
  virtual bool Te_Canvis() const = 0;  // the transaction has begun to write
  // Rows read to be written have to be held by their statement, in a transaction that has begun on an engine where
  // others write at the same time: a number of that transaction, as long as what it read is held. 0 otherwise.
  virtual std::int64_t Transaccio_Que_Reten() const { return 0; }
  // Trips to a server so far; none for a file.
  virtual std::int64_t Viatges() const { return 0; }

  // "column is the value of the parameter", nulls and capitals included.
  virtual std::string Condicio_Identica(const Columna& columna, int parametre) const = 0;

  // Holds a row against other terminals while it is in edit; false when another holds it. A hold ends with
  // Deixar_Anar, with the connection, and with the process whatever its end.
  virtual bool Retenir(const std::string& taula, const Valor& clau) = 0;
  virtual void Deixar_Anar(const std::string& taula, const Valor& clau) = 0;
  // Behind a WHERE: true when nobody else holds the row whose Empremta_Fila is the parameter, and holds it itself while
  // it is written. Empty where Retenir costs nothing.
  virtual std::string Condicio_Lliure(int /*parametre*/) const { return {}; }

  virtual std::string Comprovar_Integritat() = 0;

  // A statement's translation, kept by its shape and the table that is to be written; and its columns, once known.
  struct Traduccio_Guardada {
    Sentencia_Traduida traduida;
    std::shared_ptr<const std::vector<Camp>> camps;
  };
  Traduccio_Guardada& Traduccio(const std::string& forma, std::string_view taula_editable);
  void Oblidar_Traduccions();  // the tables are no longer what they were

 private:
  struct Record_Traduccions;
  std::shared_ptr<Record_Traduccions> traduccions_;
};

// The catalogue is kept in a table of every database, ESQUEMA, with the dialect's types. From its rows: TAULA, COLUMNA,
// TIPUS, CLAU (place in the key, 0 for none).
Cataleg Llegir_Esquema(const Files_Memoria& files);
// The rows of one table for it.
std::vector<std::vector<Valor>> Files_Esquema(const Taula& taula);

// A number for a row held while it is in edit.
std::int64_t Empremta_Fila(const std::string& taula, const Valor& clau);

// What each engine wants of a translation.
const Trets_Motor& Trets_PostgreSQL();
const Trets_Motor& Trets_SQLite();

std::unique_ptr<Motor> Obrir_Motor_PostgreSQL(const std::string& adreca, int espera);
// Makes the database when the server has none of that name. Raises 1008 when it holds an installation already.
void Crear_Base_PostgreSQL(const std::string& adreca);
bool Base_PostgreSQL_Ocupada(const std::string& adreca);  // it holds an installation
// Raises when somebody is connected to it.
void Copiar_Base_PostgreSQL(const std::string& adreca, const std::string& desti);
// Takes away what Crear_Base_PostgreSQL and the definitions after it made.
void Esborrar_Base_PostgreSQL(const std::string& adreca);

std::unique_ptr<Motor> Obrir_Motor_SQLite(const std::string& cami, int espera);
void Crear_Fitxer_SQLite(const std::string& cami);
void Copiar_Fitxer_SQLite(const std::string& cami, const std::string& desti);
