#include <QLineEdit>

#include "core/controls/Controls.h"
#include "core/formularis/Drets.h"
#include "core/formularis/Formulari.h"
#include "core/formularis/Formularis_Oberts.h"
#include "shell/Taules.h"

namespace {

// What some rows ask for besides their letter.
bool Es_ADMIN(const Formulari& /*formulari*/) {
  return sessio.Usuari_Actual == "ADMIN";
}

// The row of a user that F_Usuari shows.
bool No_Mostra_ADMIN(const Formulari& formulari) {
  const auto* codi = qobject_cast<QLineEdit*>(formulari.Cercar_Control(QStringLiteral("TXT_CODI_USU")));
  return codi == nullptr || codi->text() != u"ADMIN";
}

// Invoicing asks for its own right and for the notes of one customer.
bool Es_Pot_Facturar(const Formulari& /*formulari*/) {
  const Formulari* cerca = Formulari_De_Nom(QStringLiteral("F_ALBARANSS"));
  const auto* client =
      cerca == nullptr ? nullptr : qobject_cast<Combo_Codi*>(cerca->Cercar_Control(QStringLiteral("CMB_CLIENT")));
  return sessio.P_Factures == "M" && client != nullptr && !client->Codi().empty();
}

const std::vector<Fila_Drets>& Files() {
  using S = Sessio;
  using enum Mena_Drets;
  static const std::vector<Fila_Drets> files = {
      // Lists.
      {u"F_ALBARANSM", &S::P_Albarans, Llista, {u"B_EsborrarAlbara", u"B_NouAlbara"}},
      {u"F_ALBARANSM", &S::P_Albarans, Llista, {u"B_FACT"}, Es_Pot_Facturar},
      {u"F_ALBCOMPRESM", &S::P_Albarans, Llista, {u"B_EsborrarAlbara", u"B_NouAlbara"}},
      {u"F_ALBMAGM", &S::P_Albarans, Llista, {u"B_EsborrarAlbara", u"B_NouAlbara"}},
      {u"F_ARTICLESMC", &S::P_Articles, Llista, {u"B_EsborrarArticle", u"B_NouArticle"}},
      {u"F_CLIENTSM", &S::P_Clients, Llista, {u"B_EsborrarClient", u"B_NouClient", u"B_EMAILS"}},
      {u"F_COMANDESM", &S::P_Comandes, Llista, {u"B_EsborrarComanda", u"B_NovaComanda"}},
      {u"F_FACTURESM", &S::P_Factures, Llista, {u"B_EsborrarFactura", u"B_NovaFactura"}},
      {u"F_PRESSUPOSTOSM", &S::P_Pressupostos, Llista, {u"B_EsborrarPressupost", u"B_NouPressupost"}},
      {u"F_PROVEIDORSM", &S::P_Proveidors, Llista, {u"B_EsborrarProveidor", u"B_NouProveidor"}},
      {u"F_USUARISM", &S::P_Usuaris, Llista, {u"B_NouUsuari", u"B_EsborrarUsuari"}},
      {u"F_PAGAMENTSM", &S::P_Clients, Llista, {u"B_EXCEL"}},
      {u"F_EMPRESESM", &S::P_Clients, Llista, {u"B_EsborrarEmpresa", u"B_NovaEmpresa"}, Es_ADMIN},

      // Lists edited in place.
      {u"F_CPM", &S::P_CP, Llista_Editable, {u"B_EsborrarCP", u"G_CPM"}},
      {u"F_FAMILIESM", &S::P_Articles, Llista_Editable, {u"B_Esborrar", u"G_FamiliesM"}},
      {u"F_FORMESPAGAMENTM", &S::P_Venciments, Llista_Editable, {u"B_EsborrarFP", u"G_FormesPagamentM"}},
      {u"F_IVASM", &S::P_Articles, Llista_Editable, {u"B_Esborrar", u"G_IvasM"}},
      {u"F_MAGATZEMSM", &S::P_Articles, Llista_Editable, {u"B_Esborrar", u"G_MagatzemsM"}},
      {u"F_MARQUESM", &S::P_Articles, Llista_Editable, {u"B_Esborrar", u"G_MarquesM"}},
      {u"F_SUBFAMILIESM", &S::P_Articles, Llista_Editable, {u"B_Esborrar", u"G_SubfamiliesM"}},
      {u"F_VENCIMENTSM", &S::P_Venciments, Llista_Editable, {u"B_EsborrarVenciment", u"G_VencimentsM"}},

      // Stock is the administrator's, whatever the letters say. Its grid, over three tables, is never written.
      {u"F_STOCKSM", nullptr, Sense_Lletra, {u"B_Esborrar"}, Es_ADMIN},

      // Editors.
      {u"F_CLIENT",
       &S::P_Clients,
       Editor,
       {u"TXT_ADREÇA_CLI",
        u"TXT_ADREÇA_ENV_CLI",
        u"TXT_COMPTE_CLI",
        u"TXT_CONTACTE1_CLI",
        u"TXT_CONTACTE2_CLI",
        u"TXT_CONTACTE3_CLI",
        u"TXT_DIA_PAG_CLI",
        u"TXT_EMAIL_CLI",
        u"TXT_ENVIAMENT_CLI",
        u"TXT_FAX_CLI",
        u"TXT_MOBIL_CLI",
        u"TXT_NIF_CLI",
        u"TXT_NOM_COMERCIAL_CLI",
        u"TXT_RAO_SOCIAL_CLI",
        u"TXT_CODI_CLIENT_CLI",
        u"TXT_TELEFON_CLI",
        u"TXT_VENCIMENT_CLI",
        u"TXT_WEB_CLI",
        u"TXT_CP_CLI",
        u"TXT_CP_ENV_CLI",
        u"CHK_IVA_CLI",
        u"CHK_RE_CLI",
        u"B_CP_CLI",
        u"B_CP_ENV_CLI",
        u"B_VENCIMENTSM",
        u"NO_DESCRIPCIO_VEN",
        u"DT_NAIXEMENT_CLID",
        u"TXT_PROFESSIO_CLID",
        u"TXT_NOTES_CLID"}},
      {u"F_CLIENT", &S::P_Clients, Sempre_Desactivat, {u"TXT_LOCALITAT_CLI", u"TXT_LOCALITAT_ENV_CLI"}},
      {u"F_PROVEIDOR",
       &S::P_Proveidors,
       Editor,
       {u"TXT_ADREÇA_PRO",
        u"TXT_ADREÇA_ENV_PRO",
        u"TXT_COMPTE_PRO",
        u"TXT_CONTACTE1_PRO",
        u"TXT_CONTACTE2_PRO",
        u"TXT_CONTACTE3_PRO",
        u"TXT_DIA_PAG_PRO",
        u"TXT_EMAIL_PRO",
        u"TXT_ENVIAMENT_PRO",
        u"TXT_FAX_PRO",
        u"TXT_MOBIL_PRO",
        u"TXT_NIF_PRO",
        u"TXT_NOM_COMERCIAL_PRO",
        u"TXT_RAO_SOCIAL_PRO",
        u"TXT_TELEFON_PRO",
        u"TXT_VENCIMENT_PRO",
        u"TXT_WEB_PRO",
        u"TXT_CP_PRO",
        u"TXT_CP_ENV_PRO",
        u"CHK_IVA_PRO",
        u"B_CP",
        u"B_CP_ENV",
        u"B_VENCIMENTSM",
        u"NO_DESCRIPCIO_VEN"}},
      {u"F_PROVEIDOR", &S::P_Proveidors, Sempre_Desactivat, {u"TXT_LOCALITAT_PRO", u"TXT_LOCALITAT_ENV_PRO"}},
      {u"F_ARTICLE", &S::P_Articles, Editor, {u"TXT_CODI_ART",       u"TXT_IVA_ART",        u"B_IVA",
                                              u"TXT_DESCRIPCIO_ART", u"TXT_MARCA_ART",      u"B_MARCA",
                                              u"TXT_FAMILIA_ART",    u"B_FAMILIA",          u"TXT_SUBFAMILIA_ART",
                                              u"B_SUBFAMILIA",       u"TXT_PROVEIDOR_ART",  u"B_PROVEIDOR",
                                              u"TXT_COST_ART",       u"TXT_ULTIM_COST_ART", u"TXT_MARGE_ART",
                                              u"TXT_PVP_NET_ART",    u"DT_ALTA_ART",        u"DT_BAIXA_ART",
                                              u"CHK_ACTIU_ART",      u"CHK_STOCK_ART",      u"TXT_STOCK_MINIM_ART",
                                              u"TXT_MAGATZEM_ART",   u"B_MAGATZEM",         u"TXT_DESCOMPTE_ART"}},
      {u"F_COMANDA",
       &S::P_Comandes,
       Editor,
       {u"TXT_NUMALB_CC", u"DT_DATA_CC", u"CHK_IVA_CC", u"CHK_RE_CC", u"CMB_CLIENT_DESC_CC", u"B_CLIENT",
        u"TXT_OBSR_CC", u"B_VALORAR", u"CHK_ESTAT_CC", u"B_EsborrarLinia", u"G_ComLin", u"G_ComPeu", u"B_Pagaments",
        u"OPT"}},
      {u"F_ALBARA",
       &S::P_Albarans,
       Editor,
       {u"TXT_NUMALB_AC", u"DT_DATA_AC", u"CHK_IVA_AC", u"CHK_RE_AC", u"CMB_CLIENT_DESC_AC", u"B_CLIENT",
        u"TXT_OBSR_AC", u"B_VALORAR", u"CHK_ESTAT_AC", u"B_EsborrarLinia", u"G_ALBLIN", u"G_ALBPEU", u"B_Pagaments",
        u"OPT"}},
      {u"F_FACTURA",
       &S::P_Factures,
       Editor,
       {u"TXT_NUMALB_FC", u"DT_DATA_FC", u"CHK_IVA_FC", u"CHK_RE_FC", u"CMB_CLIENT_DESC_FC", u"B_CLIENT",
        u"TXT_OBSR_FC", u"B_VALORAR", u"B_Forats", u"B_EsborrarLinia", u"G_FACTLIN", u"G_FACTPEU", u"B_Pagaments",
        u"OPT"}},
      {u"F_PRESSUPOST",
       &S::P_Pressupostos,
       Editor,
       {u"TXT_NUMALB_PC", u"DT_DATA_PC", u"CHK_IVA_PC", u"CHK_RE_PC", u"CMB_CLIENT_DESC_PC", u"TXT_OBSR_PC",
        u"B_VALORAR", u"CHK_ESTAT_PC", u"B_EsborrarLinia", u"G_PRESSLIN", u"G_PRESSPEU", u"OPT"}},
      {u"F_ALBCOMPRA",
       &S::P_Albarans,
       Editor,
       {u"TXT_NUMALB_ACC", u"DT_DATA_ACC", u"CHK_IVA_ACC", u"CHK_RE_ACC", u"CMB_PROVEIDOR_ACC", u"B_PROVEIDOR",
        u"TXT_OBSR_ACC", u"B_VALORAR", u"CHK_ESTAT_ACC", u"B_EsborrarLinia", u"G_AlbCompraLin", u"G_AlbCompraPeu",
        u"OPT"}},
      {u"F_ALBMAG",
       &S::P_Albarans,
       Editor,
       {u"TXT_NUMALB_AAC", u"DT_DATA_AAC", u"TXT_ORI_AAC", u"B_ORI", u"TXT_DEST_AAC", u"B_DEST", u"TXT_OBSR_AAC",
        u"B_VALORAR", u"CHK_ESTAT_AAC", u"B_EsborrarLinia", u"G_AlbMagLin", u"FR_NOVA"}},
      {u"F_EMPRESA",
       &S::P_Clients,
       Editor,
       {u"TXT_NIF_EMP",        u"TXT_RAO_SOCIAL_EMP", u"TXT_NOM_COMERCIAL_EMP",
        u"TXT_ADREÇA_EMP",     u"TXT_CP_EMP",         u"TXT_TELEFON_EMP",
        u"TXT_FAX_EMP",        u"TXT_MOBIL_EMP",      u"TXT_WEB_EMP",
        u"TXT_EMAIL_EMP",      u"TXT_IMATGE_EMP",     u"TXT_COMENTARI_EMP",
        u"TXT_PRESS_PEU1_EMP", u"TXT_PRESS_PEU2_EMP", u"TXT_FACT_PEU1_EMP",
        u"TXT_COMPTE_EMP",     u"TXT_COMPTE2_EMP",    u"CHK_ACTIU_EMP",
        u"CHK_IVA_EMP",        u"CHK_RE_EMP",         u"B_CP_EMP"},
       Es_ADMIN},
      {u"F_EMPRESA", &S::P_Clients, Sempre_Desactivat, {u"TXT_LOCALITAT_EMP"}},
      {u"F_PAGDOC", nullptr, Editor, {u"G_PagDoc", u"B_EsborrarPag"}},

      // The editor of users asks for M. Nobody touches what makes the administrator one.
      {u"F_USUARI", &S::P_Usuaris, Editor_Amb_M, {u"TXT_DESCRIPCIO_USU", u"TXT_CLAU_USU", u"CMB_IDIOMA_USU"}},
      {u"F_USUARI",
       &S::P_Usuaris,
       Editor_Amb_M,
       {u"TXT_CODI_USU", u"TXT_ACTIU_USU", u"TXT_P_CLIENTS", u"TXT_P_PROVEIDORS", u"TXT_P_ARTICLES", u"TXT_P_USUARIS",
        u"TXT_P_CP", u"TXT_P_VENCIMENTS", u"TXT_P_PRESSUPOSTOS", u"TXT_P_COMANDES", u"TXT_P_ALBARANS",
        u"TXT_P_FACTURES"},
       No_Mostra_ADMIN},
  };
  return files;
}

}  // namespace

void Posar_Taula_De_Drets() {
  Fixar_Drets(Files());
}
