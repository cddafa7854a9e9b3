#include "core/controls/Refus.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QTextDocument>

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Controls.h"
#include "core/formularis/Aparenca.h"
#include "core/formularis/Formulari.h"

namespace {

QString Paraules_De(const QWidget* camp) {
  if (qobject_cast<const Camp_Numeric*>(camp) != nullptr)
    return QString::fromStdString(Missatge("No és cap nombre.", "No es un número.", "It is not a number."));
  if (qobject_cast<const Selector_Data*>(camp->parentWidget()) != nullptr)
    return QString::fromStdString(Missatge("No és cap dia del calendari: DD/MM/AAAA.",
                                           "No es un día del calendario: DD/MM/AAAA.",
                                           "It is no day of the calendar: DD/MM/YYYY."));
  return QString::fromStdString(Missatge("El camp no admet aquest valor.", "El campo no admite este valor.",
                                         "The field does not take this value."));
}

Formulari* Formulari_De(QWidget* camp) {
  while (camp != nullptr && qobject_cast<Formulari*>(camp) == nullptr) camp = camp->parentWidget();
  return static_cast<Formulari*>(camp);
}

// The line takes its room from below the window, and gives it back.
class Nota : public QLabel {
 public:
  explicit Nota(Formulari* formulari) : QLabel(formulari), formulari_(formulari) {
    setObjectName(QStringLiteral("L_REFUS"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    QPalette paleta = palette();
    paleta.setColor(QPalette::WindowText, Tinta_De_Refus(paleta));
    setPalette(paleta);
    QLayout* disposicio = formulari->layout();
    if (auto* graella = qobject_cast<QGridLayout*>(disposicio)) {
      graella->addWidget(this, graella->rowCount(), 0, 1, graella->columnCount());
    } else if (auto* columna = qobject_cast<QBoxLayout*>(disposicio)) {
      columna->addWidget(this);
    } else {
      move(0, formulari->height() - sizeHint().height());
    }
  }
  void Mostrar(const QString& text) {
    setText(text);
    if (!isHidden()) return;
    if (Te_Mida_Propia()) abans_ = Finestra()->size();
    show();
    if (Te_Mida_Propia()) Creixer();
  }
  void Amagar() {
    if (isHidden()) return;
    const int guanyat = height() + formulari_->layout()->spacing();
    hide();
    const bool es_la_seva = abans_.isValid() && Te_Mida_Propia() && Finestra()->width() == abans_.width() &&
                            Finestra()->height() - abans_.height() <= guanyat;
    if (es_la_seva) Finestra()->resize(abans_);
    abans_ = QSize();
  }

 private:
  // By what the form cannot spare.
  void Creixer() {
    formulari_->layout()->activate();
    const int falta = formulari_->minimumSizeHint().height() - formulari_->height();
    if (falta > 0) Finestra()->resize(Finestra()->width(), Finestra()->height() + falta);
  }
  QMdiSubWindow* Finestra() const { return qobject_cast<QMdiSubWindow*>(formulari_->parentWidget()); }
  bool Te_Mida_Propia() const { return Finestra() != nullptr && !Finestra()->isMaximized(); }

  Formulari* formulari_;
  QSize abans_;
};

Nota* Nota_De(Formulari* formulari) {
  return formulari == nullptr ? nullptr : dynamic_cast<Nota*>(formulari->findChild<QLabel*>(QStringLiteral("L_REFUS")));
}

void Posar_Nota(QWidget* camp, const QString& text) {
  Formulari* formulari = Formulari_De(camp);
  if (formulari == nullptr || formulari->layout() == nullptr) return;
  Nota* nota = Nota_De(formulari);
  if (nota == nullptr) {
    nota = new Nota(formulari);
    nota->hide();
  }
  nota->Mostrar(text);
}

// The widget that shows the text of a field.
QWidget* Cara_De(QWidget* camp) {
  auto* combo = qobject_cast<QComboBox*>(camp);
  return combo != nullptr && combo->isEditable() ? combo->lineEdit() : camp;
}

class Refus : public QObject {
 public:
  Refus(QWidget* camp, QString motiu)
      : QObject(camp),
        camp_(camp),
        motiu_(std::move(motiu)),
        ajuda_(camp->toolTip()),
        paleta_(Cara_De(camp)->palette()) {
    Cara_De(camp)->setPalette(Paleta_De_Refus(paleta_));
    camp->setToolTip(Qt::mightBeRichText(motiu_) ? motiu_.toHtmlEscaped() : motiu_);
    if (auto* linia = qobject_cast<QLineEdit*>(Cara_De(camp))) {
      connect(linia, &QLineEdit::textChanged, this, [camp] { Treure_Refus(camp); });
    } else if (auto* notes = qobject_cast<QPlainTextEdit*>(camp)) {
      connect(notes, &QPlainTextEdit::textChanged, this, [camp] { Treure_Refus(camp); });
    }
  }
  void Treure() {
    Cara_De(camp_)->setPalette(paleta_);
    camp_->setToolTip(ajuda_);
    setParent(nullptr);
    deleteLater();
  }
  const QString& Motiu() const { return motiu_; }

 private:
  QWidget* camp_;
  QString motiu_;
  QString ajuda_;
  QPalette paleta_;
};

Refus* El_Seu(const QWidget* camp) {
  for (QObject* fill : camp->children())
    if (auto* refus = dynamic_cast<Refus*>(fill)) return refus;
  return nullptr;
}

}  // namespace

void Senyalar_Refus(QWidget* camp, const QString& motiu) {
  Treure_Refus(camp);
  const auto* refus = new Refus(camp, motiu.isEmpty() ? Paraules_De(camp) : motiu);
  Posar_Nota(camp, refus->Motiu());
}

void Treure_Refus(QWidget* camp) {
  Refus* refus = El_Seu(camp);
  if (refus == nullptr) return;
  refus->Treure();
  if (Nota* nota = Nota_De(Formulari_De(camp))) nota->Amagar();
}

QString Refus_De(const QWidget* camp) {
  const Refus* refus = El_Seu(camp);
  return refus == nullptr ? QString() : refus->Motiu();
}
