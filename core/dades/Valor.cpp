#include "core/dades/Valor.h"

#include <cmath>

#include "core/dades/Error_Brollador.h"
#include "core/dades/Numeros.h"
#include "core/dades/Text.h"

namespace {

[[noreturn]] void Conversio_Impossible(const Valor& valor) {
  Llancar_Error(errors::tipus, "Valor", valor.Es_Nul() ? std::string() : valor.Text());
}

double Doble_De_Text(const Valor& valor, const std::string& text) {
  const auto numero = Numero_De_Text(text);
  if (!numero) Conversio_Impossible(valor);
  return *numero;
}

}  // namespace

double Valor::Doble() const {
  if (const auto* enter = std::get_if<std::int64_t>(&dada_)) return static_cast<double>(*enter);
  if (const auto* doble = std::get_if<double>(&dada_)) return *doble;
  if (const auto* text = std::get_if<std::string>(&dada_)) return Doble_De_Text(*this, *text);
  Conversio_Impossible(*this);
}

std::int64_t Valor::Enter() const {
  if (const auto* enter = std::get_if<std::int64_t>(&dada_)) return *enter;
  const double doble = std::nearbyint(Doble());
  if (!(std::abs(doble) < 9.2e18)) Llancar_Error(errors::desbordament, "Valor");
  return static_cast<std::int64_t>(doble);
}

bool Valor::Boolea() const {
  if (const auto* text = std::get_if<std::string>(&dada_)) {
    if (Iguals_Plegats(*text, "True")) return true;
    if (Iguals_Plegats(*text, "False")) return false;
  }
  return Doble() != 0;
}

Data_Hora Valor::Data() const {
  if (const auto* data = std::get_if<Data_Hora>(&dada_)) return *data;
  if (const auto* text = std::get_if<std::string>(&dada_)) {
    if (const auto data = Data_De_Text(*text)) return *data;
  }
  Conversio_Impossible(*this);
}

std::string Valor::Text() const {
  if (const auto* enter = std::get_if<std::int64_t>(&dada_)) return std::to_string(*enter);
  if (const auto* doble = std::get_if<double>(&dada_)) return Text_Numero(*doble);
  if (const auto* text = std::get_if<std::string>(&dada_)) return *text;
  if (const auto* data = std::get_if<Data_Hora>(&dada_)) return Text_Data(*data);
  return {};
}
