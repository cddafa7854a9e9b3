#include "masters/F_Article.h"

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Controls.h"
#include "masters/M_Articles.h"
#include "masters/M_Families.h"
#include "masters/M_IVAs.h"
#include "masters/M_Marques.h"
#include "masters/M_Proveidors.h"
#include "masters/M_Subfamilies.h"
#include "ui_F_Article.h"

F_Article::F_Article() : Fitxa(QStringLiteral("F_Article"), "ARTICLES"), ui_(std::make_unique<Ui::F_Article>()) {
  ui_->setupUi(this);
  Boto_Sortir(ui_->B_Exit);
  for (Camp_Numeric* import :
       {ui_->TXT_COST_ART, ui_->TXT_ULTIM_COST_ART, ui_->TXT_PVP_NET_ART, ui_->TXT_STOCK_MINIM_ART})
    import->Mascara("#,##0.00");
  for (Camp_Numeric* percentatge : {ui_->TXT_MARGE_ART, ui_->TXT_DESCOMPTE_ART}) percentatge->Mascara("#,##0.00000");
  Exigir_Lliure(ui_->TXT_CODI_ART, Article_Existeix, Avisar_Article_Existent);
  Descriure(ui_->TXT_IVA_ART, ui_->NO_DESC_IVA, referencia_ivas);
  Descriure(ui_->TXT_FAMILIA_ART, ui_->NO_DESCRIPCIO_FAM, referencia_families);
  Descriure(ui_->TXT_SUBFAMILIA_ART, ui_->NO_DESCRIPCIO_SUBF, referencia_subfamilies);
  Descriure(ui_->TXT_MARCA_ART, ui_->NO_DESCRIPCIO_MAR, referencia_marques);
  Descriure(ui_->TXT_PROVEIDOR_ART, ui_->NO_RAO_SOCIAL_PRO, referencia_proveidors);
  En_Deixar(ui_->TXT_COST_ART, [this] { Refer_Preus("COST_ART"); });
  En_Deixar(ui_->TXT_MARGE_ART, [this] { Refer_Preus("MARGE_ART"); });
  En_Deixar(ui_->TXT_PVP_NET_ART, [this] { Refer_Preus("PVP_NET_ART"); });
  En_Deixar(ui_->TXT_DESCOMPTE_ART, [this] { Refer_Preus("DESCOMPTE_ART"); });
  En_Deixar(ui_->CHK_ACTIU_ART, [this] {
    if (!ui_->CHK_ACTIU_ART->isChecked()) ui_->DT_BAIXA_ART->Data(Avui());
  });
}

F_Article::~F_Article() = default;

std::string F_Article::Sentencia() const {
  return SQL_Article(sessio.Codi_Article);
}

void F_Article::Mostrar_Altres() {
  sessio.Codi_Article = rs_["CODI_ART"].Text();
}

// The other prices follow the one that was changed.
void F_Article::Refer_Preus(const char* columna) {
  const std::pair<Camp_Numeric*, double Preus::*> camps[] = {{ui_->TXT_COST_ART, &Preus::cost},
                                                             {ui_->TXT_MARGE_ART, &Preus::marge},
                                                             {ui_->TXT_PVP_NET_ART, &Preus::pvp},
                                                             {ui_->TXT_DESCOMPTE_ART, &Preus::descompte}};
  Preus preus;
  for (const auto& [camp, preu] : camps) {
    const bool seu = camp->objectName().endsWith(QLatin1String(columna));
    const bool buit = camp->text().trimmed().isEmpty();  // counts as 0
    const bool canviat = camp->isModified() && camp->Numero() != Nul_A_Defecte(rs_[columna]).Doble();
    if (seu && (!canviat || (!buit && !camp->Es_Numeric()))) return;
    preus.*preu = camp->Numero();
  }
  const Preus nous = Recalcular_Preus(columna, preus);
  for (const auto& [camp, preu] : camps) camp->Numero(nous.*preu);
}
