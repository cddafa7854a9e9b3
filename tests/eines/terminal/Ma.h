// The hand of a script: real key and mouse events, as a person at the terminal would make them.
#pragma once

#include <QString>
#include <QWidget>

// One key with its modifiers where the focus is: Tab, Enter, Esc, Period, KeypadDecimal, F1, Ctrl+F...
void Prem_Tecla(const QString& nom);
// The text key by key where the focus is.
void Tecleja(const QString& text);
void Selecciona_Tot();
// Moves the focus there, by mouse into a text, else as Tab would. The form may take it back.
void Enfoca(QWidget& control);
// The same; raises when the focus is kept elsewhere.
void Exigeix_Focus(QWidget& control, const QString& adreca);
bool Te_Focus(const QWidget& control);

void Clica(QWidget& control, const QPoint& on, Qt::KeyboardModifiers amb = Qt::NoModifier);
void Clica_Al_Mig(QWidget& control);
void Clica_Dos_Cops(QWidget& control, const QPoint& on);

// Nobody but a window manager gives the focus back when a window goes.
void Activa_Alguna_Finestra();
