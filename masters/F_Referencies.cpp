#include "masters/F_Referencies.h"

#include "core/formularis/Formularis_Oberts.h"
#include "core/menes/Taula_Referencia.h"
#include "masters/M_CP.h"
#include "masters/M_Families.h"
#include "masters/M_IVAs.h"
#include "masters/M_Marques.h"
#include "masters/M_Mestre_Magatzems.h"
#include "masters/M_Subfamilies.h"
#include "masters/M_Venciments.h"

namespace {

// The deletion of the row of a code.
template <void (*esborrar)(const std::string&)>
void Esborrar_Codi(const Recordset& fila) {
  esborrar(fila[0].Text());
}

const std::vector<Descripcio_Referencia>& Referencies() {
  static const std::vector<Descripcio_Referencia> referencies = {
      {.formulari = u"F_MarquesM",
       .titol = u"Marques",
       .graella = u"G_MarquesM",
       .sentencia = [] { return std::string("SELECT * FROM MARQUES ORDER BY CODI_MAR"); },
       .columnes = {{"CODI_MAR", 3000, "Marca"}, {"DESCRIPCIO_MAR", 7500, "Descripció"}},
       .boto_esborrar = u"B_Esborrar",
       .esborrar = Esborrar_Codi<Esborrar_Marca>},
      {.formulari = u"F_FamiliesM",
       .titol = u"Famílies",
       .graella = u"G_FamiliesM",
       .sentencia = [] { return std::string("SELECT * FROM FAMILIES ORDER BY CODI_FAM"); },
       .columnes = {{"CODI_FAM", 3000, "Família"}, {"DESCRIPCIO_FAM", 7500, "Descripció"}},
       .boto_esborrar = u"B_Esborrar",
       .esborrar = Esborrar_Codi<Esborrar_Familia>},
      {.formulari = u"F_SubfamiliesM",
       .titol = u"SubFamílies",
       .graella = u"G_SubfamiliesM",
       .sentencia = [] { return std::string("SELECT * FROM SUBFAMILIES ORDER BY CODI_SUBF"); },
       .columnes = {{"CODI_SUBF", 3000, "Subfamília"}, {"DESCRIPCIO_SUBF", 7500, "Descripció"}},
       .boto_esborrar = u"B_Esborrar",
       .esborrar = Esborrar_Codi<Esborrar_Subfamilia>},
      {.formulari = u"F_IvasM",
       .titol = u"Tipus d'IVA",
       .graella = u"G_IvasM",
       .sentencia = [] { return std::string("SELECT * FROM IVAS ORDER BY CODI_IVA"); },
       .columnes = {{"CODI_IVA", 800, "Codi"},
                    {"DESC_IVA", 4000, "Descripció"},
                    {"PORC_IVA", 2000, "% IVA", true},
                    {"RE_IVA", 2000, "% RE", true}},
       .boto_esborrar = u"B_Esborrar",
       .esborrar = Esborrar_Codi<Esborrar_Iva>},
      {.formulari = u"F_CPM",
       .titol = u"Codis Postals",
       .graella = u"G_CPM",
       .sentencia = [] { return std::string("SELECT * FROM CP ORDER BY LOCALITAT_CP"); },
       .columnes = {{"CP_CP", 1500, "CP"},
                    {"LOCALITAT_CP", 4500, "Localitat"},
                    {"PROVINCIA_CP", 2700, "Provincia"},
                    {"PAIS_CP", 2400, "Pais"}},
       .boto_esborrar = u"B_EsborrarCP",
       .esborrar = [](const Recordset& fila) { Esborrar_CP(fila["CP_CP"].Text(), fila["LOCALITAT_CP"].Text()); }},
      {.formulari = u"F_VencimentsM",
       .titol = u"Venciments",
       .graella = u"G_VencimentsM",
       .sentencia = [] { return std::string("SELECT * FROM VENCIMENTS ORDER BY CODI_VEN"); },
       .columnes = {{"CODI_VEN", 1200, "Codi"},
                    {"DESCRIPCIO_VEN", 3000, "Descripció"},
                    {"DIES_VEN", 1000, "Dies", true},
                    {"TERMINIS_VEN", 1000, "Terminis", true},
                    {"FP_VEN", 2200, "Forma Pagament"}},
       .boto_esborrar = u"B_EsborrarVenciment",
       .esborrar = Esborrar_Codi<Esborrar_Venciment>,
       .cerca_amb_la_dreta = true,
       .desplegables = {Desplegable_Formes_De_Pagament("FP_VEN")}},
      {.formulari = u"F_FormesPagamentM",
       .titol = u"Formes de Pagament",
       .graella = u"G_FormesPagamentM",
       .sentencia = [] { return std::string("SELECT * FROM FORMES_PAGAMENT ORDER BY ID_FP"); },
       .columnes = {{"ID_FP", 1200, "Codi"},
                    {"DESCRIPCIO_FP", 4800, "Descripció"},
                    {"COMPTE_EMI_FP", 1200, "Compte Emisor", false, "", true},
                    {"COMPTE_CLI_FP", 1200, "Compte Client", false, "", true},
                    {"REBUT_FP", 1200, "Rebut", false, "", true}},
       .boto_esborrar = u"B_EsborrarFP",
       .esborrar = Esborrar_Codi<Esborrar_Forma_Pagament>,
       .cerca_amb_la_dreta = true},
      {.formulari = u"F_MagatzemsM",
       .titol = u"Magatzems",
       .graella = u"G_MagatzemsM",
       .sentencia =
           [] { return std::string("SELECT CODI_ALM, DESC_ALM, STOCK_NEG_ALM FROM ALMACENES ORDER BY CODI_ALM"); },
       .columnes = {{"CODI_ALM", 3000, "Magatzem"},
                    {"DESC_ALM", 5500, "Descripció"},
                    {"STOCK_NEG_ALM", 2000, "Existències Negatives", false, "", true}},
       .boto_esborrar = u"B_Esborrar",
       .esborrar = Esborrar_Codi<Esborrar_Magatzem>},
  };
  return referencies;
}

}  // namespace

Desplegable_Referencia Desplegable_Formes_De_Pagament(const char* camp) {
  return {.camp = camp,
          .sentencia = "SELECT ID_FP, DESCRIPCIO_FP FROM FORMES_PAGAMENT ORDER BY DESCRIPCIO_FP",
          .titols_codi = {"Codi", "Código", "Code"},
          .titols_text = {"Forma de Pagament", "Forma de Pago", "Method of payment"}};
}

void Registrar_Formularis_Referencia() {
  for (const Descripcio_Referencia& descripcio : Referencies())
    Registrar_Formulari(QString::fromUtf16(descripcio.formulari),
                        [&descripcio] { return new Taula_Referencia(descripcio); });
}
