#include "sales/F_Albarans.h"

#include "core/formularis/Amb_Ui.h"
#include "core/formularis/Formularis_Oberts.h"
#include "documents/F_Cerca_Document.h"
#include "documents/F_Editor_Document.h"
#include "documents/F_Llista_Documents.h"
#include "output/DR_Llistat.h"
#include "output/Imprimir.h"
#include "sales/M_Consultes_Venda.h"
#include "sales/M_Tipus_Venda.h"
#include "ui_F_Albara.h"
#include "ui_F_AlbaransM.h"
#include "ui_F_AlbaransS.h"

namespace {

const Descripcio_Cerca& Cerca() {
  static const Descripcio_Cerca cerca = {
      .criteris = consulta_albarans.criteris,
      .primer_camp = "TXT_ALBARA_ENTRE",
      .botons = {{"B_Albarans", u"F_ALBARANSM"}, {"B_PENDENTS", u"F_ALBARANSM", true}},
      .llistats = {{"B_MARGES",
                    [](const Valors_Cerca& valors) {
                      Imprimir_Llistat(llistat_marges_albarans, Consulta_Marges_Albarans(valors), valors);
                    }}},
  };
  return cerca;
}

const Descripcio_Llista_Documents& Llista_D_Albarans() {
  static const Descripcio_Llista_Documents llista = {
      .consulta = consulta_albarans,
      .graella = "G_AlbM",
      .columnes = {{"NUMALB_AC", 1200, "Albarà", true},
                   {"DATA_AC", 1500, "Data"},
                   {"CLIENT_DESC_AC", 4800, "Client"},
                   {"OBSR_AC", 3600, "Observacions"},
                   {"IMPORT_AC", 1700, "Import", true, "#,##0.00"},
                   {"ESTAT_AC", 750, "OK?", false, "", true}},
      .boto_nou = "B_NouAlbara",
      .boto_esborrar = "B_EsborrarAlbara",
      .columna_ok = "ESTAT_AC",
      .botons = {{u"B_FACT", u"F_FACTURAR"}},
      .seleccio_multiple = true,
  };
  return llista;
}

const Descripcio_Editor& Editor() {
  static const Descripcio_Editor editor = {
      .tipus = tipus_albara,
      .dret = &Sessio::P_Albarans,
      .qui = &per_a_un_client,
      .graella_linies = "G_ALBLIN",
      .graella_peu = "G_ALBPEU",
      .entrada = {.sufix = "AL"},
      .demanats = {"TXT_CLIENT"},
      .fixats = {"TXT_NUMALB", "DT_DATA", "CMB_CLIENT_DESC", "CHK_IVA", "CHK_RE"},
      .imprimir = Imprimir_Document,
      .botons = {{u"B_EMAIL", u"F_STATUS"}},
      .sense_pagaments = "Aquest albarà no pot tenir pagaments!",
      .detall = u"F_DETALL_LINIA",
  };
  return editor;
}

}  // namespace

void Registrar_Formularis_Albara() {
  Registrar_Formulari(QStringLiteral("F_ALBARANSS"), Fabrica_De<Cerca_Document, Ui::F_AlbaransS>(Cerca()));
  Registrar_Formulari(QStringLiteral("F_ALBARANSM"),
                      Fabrica_De<Llista_Documents, Ui::F_AlbaransM>(Llista_D_Albarans()));
  Registrar_Formulari(QStringLiteral("F_ALBARA"), Fabrica_De<Editor_Document, Ui::F_Albara>(Editor()));
}
