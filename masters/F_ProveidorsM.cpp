#include "masters/F_ProveidorsM.h"

#include "masters/M_Proveidors.h"

const Descripcio_Llista& Llista_Proveidors() {
  static const Descripcio_Llista descripcio = {.formulari = u"F_ProveidorsM",
                                               .titol = u"Proveïdors",
                                               .graella = u"G_ProveidorsM",
                                               .columnes =
                                                   {
                                                       {"NIF_PRO", 1600, "NIF"},
                                                       {"RAO_SOCIAL_PRO", 4500, "Raó Social"},
                                                       {"LOCALITAT_PRO", 2600, "Localitat"},
                                                       {"TELEFON_PRO", 1500, "Telèfon"},
                                                       {"FAX_PRO", 1500, "Fax"},
                                                       {"EMAIL_PRO", 2700, "Email"},
                                                   },
                                               .nou = {u"B_NouProveidor", u"&Nou Proveïdor"},
                                               .esborrar = {u"B_EsborrarProveidor", u"&Esborrar Proveïdor"},
                                               .sentencia = SQL_Proveidors,
                                               .estil = nullptr,
                                               .mestra = {.editor = u"F_PROVEIDOR",
                                                          .codi = "NIF_PRO",
                                                          .descripcio = "RAO_SOCIAL_PRO",
                                                          .per_obrir = &Sessio::Nif_Proveidor,
                                                          .nou = Nou_Proveidor,
                                                          .esborrar = Esborrar_Proveidor}};
  return descripcio;
}
