#include "session/F_EmpresesM.h"

#include "session/M_Empresa.h"

namespace {

// The current one stands out.
QString Estil(const Recordset& files, std::int64_t fila) {
  const bool es = files.Valor_De_Fila(fila, files.Index_Camp("NIF_EMP")).Text() == sessio.Empresa_Actual;
  return es ? QStringLiteral("Actual") : QString();
}

}  // namespace

const Descripcio_Llista& Llista_Empreses() {
  static const Descripcio_Llista descripcio = {.formulari = u"F_EmpresesM",
                                               .titol = u"Empreses",
                                               .graella = u"G_EmpresesM",
                                               .columnes =
                                                   {
                                                       {"NIF_EMP", 1600, "Codi"},
                                                       {"RAO_SOCIAL_EMP", 4500, "Empresa"},
                                                       {"LOCALITAT_EMP", 2400, "Localitat"},
                                                       {"TELEFON_EMP", 1500, "Telèfon"},
                                                       {"FAX_EMP", 1500, "Fax"},
                                                       {"EMAIL_EMP", 2400, "Email"},
                                                       {"ACTIU_EMP", 900, "Activa", false, "", true},
                                                   },
                                               .nou = {u"B_NovaEmpresa", u"&Nova Empresa"},
                                               .esborrar = {u"B_EsborrarEmpresa", u"&Esborrar Empresa"},
                                               .sentencia = SQL_Empreses,
                                               .estil = Estil,
                                               .mestra = {.editor = u"F_EMPRESA",
                                                          .codi = "NIF_EMP",
                                                          .descripcio = "RAO_SOCIAL_EMP",
                                                          .per_obrir = &Sessio::Nif_Empresa,
                                                          .nou = Nova_Empresa,
                                                          .esborrar = Esborrar_Empresa}};
  return descripcio;
}
