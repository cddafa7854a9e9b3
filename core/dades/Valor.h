// A value of a column: null, a whole number, a double, a text or a date with time.
//
// Booleans are the whole numbers -1 and 0. A conversion that makes no sense raises error 13; none of them
// depends on the locale of the machine: a number's text has a decimal comma, always.
#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

// A calendar date with its time of day; midnight when the time plays no part.
struct Data_Hora {
  int any = 0;
  int mes = 0;
  int dia = 0;
  int hora = 0;
  int minut = 0;
  int segon = 0;
  auto operator<=>(const Data_Hora&) const = default;
};

class Valor {
 public:
  Valor() = default;  // null
  Valor(std::int64_t valor) : dada_(valor) {}
  Valor(int valor) : dada_(std::int64_t{valor}) {}
  Valor(bool valor) : dada_(std::int64_t{valor ? -1 : 0}) {}
  Valor(double valor) : dada_(valor) {}
  Valor(std::string valor) : dada_(std::move(valor)) {}
  Valor(std::string_view valor) : dada_(std::string(valor)) {}
  Valor(const char* valor) : dada_(std::string(valor)) {}
  Valor(const Data_Hora& valor) : dada_(valor) {}

  bool Es_Nul() const { return std::holds_alternative<std::monostate>(dada_); }
  bool Es_Enter() const { return std::holds_alternative<std::int64_t>(dada_); }
  bool Es_Doble() const { return std::holds_alternative<double>(dada_); }
  bool Es_Text() const { return std::holds_alternative<std::string>(dada_); }
  bool Es_Data() const { return std::holds_alternative<Data_Hora>(dada_); }

  // Each raises 13 when the value cannot be read so (a null never can).
  std::int64_t Enter() const;  // a double is rounded, halves to even
  double Doble() const;
  bool Boolea() const;  // not 0; the texts True and False in any case
  Data_Hora Data() const;

  // Text as the screen would show it without a mask: numbers with a comma, dates DD/MM/YYYY (and HH:MM:SS when
  // there is a time), null as the empty text.
  std::string Text() const;

  // The text itself of a text; null for any other kind.
  const std::string* Text_Propi() const { return std::get_if<std::string>(&dada_); }

  bool operator==(const Valor&) const = default;

 private:
  std::variant<std::monostate, std::int64_t, double, std::string, Data_Hora> dada_;
};
