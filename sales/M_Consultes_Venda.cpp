#include "sales/M_Consultes_Venda.h"

#include "masters/M_Clients.h"
#include "sales/M_Tipus_Venda.h"

using enum Mena_Criteri;

const Descripcio_Consulta consulta_pressupostos = {
    .tipus = tipus_pressupost,
    .cerca = "F_PRESSUPOSTOSS",
    .criteris = {{Conte, "TXT_ARTICLE", "ARTICLE_PL", true},
                 {Conte, "TXT_ARTICLE_DESC", "DESCRIPCIO_PL", true},
                 {Numeros, "TXT_PRESSUPOST", "NUMALB_PC"},
                 {Dates, "DT_DATA", "DATA_PC"},
                 {Codi, "CMB_CLIENT", "CLIENT_PC", false, &noms_clients},
                 {Imports, "TXT_IMPORT", "IMPORT_PC"}},
    .camps = "NUMALB_PC, DATA_PC, CLIENT_DESC_PC, OBSR_PC, IMPORT_PC, ESTAT_PC",
    .estat = "ESTAT_PC",
    .ordre = "NUMALB_PC"};

const Descripcio_Consulta consulta_comandes = {
    .tipus = tipus_comanda,
    .cerca = "F_COMANDESS",
    .criteris = {{Conte, "TXT_ARTICLE", "ARTICLE_CL", true},
                 {Conte, "TXT_ARTICLE_DESC", "DESCRIPCIO_CL", true},
                 {Numeros, "TXT_COMANDA", "NUMALB_CC"},
                 {Dates, "DT_DATA", "DATA_CC"},
                 {Codi, "CMB_CLIENT", "CLIENT_CC", false, &noms_clients},
                 {Imports, "TXT_IMPORT", "IMPORT_CC"}},
    .camps = "NUMALB_CC, DATA_CC, CLIENT_DESC_CC, OBSR_CC, IMPORT_CC, ESTAT_CC",
    .estat = "ESTAT_CC",
    .ordre = "NUMALB_CC"};

const Descripcio_Consulta consulta_albarans = {
    .tipus = tipus_albara,
    .cerca = "F_ALBARANSS",
    .criteris = {{Conte, "TXT_ARTICLE", "ARTICLE_AL", true},
                 {Conte, "TXT_ARTICLE_DESC", "DESCRIPCIO_AL", true},
                 {Numeros, "TXT_ALBARA", "NUMALB_AC"},
                 {Dates, "DT_DATA", "DATA_AC"},
                 {Codi, "CMB_CLIENT", "CLIENT_AC", false, &noms_clients},
                 {Imports, "TXT_IMPORT", "IMPORT_AC"}},
    .camps = "NUMALB_AC, DATA_AC, CLIENT_DESC_AC, OBSR_AC, IMPORT_AC, ESTAT_AC",
    .camps_llargs =
        "NUMALB_AC, DATA_AC, CLIENT_AC, CLIENT_DESC_AC, OBSR_AC, IMPORT_AC, IVA_AC, RE_AC, ESTAT_AC, NUMFAC_AC",
    .estat = "ESTAT_AC",
    .ordre = "NUMALB_AC"};

const Descripcio_Consulta consulta_factures = {.tipus = tipus_factura,
                                               .cerca = "F_FACTURESS",
                                               .criteris = {{Conte, "TXT_ARTICLE", "ARTICLE_FL", true},
                                                            {Conte, "TXT_ARTICLE_DESC", "DESCRIPCIO_FL", true},
                                                            {Numeros, "TXT_FACTURA", "NUMALB_FC"},
                                                            {Dates, "DT_DATA", "DATA_FC"},
                                                            {Codi, "CMB_CLIENT", "CLIENT_FC", false, &noms_clients},
                                                            {Imports, "TXT_IMPORT", "IMPORT_FC"}},
                                               .camps = "NUMALB_FC, DATA_FC, CLIENT_DESC_FC, OBSR_FC, IMPORT_FC",
                                               .ordre = "NUMALB_FC"};

std::string Consulta_Pressupostos(const Valors_Cerca& valors) {
  return Consulta(consulta_pressupostos, valors);
}
std::string Consulta_Comandes(const Valors_Cerca& valors) {
  return Consulta(consulta_comandes, valors);
}
std::string Consulta_Albarans(const Valors_Cerca& valors, bool llarga) {
  return Consulta(consulta_albarans, valors, llarga);
}
std::string Consulta_Factures(const Valors_Cerca& valors) {
  return Consulta(consulta_factures, valors);
}
std::string Consulta_Marges_Albarans(const Valors_Cerca& valors) {
  return Consulta_Marges(consulta_albarans, valors);
}
std::string Consulta_Marges_Factures(const Valors_Cerca& valors) {
  return Consulta_Marges(consulta_factures, valors);
}
std::string Consulta_Llistat_Factures(const Valors_Cerca& valors) {
  return Consulta_Peus(consulta_factures, valors);
}
