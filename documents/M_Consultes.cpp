#include "documents/M_Consultes.h"

#include <algorithm>
#include <chrono>

#include "core/M_Funcions_Comuns.h"
#include "core/dades/Nombre_Escrit.h"
#include "core/dades/Numeros.h"

namespace {

constexpr const char* numero_maxim = "999999999";
constexpr const char* text_maxim = "ZZZZZZZZZZZZZZZ";

double Numero_De(const std::string& text) {
  const std::optional<double> numero = Nombre_Escrit(text);
  if (!numero) Llancar_Error(errors::sentencia, "Consultes", text);
  return *numero;
}

std::string Entre(const char* columna, const std::string& des_de, const std::string& fins_a) {
  return std::string(columna) + " BETWEEN " + des_de + " AND " + fins_a;
}

std::string Condicio_Numeros(const char* columna, const Valor_Criteri& valor) {
  const double des_de = Numero_De(valor.text);
  const double fins_a = Numero_De(valor.text_y);
  if (des_de == 0 && fins_a == Numero_De(numero_maxim)) return {};
  return Entre(columna, Numero_SQL(des_de), Numero_SQL(fins_a));
}

std::string Condicio_Textos(const char* columna, const Valor_Criteri& valor) {
  if (valor.text == "0" && valor.text_y == text_maxim) return {};
  return Entre(columna, Text_SQL(valor.text), Text_SQL(valor.text_y));
}

std::string Condicio_Imports(const char* columna, const Valor_Criteri& valor, bool tancats) {
  const double des_de = valor.text.empty() ? 0 : Numero_De(valor.text);
  const double fins_a = valor.text_y.empty() ? 0 : Numero_De(valor.text_y);
  if (des_de == 0 && fins_a == 0) return {};
  if (fins_a == 0 && !tancats) return std::string(columna) + " >= " + Numero_SQL(des_de);
  return Entre(columna, Numero_SQL(des_de), Numero_SQL(fins_a));
}

Data_Hora L_Endema(const Data_Hora& dia) {
  using namespace std::chrono;
  const year_month_day seguent = sys_days(year(dia.any) / dia.mes / dia.dia) + days(1);
  return {static_cast<int>(seguent.year()), static_cast<int>(static_cast<unsigned>(seguent.month())),
          static_cast<int>(static_cast<unsigned>(seguent.day()))};
}

// A month that is shorter gives its last day.
Data_Hora Un_Mes_Abans(const Data_Hora& dia) {
  using namespace std::chrono;
  const year_month mes = year(dia.any) / dia.mes - months(1);
  const auto ultim = static_cast<unsigned>((mes / last).day());
  return {static_cast<int>(mes.year()), static_cast<int>(static_cast<unsigned>(mes.month())),
          std::min(dia.dia, static_cast<int>(ultim))};
}

std::string Condicio(const Criteri& criteri, const Valor_Criteri& valor) {
  const std::string columna = criteri.columna;
  switch (criteri.mena) {
    case Mena_Criteri::Numeros:
      return Condicio_Numeros(criteri.columna, valor);
    case Mena_Criteri::Textos:
      return Condicio_Textos(criteri.columna, valor);
    case Mena_Criteri::Imports:
      return Condicio_Imports(criteri.columna, valor, false);
    case Mena_Criteri::Limits:
      return Condicio_Imports(criteri.columna, valor, true);
    case Mena_Criteri::Dates:
      return Condicio_Data(valor.data, valor.data_y, columna);
    case Mena_Criteri::Moments:
      return Condicio_Data(valor.data, valor.data_y ? std::optional(L_Endema(*valor.data_y)) : std::nullopt, columna);
    case Mena_Criteri::Codi:
      return valor.text.empty() ? std::string() : columna + " = " + Text_SQL(valor.text);
    case Mena_Criteri::Conte:
      if (valor.text.empty() || valor.text == "%") return {};
      return columna + " LIKE " + Text_SQL("%" + valor.text + "%");
  }
  return {};
}

Valor_Criteri Per_Defecte(Mena_Criteri mena) {
  switch (mena) {
    case Mena_Criteri::Numeros:
      return {.text = "0", .text_y = numero_maxim};
    case Mena_Criteri::Textos:
      return {.text = "0", .text_y = text_maxim};
    case Mena_Criteri::Imports:
    case Mena_Criteri::Limits:
      return {.text = "0", .text_y = "0"};
    case Mena_Criteri::Dates:
    case Mena_Criteri::Moments:
      return {.data = Un_Mes_Abans(Avui()), .data_y = Avui()};
    case Mena_Criteri::Conte:
      return {.text = "%"};
    case Mena_Criteri::Codi:
      break;
  }
  return {};
}

}  // namespace

Valors_Cerca Valors_Per_Defecte(const std::vector<Criteri>& criteris) {
  Valors_Cerca valors;
  for (const Criteri& criteri : criteris) valors[criteri.control] = Per_Defecte(criteri.mena);
  return valors;
}

