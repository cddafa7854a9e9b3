#include "core/formularis/Traduccio.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QTabWidget>
#include <functional>
#include <vector>

#include "core/M_Textos.h"
#include "core/controls/Controls.h"
#include "core/controls/Graella.h"
#include "core/formularis/Finestra_Principal.h"
#include "core/formularis/Formulari.h"
#include "core/formularis/Formularis_Oberts.h"
#include "core/formularis/Llengua_Qt.h"

namespace {

constexpr int propietat_inexistent = 438;

struct Adreca {
  QString control;
  int index = -1;
};

// L_*.*, G_*.*, SST_*.* and OPT*.* name an element of a control.
Adreca Llegir_Adreca(const QString& text) {
  static const QRegularExpression element(QStringLiteral("^((?:L_|G_|SST_|OPT)[^.]*)\\.(\\d+)$"),
                                          QRegularExpression::CaseInsensitiveOption);
  const auto trobat = element.match(text);
  if (!trobat.hasMatch()) return {text, -1};
  return {trobat.captured(1), trobat.captured(2).toInt()};
}

QObject* Cercar_Control(QWidget* finestra, const QString& nom) {
  if (finestra->objectName().compare(nom, Qt::CaseInsensitive) == 0) return finestra;
  for (QObject* fill : finestra->findChildren<QObject*>()) {
    if (fill->objectName().compare(nom, Qt::CaseInsensitive) == 0) return fill;
  }
  return nullptr;
}

// Sets the text on its control; empty when the control has no such property.
using Posada = std::function<void()>;

Posada Posar_Titol(QObject* control, const QString& text, int index) {
  if (auto* graella = qobject_cast<Graella*>(control); graella != nullptr && index >= 0) {
    return [=] { graella->Titol_Columna(index, text); };
  }
  if (auto* opcions = qobject_cast<Grup_Opcions*>(control); opcions != nullptr && index >= 0) {
    return [=] { opcions->Titol_Opcio(index, text); };
  }
  if (auto* accio = qobject_cast<QAction*>(control)) return [=] { accio->setText(text); };
  if (auto* menu = qobject_cast<QMenu*>(control)) return [=] { menu->setTitle(text); };
  if (auto* etiqueta = qobject_cast<QLabel*>(control)) return [=] { etiqueta->setText(text); };
  if (auto* boto = qobject_cast<QAbstractButton*>(control)) return [=] { boto->setText(text); };
  if (auto* grup = qobject_cast<QGroupBox*>(control)) return [=] { grup->setTitle(text); };
  if (qobject_cast<Formulari*>(control) != nullptr || qobject_cast<Finestra_Principal*>(control) != nullptr) {
    return [=] { static_cast<QWidget*>(control)->setWindowTitle(text); };
  }
  return {};
}

Posada Posar_Text(QObject* control, const QString& text) {
  if (auto* camp = qobject_cast<QLineEdit*>(control)) return [=] { camp->setText(text); };
  if (auto* llarg = qobject_cast<QPlainTextEdit*>(control)) return [=] { llarg->setPlainText(text); };
  return {};
}

Posada Posar_Pestanya(QObject* control, const QString& text, int index) {
  auto* pestanyes = qobject_cast<QTabWidget*>(control);
  if (pestanyes == nullptr || index < 0) return {};
  return [=] { pestanyes->setTabText(index, text); };
}

Posada Posar_Ajuda(QObject* control, const QString& text) {
  if (auto* accio = qobject_cast<QAction*>(control)) return [=] { accio->setToolTip(text); };
  if (auto* widget = qobject_cast<QWidget*>(control)) return [=] { widget->setToolTip(text); };
  return {};
}

Posada Posar_Propietat(QObject* control, const QString& propietat, const QString& text, int index) {
  if (propietat == u"CAPTION") return Posar_Titol(control, text, index);
  if (propietat == u"TEXT") return Posar_Text(control, text);
  if (propietat == u"TABCAPTION") return Posar_Pestanya(control, text, index);
  if (propietat == u"TOOLTIPTEXT") return Posar_Ajuda(control, text);
  return [] {};  // a property that the system does not know is no text of a control
}

QWidget* Finestra_De_Nom(const QString& nom) {
  if (nom == u"F_PRINCIPAL") return Finestra_Principal::Unica();
  return Formulari_De_Nom(nom);
}

}  // namespace

// All of them or none: a form with a wrong row keeps the words that it has.
void Traduir_Formulari(const QString& nom) {
  Traduir_Toolkit();
  QWidget* finestra = Finestra_De_Nom(nom.toUpper());
  if (finestra == nullptr) return;
  std::vector<Posada> posades;
  for (const auto& fila : Textos_De(nom.toUpper().toStdString())) {
    const Adreca adreca = Llegir_Adreca(QString::fromStdString(fila.control));
    QObject* control = Cercar_Control(finestra, adreca.control);
    if (control == nullptr) continue;
    const QString propietat = QString::fromStdString(fila.propietat).toUpper();
    posades.push_back(Posar_Propietat(control, propietat, QString::fromStdString(fila.text), adreca.index));
    if (posades.back()) continue;
    throw Error_Brollador(propietat_inexistent, "Traduir_Formulari", fila.control + ": " + fila.propietat);
  }
  for (const Posada& posada : posades) posada();
}
