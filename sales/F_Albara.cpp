#include "sales/F_Albara.h"

#include "core/M_Funcions_Comuns.h"
#include "sales/M_Albarans.h"
#include "ui_F_Albara.h"

namespace {

constexpr const char* imports = "#,##0.00";

const Descripcio_Editor descripcio{
    .tipus = tipus_albara,
    .graella_linies = "G_ALBLIN",
    .graella_peu = "G_ALBPEU",
    .columnes_linies =
        {
            {"NUMALB_AL", 0, ""},
            {"EMPRESA_AL", 0, ""},
            {"LIN_AL", 700, "Línia", true},
            {"ARTICLE_AL", 1400, "Article"},
            {"DESCRIPCIO_AL", 3600, "Descripció"},
            {"PREU_UNITARI_AL", 1300, "Preu Unitari", true, imports},
            {"UNITATS_AL", 1050, "Unitats", true, imports},
            {"PORC_IVA_AL", 850, "IVA %", true, imports},
            {"PORC_RE_AL", 800, "RE %", true, imports},
            {"IMPORT_NET_AL", 1350, "Import Net", true, imports},
            {"DTE_AL", 850, "DTE", true, imports},
            {"PVP_AL", 1150, "PVP", true, imports},
            {"COST_AL", 1150, "Cost", true, imports},
            {"PORC_MARGE_AL", 1150, "Marge (%)", true, imports},
            {"MARGE_AL", 1150, "Marge (€)", true, imports},
            {"IMPORT_BRUT_AL", 1350, "Import Brut", true, imports},
            {"COMANDA_AL", 1050, "Comanda", true},
            {"COMANDA_LIN_AL", 1000, "Línia Com.", true},
        },
    .columnes_peu =
        {
            {"TIPUS_IVA_AP", 900, "Tipus"},
            {"DESC_IVA_AP", 3000, "Descripció"},
            {"BASE_AP", 1600, "Base", true, imports},
            {"PORC_IVA_AP", 1100, "% IVA", true, imports},
            {"IVA_AP", 1500, "IVA", true, imports},
            {"PORC_RE_AP", 1100, "% RE", true, imports},
            {"RE_AP", 1500, "RE", true, imports},
            {"IMPORT_AP", 1700, "Import", true, imports},
        },
    .dret = &Sessio::P_Albarans,
    .amaga_entrada = true,
    .data_fixa_amb_linies = true,
};

}  // namespace

F_Albara::F_Albara() : Editor_Document(QStringLiteral("F_Albara"), descripcio), ui_(std::make_unique<Ui::F_Albara>()) {
  ui_->setupUi(this);
  Muntar();
  Boto_De_Pantalla(QStringLiteral("B_Pagaments"), QStringLiteral("F_PAGDOC"));
  Boto_De_Pantalla(QStringLiteral("B_EMAIL"), QStringLiteral("F_STATUS"));
}

F_Albara::~F_Albara() = default;

Valor F_Albara::Numero_A_Obrir() const {
  return sessio.Numero_Albara;
}
bool F_Albara::Bloquejat() const {
  return Albara_Bloquejat(Numero().Enter(), sessio.Empresa_Actual);
}

void F_Albara::Afegir_Linia(const Capcalera_Oberta& cap, const Linia_Entrada& linia) {
  Afegir_Linia_Albara(cap, linia, linies_, *this);
}

bool F_Albara::Esborrar_Linia() {
  return Esborrar_Linia_Albara(Numero().Enter(), sessio.Empresa_Actual,
                               static_cast<std::int16_t>(Camp_De_Linia("LIN").Enter()), Camp_De_Linia("ARTICLE").Text(),
                               Nul_A_Defecte(Camp_De_Linia("UNITATS")).Doble());
}

void F_Albara::Recalcular_Linies(const Capcalera_Oberta& cap) {
  Recalcular_Linies_Albara(cap, *this);
}

bool F_Albara::Moure_Linia(std::int16_t linia, bool avall) {
  return Moure_Linia_Albara(Numero().Enter(), sessio.Empresa_Actual, linia, avall);
}

void F_Albara::Esborrar_Buit() {
  Esborrar_Albara_Buit(Numero().Enter(), sessio.Empresa_Actual);
}

void F_Albara::Mostrar_Camps_Propis() {
  ui_->TXT_NUMFAC_AC->setText(QString::fromStdString(cap_["NUMFAC_AC"].Text()));
}
void F_Albara::Desar_Camps_Propis() {
  cap_.Set("NUMFAC_AC", ui_->TXT_NUMFAC_AC->text().toStdString());
}
