#include "documents/F_Preus_Linia.h"

#include "core/controls/Controls.h"
#include "core/controls/Focus_Camps.h"
#include "core/formularis/Formulari.h"

namespace {

constexpr const char* dos_decimals = "#,##0.00";
constexpr const char* tres_decimals = "#,##0.000";
constexpr const char* cinc_decimals = "#,##0.00000";

std::vector<Camp_De_Preu> Preus(const char* mascara_cost, const char* camp_descompte) {
  using L = Linia_Entrada;
  using R = Resultat_Linia;
  return {
      {"TXT_COST", mascara_cost, Mode_Calcul::Cost, &L::cost, &R::cost},
      {"TXT_PREU_UNITARI", dos_decimals, Mode_Calcul::Preu_Unitari, &L::preu_unitari, &R::preu_unitari},
      {"TXT_PVP", dos_decimals, Mode_Calcul::Pvp, &L::pvp, &R::pvp},
      {"TXT_PORC_MARGE", cinc_decimals, Mode_Calcul::Porc_Marge, &L::porc_marge, &R::porc_marge},
      {camp_descompte, cinc_decimals, Mode_Calcul::Dte, &L::dte, &R::dte},
  };
}

}  // namespace

const std::vector<Camp_De_Preu> preus_de_venda = Preus(dos_decimals, "TXT_DESCOMPTE");
const std::vector<Camp_De_Preu> preus_de_compra = Preus(tres_decimals, "TXT_DESCOMPTE");
const std::vector<Camp_De_Preu> preus_de_detall = Preus(dos_decimals, "TXT_DTE");

Preus_Linia::Preus_Linia(const Lloc& lloc, const std::vector<Camp_De_Preu>& descripcio,
                         std::function<void(const Camp_De_Preu& quin)> canviat)
    : descripcio_(descripcio), canviat_(std::move(canviat)) {
  for (std::size_t i = 0; i < descripcio_.size(); ++i) {
    const QString nom = QString::fromLatin1(descripcio_[i].control) + u'_' + QLatin1String(lloc.sufix);
    auto* camp = lloc.marc->findChild<Camp_Numeric*>(nom);
    if (camp == nullptr) qFatal("%s: no %s", qUtf8Printable(lloc.marc->objectName()), qUtf8Printable(nom));
    camp->Mascara(descripcio_[i].mascara);
    En_Entrar(camp, [this, camp] { recordat_ = camp->Numero(); });
    En_Sortir(camp, [this, i] { Deixar(i); });
    camps_.push_back(camp);
  }
}

void Preus_Linia::Llegir(Linia_Entrada& linia) const {
  for (std::size_t i = 0; i < camps_.size(); ++i) linia.*descripcio_[i].escrit = camps_[i]->Numero();
}

Camp_Numeric* Preus_Linia::Camp(double Linia_Entrada::*escrit) const {
  for (std::size_t i = 0; i < camps_.size(); ++i) {
    if (descripcio_[i].escrit == escrit) return camps_[i];
  }
  qFatal("no such price");
}

void Preus_Linia::Mostrar(const Resultat_Linia& linia, const Camp_De_Preu* menys) {
  for (std::size_t i = 0; i < camps_.size(); ++i) {
    if (&descripcio_[i] != menys) camps_[i]->Numero(linia.*descripcio_[i].resultat);
  }
}

void Preus_Linia::Habilitar(bool habilitats) {
  for (Camp_Numeric* camp : camps_) camp->setEnabled(habilitats);
}

void Preus_Linia::Deixar(std::size_t quin) {
  if (!camps_[quin]->Es_Numeric()) return Retenir_Focus(camps_[quin]);
  if (camps_[quin]->Numero() == recordat_) return;
  Formulari::Guardar_Event([this, quin] {
    canviat_(descripcio_[quin]);
    recordat_ = camps_[quin]->Numero();
  });
}
