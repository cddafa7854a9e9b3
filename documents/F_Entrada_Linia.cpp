#include "documents/F_Entrada_Linia.h"

#include <QGroupBox>
#include <QKeyEvent>
#include <iterator>

#include "core/controls/Camps.h"
#include "core/controls/Controls.h"
#include "core/dades/Numeros.h"
#include "core/formularis/Formulari.h"
#include "masters/M_Articles.h"

namespace {

// A field of price: its name without suffix, its mask, and the mode of the calculation when it is left.
struct Camp_De_Preu {
  const char* nom;
  const char* mascara;
  const char* mode;
  double Resultat_Linia::*resultat;
};

constexpr const char* dos_decimals = "#,##0.00";
constexpr const char* cinc_decimals = "#,##0.00000";

constexpr Camp_De_Preu camps_de_preu[] = {
    {"TXT_COST", dos_decimals, "COST_PL", &Resultat_Linia::cost},
    {"TXT_PREU_UNITARI", dos_decimals, "PREU_UNITARI_PL", &Resultat_Linia::preu_unitari},
    {"TXT_PVP", dos_decimals, "PVP_PL", &Resultat_Linia::pvp},
    {"TXT_PORC_MARGE", cinc_decimals, "PORC_MARGE_PL", &Resultat_Linia::porc_marge},
    {"TXT_DESCOMPTE", cinc_decimals, "DTE_PL", &Resultat_Linia::dte},
};

double Numero_O_Zero(const std::string& text) {
  return Numero_De_Text(text).value_or(0);
}

std::int64_t Enter_De(const QLineEdit* camp) {
  return camp == nullptr ? 0 : camp->text().toLongLong();
}

}  // namespace

template <class Control>
Control* Entrada_Linia::Buscar(const char* nom) const {
  auto* control = marc_->findChild<Control*>(QString::fromLatin1(nom) + u'_' + sufix_);
  if (control == nullptr) qFatal("FR_NOVA: no %s", nom);
  return control;
}

Entrada_Linia::Entrada_Linia(QGroupBox* marc, const QString& sufix, Editor editor)
    : QObject(marc), marc_(marc), sufix_(sufix), editor_(std::move(editor)) {
  static_assert(std::size(camps_de_preu) == quants_camps);
  article_ = Buscar<QLineEdit>("TXT_ARTICLE");
  descripcio_ = Buscar<QLineEdit>("TXT_DESCRIPCIO");
  unitats_ = Buscar<Camp_Numeric>("TXT_UNITATS");
  unitats_->Mascara(dos_decimals);
  iva_article_ = marc_->findChild<QLineEdit*>(QStringLiteral("TXT_IVA_ART"));
  dte_article_ = marc_->findChild<Camp_Numeric*>(QStringLiteral("TXT_DTE_ART"));
  dte_article_->Mascara(cinc_decimals);
  comanda_ = marc_->findChild<QLineEdit*>(QStringLiteral("TXT_COMANDA_") + sufix_);
  comanda_lin_ = marc_->findChild<QLineEdit*>(QStringLiteral("TXT_COMANDA_LIN_") + sufix_);
  for (int i = 0; i < quants_camps; ++i) {
    const Camp camp = static_cast<Camp>(i);
    Camp_Numeric* control = preus_[i] = Buscar<Camp_Numeric>(camps_de_preu[i].nom);
    control->Mascara(camps_de_preu[i].mascara);
    En_Entrar(control, [this, control] { recordat_ = control->Numero(); });
    En_Sortir(control, [this, camp] { Deixar_Preu(camp); });
  }
  En_Sortir(article_, [this] { Deixar_Article(); });
  En_Sortir(unitats_, [this] { Deixar_Unitats(); });
  En_Sortir(dte_article_, [this] {
    if (!dte_article_->Es_Numeric()) Retenir_Focus(dte_article_);
  });
  unitats_->installEventFilter(this);
}

