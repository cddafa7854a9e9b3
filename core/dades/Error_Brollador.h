// The one error of the system: a number that rules test, who raised it, and words for the user.
#pragma once

#include <stdexcept>
#include <string>

namespace errors {
constexpr int desbordament = 6;
constexpr int divisio_per_zero = 11;
constexpr int tipus = 13;
constexpr int fitxer_no_trobat = 53;
constexpr int sense_estoc = 1001;
constexpr int camp_no_trobat = 1005;
constexpr int fitxer_existent = 1008;
constexpr int refusat = 1010;
constexpr int general = static_cast<int>(0x80004005);       // a duplicate key is one
constexpr int concurrencia = static_cast<int>(0x80040E38);  // the row changed since it was read
constexpr int sentencia = static_cast<int>(0x80040E14);     // a statement that cannot be understood
}  // namespace errors

// What lies behind a number that many failures share. Each has words of its own, the same on every engine.
enum class Falla {
  Cap,                 // none of these: the number says it all
  Clau_Repetida,       // a key that another row has
  Fila_En_Us,          // deleted, while other rows point at it
  Sense_Pare,          // it points at a row that is not there
  Valor_Buit,          // nothing where something has to be
  Espera,              // another terminal held what was wanted for too long
  Interbloqueig,       // two terminals waited for each other, and the server gave up this one's transaction
  Sense_Connexio,      // the database cannot be reached, or not any more
  Transaccio_Desfeta,  // by the engine: nothing of it is left
  Fila_Retinguda,      // another terminal has the row in edit
  Sense_Fila,          // no current row
  No_Es_Pot_Escriure,
  Disc_Ple,            // no room for what has to be written
  Base_Malmesa,        // what is in the file is no database, or not one that can be trusted
  Disc_Que_Falla,      // the disk, or the network that it is reached by, did not read or write
  Adreca_Dolenta,      // of a server, and it cannot be understood
  Adreca_Desconeguda,  // of no kind of database that there is
  Altra_Del_Motor,     // the engine's own words tell
};

class Error_Brollador : public std::runtime_error {
 public:
  Error_Brollador(int numero, std::string origen, const std::string& descripcio, Falla falla = Falla::Cap)
      : std::runtime_error(descripcio), numero_(numero), origen_(std::move(origen)), falla_(falla) {}

  int Numero() const { return numero_; }
  const std::string& Origen() const { return origen_; }
  std::string Descripcio() const { return what(); }
  Falla Motiu() const { return falla_; }
  // What failed may well succeed as it stands, once the other terminal is ready.
  bool Es_Passatger() const { return falla_ == Falla::Espera || falla_ == Falla::Interbloqueig; }

 private:
  int numero_;
  std::string origen_;
  Falla falla_;
};

// Words of the system's own errors in the language of the session: 0 Catalan, 1 Spanish, 2 English; any other gives
// Catalan.
void Posar_Idioma_Errors(int idioma);
std::string Descripcio_Error(int numero);
std::string Descripcio_Falla(Falla falla);

// Raises one of the system's own errors with its words; `detall` is added after a colon when not empty.
[[noreturn]] void Llancar_Error(int numero, const std::string& origen, const std::string& detall = {});
// The same for a failure, under the number 0x80004005.
[[noreturn]] void Llancar_Falla(Falla falla, const std::string& origen, const std::string& detall = {});
