#include "session/M_Idiomes.h"

std::string Nom_Idioma(std::int64_t id) {
  const Recordset rs("SELECT DESCRIPTION FROM LANGUAGES WHERE ID = " + std::to_string(id), sessio.Connexio_Comuna);
  const bool falta = rs.RecordCount() == 0 || rs["DESCRIPTION"].Es_Nul();
  return falta ? "-" : rs["DESCRIPTION"].Text();
}

void Posar_Idioma_Sessio(std::int16_t id) {
  sessio.Idioma_Usuari = id;
  sessio.Idioma_Actual = id;
  Posar_Idioma_Errors(id);
}

void Fixar_Idioma(std::int16_t id) {
  sessio.Connexio_Comuna.Execute("UPDATE USUARIS SET IDIOMA_USU = " + std::to_string(id) +
                                 " WHERE CODI_USU = " + Text_SQL(sessio.Usuari_Actual));
  Posar_Idioma_Sessio(id);
}
