#include "core/M_Condicions.h"

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
