#include "core/controls/Focus_Camps.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPointer>
#include <QScopeGuard>
#include <QShortcutEvent>
#include <QTabBar>
#include <QTimer>
#include <QVariant>
#include <utility>

#include "core/controls/Controls.h"
#include "core/controls/Refus.h"
#include "core/formularis/Formulari.h"

namespace {

// The field that takes the focus back as soon as events run.
QPointer<QWidget> retingut;
Qt::FocusReason motiu_de_sortir = Qt::OtherFocusReason;

// The field whose leaving runs while it still has the focus, the button that was pressed, and whether the form closes.
const QWidget* deixat_aqui = nullptr;
const QAbstractButton* boto_premut = nullptr;
bool es_tanca = false;

// The field that the key of the exit button has left, and what it held: the button closes the form a moment later.
struct Deixat_Per_Sortir {
  QPointer<const QWidget> camp;
  QVariant contingut;
};
Deixat_Per_Sortir deixat_per_sortir;

QVariant Contingut_De(const QWidget* camp) {
  return camp->metaObject()->userProperty().read(camp);
}

bool Es_Boto(const QWidget* control, const char16_t* nom) {
  return control->objectName().compare(QStringView(nom), Qt::CaseInsensitive) == 0;
}

bool Canvia_De_Finestra(Qt::FocusReason motiu) {
  return motiu == Qt::ActiveWindowFocusReason || motiu == Qt::PopupFocusReason || motiu == Qt::MenuBarFocusReason;
}

// The buttons that close and clear a form are never refused: nobody is kept in it by what a field holds. Who only comes
// past them with the Tab key does not go yet.
bool Se_N_Va() {
  if (es_tanca) return true;
  const QWidget* cap_on = boto_premut != nullptr ? boto_premut : QApplication::focusWidget();
  const bool de_pas =
      boto_premut == nullptr && (motiu_de_sortir == Qt::TabFocusReason || motiu_de_sortir == Qt::BacktabFocusReason);
  if (cap_on == nullptr || de_pas) return false;
  return Es_Boto(cap_on, u"B_EXIT") || Es_Boto(cap_on, u"B_NETEJAR");
}

const Formulari* Formulari_De(const QWidget* camp) {
  while (camp != nullptr && qobject_cast<const Formulari*>(camp) == nullptr) camp = camp->parentWidget();
  return static_cast<const Formulari*>(camp);
}

// The focus goes from one field to another of the same form, which stays open. A form that closes takes the focus from
// its fields without anybody leaving them.
bool Va_D_Un_Camp_A_Un_Altre(const QWidget* camp) {
  const QWidget* ara = QApplication::focusWidget();
  const Formulari* formulari = Formulari_De(camp);
  if (ara == nullptr || ara->window() != camp->window() || Formulari_De(ara) != formulari) return false;
  return formulari == nullptr || !formulari->Es_Tanca();
}

// Runs a routine at one kind of focus event of a widget.
class Vigia_De_Focus : public QObject {
 public:
  Vigia_De_Focus(QWidget* camp, QEvent::Type tipus, std::function<void()> rutina, Sortida sortida)
      : QObject(camp), tipus_(tipus), rutina_(std::move(rutina)), sortida_(sortida) {
    camp->installEventFilter(this);
  }
  // Runs the routines of a field that wait for this kind of event; with its work, or without.
  static void Executar(const QWidget* camp, QEvent::Type tipus, bool amb_feina = true) {
    const QObjectList fills(camp->children().begin(), camp->children().end());  // a routine may take some away
    for (QObject* fill : fills) {
      const auto* vigia = dynamic_cast<Vigia_De_Focus*>(fill);
      const bool seva = vigia != nullptr && vigia->tipus_ == tipus;
      if (seva && (amb_feina || vigia->sortida_ == Sortida::Pren_El_Valor)) vigia->Fer();
    }
  }

 protected:
  bool eventFilter(QObject* objecte, QEvent* event) override {
    if (event->type() == tipus_ && !Focus_Retingut() && objecte != deixat_aqui) {
      const auto motiu = static_cast<QFocusEvent*>(event)->reason();
      const bool fora = Canvia_De_Finestra(motiu);
      if (tipus_ == QEvent::FocusOut) motiu_de_sortir = motiu;
      const QPointer<QObject> viu(objecte);
      if (!fora && Va_D_Un_Camp_A_Un_Altre(static_cast<QWidget*>(parent()))) Fer();
      if (!viu) return true;
    }
    return QObject::eventFilter(objecte, event);
  }

 private:
  // What was refused before is judged anew.
  void Fer() const {
    if (tipus_ == QEvent::FocusOut) Treure_Refus(static_cast<QWidget*>(parent()));
    rutina_();
  }

