#include "core/M_Textos.h"

#include "core/Sessio.h"

std::vector<Text_Pantalla> Textos_De(const std::string& objecte) {
  std::vector<Text_Pantalla> textos;
  Recordset rs("SELECT * FROM TEXTS WHERE F_OBJECT = " + Text_SQL(objecte) +
                   " AND F_LANGUAGE = " + std::to_string(sessio.Idioma_Actual),
               sessio.Connexio_Local);
  for (; !rs.Eof(); rs.MoveNext())
    textos.push_back({rs["F_CONTROL"].Text(), rs["F_PROPERTY"].Text(), rs["F_TEXT"].Text()});
  return textos;
}
