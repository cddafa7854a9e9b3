// The one error of the system: a number that rules test, who raised it, and words for the user.
#pragma once

#include <stdexcept>
#include <string>

namespace errors {
constexpr int desbordament = 6;
constexpr int divisio_per_zero = 11;
constexpr int tipus = 13;
constexpr int fitxer_no_trobat = 53;
constexpr int fila_retinguda = 1003;  // only its words: the number raised is `general`
constexpr int sense_estoc = 1001;
constexpr int camp_no_trobat = 1005;
constexpr int fitxer_existent = 1008;
constexpr int refusat = 1010;
constexpr int general = static_cast<int>(0x80004005);       // a duplicate key is one
constexpr int concurrencia = static_cast<int>(0x80040E38);  // the row changed since it was read
constexpr int sentencia = static_cast<int>(0x80040E14);     // a statement that cannot be understood
}  // namespace errors

class Error_Brollador : public std::runtime_error {
 public:
  Error_Brollador(int numero, std::string origen, const std::string& descripcio)
      : std::runtime_error(descripcio), numero_(numero), origen_(std::move(origen)) {}

  int Numero() const { return numero_; }
  const std::string& Origen() const { return origen_; }
  std::string Descripcio() const { return what(); }

 private:
  int numero_;
  std::string origen_;
};

// Words of the system's own errors (6, 11, 13, 53, faulty statement) in the language of the session.
// Engines' errors keep the engine's words. Language: 0 Catalan, 1 Spanish, 2 English; any other gives Catalan.
void Posar_Idioma_Errors(int idioma);
std::string Descripcio_Error(int numero);

// Raises one of the system's own errors with its words; `detall` is added after a colon when not empty.
[[noreturn]] void Llancar_Error(int numero, const std::string& origen, const std::string& detall = {});
