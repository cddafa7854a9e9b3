#include "core/dades/Numeros.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

#include "core/dades/Dates.h"

namespace {

// The digits of a number at 15 significant figures: value = 0,D1D2D3... x 10^exponent.
struct Xifres {
  bool negatiu = false;
  std::string digits;  // without trailing zeros; empty for zero
  int exponent = 0;
};

Xifres Quinze_Xifres(double valor) {
  Xifres x;
  x.negatiu = std::signbit(valor) && valor != 0;
  std::array<char, 40> text{};
  const auto fi =
      std::to_chars(text.data(), text.data() + text.size(), std::abs(valor), std::chars_format::scientific, 14);
  const std::string_view escrit(text.data(), static_cast<std::size_t>(fi.ptr - text.data()));
  const std::size_t e = escrit.find('e');
  for (const char c : escrit.substr(0, e)) {
    if (c != '.') x.digits.push_back(c);
  }
  while (!x.digits.empty() && x.digits.back() == '0') x.digits.pop_back();
  const std::string_view exponent = escrit.substr(e + 1);
  std::from_chars(exponent.data() + (exponent[0] == '+' ? 1 : 0), exponent.data() + exponent.size(), x.exponent);
  if (x.digits.empty())
    x.exponent = 0;
  else
    ++x.exponent;
  return x;
}

// Adds one to the last of the digits; 999 becomes 1000.
std::string Sumar_Un(std::string digits, int& exponent) {
  for (std::size_t i = digits.size(); i-- > 0;) {
    if (digits[i] != '9') {
      ++digits[i];
      return digits;
    }
    digits[i] = '0';
  }
  ++exponent;
  return "1" + digits;
}

enum class Meitats { Amunt, Parell };

// Keeps `decimals` digits behind the point; halves go away from zero or to the even digit.
Xifres Retallar(Xifres x, int decimals, Meitats meitats) {
  const int queden = x.exponent + decimals;  // digits that stay
  if (queden >= static_cast<int>(x.digits.size())) return x;
  if (queden < 0) return {};
  const auto tall = static_cast<std::size_t>(queden);
  const char seguent = x.digits[tall];
  const bool just_la_meitat = seguent == '5' && tall + 1 == x.digits.size();
  const bool senar = tall > 0 && (x.digits[tall - 1] - '0') % 2 == 1;
  const bool puja = seguent > '5' || (seguent == '5' && (!just_la_meitat || meitats == Meitats::Amunt || senar));
  x.digits.resize(tall);
  if (puja) x.digits = Sumar_Un(x.digits, x.exponent);
  while (!x.digits.empty() && x.digits.back() == '0') x.digits.pop_back();
  if (x.digits.empty()) return {};
  return x;
}

// Digit at a place: 0 is the units, 1 the tens, -1 the tenths.
char Xifra(const Xifres& x, int lloc) {
  const int i = x.exponent - 1 - lloc;
  return i >= 0 && i < static_cast<int>(x.digits.size()) ? x.digits[static_cast<std::size_t>(i)] : '0';
}

std::string Exponencial(const Xifres& x) {
  std::string text = x.negatiu ? "-" : "";
  text += x.digits[0];
  if (x.digits.size() > 1) text += "," + x.digits.substr(1);
  const int exponent = x.exponent - 1;
  text += exponent < 0 ? "E-" : "E+";
  const std::string nombre = std::to_string(std::abs(exponent));
  return text + (nombre.size() < 2 ? "0" + nombre : nombre);
}

bool Es_Digit(char c) {
  return c >= '0' && c <= '9';
}

// Takes the digits before the comma, whose points must group them by three: "1.234.567".
bool Llegir_Part_Entera(std::string_view text, std::string& digits) {
  const std::size_t primer_punt = text.find('.');
  if (primer_punt == std::string_view::npos) {
    digits = text;
    return true;
  }
  if (primer_punt == 0 || primer_punt > 3) return false;
  digits = text.substr(0, primer_punt);
  for (std::size_t i = primer_punt; i < text.size(); i += 4) {
    if (text[i] != '.' || text.size() - i < 4) return false;
    digits += text.substr(i + 1, 3);
  }
  return true;
}

std::string_view Retallar_Blancs(std::string_view text) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
  return text;
}

}  // namespace

std::string Text_Numero(double valor) {
  if (!std::isfinite(valor)) return valor > 0 ? "INF" : valor < 0 ? "-INF" : "NAN";
  const Xifres x = Quinze_Xifres(valor);
  if (x.digits.empty()) return "0";
  const int decimals = static_cast<int>(x.digits.size()) - x.exponent;
  if (x.exponent > 15 || decimals > 15 + 4) return Exponencial(x);
  std::string text = x.negatiu ? "-" : "";
  for (int lloc = std::max(x.exponent - 1, 0); lloc >= 0; --lloc) text += Xifra(x, lloc);
  if (decimals > 0) text += ',';
  for (int lloc = -1; lloc >= -decimals; --lloc) text += Xifra(x, lloc);
  return text;
}

