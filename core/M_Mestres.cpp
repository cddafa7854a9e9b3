#include "core/M_Mestres.h"

#include <map>

#include <algorithm>

#include "core/M_Funcions_Comuns.h"

Valor Camp_De(const Lloc& clau, const std::string& codi, const char* camp) {
  const Recordset rs(
      std::string("SELECT ") + camp + " FROM " + clau.taula + " WHERE " + clau.columna + " = " + Codi_SQL(codi),
      sessio.Connexio_Comuna);
  return rs.RecordCount() > 0 ? rs[0] : Valor();
}

std::string Descripcio_De(const Referencia& referencia, const std::string& codi) {
  return Camp_De(referencia.clau, codi, referencia.descripcio).Text();
}

std::string Codi_De(const Referencia& referencia, const std::string& descripcio) {
  const Recordset rs(std::string("SELECT ") + referencia.clau.columna + " FROM " + referencia.clau.taula + " WHERE " +
                         referencia.descripcio + " = " + Text_SQL(descripcio) + " ORDER BY " + referencia.clau.columna,
                     sessio.Connexio_Comuna);
  return rs.RecordCount() > 0 ? rs[0].Text() : std::string();
}

bool Es_En_Us(std::span<const Lloc> llocs, const std::string& codi) {
  return std::any_of(llocs.begin(), llocs.end(),
                     [&](const Lloc& lloc) { return Camp_De(lloc, codi, "COUNT(*) AS CUENTA").Enter() > 0; });
}

bool Confirmar(const Pregunta& paraules, const std::string& que, int icona) {
  const std::string text = Missatge(paraules.catala, paraules.castella, paraules.angles) + que + " ?";
  return sessio.pantalla->Caixa(text, estil::ok_cancel | icona) == Resposta::Ok;
}

void Esborrar_Mestre(const Pregunta& paraules, const std::string& que, const Lloc& clau, const std::string& codi,
                     std::span<const Lloc> us) {
  if (!Confirmar(paraules, que) || Es_En_Us(us, codi)) return;
  sessio.Connexio_Comuna.Execute(std::string("DELETE * FROM ") + clau.taula + " WHERE " + clau.columna + " = " +
                                 Codi_SQL(codi));
}

void Crear_Fila(const char* taula, const std::vector<std::pair<std::string_view, Valor>>& valors) {
  Transaccio transaccio(sessio.Connexio_Comuna);
  sessio.Connexio_Comuna.Afegir_Fila(taula, valors);
  transaccio.Confirmar();
}

std::string Proxim_Codi(const std::string& taula) {
  static const std::map<std::string, std::string> columnes = {{"ARTICLES", "CODI_ART"},  {"CLIENTS", "NIF_CLI"},
                                                              {"PROVEIDORS", "NIF_PRO"}, {"USUARIS", "CODI_USU"},
                                                              {"FAMILIES", "CODI_FAM"},  {"EMPRESES", "NIF_EMP"}};
  const std::string& columna = columnes.at(taula);
  Recordset rs(
      "SELECT " + columna + " AS CODI FROM " + taula + " WHERE " + columna + " > '0000000000' ORDER BY " + columna,
      sessio.Connexio_Comuna);
  const auto codi_de = [](std::int64_t i) {
    const std::string text = "0000000000" + std::to_string(i);
    return text.substr(text.size() - 10);
  };
  std::int64_t i = 1;
  for (; !rs.Eof() && rs["CODI"].Text() == codi_de(i); rs.MoveNext()) ++i;
  return codi_de(i);
}
