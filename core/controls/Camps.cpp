#include "core/controls/Camps.h"

#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>

#include "core/formularis/Formulari.h"

namespace {

bool retencio_pendent = false;
Qt::FocusReason motiu_de_sortir = Qt::OtherFocusReason;

bool Canvia_De_Finestra(Qt::FocusReason motiu) {
  return motiu == Qt::ActiveWindowFocusReason || motiu == Qt::PopupFocusReason || motiu == Qt::MenuBarFocusReason;
}

// The button that closes the form is never refused: nobody is kept in it by what a field holds. Who only comes past it
// with the Tab key does not go yet.
bool Se_N_Va() {
  const QWidget* ara = QApplication::focusWidget();
  const bool de_pas = motiu_de_sortir == Qt::TabFocusReason || motiu_de_sortir == Qt::BacktabFocusReason;
  return ara != nullptr && ara->objectName().compare(QLatin1String("B_Exit"), Qt::CaseInsensitive) == 0 && !de_pas;
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

// Tells of one kind of focus event of a widget.
class Vigia_De_Focus : public QObject {
 public:
  Vigia_De_Focus(QWidget* camp, QEvent::Type tipus, std::function<void()> rutina)
      : QObject(camp), tipus_(tipus), rutina_(std::move(rutina)) {
    camp->installEventFilter(this);
  }
  // Runs the routines of a field that wait for this kind of event.
  static void Executar(const QWidget* camp, QEvent::Type tipus) {
    const QObjectList fills(camp->children().begin(), camp->children().end());  // a routine may take some away
    for (QObject* fill : fills) {
      const auto* vigia = dynamic_cast<Vigia_De_Focus*>(fill);
      if (vigia != nullptr && vigia->tipus_ == tipus) vigia->rutina_();
    }
  }

 protected:
  bool eventFilter(QObject* objecte, QEvent* event) override {
    if (event->type() == tipus_ && !retencio_pendent) {
      const auto motiu = static_cast<QFocusEvent*>(event)->reason();
      const bool fora = Canvia_De_Finestra(motiu);
      if (tipus_ == QEvent::FocusOut) motiu_de_sortir = motiu;
      const QPointer<QObject> viu(objecte);
      if (!fora && Va_D_Un_Camp_A_Un_Altre(static_cast<QWidget*>(parent()))) rutina_();
      if (!viu) return true;
    }
    return QObject::eventFilter(objecte, event);
  }

 private:
  QEvent::Type tipus_;
  std::function<void()> rutina_;
};

}  // namespace

void En_Sortir(QWidget* camp, std::function<void()> rutina) {
  new Vigia_De_Focus(camp, QEvent::FocusOut, std::move(rutina));
}

void En_Entrar(QWidget* camp, std::function<void()> rutina) {
  new Vigia_De_Focus(camp, QEvent::FocusIn, std::move(rutina));
}

void Entrar_Al_Camp(QWidget* camp) {
  Vigia_De_Focus::Executar(camp, QEvent::FocusIn);
}
void Deixar_Camp(QWidget* camp) {
  Vigia_De_Focus::Executar(camp, QEvent::FocusOut);
}

void Posar_Focus(QWidget* camp) {
  camp->setFocus(Qt::OtherFocusReason);
  if (auto* text = qobject_cast<QLineEdit*>(camp)) text->selectAll();
  if (auto* combo = qobject_cast<QComboBox*>(camp); combo != nullptr && combo->isEditable())
    combo->lineEdit()->selectAll();
}

void Retenir_Focus(QWidget* camp) {
  if (Se_N_Va()) return;
  retencio_pendent = true;
  const QPointer<QWidget> viu(camp);
  QTimer::singleShot(0, camp, [viu] {
    if (viu) Posar_Focus(viu);
    retencio_pendent = false;
  });
  // The timer goes with a field that is deleted before it fires.
  QObject::connect(camp, &QObject::destroyed, [] { retencio_pendent = false; });
}

bool Focus_Retingut() {
  return retencio_pendent;
}
