#include "tests/eines/terminal/Cercar.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>

#include "core/controls/Controls.h"
#include "core/controls/Graella.h"
#include "core/formularis/Formulari.h"
#include "core/formularis/Formularis_Oberts.h"

namespace {

bool Es_Diu(const QObject* objecte, const QString& nom) {
  return objecte->objectName().compare(nom, Qt::CaseInsensitive) == 0;
}

template <class Tipus>
Tipus* Fill_De_Nom(const QWidget& pare, const QString& nom) {
  for (auto* fill : pare.findChildren<Tipus*>())
    if (Es_Diu(fill, nom)) return fill;
  return nullptr;
}

void Exigir_Sense_Modal(const QWidget& control, const QString& adreca) {
  const QWidget* modal = QApplication::activeModalWidget();
  if (modal != nullptr && modal != &control && !modal->isAncestorOf(&control))
    throw Error_Guio(QStringLiteral("%1 is behind the open window \"%2\"").arg(adreca, modal->windowTitle()));
}

}  // namespace

QMainWindow& Finestra_Principal() {
  for (QWidget* finestra : QApplication::topLevelWidgets())
    if (auto* principal = qobject_cast<QMainWindow*>(finestra)) return *principal;
  throw Error_Guio(QStringLiteral("the program is not started"));
}

QWidget* Finestra_Oberta(const QString& nom) {
  QWidget* finestra = Formulari_De_Nom(nom);
  if (finestra == nullptr)
    for (QWidget* altra : QApplication::topLevelWidgets())
      if (Es_Diu(altra, nom)) finestra = altra;
  return finestra != nullptr && finestra->isVisible() ? finestra : nullptr;
}

QWidget& Finestra(const QString& nom) {
  QWidget* finestra = Finestra_Oberta(nom);
  if (finestra == nullptr) throw Error_Guio(QStringLiteral("%1 is not open").arg(nom));
  return *finestra;
}

QWidget& Control(const QString& adreca) {
  const qsizetype punt = adreca.indexOf(u'.');
  if (punt < 0) throw Error_Guio(QStringLiteral("%1 is no FORM.CONTROL").arg(adreca));
  const QWidget& finestra = Finestra(adreca.left(punt));
  auto* control = Fill_De_Nom<QWidget>(finestra, adreca.mid(punt + 1));
  if (control == nullptr)
    throw Error_Guio(QStringLiteral("%1 has no %2").arg(finestra.objectName(), adreca.mid(punt + 1)));
  return *control;
}

QWidget& Control_Usable(const QString& adreca) {
  QWidget& control = Control(adreca);
  Exigir_Usable(control, adreca);
  return control;
}

void Exigir_Usable(QWidget& control, const QString& adreca) {
  if (!control.isVisible()) throw Error_Guio(QStringLiteral("%1 is hidden").arg(adreca));
  if (!control.isEnabled()) throw Error_Guio(QStringLiteral("%1 is disabled").arg(adreca));
  Exigir_Sense_Modal(control, adreca);
}

QWidget& Camp_De_Text(QWidget& control) {
  if (auto* data = qobject_cast<Selector_Data*>(&control)) return *data->Camp_Text();
  if (auto* combo = qobject_cast<QComboBox*>(&control); combo != nullptr && combo->isEditable())
    return *combo->lineEdit();
  return control;
}

QAction& Entrada_De_Menu(const QString& nom) {
  const QMainWindow& principal = Finestra_Principal();
  if (auto* entrada = Fill_De_Nom<QAction>(principal, nom)) return *entrada;
  if (auto* menu = Fill_De_Nom<QMenu>(principal, nom)) return *menu->menuAction();
  throw Error_Guio(QStringLiteral("there is no menu entry %1").arg(nom));
}

// A person reaches an entry through the menus that hold it.
bool Entrada_Assolible(const QAction& entrada) {
  if (!entrada.isEnabled() || !entrada.isVisible()) return false;
  for (QObject* on : entrada.associatedObjects())
    if (auto* menu = qobject_cast<QMenu*>(on); menu != nullptr && !Entrada_Assolible(*menu->menuAction())) return false;
  return true;
}

int Numero_De(const QString& text) {
  bool be = false;
  const int numero = text.toInt(&be);
  if (!be) throw Error_Guio(QStringLiteral("%1 is no number").arg(text));
  return numero;
}

int Fila_De(const Graella& graella, const QString& text) {
  const int fila = Numero_De(text) - 1;
  const bool nova = graella.En_Edicio() && graella.currentIndex().row() == graella.Files();
  if (fila < 0 || fila >= graella.Files() + (nova ? 1 : 0))
    throw Error_Guio(QStringLiteral("the grid has %1 rows").arg(graella.Files()));
  return fila;
}
