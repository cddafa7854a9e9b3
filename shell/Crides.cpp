#include "shell/Crides.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <algorithm>

#include "core/controls/Camps.h"
#include "core/controls/Controls.h"
#include "core/controls/Graella.h"
#include "core/formularis/Control_Interface.h"
#include "core/formularis/Formulari.h"
#include "masters/M_IVAs.h"
#include "shell/F_Principal.h"

namespace {

std::string Tipus_De_Percentatge(const Valor& percentatge) {
  return Codi_IVA_Percentatge(percentatge.Doble());
}

const std::vector<Crida>& Files() {
  using S = Sessio;
  using enum Mena_Crida;
  constexpr auto mestre = &S::Crida_Mestre;
  constexpr auto document = &S::Crida_Document;
  static const std::vector<Crida> files = {
      {"F_ARTICLE;FAMILIA_ART",
       mestre,
       u"F_ARTICLE",
       u"B_FAMILIA",
       u"F_FAMILIESM",
       Camp,
       {{u"TXT_FAMILIA_ART", "CODI_FAM"}, {u"NO_DESCRIPCIO_FAM", "DESCRIPCIO_FAM"}}},
      {"F_ARTICLE;SUBFAMILIA_ART",
       mestre,
       u"F_ARTICLE",
       u"B_SUBFAMILIA",
       u"F_SUBFAMILIESM",
       Camp,
       {{u"TXT_SUBFAMILIA_ART", "CODI_SUBF"}, {u"NO_DESCRIPCIO_SUBF", "DESCRIPCIO_SUBF"}}},
      {"F_ARTICLE;MARCA_ART",
       mestre,
       u"F_ARTICLE",
       u"B_MARCA",
       u"F_MARQUESM",
       Camp,
       {{u"TXT_MARCA_ART", "CODI_MAR"}, {u"NO_DESCRIPCIO_MAR", "DESCRIPCIO_MAR"}}},
      {"F_ARTICLE;IVA_ART",
       mestre,
       u"F_ARTICLE",
       u"B_IVA",
       u"F_IVASM",
       Camp,
       {{u"TXT_IVA_ART", "CODI_IVA"}, {u"NO_DESC_IVA", "DESC_IVA"}}},
      {"F_ARTICLE;PROVEIDOR_ART",
       document,
       u"F_ARTICLE",
       u"B_PROVEIDOR",
       u"F_PROVEIDORSM",
       Camp,
       {{u"TXT_PROVEIDOR_ART", "NIF_PRO"}, {u"NO_RAO_SOCIAL_PRO", "RAO_SOCIAL_PRO"}}},
      {"F_ARTICLE;MAGATZEM_ART",
       document,
       u"F_ARTICLE",
       u"B_MAGATZEM",
       u"F_MAGATZEMSM",
       Camp,
       {{u"TXT_MAGATZEM_ART", "CODI_ALM"}}},
      {"F_DETALL_LINIA;IVA_ART",
       mestre,
       u"F_DETALL_LINIA",
       u"B_IVA",
       u"F_IVASM",
       Camp,
       {{u"TXT_IVA_ART", "CODI_IVA"}, {u"NO_DESC_IVA", "DESC_IVA"}}},
      {"F_DETALL_LINIAC;IVA_ART",
       mestre,
       u"F_DETALL_LINIAC",
       u"B_IVA",
       u"F_IVASM",
       Camp,
       {{u"TXT_IVA_ART", "CODI_IVA"}, {u"NO_DESC_IVA", "DESC_IVA"}}},
      {"F_CLIENT;CP_CLI",
       mestre,
       u"F_CLIENT",
       u"B_CP_CLI",
       u"F_CPM",
       Camp,
       {{u"TXT_CP_CLI", "CP_CP"}, {u"TXT_LOCALITAT_CLI", "LOCALITAT_CP"}}},
      {"F_CLIENT;CP_ENV_CLI",
       mestre,
       u"F_CLIENT",
       u"B_CP_ENV_CLI",
       u"F_CPM",
       Camp,
       {{u"TXT_CP_ENV_CLI", "CP_CP"}, {u"TXT_LOCALITAT_ENV_CLI", "LOCALITAT_CP"}}},
      {"F_PROVEIDOR;CP_PRO",
       mestre,
       u"F_PROVEIDOR",
       u"B_CP",
       u"F_CPM",
       Camp,
       {{u"TXT_CP_PRO", "CP_CP"}, {u"TXT_LOCALITAT_PRO", "LOCALITAT_CP"}}},
      {"F_PROVEIDOR;CP_ENV_PRO",
       mestre,
       u"F_PROVEIDOR",
       u"B_CP_ENV",
       u"F_CPM",
       Camp,
       {{u"TXT_CP_ENV_PRO", "CP_CP"}, {u"TXT_LOCALITAT_ENV_PRO", "LOCALITAT_CP"}}},
      {"F_EMPRESA;CP_EMP",
       mestre,
       u"F_EMPRESA",
       u"B_CP_EMP",
       u"F_CPM",
       Camp,
       {{u"TXT_CP_EMP", "CP_CP"}, {u"TXT_LOCALITAT_EMP", "LOCALITAT_CP"}}},
      {"F_CLIENT;VENCIMENT_CLI",
       mestre,
       u"F_CLIENT",
       u"B_VENCIMENTSM",
       u"F_VENCIMENTSM",
       Camp,
       {{u"TXT_VENCIMENT_CLI", "CODI_VEN"}, {u"NO_DESCRIPCIO_VEN", "DESCRIPCIO_VEN"}}},
      {"F_PROVEIDOR;VENCIMENT_PRO",
       mestre,
       u"F_PROVEIDOR",
       u"B_VENCIMENTSM",
       u"F_VENCIMENTSM",
       Camp,
       {{u"TXT_VENCIMENT_PRO", "CODI_VEN"}, {u"NO_DESCRIPCIO_VEN", "DESCRIPCIO_VEN"}}},

      {"F_ALBARA;CMB_CLIENT_DESC_AC",
       document,
       u"F_ALBARA",
       u"B_CLIENT",
       u"F_CLIENTSM",
       Combo,
       {{u"CMB_CLIENT_DESC_AC", "NIF_CLI", "RAO_SOCIAL_CLI"}}},
      {"F_COMANDA;CMB_CLIENT_DESC_CC",
       document,
       u"F_COMANDA",
       u"B_CLIENT",
       u"F_CLIENTSM",
       Combo,
       {{u"CMB_CLIENT_DESC_CC", "NIF_CLI", "RAO_SOCIAL_CLI"}}},
      {"F_FACTURA;CMB_CLIENT_DESC_FC",
       document,
       u"F_FACTURA",
       u"B_CLIENT",
       u"F_CLIENTSM",
       Combo,
       {{u"CMB_CLIENT_DESC_FC", "NIF_CLI", "RAO_SOCIAL_CLI"}}},
      {"F_PRESSUPOST;CMB_CLIENT_DESC_PC",
       document,
       u"F_PRESSUPOST",
       u"B_CLIENT",
       u"F_CLIENTSM",
       Combo,
       {{u"CMB_CLIENT_DESC_PC", "NIF_CLI", "RAO_SOCIAL_CLI"}}},
      {"F_ALBCOMPRA;CMB_PROVEIDOR_ACC",
       document,
       u"F_ALBCOMPRA",
       u"B_PROVEIDOR",
       u"F_PROVEIDORSM",
       Combo,
       {{u"CMB_PROVEIDOR_ACC", "NIF_PRO", "RAO_SOCIAL_PRO"}}},

      {"F_ALBMAG;ORI_AAC", document, u"F_ALBMAG", u"B_ORI", u"F_MAGATZEMSM", Camp, {{u"TXT_ORI_AAC", "CODI_ALM"}}},
      {"F_ALBMAG;DEST_AAC", document, u"F_ALBMAG", u"B_DEST", u"F_MAGATZEMSM", Camp, {{u"TXT_DEST_AAC", "CODI_ALM"}}},
      {"F_ALBMAGS;TXT_ORI", document, u"F_ALBMAGS", u"B_ORI", u"F_MAGATZEMSM", Camp, {{u"TXT_ORI", "CODI_ALM"}}},
      {"F_ALBMAGS;TXT_DESTI", document, u"F_ALBMAGS", u"B_DEST", u"F_MAGATZEMSM", Camp, {{u"TXT_DESTI", "CODI_ALM"}}},

      {"F_PRESSUPOST;ARTICLE_PL",
       document,
       u"F_PRESSUPOST",
       u"B_ARTICLESM",
       u"F_ARTICLESMCS",
       Camp,
       {{u"TXT_ARTICLE_PL", "CODI_ART"}}},
      {"F_COMANDA;ARTICLE_CL",
       document,
       u"F_COMANDA",
       u"B_ARTICLESM",
       u"F_ARTICLESMCS",
       Camp,
       {{u"TXT_ARTICLE_CL", "CODI_ART"}}},
      {"F_ALBARA;ARTICLE_AL",
       document,
       u"F_ALBARA",
       u"B_ARTICLESM",
       u"F_ARTICLESMCS",
       Camp,
       {{u"TXT_ARTICLE_AL", "CODI_ART"}}},
      {"F_FACTURA;ARTICLE_FL",
       document,
       u"F_FACTURA",
       u"B_ARTICLESM",
       u"F_ARTICLESMCS",
       Camp,
       {{u"TXT_ARTICLE_FL", "CODI_ART"}}},
      {"F_ALBMAG;ARTICLE_AAL",
       document,
       u"F_ALBMAG",
       u"B_ARTICLESM",
       u"F_ARTICLESMCS",
       Camp,
       {{u"TXT_ARTICLE_AL", "CODI_ART"}}},
      {"F_ALBCOMPRA;ARTICLE_ACL",
       document,
       u"F_ALBCOMPRA",
       u"B_ARTICLESM",
       u"F_ARTICLESMCS",
       Camp,
       {{u"TXT_ARTICLE_ACL", "CODI_ART"}}},

      // The prices are those of the order: nothing recalculates them. The quantity is where the user goes on.
      {"F_ALBARA;COMANDA_AL",
       document,
       u"F_ALBARA",
       u"B_COMANDES",
       u"F_COMANDESMCS",
       Directa,
       {{u"TXT_UNITATS_AL", "PENDENTS"},
        {u"TXT_ARTICLE_AL", "ARTICLE_CL"},
        {u"TXT_DESCRIPCIO_AL", "DESCRIPCIO_CL"},
        {u"TXT_COST_AL", "COST_CL"},
        {u"TXT_PORC_MARGE_AL", "PORC_MARGE_CL"},
        {u"TXT_PREU_UNITARI_AL", "PREU_UNITARI_CL"},
        {u"TXT_IVA_ART", "PORC_IVA_CL", "", Tipus_De_Percentatge},
        {u"TXT_PVP_AL", "PVP_CL"},
        {u"TXT_DESCOMPTE_AL", "DTE_CL"},
        {u"TXT_COMANDA_AL", "NUMALB_CC"},
        {u"TXT_COMANDA_LIN_AL", "LIN_CL"}}},

      {"F_SUBINICI;ANIVERSARIS", document, u"F_SUBINICI", nullptr, u"F_CLIENTSM", Sense_Retorn, {}},
      {"F_CLIENTSM;ANIVERSARIS", document, u"F_CLIENTSM", nullptr, u"F_CLIENTSM", Sense_Retorn, {}},
  };
  return files;
}

bool Es(const QString& nom, const char16_t* esperat) {
  return nom.toUpper() == QStringView(esperat);
}

// ---- Writing ----------------------------------------------------------------------------------------------------

// What the row gives to the targets of a call.
struct Valor_Per {
  QWidget* control;
  const Desti_Crida* desti;
  Valor valor;
  std::string nom;
};

QString Text_Per(const Valor_Per& que) {
  if (que.desti->conversio != nullptr) return QString::fromStdString(que.desti->conversio(que.valor));
  return QString::fromStdString(que.valor.Text());
}

// True when the control did not show it yet.
bool Escriure(const Valor_Per& que) {
  const QString text = Text_Per(que);
  if (auto* numeric = qobject_cast<Camp_Numeric*>(que.control); numeric != nullptr && que.valor.Es_Doble()) {
    numeric->Numero(que.valor.Doble());
    return true;
  }
  if (auto* camp = qobject_cast<QLineEdit*>(que.control)) {
    if (camp->text() == text) return false;
    camp->setText(text);
    return true;
  }
  if (auto* etiqueta = qobject_cast<QLabel*>(que.control)) etiqueta->setText(text);
  return false;
}

// Typed into the first field, which is left. What the row says about it stands over what the form looked up by itself
// (two places share a postal code): then the field is entered and left again, for the form to save them together.
void Escriure_I_Deixar(const std::vector<Valor_Per>& valors) {
  QWidget* camp = valors.front().control;
  Entrar_Al_Camp(camp);
  Escriure(valors.front());
  Deixar_Camp(camp);
  bool canviats = false;
  for (const Valor_Per& que : valors) canviats = Escriure(que) || canviats;
  if (!canviats) return;
  Entrar_Al_Camp(camp);
  Deixar_Camp(camp);
}

void Posar(Mena_Crida mena, const std::vector<Valor_Per>& valors) {
  if (mena == Mena_Crida::Camp) return Escriure_I_Deixar(valors);
  for (const Valor_Per& que : valors) {
    if (auto* combo = qobject_cast<Combo_Codi*>(que.control)) {
      combo->Triar(que.valor.Text(), que.nom);
    } else {
      Escriure(que);
    }
  }
}

std::vector<Valor_Per> Llegir_Fila(const Crida& crida, const Formulari& formulari, const Graella& graella) {
  std::vector<Valor_Per> valors;
  for (const Desti_Crida& desti : crida.destins) {
    QWidget* control = formulari.Cercar_Control(QString::fromUtf16(desti.control));
    if (control == nullptr) continue;
    const std::string nom = *desti.columna_nom == '\0' ? std::string() : graella.Valor_Actual(desti.columna_nom).Text();
    valors.push_back({control, &desti, graella.Valor_Actual(desti.columna), nom});
  }
  return valors;
}

void Portar_El_Focus(const Formulari& formulari, QWidget* camp) {
  if (auto* finestra = qobject_cast<QMdiSubWindow*>(formulari.parentWidget())) {
    F_Principal::Unica()->Portar_Al_Davant(finestra);
  }
  Posar_Focus(camp);
}

}  // namespace

