#include "stock/M_Tipus_Estoc.h"

const Tipus_Document tipus_albcompra = {
    .formulari = "F_ALBCOMPRA",
    .llista = "F_ALBCOMPRESM",
    .cap = {"ALBCOMPRACAP", "ACC"},
    .lin = {"ALBCOMPRALIN", "ACL"},
    .peu = {"ALBCOMPRAPEU", "ACP"},
    .lletra_bloqueig = "C",
    .numero_es_text = true,
    .valorat_al_cost = true,
    .columnes_linies =
        "NUMALB EMPRESA LIN ARTICLE DESCRIPCIO PREU_UNITARI COST UNITATS PORC_IVA PORC_RE IMPORT_NET DTE PVP "
        "PORC_MARGE MARGE IMPORT_BRUT",
    .numero_a_obrir = &Sessio::Numero_AlbCompra,
    .crida = &Sessio::Crida_Document,
    .pregunta_esborrar = {"Segur d'esborrar l'Albarà de compra ", "¿Seguro de eliminar el Albarán de compra ",
                          "Are you sure to delete Purchase Note "},
    .refus_esborrar = {"No es pot esborrar l'Albarà de compra ", "¡¡¡ No se puede eliminar el Albarán de compra ",
                       "Unable to delete Purchase Note "}};

const Tipus_Document tipus_albmag = {
    .formulari = "F_ALBMAG",
    .llista = "F_ALBMAGM",
    .cap = {"ALBALMCAP", "AAC"},
    .lin = {"ALBALMLIN", "AAL"},
    .lletra_bloqueig = "AM",
    .taxes_de_l_article = true,
    .columnes_linies = "NUMALB EMPRESA LIN ARTICLE DESCRIPCIO UNITATS PVP IMPORT_BRUT",
    .numero_a_obrir = &Sessio::Numero_AlbMag,
    .crida = &Sessio::Crida_Document,
    .pregunta_esborrar = {"Segur d'esborrar l'Albarà ", "¿Seguro de eliminar el Albarán ",
                          "Are you sure to delete Delivery Note "},
    .refus_esborrar = {"No es pot esborrar l'Albarà ", "¡¡¡ No se puede eliminar el Albarán ",
                       "Unable to delete Delivery Note "}};

void Registrar_Tipus_Estoc() {
  Registrar_Tipus(tipus_albcompra);
  Registrar_Tipus(tipus_albmag);
}
