// Finds what a script names: forms, their controls and menu entries, whatever the case of their letters. Raises
// Error_Guio with what is in the way when something is not there or cannot be used as a person would.
#pragma once

#include <QAction>
#include <QMainWindow>
#include <QWidget>

#include "tests/eines/guio/Error_Guio.h"

class Graella;

QMainWindow& Finestra_Principal();
// The open window of that name, or null.
QWidget* Finestra_Oberta(const QString& nom);
QWidget& Finestra(const QString& nom);

// A control by FORM.CONTROL.
QWidget& Control(const QString& adreca);
// The same, seen, enabled and not behind a modal window.
QWidget& Control_Usable(const QString& adreca);
void Exigir_Usable(QWidget& control, const QString& adreca);
// The part of a composite control that takes the keys.
QWidget& Camp_De_Text(QWidget& control);

QAction& Entrada_De_Menu(const QString& nom);
bool Entrada_Assolible(const QAction& entrada);

template <class Tipus>
Tipus& De_Tipus(QWidget& control, const QString& adreca, const char* que) {
  auto* vist = qobject_cast<Tipus*>(&control);
  if (vist == nullptr)
    throw Error_Guio(QStringLiteral("%1 is no %2 but a %3")
                         .arg(adreca, QString::fromUtf8(que), QString::fromUtf8(control.metaObject()->className())));
  return *vist;
}

int Numero_De(const QString& text);
// A row of the grid, counted from 1 in scripts and from 0 here; the new row too, while it is in edit.
int Fila_De(const Graella& graella, const QString& text);
