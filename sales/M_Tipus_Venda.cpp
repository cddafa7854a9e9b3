#include "sales/M_Tipus_Venda.h"

#include "payments/M_Pagaments.h"
#include "sales/M_Acceptacio.h"
#include "sales/M_Albarans.h"
#include "sales/M_Comandes.h"
#include "sales/M_Factures.h"
#include "sales/M_Pressupostos.h"

const Tipus_Document tipus_pressupost = {
    .formulari = "F_PRESSUPOST",
    .llista = "F_PRESSUPOSTOSM",
    .cap = {"PRESSUPOSTCAP", "PC"},
    .lin = {"PRESSUPOSTLIN", "PL"},
    .peu = {"PRESSUPOSTPEU", "PP"},
    .lletra_bloqueig = "PR",
    .columnes_linies =
        "NUMALB EMPRESA LIN ARTICLE DESCRIPCIO PREU_UNITARI UNITATS PORC_IVA PORC_RE IMPORT_NET DTE PVP "
        "ESTAT COST PORC_MARGE MARGE IMPORT_BRUT",
    .numero_a_obrir = &Sessio::Numero_Pressupost,
    .crida = &Sessio::Crida_Mestre,
    .pregunta_esborrar = {"Segur d'esborrar el Pressupost ", "¿Seguro de eliminar el Presupuesto ",
                          "Are you sure to delete Proposal "},
    .refus_esborrar = {"No es pot esborrar el Pressupost ", "¡¡¡ No se puede eliminar el Presupuesto ",
                       "Unable to delete Proposal "},
    .passos = &passos_pressupost,
    .detall = &detall_pressupost};

const Tipus_Document tipus_comanda = {
    .formulari = "F_COMANDA",
    .llista = "F_COMANDESM",
    .cap = {"COMANDACAP", "CC"},
    .lin = {"COMANDALIN", "CL"},
    .peu = {"COMANDAPEU", "CP"},
    .lletra_bloqueig = "P",
    .lletra_pagament = "P",
    .te_pagaments = Tenir_Pagaments,
    .columnes_linies =
        "NUMALB EMPRESA LIN ARTICLE DESCRIPCIO PREU_UNITARI UNITATS PORC_IVA PORC_RE IMPORT_NET DTE PVP "
        "SERVIDES COST PORC_MARGE MARGE IMPORT_BRUT",
    .numero_a_obrir = &Sessio::Numero_Comanda,
    .crida = &Sessio::Crida_Mestre,
    .pregunta_esborrar = {"Segur d'esborrar la Comanda ", "¿Seguro de eliminar el Pedido ",
                          "Are you sure to delete Order "},
    .passos = &passos_comanda,
    .detall = &detall_comanda};

const Tipus_Document tipus_albara = {
    .formulari = "F_ALBARA",
    .llista = "F_ALBARANSM",
    .cap = {"ALBARACAP", "AC"},
    .lin = {"ALBARALIN", "AL"},
    .peu = {"ALBARAPEU", "AP"},
    .lletra_bloqueig = "AC",
    .lletra_pagament = "A",
    .te_pagaments = Tenir_Pagaments,
    .columnes_linies =
        "NUMALB EMPRESA LIN ARTICLE DESCRIPCIO PREU_UNITARI UNITATS PORC_IVA PORC_RE IMPORT_NET DTE PVP "
        "COST PORC_MARGE MARGE IMPORT_BRUT COMANDA COMANDA_LIN",
    .numero_a_obrir = &Sessio::Numero_Albara,
    .crida = &Sessio::Crida_Mestre,
    .pregunta_esborrar = {"Segur d'esborrar l'Albarà ", "¿Seguro de eliminar el Albarán ",
                          "Are you sure to delete Delivery Note "},
    .passos = &passos_albara,
    .detall = &detall_albara};

const Tipus_Document tipus_factura = {
    .formulari = "F_FACTURA",
    .llista = "F_FACTURESM",
    .cap = {"FACTURACAP", "FC"},
    .lin = {"FACTURALIN", "FL"},
    .peu = {"FACTURAPEU", "FP"},
    .lletra_bloqueig = "F",
    .lletra_pagament = "F",
    .te_pagaments = Tenir_Pagaments,
    .columnes_linies =
        "NUMALB EMPRESA LIN ARTICLE DESCRIPCIO PREU_UNITARI UNITATS PORC_IVA PORC_RE IMPORT_NET DTE PVP "
        "COST PORC_MARGE MARGE IMPORT_BRUT",
    .peu_exigeix_capcalera = true,
    .numero_a_obrir = &Sessio::Numero_Factura,
    .crida = &Sessio::Crida_Mestre,
    .pregunta_esborrar = {"Segur d'esborrar la Factura ", "¿Seguro de eliminar la Factura ",
                          "Are you sure to delete Invoice "},
    .refus_esborrar = {"No es pot esborrar la Factura ", "¡¡¡ No se puede eliminar la Factura ",
                       "Unable to delete Invoice "},
    .error_estoc = "Error al intentar actualitzar movimientos, stock ...",
    .passos = &passos_factura,
    .detall = &detall_factura};

void Registrar_Tipus_Venda() {
  for (const Tipus_Document* tipus : {&tipus_pressupost, &tipus_comanda, &tipus_albara, &tipus_factura})
    Registrar_Tipus(*tipus);
}
