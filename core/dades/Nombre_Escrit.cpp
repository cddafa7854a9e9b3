#include "core/dades/Nombre_Escrit.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>
#include <utility>

#include "core/dades/Numeros.h"

namespace {

// What stands for a blank or a minus in what other programs copy.
constexpr std::pair<std::string_view, char> equivalents[] = {
    {"\u00A0", ' '}, {"\u202F", ' '}, {"\u2009", ' '}, {"\u2007", ' '}, {"\t", ' '},
    {"\r", ' '},     {"\n", ' '},     {"\u2212", '-'}, {"\u2013", '-'},
};
constexpr std::string_view unitats[] = {"€", "EUR", "eur", "%"};

std::string Planer(std::string_view text) {
  std::string net;
  while (!text.empty()) {
    const auto trobat = std::ranges::find_if(equivalents, [&](const auto& que) { return text.starts_with(que.first); });
    const bool hi_es = trobat != std::end(equivalents);
    net += hi_es ? trobat->second : text.front();
    text.remove_prefix(hi_es ? trobat->first.size() : 1);
  }
  return net;
}

std::string_view Sense_Blancs(std::string_view text) {
  while (text.starts_with(' ')) text.remove_prefix(1);
  while (text.ends_with(' ')) text.remove_suffix(1);
  return text;
}

// One unit, on one side.
std::string_view Sense_Unitat(std::string_view text) {
  for (const std::string_view unitat : unitats) {
    if (text.starts_with(unitat)) return Sense_Blancs(text.substr(unitat.size()));
    if (text.ends_with(unitat)) return Sense_Blancs(text.substr(0, text.size() - unitat.size()));
  }
  return text;
}

bool Son_Xifres(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

// The digits of groups of three parted by `marca`, the first of one to three and no zero; none when they do not go so.
std::optional<std::string> Agrupades(std::string_view text, char marca) {
  std::size_t tall = text.find(marca);
  std::string xifres(text.substr(0, tall));
  const bool sola = tall == std::string_view::npos;
  bool be = !xifres.empty() && (sola || (xifres.size() <= 3 && xifres.front() != '0'));
  while (be && tall != std::string_view::npos) {
    text.remove_prefix(tall + 1);
    tall = text.find(marca);
    const std::string_view grup = text.substr(0, tall);
    be = grup.size() == 3;
    xifres += grup;
  }
  if (!be || !Son_Xifres(xifres)) return std::nullopt;
  return xifres;
}

// The mark that parts the decimals; 0 when none does.
char Marca_Decimal(std::string_view text) {
  const auto comes = std::ranges::count(text, ',');
  const auto punts = std::ranges::count(text, '.');
  if (comes > 0 && punts > 0) return text.rfind(',') > text.rfind('.') ? ',' : '.';
  if (comes == 1) return ',';
  return punts == 1 && !Agrupades(text, '.') ? '.' : '\0';
}

// What stands before the decimals: digits, or thousands parted by one kind of mark.
std::optional<std::string> Part_Sencera(std::string_view text) {
  const std::size_t marca = text.find_first_of(".,' ");
  return Agrupades(text, marca == std::string_view::npos ? '.' : text[marca]);
}

std::optional<double> Llegir(const std::string& net) {
  double valor = 0;
  const auto [fi, error] = std::from_chars(net.data(), net.data() + net.size(), valor);
  if (error != std::errc() || fi != net.data() + net.size() || !std::isfinite(valor)) return std::nullopt;
  return valor;
}

}  // namespace

std::optional<double> Nombre_Escrit(std::string_view escrit) {
  const std::string planer = Planer(escrit);
  std::string_view text = Sense_Unitat(Sense_Blancs(planer));
  std::string net;
  if (text.starts_with('-') || text.starts_with('+')) {
    if (text.front() == '-') net = "-";
    text = Sense_Unitat(Sense_Blancs(text.substr(1)));
  }
  if (text.empty() || text.front() == '-' || text.front() == '+') return std::nullopt;
  if (text.find_first_of("eE") != std::string_view::npos) return Numero_De_Text(net + std::string(text));
  const char marca = Marca_Decimal(text);
  const std::size_t tall = marca == '\0' ? std::string_view::npos : text.rfind(marca);
  const std::string_view decimals = marca == '\0' ? std::string_view() : text.substr(tall + 1);
  if (marca != '\0' && text.find(marca) != tall) return std::nullopt;
  if (!Son_Xifres(decimals) || (tall == 0 && decimals.empty())) return std::nullopt;
  const auto sencera = tall == 0 ? std::optional<std::string>("0") : Part_Sencera(text.substr(0, tall));
  if (!sencera) return std::nullopt;
  return Llegir(net + *sencera + (decimals.empty() ? "" : "." + std::string(decimals)));
}
