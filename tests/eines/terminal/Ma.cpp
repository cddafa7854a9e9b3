#include "tests/eines/terminal/Ma.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QKeySequence>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QPointer>
#include <QtTest>
#include <algorithm>
#include <iterator>

#include "tests/eines/terminal/Cercar.h"
#include "tests/eines/terminal/Servidor.h"

namespace {

constexpr int paciencia = 500;  // ms that a screen may take to give the focus to a window

struct Tecla {
  const char* nom;
  Qt::Key tecla;
  Qt::KeyboardModifier amb;
  const char* text;
};

// Keys whose name here is not Qt's, or that carry a text.
const Tecla tecles[] = {
    {"Enter", Qt::Key_Return, Qt::NoModifier, "\r"},
    {"KeypadEnter", Qt::Key_Enter, Qt::KeypadModifier, "\r"},
    {"Tab", Qt::Key_Tab, Qt::NoModifier, "\t"},
    {"Shift+Tab", Qt::Key_Backtab, Qt::ShiftModifier, ""},
    {"Period", Qt::Key_Period, Qt::NoModifier, "."},
    {"Comma", Qt::Key_Comma, Qt::NoModifier, ","},
    {"KeypadDecimal", Qt::Key_Period, Qt::KeypadModifier, "."},
    {"Space", Qt::Key_Space, Qt::NoModifier, " "},
};

QWidget& Receptor() {
  QWidget* receptor = QApplication::activePopupWidget();
  if (receptor == nullptr) receptor = QApplication::focusWidget();
  if (receptor == nullptr) receptor = QApplication::activeWindow();
  if (receptor == nullptr) throw Error_Guio(QStringLiteral("no window takes the keys"));
  return *receptor;
}

// A button that is pressed by its key stays down for a moment, and does its work when it comes up.
bool Hi_Ha_Boto_Premut() {
  const QWidgetList tots = QApplication::allWidgets();
  return std::any_of(tots.begin(), tots.end(), [](const QWidget* peca) {
    const auto* boto = qobject_cast<const QAbstractButton*>(peca);
    return boto != nullptr && boto->isVisible() && boto->isDown();
  });
}

// What a key sets in motion ends before the next one: no person is faster than the windows that a key shows.
void Envia(Qt::Key tecla, const QString& text, Qt::KeyboardModifiers amb) {
  QTest::sendKeyEvent(QTest::Click, &Receptor(), tecla, text, amb);
  Calmar();
  constexpr int pas = 10;  // ms
  for (int espera = 0; espera < paciencia && (amb & Qt::AltModifier) != 0 && Hi_Ha_Boto_Premut(); espera += pas)
    QTest::qWait(pas);
}

void Prem_Combinacio(const QString& nom) {
  const QKeySequence sequencia = QKeySequence::fromString(nom, QKeySequence::PortableText);
  if (sequencia.count() != 1 || sequencia[0].key() == Qt::Key_unknown)
    throw Error_Guio(QStringLiteral("%1 is no key").arg(nom));
  const Qt::KeyboardModifiers amb = sequencia[0].keyboardModifiers();
  const bool lletra = nom.size() == 1 || (amb == Qt::ShiftModifier && nom.size() == 7);
  Envia(sequencia[0].key(), lletra ? nom.right(1) : QString(), amb);
}

}  // namespace

void Prem_Tecla(const QString& nom) {
  for (const Tecla& tecla : tecles)
    if (nom == QLatin1String(tecla.nom)) return Envia(tecla.tecla, QString::fromUtf8(tecla.text), tecla.amb);
  Prem_Combinacio(nom);
}

void Tecleja(const QString& text) {
  for (const QChar lletra : text) {
    if (lletra == u'\n') {
      Envia(Qt::Key_Return, QStringLiteral("\r"), Qt::NoModifier);
      continue;
    }
    const auto amb = lletra.isUpper() ? Qt::ShiftModifier : Qt::NoModifier;
    Envia(static_cast<Qt::Key>(lletra.toUpper().unicode()), lletra, amb);
  }
}

void Selecciona_Tot() {
  Envia(Qt::Key_A, QString(), Qt::ControlModifier);
}

void Enfoca(QWidget& control) {
  QWidget& camp = Camp_De_Text(control);
  if (Te_Focus(camp)) return;
  if (auto* area = qobject_cast<QPlainTextEdit*>(&camp)) {
    Clica_Al_Mig(*area->viewport());
  } else if (qobject_cast<QLineEdit*>(&camp) != nullptr) {
    Clica_Al_Mig(camp);
  } else {
    camp.setFocus(Qt::TabFocusReason);
  }
  Calmar();
}

bool Te_Focus(const QWidget& control) {
  const QWidget* amb_focus = QApplication::focusWidget();
  return control.hasFocus() || (amb_focus != nullptr && control.isAncestorOf(amb_focus));
}

void Exigeix_Focus(QWidget& control, const QString& adreca) {
  Enfoca(control);
  if (Te_Focus(Camp_De_Text(control))) return;
  const QWidget* amb_focus = QApplication::focusWidget();
  throw Error_Guio(QStringLiteral("the focus does not go to %1 but is on %2")
                       .arg(adreca, amb_focus == nullptr ? QStringLiteral("nothing") : amb_focus->objectName()));
}

// Pressing a button takes the focus from a field, which may have its say before the button is let go.
void Clica(QWidget& control, const QPoint& on, Qt::KeyboardModifiers amb) {
  const QPointer<QWidget> viu(&control);
  QTest::mousePress(&control, Qt::LeftButton, amb, on);
  Calmar();
  if (viu) QTest::mouseRelease(&control, Qt::LeftButton, amb, on);
}

void Clica_Al_Mig(QWidget& control) {
  Clica(control, control.rect().center());
}

// The two clicks of a person: the window hears of the first one too.
void Clica_Dos_Cops(QWidget& control, const QPoint& on) {
  const QPointer<QWidget> viu(&control);
  Clica(control, on);
  if (viu) QTest::mouseDClick(&control, Qt::LeftButton, Qt::NoModifier, on);
}

void Activa_Alguna_Finestra() {
  const QWidget* activa = QApplication::activeWindow();
  if ((activa != nullptr && activa->isVisible()) || QApplication::activePopupWidget() != nullptr) return;
  QWidget* finestra = QApplication::activeModalWidget();
  if (finestra == nullptr) finestra = &Finestra_Principal();
  if (!finestra->isVisible()) return;
  finestra->activateWindow();
  // Where other programs share the screen the focus may never come: the window counts as active all the same.
  if (!QTest::qWaitForWindowActive(finestra, paciencia)) QApplication::setActiveWindow(finestra);
  Calmar();
}
