#include "documents/F_Entrada_Linia.h"

#include <QGroupBox>
#include <QKeyEvent>
#include <algorithm>

#include "core/controls/Controls.h"
#include "core/controls/Focus_Camps.h"
#include "core/dades/Numeros.h"
#include "core/formularis/Formulari.h"
#include "documents/M_Linies_Document.h"
#include "masters/M_Articles.h"

namespace {

constexpr const char* dos_decimals = "#,##0.00";
constexpr const char* cinc_decimals = "#,##0.00000";

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

Entrada_Linia::Entrada_Linia(QGroupBox* marc, const Descripcio_Entrada& descripcio, Editor editor)
    : QObject(marc),
      marc_(marc),
      sufix_(QLatin1String(descripcio.sufix)),
      editor_(std::move(editor)),
      preus_({marc, descripcio.sufix}, descripcio.preus, [this](const Camp_De_Preu& quin) { Recalcular(quin); }) {
  article_ = Buscar<QLineEdit>("TXT_ARTICLE");
  descripcio_ = Buscar<QLineEdit>("TXT_DESCRIPCIO");
  unitats_ = Buscar<Camp_Numeric>("TXT_UNITATS");
  unitats_->Mascara(dos_decimals);
  iva_article_ = marc_->findChild<QLineEdit*>(QStringLiteral("TXT_IVA_ART"));
  dte_article_ = marc_->findChild<Camp_Numeric*>(QStringLiteral("TXT_DTE_ART"));
  dte_article_->Mascara(cinc_decimals);
  comanda_ = marc_->findChild<QLineEdit*>(QStringLiteral("TXT_COMANDA_") + sufix_);
  comanda_lin_ = marc_->findChild<QLineEdit*>(QStringLiteral("TXT_COMANDA_LIN_") + sufix_);
  Buscar_Altres(descripcio);
  En_Sortir(article_, [this] { Deixar_Article(); });
  En_Sortir(
      unitats_, [this] { Deixar_Unitats(); }, Sortida::Fa_La_Feina);
  En_Sortir(dte_article_, [this] {
    if (!dte_article_->Es_Numeric()) Retenir_Focus(dte_article_);
  });
  unitats_->installEventFilter(this);
}

// What the frame of a kind has more than the others.
void Entrada_Linia::Buscar_Altres(const Descripcio_Entrada& descripcio) {
  QStringList coneguts{QStringLiteral("TXT_ARTICLE"), QStringLiteral("TXT_DESCRIPCIO"), QStringLiteral("TXT_UNITATS"),
                       QStringLiteral("TXT_COMANDA"), QStringLiteral("TXT_COMANDA_LIN")};
  for (const Camp_De_Preu& preu : descripcio.preus) coneguts << QString::fromLatin1(preu.control);
  const QString cua = u'_' + sufix_;
  for (auto* camp : marc_->findChildren<QLineEdit*>()) {
    const QString nom = camp->objectName().chopped(std::min(cua.size(), camp->objectName().size()));
    if (!camp->objectName().endsWith(cua) || !nom.startsWith(u"TXT_") || coneguts.contains(nom)) continue;
    altres_[nom.mid(4).toStdString()] = camp;
  }
}

Linia_Entrada Entrada_Linia::Linia() const {
  Linia_Entrada linia;
  linia.article = article_->text().toStdString();
  linia.descripcio = descripcio_->text().toStdString();
  linia.iva_article = iva_article_->text().toStdString();
  linia.unitats = unitats_->Numero();
  linia.dte_article = dte_article_->Numero();
  linia.comanda = Enter_De(comanda_);
  linia.comanda_lin = static_cast<std::int16_t>(Enter_De(comanda_lin_));
  for (const auto& [paper, camp] : altres_) linia.altres[paper] = camp->text().toStdString();
  preus_.Llegir(linia);
  return linia;
}

// The link to an order line stays: the next line on the same form serves it too.
void Entrada_Linia::Netejar() {
  article_->clear();
  descripcio_->clear();
  unitats_->Numero(1);
  for (const auto& [paper, camp] : altres_) camp->clear();
  preus_.Buidar();
  dte_article_->Numero(0);
  iva_article_->setText(QStringLiteral("0"));
  if (marc_->isEnabled() && marc_->isVisible()) article_->setFocus(Qt::OtherFocusReason);
}

void Entrada_Linia::Deixar_Article() {
  if (article_->text().isEmpty()) return;
  Formulari::Guardar_Event([this] {
    const auto dades = Dades_Article(article_->text().toStdString());
    descripcio_->setText(QString::fromStdString(dades[article::descripcio]));
    preus_.Camp(&Linia_Entrada::cost)->Numero(Numero_O_Zero(dades[article::cost]));
    iva_article_->setText(QString::fromStdString(dades[article::iva]));
    dte_article_->Numero(Numero_O_Zero(dades[article::descompte]));
    preus_.Camp(&Linia_Entrada::dte)->Numero(0);
    preus_.Camp(&Linia_Entrada::porc_marge)->Numero(Numero_O_Zero(dades[article::marge]));
    if (dades[article::descripcio] == "???") Retenir_Focus(article_);
  });
}

Taxes_Linia Entrada_Linia::Buscar_Taxes() {
  const Capcalera_Oberta cap = editor_.cap();
  return taxes_ = Taxes_De_Linia(iva_article_->text().toStdString(), cap.iva, cap.re);
}

// The other prices follow the one that was typed, which stays as it is.
void Entrada_Linia::Recalcular(const Camp_De_Preu& quin) {
  const Taxes_Linia taxes = Buscar_Taxes();
  preus_.Mostrar(Calcular_Linia(Linia(), taxes, quin.mode), &quin);
}

void Entrada_Linia::Refer_PVP() {
  const double net = preus_.Camp(&Linia_Entrada::preu_unitari)->Numero();
  const double pvp = Recalcular_PVP(net, taxes_.porc_iva, taxes_.porc_re);
  preus_.Camp(&Linia_Entrada::pvp)->setText(QString::fromStdString(Text_Numero(pvp)));
}

// Leaving the quantity saves the line, and empties the frame whatever came of it; only a line that another terminal
// kept from being written stays, to be tried again.
void Entrada_Linia::Deixar_Unitats() {
  if (!unitats_->Es_Numeric()) return Retenir_Focus(unitats_);
  if (!article_->text().isEmpty() && !editor_.desar()) return Retenir_Focus(unitats_);
  Netejar();
}

void Entrada_Linia::Continuar_Comanda() {
  if (article_->text().isEmpty()) return Posar_Focus(article_);
  Buscar_Taxes();
  Posar_Focus(unitats_);
}

// The next line begins where this one ends: what stands after the quantity is not passed on the way.
bool Entrada_Linia::eventFilter(QObject* objecte, QEvent* event) {
  if (objecte != unitats_ || event->type() != QEvent::KeyPress) return QObject::eventFilter(objecte, event);
  const auto* tecla = static_cast<const QKeyEvent*>(event);
  if (tecla->key() == Qt::Key_Escape) {
    Netejar();
  } else if (tecla->key() == Qt::Key_Tab && tecla->modifiers() == Qt::NoModifier) {
    article_->setFocus(Qt::TabFocusReason);
  } else {
    return false;
  }
  return true;
}
