// The rows of a recordset as they lie in memory: cells of 16 bytes, their texts in blocks. 100,000 rows of a list are
// one large table and a few blocks, not a million little objects.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "core/dades/Cataleg.h"
#include "core/dades/Valor.h"

struct Cella {
  enum class Mena : std::uint8_t { Nul, Enter, Doble, Text };
  union {
    std::int64_t enter = 0;
    double doble;
    const char* text;
  };
  std::uint32_t mida = 0;
  Mena mena = Mena::Nul;
};

class Files_Memoria {
 public:
  void Buidar(std::size_t columnes);
  std::size_t Columnes() const { return columnes_; }
  std::size_t Files() const { return columnes_ == 0 ? 0 : celles_.size() / columnes_; }

  // Adding cells row after row.
  void Afegir_Nul() { celles_.emplace_back(); }
  void Afegir_Enter(std::int64_t valor);
  void Afegir_Doble(double valor);
  void Afegir_Text(std::string_view valor);

  const Cella& Llegir(std::size_t fila, std::size_t columna) const { return celles_[fila * columnes_ + columna]; }
  void Copiar_Fila(std::size_t fila, const Files_Memoria& altra, std::size_t fila_altra);  // texts are copied too
  void Posar(std::size_t fila, std::size_t columna, const Valor& valor);
  void Afegir_Fila_Buida();
  void Esborrar_Fila(std::size_t fila);

  // A cell as a value of the column's type: dates out of their stored form, booleans as -1 and 0.
  Valor Valor_De(std::size_t fila, std::size_t columna, Tipus_Columna tipus) const;

 private:
  const char* Guardar_Text(std::string_view valor);

  std::size_t columnes_ = 0;
  std::vector<Cella> celles_;
  std::vector<std::unique_ptr<char[]>> blocs_;
  std::size_t lliures_ = 0;  // bytes left in the last block
  char* seguent_ = nullptr;
};
