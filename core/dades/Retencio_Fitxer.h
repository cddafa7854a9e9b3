// Rows held while they are in edit, told to the other terminals by locks of the operating system on a file beside the
// database: one byte a row, at its number. The system drops them when the process ends, however. Whoever may write the
// database may hold its rows: the file has the database's mode and group, whichever account made it.
#pragma once

#include <cstdint>
#include <string>

class Retencio_Fitxer {
 public:
  explicit Retencio_Fitxer(std::string base) : base_(std::move(base)), cami_(base_ + "-edicions") {}
  ~Retencio_Fitxer();
  Retencio_Fitxer(const Retencio_Fitxer&) = delete;
  Retencio_Fitxer& operator=(const Retencio_Fitxer&) = delete;

  // False when another connection holds the row. Raises 0x80004005 when the file cannot be made.
  bool Retenir(std::int64_t fila);
  void Deixar_Anar(std::int64_t fila);

 private:
  void Obrir();
  void Com_La_Base() const;
  bool Pany(std::int64_t fila, short tipus);

  std::string base_;
  std::string cami_;
  int fitxer_ = -1;
};
