#include "sales/F_Factures.h"

#include "core/formularis/Amb_Ui.h"
#include "core/formularis/Formularis_Oberts.h"
#include "documents/F_Cerca_Document.h"
#include "documents/F_Editor_Document.h"
#include "documents/F_Llista_Documents.h"
#include "output/DR_Llistat.h"
#include "output/Imprimir.h"
#include "sales/F_Facturar.h"
#include "sales/M_Consultes_Venda.h"
#include "sales/M_Factures.h"
#include "sales/M_Tipus_Venda.h"
#include "ui_F_Factura.h"
#include "ui_F_FacturesM.h"
#include "ui_F_FacturesS.h"

namespace {

const Descripcio_Cerca& Cerca() {
  static const Descripcio_Cerca cerca = {
      .criteris = consulta_factures.criteris,
      .primer_camp = "TXT_FACTURA_ENTRE",
      .botons = {{"B_Factures", u"F_FACTURESM"}},
      .llistats = {{"B_MARGES",
                    [](const Valors_Cerca& valors) {
                      Imprimir_Llistat(llistat_marges_factures, Consulta_Marges_Factures(valors), valors);
                    }}},
  };
  return cerca;
}

const Descripcio_Llista_Documents& Llista_De_Factures() {
  static const Descripcio_Llista_Documents llista = {
      .consulta = consulta_factures,
      .graella = "G_FactM",
      .columnes = {{"NUMALB_FC", 1200, "Factura", true},
                   {"DATA_FC", 1500, "Data"},
                   {"CLIENT_DESC_FC", 4800, "Client"},
                   {"OBSR_FC", 3600, "Observacions"},
                   {"IMPORT_FC", 1700, "Import", true, "#,##0.00"}},
      .boto_nou = "B_NovaFactura",
      .boto_esborrar = "B_EsborrarFactura",
      .llistats = {{"B_Llistat_Factures",
                    [](const Valors_Cerca& valors) {
                      Imprimir_Llistat(llistat_factures, Consulta_Llistat_Factures(valors), valors);
                    }}},
  };
  return llista;
}

const Descripcio_Editor& Editor() {
  static const Descripcio_Editor editor = {
      .tipus = tipus_factura,
      .dret = &Sessio::P_Factures,
      .qui = &per_a_un_client,
      .graella_linies = "G_FACTLIN",
      .graella_peu = "G_FACTPEU",
      .columnes_linies = {{.paper = "DTE", .titol = "Dte"}},
      .entrada = {.sufix = "FL"},
      .demanats = {"TXT_CLIENT"},
      .fixats = {"TXT_NUMALB", "B_Forats", "DT_DATA", "CMB_CLIENT_DESC", "CHK_IVA", "CHK_RE"},
      .amaga_entrada = false,
      .primer_forat = Primer_Forat_Factura,
      .imprimir = Imprimir_Document,
      .botons = {{u"B_EMAIL", u"F_STATUS"}},
      .sense_pagaments = "Aquesta factura no pot tenir pagaments!",
      .detall = u"F_DETALL_LINIA",
  };
  return editor;
}

}  // namespace

void Registrar_Formularis_Factura() {
  Registrar_Formulari(QStringLiteral("F_FACTURESS"), Fabrica_De<Cerca_Document, Ui::F_FacturesS>(Cerca()));
  Registrar_Formulari(QStringLiteral("F_FACTURESM"),
                      Fabrica_De<Llista_Documents, Ui::F_FacturesM>(Llista_De_Factures()));
  Registrar_Formulari(QStringLiteral("F_FACTURA"), Fabrica_De<Editor_Document, Ui::F_Factura>(Editor()));
  Registrar_Formulari(QStringLiteral("F_FACTURAR"), [] { return new F_Facturar; });
}
