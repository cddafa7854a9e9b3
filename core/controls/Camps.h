// Entering and leaving fields, as the forms see it: the routine of the field that is left runs before that of the field
// that is entered, and neither runs because another window, a menu or a box came in between.
#pragma once

#include <QWidget>
#include <functional>

// `rutina` runs when the field is left for another of the same window.
void En_Sortir(QWidget* camp, std::function<void()> rutina);
// `rutina` runs when the field is entered from another of the same window.
void En_Entrar(QWidget* camp, std::function<void()> rutina);

// The same routines for a field that another form has written, wherever the focus is: as if the user had entered it, or
// had typed it and left.
void Entrar_Al_Camp(QWidget* camp);
void Deixar_Camp(QWidget* camp);

// The field refuses what it holds: it takes the focus back with its text selected. Until then no other field counts as
// entered or left. Nothing is refused to a user who goes to the form's B_Exit.
void Retenir_Focus(QWidget* camp);
bool Focus_Retingut();

// The field and its whole text, ready to be typed over.
void Posar_Focus(QWidget* camp);
