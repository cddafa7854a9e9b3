#include "session/F_UsuarisM.h"

#include "session/M_Usuaris.h"

namespace {

// Whoever is at the terminal stands out.
QString Estil(const Recordset& files, std::int64_t fila) {
  const bool es = files.Valor_De_Fila(fila, files.Index_Camp("CODI_USU")).Text() == sessio.Usuari_Actual;
  return es ? QStringLiteral("Yo") : QString();
}

}  // namespace

const Descripcio_Llista& Llista_Usuaris() {
  static const Descripcio_Llista descripcio = {.formulari = u"F_UsuarisM",
                                               .titol = u"Usuaris",
                                               .graella = u"G_UsuarisM",
                                               .columnes =
                                                   {
                                                       {"CODI_USU", 1800, "Codi"},
                                                       {"DESCRIPCIO_USU", 4800, "Usuari"},
                                                       {"ACTIU_USU", 900, "Actiu"},
                                                       {"DESCRIPTION", 1800, "Idioma"},
                                                   },
                                               .nou = {u"B_NouUsuari", u"&Nou Usuari"},
                                               .esborrar = {u"B_EsborrarUsuari", u"&Esborrar Usuari"},
                                               .sentencia = SQL_Usuaris,
                                               .estil = Estil,
                                               .mestra = {.editor = u"F_USUARI",
                                                          .codi = "CODI_USU",
                                                          .descripcio = "DESCRIPCIO_USU",
                                                          .per_obrir = &Sessio::Codi_Usuari,
                                                          .nou = Nou_Usuari,
                                                          .esborrar = Esborrar_Usuari}};
  return descripcio;
}
