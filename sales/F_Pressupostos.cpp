#include "sales/F_Pressupostos.h"

#include "core/formularis/Amb_Ui.h"
#include "core/formularis/Formularis_Oberts.h"
#include "documents/F_Cerca_Document.h"
#include "documents/F_Editor_Document.h"
#include "documents/F_Llista_Documents.h"
#include "output/Imprimir.h"
#include "sales/M_Consultes_Venda.h"
#include "sales/M_Tipus_Venda.h"
#include "ui_F_Pressupost.h"
#include "ui_F_PressupostosM.h"
#include "ui_F_PressupostosS.h"

namespace {

const Descripcio_Cerca& Cerca() {
  static const Descripcio_Cerca cerca = {
      .criteris = consulta_pressupostos.criteris,
      .primer_camp = "TXT_PRESSUPOST_ENTRE",
      .botons = {{"B_Pressupostos", u"F_PRESSUPOSTOSM"}, {"B_PENDENTS", u"F_PRESSUPOSTOSM", true}},
  };
  return cerca;
}

const Descripcio_Llista_Documents& Llista_De_Pressupostos() {
  static const Descripcio_Llista_Documents llista = {
      .consulta = consulta_pressupostos,
      .graella = "G_PressM",
      .columnes = {{"NUMALB_PC", 1200, "Pressupost", true},
                   {"DATA_PC", 1500, "Data"},
                   {"CLIENT_DESC_PC", 4800, "Client"},
                   {"OBSR_PC", 3600, "Observacions"},
                   {"IMPORT_PC", 1700, "Import", true, "#,##0.00"},
                   {"ESTAT_PC", 750, "OK?", false, "", true}},
      .boto_nou = "B_NouPressupost",
      .boto_esborrar = "B_EsborrarPressupost",
      .columna_ok = "ESTAT_PC",
  };
  return llista;
}

const Descripcio_Editor& Editor() {
  static const Descripcio_Editor editor = {
      .tipus = tipus_pressupost,
      .dret = &Sessio::P_Pressupostos,
      .qui = &per_a_un_client,
      .graella_linies = "G_PRESSLIN",
      .graella_peu = "G_PRESSPEU",
      .columnes_linies = {{.paper = "DTE", .titol = "Dte"}},
      .linia_ok = "ESTAT",
      .entrada = {.sufix = "PL"},
      .demanats = {"TXT_CLIENT"},
      .fixats = {"TXT_NUMALB", "CMB_CLIENT_DESC", "CHK_IVA", "CHK_RE"},
      .desen = {"DT_DATA", "CHK_ESTAT"},
      .amaga_entrada = false,
      .tancat_guarda_linies = false,
      .imprimir = Imprimir_Document,
      .botons = {{u"B_EMAIL", u"F_STATUS"}},
      .detall = u"F_DETALL_LINIA",
  };
  return editor;
}

}  // namespace

void Registrar_Formularis_Pressupost() {
  Registrar_Formulari(QStringLiteral("F_PRESSUPOSTOSS"), Fabrica_De<Cerca_Document, Ui::F_PressupostosS>(Cerca()));
  Registrar_Formulari(QStringLiteral("F_PRESSUPOSTOSM"),
                      Fabrica_De<Llista_Documents, Ui::F_PressupostosM>(Llista_De_Pressupostos()));
  Registrar_Formulari(QStringLiteral("F_PRESSUPOST"), Fabrica_De<Editor_Document, Ui::F_Pressupost>(Editor()));
}