std::span<const Crida> Taula_De_Crides() {
  return Files();
}

const Crida* Crida_Pendent(const QString& llista) {
  for (const Crida& crida : Files()) {
    const bool es_seva = Es(llista, crida.llista) && sessio.*crida.variable == crida.etiqueta;
    if (es_seva && crida.mena != Mena_Crida::Sense_Retorn) {
      return Formulari_De_Nom(QString::fromUtf16(crida.formulari)) == nullptr ? nullptr : &crida;
    }
  }
  return nullptr;
}

bool Tornar_Fila(Formulari& llista) {
  const Crida* crida = Crida_Pendent(llista.Nom());
  const Graella* graella = llista.Graella_Llista();
  if (crida == nullptr || graella == nullptr || graella->Fila_Actual() < 0) return false;
  const Formulari* formulari = Formulari_De_Nom(QString::fromUtf16(crida->formulari));
  const auto valors = Llegir_Fila(*crida, *formulari, *graella);
  if (valors.empty()) return false;
  Posar(crida->mena, valors);
  Descarregar_Formulari(QStringLiteral("F_CERCA"));
  Descarregar_Formulari(llista.Nom());
  Portar_El_Focus(*formulari, valors.front().control);
  return true;
}

void Cridar(const Crida& crida) {
  sessio.*crida.variable = crida.etiqueta;
  Obrir(QString::fromUtf16(crida.llista));
}

void Connectar_Crides(Formulari& formulari) {
  for (const Crida& crida : Files()) {
    if (crida.boto == nullptr || !Es(formulari.Nom(), crida.formulari)) continue;
    auto* boto = qobject_cast<QAbstractButton*>(formulari.Cercar_Control(QString::fromUtf16(crida.boto)));
    if (boto == nullptr) continue;
    formulari.Boto_De_Pantalla(boto->objectName(), QString::fromUtf16(crida.llista));
    QObject::connect(boto, &QAbstractButton::clicked, &formulari, [&crida] { Cridar(crida); });
  }
}

void Oblidar_Crida(const QString& llista) {
  for (const Crida& crida : Files()) {
    if (Es(llista, crida.llista) && sessio.*crida.variable == crida.etiqueta) (sessio.*crida.variable).clear();
  }
}