// A filter on the lines brings them in, and DISTINCT shows a document once.
std::string Consulta(const Descripcio_Consulta& descripcio, const Valors_Cerca& valors, bool llarga) {
  const Taula_Document& cap = descripcio.tipus.cap;
  const Taula_Document& lin = descripcio.tipus.lin;
  const std::string camps = llarga ? descripcio.camps_llargs : descripcio.camps;
  const std::string de_linies = Condicions(descripcio.criteris, valors, true);
  std::string taules(cap.nom);
  std::string unions;
  if (!de_linies.empty()) {
    taules += ", " + std::string(lin.nom);
    for (const char* paper : {"NUMALB", "EMPRESA"}) {
      unions += std::string(cap.nom) + "." + cap.Columna(paper) + " = " + std::string(lin.nom) + "." +
                lin.Columna(paper) + " AND ";
    }
  }
  if (*descripcio.taula_unida != '\0') {
    taules += std::string(", ") + descripcio.taula_unida;
    unions += std::string(descripcio.unio) + " AND ";
  }
  const bool pendents = sessio.Nomes_Pendents && descripcio.estat != nullptr;
  return (de_linies.empty() ? "SELECT " : "SELECT DISTINCT ") + camps + " FROM " + taules + " WHERE " + unions +
         cap.Columna("EMPRESA") + " = " + Text_SQL(sessio.Empresa_Actual) + de_linies +
         Condicions(descripcio.criteris, valors) +
         (pendents ? std::string(" AND ") + descripcio.estat + " = 0" : std::string());
}

std::string Condicions(const std::vector<Criteri>& criteris, const Valors_Cerca& valors, bool de_linies) {
  std::string condicions;
  for (const Criteri& criteri : criteris) {
    const auto valor = valors.find(criteri.control);
    if (criteri.de_linies != de_linies || valor == valors.end()) continue;
    const std::string condicio = Condicio(criteri, valor->second);
    if (!condicio.empty()) condicions += " AND " + condicio;
  }
  return condicions;
}

namespace {

// A file's engine would follow a range of numbers into the joined table, and lose the equality that joins it: each head
// would then look at all of the other's rows in that range. With its sign the column is no key.
std::string Sense_Clau(std::string condicions, const std::string& columna) {
  constexpr std::string_view i = " AND ";
  const auto lloc = condicions.find(std::string(i) + columna + " BETWEEN ");
  if (lloc != std::string::npos) condicions.insert(lloc + i.size(), "+");
  return condicions;
}

// Number, date and name of each head, and sums over the rows of another of its tables.
std::string Sumes_Per_Document(const Descripcio_Consulta& descripcio, const Taula_Document& taula,
                               const std::string& sumes, const std::string& condicions) {
  const Taula_Document& cap = descripcio.tipus.cap;
  const std::string grup = cap.Columna("NUMALB") + ", " + cap.Columna("DATA") + ", " + cap.Columna("CLIENT_DESC");
  const auto unir = [&](const char* paper) {
    return std::string(cap.nom) + "." + cap.Columna(paper) + " = " + std::string(taula.nom) + "." +
           taula.Columna(paper) + " AND ";
  };
  return "SELECT " + grup + ", " + sumes + " FROM " + std::string(cap.nom) + ", " + std::string(taula.nom) + " WHERE " +
         unir("NUMALB") + unir("EMPRESA") + cap.Columna("EMPRESA") + " = " + Text_SQL(sessio.Empresa_Actual) +
         Sense_Clau(condicions, cap.Columna("NUMALB")) + " GROUP BY " + grup;
}

std::string Suma(const std::string& que, const std::string& nom) {
  return "SUM(" + que + ") AS " + nom;
}

}  // namespace

std::string Consulta_Marges(const Descripcio_Consulta& descripcio, const Valors_Cerca& valors) {
  const Taula_Document& lin = descripcio.tipus.lin;
  return Sumes_Per_Document(descripcio, lin,
                            Suma(lin.Columna("COST") + " * " + lin.Columna("UNITATS"), lin.Columna("COST_NET")) + ", " +
                                Suma(lin.Columna("IMPORT_NET"), lin.Columna("IMPORT_NET")) + ", " +
                                Suma(lin.Columna("MARGE"), lin.Columna("MARGE")),
                            Condicions(descripcio.criteris, valors, true) + Condicions(descripcio.criteris, valors));
}

std::string Consulta_Peus(const Descripcio_Consulta& descripcio, const Valors_Cerca& valors) {
  const Taula_Document& peu = descripcio.tipus.peu;
  return Sumes_Per_Document(descripcio, peu,
                            Suma(peu.Columna("BASE"), "BASE") + ", " + Suma(peu.Columna("IVA"), "IVA") + ", " +
                                Suma(peu.Columna("RE"), "RE") + ", " + Suma(peu.Columna("IMPORT"), "TOTAL"),
                            Condicions(descripcio.criteris, valors));
}