Linia_Entrada Entrada_Linia::Linia() const {
  return {.article = article_->text().toStdString(),
          .descripcio = descripcio_->text().toStdString(),
          .iva_article = iva_article_->text().toStdString(),
          .cost = preus_[Cost]->Numero(),
          .unitats = unitats_->Numero(),
          .porc_marge = preus_[Marge]->Numero(),
          .preu_unitari = preus_[Preu]->Numero(),
          .pvp = preus_[Pvp]->Numero(),
          .dte = preus_[Descompte]->Numero(),
          .dte_article = dte_article_->Numero(),
          .comanda = Enter_De(comanda_),
          .comanda_lin = static_cast<std::int16_t>(Enter_De(comanda_lin_))};
}

// The link to an order line stays: the next line on the same form serves it too.
void Entrada_Linia::Netejar() {
  article_->clear();
  descripcio_->clear();
  unitats_->Numero(1);
  for (Camp_Numeric* camp : preus_) camp->Numero(0);
  dte_article_->Numero(0);
  iva_article_->setText(QStringLiteral("0"));
  if (marc_->isEnabled() && marc_->isVisible()) article_->setFocus(Qt::OtherFocusReason);
}

void Entrada_Linia::Deixar_Article() {
  if (article_->text().isEmpty()) return;
  Formulari::Guardar_Event([this] {
    const auto dades = Dades_Article(article_->text().toStdString());
    descripcio_->setText(QString::fromStdString(dades[article::descripcio]));
    preus_[Cost]->Numero(Numero_O_Zero(dades[article::cost]));
    iva_article_->setText(QString::fromStdString(dades[article::iva]));
    dte_article_->Numero(Numero_O_Zero(dades[article::descompte]));
    preus_[Descompte]->Numero(0);
    preus_[Marge]->Numero(Numero_O_Zero(dades[article::marge]));
    if (dades[article::descripcio] == "???") Retenir_Focus(article_);
  });
}

void Entrada_Linia::Deixar_Preu(Camp camp) {
  if (!preus_[camp]->Es_Numeric()) return Retenir_Focus(preus_[camp]);
  if (preus_[camp]->Numero() == recordat_) return;
  Formulari::Guardar_Event([this, camp] { Recalcular(camp); });
}

// The other prices follow the one that was typed, which stays as it is.
void Entrada_Linia::Recalcular(Camp camp) {
  Buscar_Taxes();
  const Linia_Entrada linia = Linia();
  const Resultat_Linia resultat =
      Calcular_Linia(linia.cost, linia.unitats, linia.porc_marge, linia.dte_article, taxes_.porc_iva, taxes_.porc_re,
                     linia.preu_unitari, linia.pvp, linia.dte, camps_de_preu[camp].mode);
  for (int i = 0; i < quants_camps; ++i) {
    if (i != camp) preus_[i]->Numero(resultat.*camps_de_preu[i].resultat);
  }
  recordat_ = preus_[camp]->Numero();
}

void Entrada_Linia::Buscar_Taxes() {
  taxes_ = Taxes_De_Linia(iva_article_->text().toStdString(), editor_.iva(), editor_.re());
}

void Entrada_Linia::Refer_PVP() {
  const double pvp = Recalcular_PVP(preus_[Preu]->Numero(), taxes_.porc_iva, taxes_.porc_re);
  preus_[Pvp]->setText(QString::fromStdString(Text_Numero(pvp)));
}

// Leaving the quantity saves the line, and empties the frame whatever came of it.
void Entrada_Linia::Deixar_Unitats() {
  if (!unitats_->Es_Numeric()) return Retenir_Focus(unitats_);
  if (!article_->text().isEmpty()) editor_.desar();
  Netejar();
}

void Entrada_Linia::Continuar_Comanda() {
  if (article_->text().isEmpty()) return Posar_Focus(article_);
  Buscar_Taxes();
  Posar_Focus(unitats_);
}

bool Entrada_Linia::eventFilter(QObject* objecte, QEvent* event) {
  if (objecte == unitats_ && event->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    Netejar();
    return true;
  }
  return QObject::eventFilter(objecte, event);
}
