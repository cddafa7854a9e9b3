#include "documents/M_Consultes.h"

#include <algorithm>
#include <chrono>

#include "core/M_Funcions_Comuns.h"
#include "core/dades/Numeros.h"
#include "documents/Documents.h"

namespace {

constexpr double numero_maxim = 999999999;

double Numero_Escrit(const std::string& text) {
  const std::optional<double> numero = Numero_De_Text(text);
  if (!numero) Llancar_Error(errors::sentencia, "Consultes", text);
  return *numero;
}

std::string Condicio_Text(const std::string& filtre, const std::string& camp) {
  if (filtre.empty() || filtre == "%") return {};
  return " AND " + camp + " LIKE " + Text_SQL("%" + filtre + "%");
}

std::string Condicio_Numero(const Criteris_Cerca& criteris, const std::string& camp) {
  const double entre = Numero_Escrit(criteris.numero_entre);
  const double y = Numero_Escrit(criteris.numero_y);
  if (entre == 0 && y == numero_maxim) return {};
  return " AND " + camp + " BETWEEN " + Numero_SQL(entre) + " AND " + Numero_SQL(y);
}

std::string Condicio_Import(const Criteris_Cerca& criteris, const std::string& camp) {
  if (criteris.import_entre == 0 && criteris.import_y == 0) return {};
  if (criteris.import_y == 0) return " AND " + camp + " >= " + Numero_SQL(criteris.import_entre);
  return " AND " + camp + " BETWEEN " + Numero_SQL(criteris.import_entre) + " AND " + Numero_SQL(criteris.import_y);
}

// The list of heads of a sales document. A filter on the lines brings a join, and DISTINCT shows a document once.
std::string Consulta_Documents(const Tipus_Document& tipus, const std::string& camps, const Criteris_Cerca& criteris) {
  const std::string cap(tipus.cap.nom);
  const std::string lin(tipus.lin.nom);
  const std::string articles = Condicio_Text(criteris.article, tipus.lin.Columna("ARTICLE")) +
                               Condicio_Text(criteris.article_desc, tipus.lin.Columna("DESCRIPCIO"));
  const auto unio = [&](const char* paper) {
    return cap + "." + tipus.cap.Columna(paper) + " = " + lin + "." + tipus.lin.Columna(paper) + " AND ";
  };
  std::string sentencia = articles.empty() ? "SELECT " + camps + " FROM " + cap + " WHERE "
                                           : "SELECT DISTINCT " + camps + " FROM " + cap + ", " + lin + " WHERE " +
                                                 unio("NUMALB") + unio("EMPRESA");
  sentencia += tipus.cap.Columna("EMPRESA") + " = " + Text_SQL(sessio.Empresa_Actual) + articles;
  sentencia += Condicio_Numero(criteris, tipus.cap.Columna("NUMALB"));
  const std::string dates = Condicio_Data(criteris.data_entre, criteris.data_y, tipus.cap.Columna("DATA"));
  if (!dates.empty()) sentencia += " AND " + dates;
  if (!criteris.client.empty()) sentencia += " AND " + tipus.cap.Columna("CLIENT") + " = " + Text_SQL(criteris.client);
  sentencia += Condicio_Import(criteris, tipus.cap.Columna("IMPORT"));
  if (sessio.Nomes_Pendents) sentencia += " AND " + tipus.cap.Columna("ESTAT") + " = 0";
  return sentencia;
}

// A month that is shorter gives its last day.
Data_Hora Un_Mes_Abans(const Data_Hora& dia) {
  using namespace std::chrono;
  const year_month mes = year(dia.any) / dia.mes - months(1);
  const auto ultim = static_cast<unsigned>((mes / last).day());
  return {static_cast<int>(mes.year()), static_cast<int>(static_cast<unsigned>(mes.month())),
          std::min(dia.dia, static_cast<int>(ultim))};
}

}  // namespace

Criteris_Cerca Criteris_Per_Defecte() {
  Criteris_Cerca criteris;
  criteris.data_y = Avui();
  criteris.data_entre = Un_Mes_Abans(*criteris.data_y);
  return criteris;
}

std::string Consulta_Albarans(const Criteris_Cerca& criteris, bool llarga) {
  return Consulta_Documents(tipus_albara,
                            llarga ? "NUMALB_AC, DATA_AC, CLIENT_AC, CLIENT_DESC_AC, OBSR_AC, IMPORT_AC, IVA_AC, "
                                     "RE_AC, ESTAT_AC, NUMFAC_AC"
                                   : "NUMALB_AC, DATA_AC, CLIENT_DESC_AC, OBSR_AC, IMPORT_AC, ESTAT_AC",
                            criteris);
}

std::string Condicio_Data(const std::optional<Data_Hora>& des_de, const std::optional<Data_Hora>& fins_a,
                          const std::string& camp) {
  if (des_de && fins_a) return camp + " BETWEEN " + Data_SQL(*des_de) + " AND " + Data_SQL(*fins_a);
  if (des_de) return camp + " >= " + Data_SQL(*des_de);
  if (fins_a) return camp + " <= " + Data_SQL(*fins_a);
  return {};
}
