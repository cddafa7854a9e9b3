#include "core/M_Condicions.h"

#include <algorithm>
#include <bit>

#include "core/M_Funcions_Comuns.h"
#include "core/dades/Dates.h"

std::string Condicio_Data(const std::optional<Data_Hora>& des_de, const std::optional<Data_Hora>& fins_a,
                          const std::string& camp) {
  if (des_de && fins_a) return camp + " BETWEEN " + Data_SQL(*des_de) + " AND " + Data_SQL(*fins_a);
  if (des_de) return camp + " >= " + Data_SQL(*des_de);
  if (fins_a) return camp + " <= " + Data_SQL(*fins_a);
  return {};
}

std::string Condicio_Aniversari(const std::optional<Data_Hora>& des_de, const std::optional<Data_Hora>& fins_a,
                                const std::string& camp) {
  if (!des_de && !fins_a) return {};
  const std::string enguany =
      "DATESERIAL(" + std::to_string(Avui().any) + ",DATEPART('m'," + camp + "),DATEPART('d'," + camp + "))";
  return camp + " IS NOT NULL AND " + Condicio_Data(des_de, fins_a, enguany);
}

std::string Llista_De_Numeros(const std::vector<std::int64_t>& numeros, const char* cometa) {
  std::string llista;
  for (std::size_t i = 0; i < std::bit_ceil(numeros.size()); ++i) {
    llista +=
        (i == 0 ? "" : ", ") + std::string(cometa) + std::to_string(numeros[std::min(i, numeros.size() - 1)]) + cometa;
  }
  return llista;
}