std::optional<double> Numero_De_Text(std::string_view text) {
  text = Retallar_Blancs(text);
  std::string net;
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
    if (text.front() == '-') net = "-";
    text.remove_prefix(1);
  }
  std::string_view exponent;
  if (const std::size_t e = text.find_first_of("eE"); e != std::string_view::npos) {
    exponent = text.substr(e + 1);
    text = text.substr(0, e);
    if (exponent.empty()) return std::nullopt;
  }
  const std::size_t coma = text.find(',');
  const std::string_view decimals = coma == std::string_view::npos ? std::string_view() : text.substr(coma + 1);
  std::string entera;
  if (!Llegir_Part_Entera(text.substr(0, coma), entera)) return std::nullopt;
  if (entera.empty() && decimals.empty()) return std::nullopt;
  for (const char c : entera) {
    if (!Es_Digit(c)) return std::nullopt;
  }
  for (const char c : decimals) {
    if (!Es_Digit(c)) return std::nullopt;
  }
  net += (entera.empty() ? "0" : entera) + (decimals.empty() ? "" : "." + std::string(decimals));
  if (!exponent.empty()) {
    if (exponent.front() == '+') exponent.remove_prefix(1);
    net += "e" + std::string(exponent);
  }
  double valor = 0;
  const auto [fi, error] = std::from_chars(net.data(), net.data() + net.size(), valor);
  if (error != std::errc() || fi != net.data() + net.size()) return std::nullopt;
  return valor;
}

std::string Numero_SQL(double valor) {
  std::array<char, 64> text{};
  const auto fi = std::to_chars(text.data(), text.data() + text.size(), valor == 0 ? 0.0 : valor);
  return {text.data(), fi.ptr};
}

std::string Format_Numero(double valor, std::string_view mascara) {
  if (mascara.empty() || !std::isfinite(valor)) return Text_Numero(valor);
  const std::string_view seccio = mascara.substr(0, mascara.find(';'));
  const bool agrupa = seccio.find(',') != std::string_view::npos;
  const std::size_t punt = seccio.find('.');
  const int decimals = punt == std::string_view::npos ? 0 : static_cast<int>(seccio.size() - punt - 1);
  const Xifres x = Retallar(Quinze_Xifres(valor), decimals, Meitats::Amunt);
  if (x.digits.empty() && seccio.size() != mascara.size()) return std::string(mascara.substr(mascara.rfind(';') + 1));
  std::string text = x.negatiu ? "-" : "";
  for (int lloc = std::max(x.exponent - 1, 0); lloc >= 0; --lloc) {
    text += Xifra(x, lloc);
    if (agrupa && lloc > 0 && lloc % 3 == 0) text += '.';
  }
  if (decimals > 0) text += ',';
  for (int lloc = -1; lloc >= -decimals; --lloc) text += Xifra(x, lloc);
  return text;
}

double Arrodonir_Parell(double valor, int decimals) {
  if (!std::isfinite(valor)) return valor;
  const Xifres x = Retallar(Quinze_Xifres(valor), decimals, Meitats::Parell);
  if (x.digits.empty()) return 0;
  const std::string text = (x.negatiu ? "-0." : "0.") + x.digits + "e" + std::to_string(x.exponent);
  double arrodonit = 0;
  std::from_chars(text.data(), text.data() + text.size(), arrodonit);
  return arrodonit;
}

std::string Text_Data(const Data_Hora& data) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%02d/%02d/%04d", data.dia, data.mes, data.any);
  std::string escrita = text.data();
  if (data.hora == 0 && data.minut == 0 && data.segon == 0) return escrita;
  std::snprintf(text.data(), text.size(), " %02d:%02d:%02d", data.hora, data.minut, data.segon);
  return escrita + text.data();
}

std::optional<Data_Hora> Data_De_Text(std::string_view text) {
  text = Retallar_Blancs(text);
  std::array<int, 3> parts{};
  const char* p = text.data();
  const char* fi = p + text.size();
  for (std::size_t i = 0; i < 3; ++i) {
    if (p == fi || !Es_Digit(*p)) return std::nullopt;
    const auto [seguent, error] = std::from_chars(p, fi, parts[i]);
    if (error != std::errc()) return std::nullopt;
    p = seguent;
    if (i < 2 && (p == fi || *p++ != '/')) return std::nullopt;
  }
  if (p != fi) return std::nullopt;
  const Data_Hora data{.any = parts[2], .mes = parts[1], .dia = parts[0]};
  if (!Es_Data(data)) return std::nullopt;
  return data;
}
