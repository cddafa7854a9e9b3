#include "core/dades/Files_Memoria.h"

#include <algorithm>
#include <cstring>

#include "core/dades/Dates.h"

namespace {
constexpr std::size_t mida_bloc = 65536;
constexpr std::size_t mida_primer_bloc = 1024;  // most sets hold one row
}  // namespace

void Files_Memoria::Buidar(std::size_t columnes) {
  columnes_ = columnes;
  celles_.clear();
  blocs_.clear();
  lliures_ = 0;
  seguent_ = nullptr;
}

void Files_Memoria::Afegir_Enter(std::int64_t valor) {
  Cella& cella = celles_.emplace_back();
  cella.mena = Cella::Mena::Enter;
  cella.enter = valor;
}

void Files_Memoria::Afegir_Doble(double valor) {
  Cella& cella = celles_.emplace_back();
  cella.mena = Cella::Mena::Doble;
  cella.doble = valor;
}

void Files_Memoria::Afegir_Text(std::string_view valor) {
  const char* text = Guardar_Text(valor);
  Cella& cella = celles_.emplace_back();
  cella.mena = Cella::Mena::Text;
  cella.text = text;
  cella.mida = static_cast<std::uint32_t>(valor.size());
}

const char* Files_Memoria::Guardar_Text(std::string_view valor) {
  if (valor.empty()) return "";
  if (valor.size() > lliures_) {
    lliures_ = std::max(valor.size(), blocs_.empty() ? mida_primer_bloc : mida_bloc);
    blocs_.push_back(std::make_unique_for_overwrite<char[]>(lliures_));
    seguent_ = blocs_.back().get();
  }
  char* lloc = seguent_;
  std::memcpy(lloc, valor.data(), valor.size());
  seguent_ += valor.size();
  lliures_ -= valor.size();
  return lloc;
}

void Files_Memoria::Copiar_Fila(std::size_t fila, const Files_Memoria& altra, std::size_t fila_altra) {
  for (std::size_t i = 0; i < columnes_; ++i) {
    Cella cella = altra.Llegir(fila_altra, i);
    if (cella.mena == Cella::Mena::Text) cella.text = Guardar_Text({cella.text, cella.mida});
    celles_[fila * columnes_ + i] = cella;
  }
}

void Files_Memoria::Posar(std::size_t fila, std::size_t columna, const Valor& valor) {
  Cella cella;
  if (valor.Es_Enter()) {
    cella.mena = Cella::Mena::Enter;
    cella.enter = valor.Enter();
  } else if (valor.Es_Doble()) {
    cella.mena = Cella::Mena::Doble;
    cella.doble = valor.Doble();
  } else if (!valor.Es_Nul()) {
    const std::string text = valor.Es_Data() ? Data_Desada(valor.Data()) : valor.Text();
    cella.mena = Cella::Mena::Text;
    cella.text = Guardar_Text(text);
    cella.mida = static_cast<std::uint32_t>(text.size());
  }
  celles_[fila * columnes_ + columna] = cella;
}

void Files_Memoria::Afegir_Fila_Buida() {
  celles_.resize(celles_.size() + columnes_);
}

void Files_Memoria::Esborrar_Fila(std::size_t fila) {
  const auto inici = celles_.begin() + static_cast<std::ptrdiff_t>(fila * columnes_);
  celles_.erase(inici, inici + static_cast<std::ptrdiff_t>(columnes_));
}

Valor Files_Memoria::Valor_De(std::size_t fila, std::size_t columna, Tipus_Columna tipus) const {
  const Cella& cella = Llegir(fila, columna);
  switch (cella.mena) {
    case Cella::Mena::Nul:
      return {};
    case Cella::Mena::Enter:
      if (tipus == Tipus_Columna::Doble) return static_cast<double>(cella.enter);
      return tipus == Tipus_Columna::Boolea ? Valor(cella.enter != 0) : Valor(cella.enter);
    case Cella::Mena::Doble:
      return cella.doble;
    case Cella::Mena::Text:
      break;
  }
  const std::string_view text(cella.text, cella.mida);
  if (tipus == Tipus_Columna::Data || tipus == Tipus_Columna::Data_Hora) {
    if (const auto data = Llegir_Data_Desada(text)) return *data;
  }
  return text;
}
