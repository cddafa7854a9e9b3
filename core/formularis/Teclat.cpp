#include "core/formularis/Teclat.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

// Fields where Enter is a line break: the form in capitals, the field by its exact name.
struct Camp_De_Text_Llarg {
  const char16_t* formulari;
  const char16_t* camp;
};
constexpr Camp_De_Text_Llarg camps_amb_salts[] = {
    {u"F_DETALL_LINIA", u"TXT_DESCRIPCIO_PL"},
    {u"F_CLIENT", u"TXT_NOTES_CLID"},
};

bool Admet_Salts(const QWidget& formulari, const QWidget& camp) {
  for (const auto& [nom, nom_camp] : camps_amb_salts) {
    if (formulari.objectName().toUpper() == QStringView(nom) && camp.objectName() == QStringView(nom_camp)) return true;
  }
  return false;
}

// A button that opens the list of the field beside it is for the mouse, and for Tab.
bool Obre_Una_Llista(const QWidget* camp) {
  const auto* boto = qobject_cast<const QAbstractButton*>(camp);
  return boto != nullptr && boto->text().remove(u'&') == u"...";
}
constexpr int maxim_passos = 20;  // a form of nothing but such buttons

}  // namespace

bool Punt_Per_Coma(const QKeyEvent& tecla, QLineEdit& camp) {
  const bool punt = tecla.text() == u".";
  if ((!punt && tecla.text() != u",") || camp.isReadOnly()) return false;
  const int on = camp.hasSelectedText() ? camp.selectionStart() : camp.cursorPosition();
  const int fins_a = camp.hasSelectedText() ? camp.selectionEnd() : on;
  const QString abans = camp.text().left(on);
  const bool segona = abans.contains(u',');
  const bool de_milers = punt && (segona || camp.text().indexOf(u',', fins_a) >= 0);
  if (segona) camp.setSelection(0, fins_a);
  camp.insert((segona ? QString(abans).replace(u',', u'.') : QString()) + (de_milers ? u'.' : u','));
  return true;
}

bool Enter_Avanca(const QKeyEvent& tecla, QWidget& formulari) {
  if (tecla.key() != Qt::Key_Return && tecla.key() != Qt::Key_Enter) return false;
  QWidget* camp = formulari.focusWidget();
  if (camp != nullptr && Admet_Salts(formulari, *camp)) return false;
  auto* boto = qobject_cast<QAbstractButton*>(camp);
  if (boto != nullptr && !boto->isCheckable()) {
    boto->click();
    return true;
  }
  int passos = 0;
  do {
    Premer_Tab(formulari);
  } while (Obre_Una_Llista(formulari.focusWidget()) && ++passos < maxim_passos);
  if (auto* text = qobject_cast<QLineEdit*>(formulari.focusWidget())) text->selectAll();
  return true;
}

void Premer_Tab(QWidget& formulari) {
  QWidget* on = formulari.focusWidget() != nullptr ? formulari.focusWidget() : &formulari;
  QKeyEvent baixa(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
  QCoreApplication::sendEvent(on, &baixa);
}
