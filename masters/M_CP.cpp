#include "masters/M_CP.h"

#include "core/M_Mestres.h"

namespace {
constexpr Lloc us[] = {{"CLIENTS", "CP_CLI"},
                       {"CLIENTS", "CP_ENV_CLI"},
                       {"EMPRESES", "CP_EMP"},
                       {"PROVEIDORS", "CP_PRO"},
                       {"PROVEIDORS", "CP_ENV_PRO"}};
constexpr Pregunta pregunta = {"Segur d'esborrar el Codi Postal ", "¿Seguro de eliminar el Código Postal ",
                               "Are you sure to delete Postal Code "};
}  // namespace

void Esborrar_CP(const std::string& cp, const std::string& localitat) {
  if (!Confirmar(pregunta, cp) || CP_En_Us(cp)) return;
  sessio.Connexio_Comuna.Execute("DELETE * FROM CP WHERE CP_CP = " + Codi_SQL(cp) +
                                 " AND LOCALITAT_CP = " + Codi_SQL(localitat));
}

std::string Localitat_CP(const std::string& cp) {
  const Recordset rs("SELECT LOCALITAT_CP FROM CP WHERE CP_CP = " + Text_SQL(cp) + " ORDER BY LOCALITAT_CP",
                     sessio.Connexio_Comuna);
  return rs.RecordCount() > 0 ? rs["LOCALITAT_CP"].Text() : std::string();
}

bool CP_En_Us(const std::string& cp) {
  return Es_En_Us(us, cp);
}
