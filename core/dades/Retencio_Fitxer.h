// Rows held while they are in edit, told to the other terminals by locks of the operating system on a file beside the
// database: one byte a row, at its number. The system drops them when the process ends, however.
#pragma once

#include <cstdint>
#include <string>

class Retencio_Fitxer {
 public:
  explicit Retencio_Fitxer(std::string cami) : cami_(std::move(cami)) {}
  ~Retencio_Fitxer();
  Retencio_Fitxer(const Retencio_Fitxer&) = delete;
  Retencio_Fitxer& operator=(const Retencio_Fitxer&) = delete;

  // False when another connection holds the row. Raises 0x80004005 when the file cannot be made.
  bool Retenir(std::int64_t fila);
  void Deixar_Anar(std::int64_t fila);

 private:
  bool Pany(std::int64_t fila, short tipus);

  std::string cami_;
  int fitxer_ = -1;
};