  QEvent::Type tipus_;
  std::function<void()> rutina_;
  Sortida sortida_;
};

// Runs what leaving a field runs, although it keeps the focus.
void Deixar_Aqui(const QWidget* camp, bool amb_feina) {
  if (camp == nullptr || deixat_aqui != nullptr) return;
  deixat_aqui = camp;
  const auto acaba = qScopeGuard([] { deixat_aqui = nullptr; });
  Vigia_De_Focus::Executar(camp, QEvent::FocusOut, amb_feina);
}

// A control whose value the mouse wheel changes.
bool Canvia_Amb_La_Roda(const QObject* objecte) {
  return qobject_cast<const QComboBox*>(objecte) != nullptr || qobject_cast<const QTabBar*>(objecte) != nullptr ||
         qobject_cast<const Selector_Data*>(objecte) != nullptr || objecte->inherits("QAbstractSpinBox") ||
         objecte->inherits("QSlider") || objecte->inherits("QDial");
}

// The wheel needs the focus, and a combo of codes its open list: a choice may be saved at once.
bool Es_Sorda(const QWidget* camp) {
  const QWidget* ara = QApplication::focusWidget();
  const bool hi_es = ara != nullptr && (ara == camp || camp->isAncestorOf(ara));
  return !hi_es || qobject_cast<const Combo_Codi*>(camp) != nullptr;
}

class Vigia_De_L_Aplicacio : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* objecte, QEvent* event) override {
    if (event->type() == QEvent::Shortcut) {
      const auto* boto = qobject_cast<QAbstractButton*>(objecte);
      const bool ambigua = static_cast<QShortcutEvent*>(event)->isAmbiguous();
      return boto != nullptr && !ambigua && !Deixar_El_Camp_Pel_Boto(boto);
    }
    if (event->type() != QEvent::Wheel || !Canvia_Amb_La_Roda(objecte)) return false;
    if (!Es_Sorda(static_cast<QWidget*>(objecte))) return false;
    event->ignore();  // the area behind scrolls
    return true;
  }
};

}  // namespace

void En_Sortir(QWidget* camp, std::function<void()> rutina, Sortida sortida) {
  new Vigia_De_Focus(camp, QEvent::FocusOut, std::move(rutina), sortida);
}

void En_Entrar(QWidget* camp, std::function<void()> rutina) {
  new Vigia_De_Focus(camp, QEvent::FocusIn, std::move(rutina), Sortida::Pren_El_Valor);
}

void Entrar_Al_Camp(QWidget* camp) {
  Vigia_De_Focus::Executar(camp, QEvent::FocusIn);
}
void Deixar_Camp(QWidget* camp) {
  Vigia_De_Focus::Executar(camp, QEvent::FocusOut);
}

bool Deixar_El_Camp_De(const QWidget* formulari) {
  if (Focus_Retingut()) return false;
  if (formulari != nullptr) Deixar_Aqui(formulari->focusWidget(), false);
  return !Focus_Retingut();
}

bool Deixar_El_Camp_Pel_Boto(const QAbstractButton* boto) {
  const QWidget* camp = QApplication::focusWidget();
  const Formulari* formulari = Formulari_De(boto);
  if (formulari == nullptr || camp == boto || Formulari_De(camp) != formulari) return true;
  if (Focus_Retingut()) return false;
  const QPointer<const QAbstractButton> viu(boto);
  {
    boto_premut = boto;
    const auto acaba = qScopeGuard([] { boto_premut = nullptr; });
    Deixar_Aqui(camp, true);
  }
  if (viu && Es_Boto(boto, u"B_EXIT") && camp != nullptr) deixat_per_sortir = {camp, Contingut_De(camp)};
  return viu && boto->isEnabled() && !Focus_Retingut();
}

void Deixar_El_Camp_En_Tancar(const QWidget* formulari) {
  const auto acaba = qScopeGuard([abans = es_tanca] { es_tanca = abans; });
  es_tanca = true;
  const QWidget* camp = formulari->focusWidget();
  const auto [deixat, contingut] = std::exchange(deixat_per_sortir, {});
  if (camp != nullptr && camp == deixat && Contingut_De(camp) == contingut) return;
  Deixar_Aqui(camp, false);
}

void Posar_Focus(QWidget* camp) {
  camp->setFocus(Qt::OtherFocusReason);
  if (auto* text = qobject_cast<QLineEdit*>(camp)) text->selectAll();
  if (auto* combo = qobject_cast<QComboBox*>(camp); combo != nullptr && combo->isEditable())
    combo->lineEdit()->selectAll();
}

void Retenir_Focus(QWidget* camp, const QString& motiu) {
  Senyalar_Refus(camp, motiu);
  if (Se_N_Va()) return;
  retingut = camp;
  QTimer::singleShot(0, camp, [camp] {
    Posar_Focus(camp);
    retingut.clear();
  });
}

bool Focus_Retingut() {
  return !retingut.isNull();
}

void Vigilar_Aplicacio() {
  static QPointer<Vigia_De_L_Aplicacio> vigia;
  if (vigia || qApp == nullptr) return;
  vigia = new Vigia_De_L_Aplicacio(qApp);
  qApp->installEventFilter(vigia);
}
