#include "stock/M_Consultes_Estoc.h"

#include "masters/M_Proveidors.h"
#include "stock/M_Tipus_Estoc.h"

using enum Mena_Criteri;

const Descripcio_Consulta consulta_albcompres = {
    .tipus = tipus_albcompra,
    .cerca = "F_ALBCOMPRESS",
    .criteris = {{Conte, "TXT_ARTICLE", "ARTICLE_ACL", true},
                 {Conte, "TXT_ARTICLE_DESC", "DESCRIPCIO_ACL", true},
                 {Textos, "TXT_ALBARA", "NUMALB_ACC"},
                 {Dates, "DT_DATA", "DATA_ACC"},
                 {Codi, "CMB_PROVEIDOR", "PROVEIDOR_ACC", false, &noms_proveidors},
                 {Limits, "TXT_IMPORT", "IMPORT_ACC"}},
    .camps = "NUMALB_ACC, DATA_ACC, RAO_SOCIAL_PRO, OBSR_ACC, IMPORT_ACC, ESTAT_ACC",
    .taula_unida = "PROVEIDORS",
    .unio = "PROVEIDORS.NIF_PRO = ALBCOMPRACAP.PROVEIDOR_ACC",
    .ordre = "DATA_ACC, NUMALB_ACC"};

const Descripcio_Consulta consulta_albmag = {
    .tipus = tipus_albmag,
    .cerca = "F_ALBMAGS",
    .criteris = {{Conte, "TXT_ARTICLE", "ARTICLE_AAL", true},
                 {Conte, "TXT_ARTICLE_DESC", "DESCRIPCIO_AAL", true},
                 {Numeros, "TXT_ALBARA", "NUMALB_AAC"},
                 {Dates, "DT_DATA", "DATA_AAC"},
                 {Conte, "TXT_ORI", "ORI_AAC"},
                 {Conte, "TXT_DESTI", "DEST_AAC"}},
    .camps = "NUMALB_AAC, DATA_AAC, ORI_AAC, DEST_AAC, OBSR_AAC, IMPORT_AAC, ESTAT_AAC",
    .ordre = "NUMALB_AAC"};

std::string SQL_AlbCompres(const Valors_Cerca& valors) {
  return Consulta(consulta_albcompres, valors);
}
std::string Consulta_AlbMag(const Valors_Cerca& valors) {
  return Consulta(consulta_albmag, valors);
}
