#include "sales/F_Comandes.h"

#include "core/formularis/Amb_Ui.h"
#include "core/formularis/Formularis_Oberts.h"
#include "documents/F_Cerca_Document.h"
#include "documents/F_Editor_Document.h"
#include "documents/F_Llista_Documents.h"
#include "output/Imprimir.h"
#include "sales/F_ComandesMCS.h"
#include "sales/M_Consultes_Venda.h"
#include "sales/M_Tipus_Venda.h"
#include "ui_F_Comanda.h"
#include "ui_F_ComandesM.h"
#include "ui_F_ComandesS.h"

namespace {

const Descripcio_Cerca& Cerca() {
  static const Descripcio_Cerca cerca = {
      .criteris = consulta_comandes.criteris,
      .primer_camp = "TXT_COMANDA_ENTRE",
      .botons = {{"B_COMANDES", u"F_COMANDESM"}, {"B_PENDENTS", u"F_COMANDESM", true}},
  };
  return cerca;
}

const Descripcio_Llista_Documents& Llista_De_Comandes() {
  static const Descripcio_Llista_Documents llista = {
      .consulta = consulta_comandes,
      .graella = "G_ComM",
      .columnes = {{"NUMALB_CC", 1200, "Comanda", true},
                   {"DATA_CC", 1500, "Data"},
                   {"CLIENT_DESC_CC", 4800, "Client"},
                   {"OBSR_CC", 3600, "Observacions"},
                   {"IMPORT_CC", 1700, "Import", true, "#,##0.00"},
                   {"ESTAT_CC", 750, "OK?", false, "", true}},
      .boto_nou = "B_NovaComanda",
      .boto_esborrar = "B_EsborrarComanda",
      .columna_ok = "ESTAT_CC",
  };
  return llista;
}

const Descripcio_Editor& Editor() {
  static const Descripcio_Editor editor = {
      .tipus = tipus_comanda,
      .dret = &Sessio::P_Comandes,
      .qui = &per_a_un_client,
      .graella_linies = "G_ComLin",
      .graella_peu = "G_ComPeu",
      .entrada = {.sufix = "CL"},
      .demanats = {"TXT_CLIENT"},
      .fixats = {"TXT_NUMALB", "DT_DATA", "CMB_CLIENT_DESC", "CHK_IVA", "CHK_RE"},
      .imprimir = Imprimir_Document,
      .botons = {{u"B_EMAIL", u"F_STATUS"}},
      .sense_pagaments = "Aquesta Comanda no pot tenir pagaments!",
      .detall = u"F_DETALL_LINIA",
  };
  return editor;
}

}  // namespace

void Registrar_Formularis_Comanda() {
  Registrar_Formulari(QStringLiteral("F_COMANDESS"), Fabrica_De<Cerca_Document, Ui::F_ComandesS>(Cerca()));
  Registrar_Formulari(QStringLiteral("F_COMANDESM"),
                      Fabrica_De<Llista_Documents, Ui::F_ComandesM>(Llista_De_Comandes()));
  Registrar_Formulari(QStringLiteral("F_COMANDESMCS"), [] { return new F_ComandesMCS; });
  Registrar_Formulari(QStringLiteral("F_COMANDA"), Fabrica_De<Editor_Document, Ui::F_Comanda>(Editor()));
}
