#include "core/dades/Parametres_Sentencia.h"

#include <limits>

#include "core/dades/Error_Brollador.h"
#include "core/dades/Text.h"

namespace {

template <class T>
int Signe_Comparacio(const T& a, const T& b) {
  return a < b ? -1 : b < a ? 1 : 0;
}

bool Es_Nombre(const Valor& valor) {
  return valor.Es_Enter() || valor.Es_Doble();
}

template <class Enter>
Valor Enter_Que_Hi_Cap(const Valor& valor) {
  const std::int64_t enter = valor.Enter();
  if (enter < std::numeric_limits<Enter>::min() || enter > std::numeric_limits<Enter>::max()) {
    Llancar_Error(errors::desbordament, "Recordset");
  }
  return enter;
}

Valor Nomes_Dia(const Valor& valor) {
  const Data_Hora data = valor.Data();
  return Data_Hora{.any = data.any, .mes = data.mes, .dia = data.dia};
}

}  // namespace

int Comparar_Valors(const Valor& a, const Valor& b) {
  if (Es_Nombre(a) && Es_Nombre(b)) return Signe_Comparacio(a.Doble(), b.Doble());
  if (a.Es_Data() && b.Es_Data()) return Signe_Comparacio(a.Data(), b.Data());
  return Comparar_Plegats(a.Text(), b.Text());
}

void Ordenar_Entre(const std::vector<std::pair<int, int>>& entre, std::vector<Valor>& parametres) {
  for (const auto& [a, b] : entre) {
    Valor& primer = parametres[static_cast<std::size_t>(a)];
    Valor& segon = parametres[static_cast<std::size_t>(b)];
    if (Comparar_Valors(primer, segon) > 0) std::swap(primer, segon);
  }
}

// A text ends where an engine of ours sees a nought: what stands behind it would be lost without a word.
static Valor Text_Sencer(std::string text) {
  if (text.find('\0') != std::string::npos) Llancar_Error(errors::tipus, "Convertir_A_Columna");
  return text;
}

Valor Convertir_A_Columna(const Valor& valor, Tipus_Columna tipus) {
  if (valor.Es_Nul()) return {};
  switch (tipus) {
    case Tipus_Columna::Codi:
    case Tipus_Columna::Text:
      return Text_Sencer(valor.Text());
    case Tipus_Columna::Curt:
      return Enter_Que_Hi_Cap<std::int16_t>(valor);
    case Tipus_Columna::Llarg:
    case Tipus_Columna::Autonumeric:
      return Enter_Que_Hi_Cap<std::int32_t>(valor);
    case Tipus_Columna::Doble:
      return valor.Doble();
    case Tipus_Columna::Boolea:
      return valor.Boolea();
    case Tipus_Columna::Data:
      return Nomes_Dia(valor);
    case Tipus_Columna::Data_Hora:
      return valor.Data();
  }
  return valor;
}
