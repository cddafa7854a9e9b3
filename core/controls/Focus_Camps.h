// Entering and leaving fields, as the forms see it: the routine of the field that is left runs before that of the field
// that is entered, and neither runs because another window, a menu or a box came in between.
//
// Whatever acts on a form leaves its field first: a button pressed by its key or by the mouse, an entry of the menu,
// the closing of the form. No screen has to think of it.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>

class QAbstractButton;

// What leaving does: it takes what the field holds, or it does the work for which the field is left (a line is saved
// from its quantity). The work is not done because the form closes, or because a menu is used.
enum class Sortida { Pren_El_Valor, Fa_La_Feina };

// `rutina` runs when the field is left for another of the same window, or as told above.
void En_Sortir(QWidget* camp, std::function<void()> rutina, Sortida sortida = Sortida::Pren_El_Valor);
// `rutina` runs when the field is entered from another of the same window.
void En_Entrar(QWidget* camp, std::function<void()> rutina);

// The same routines for a field that another form has written, wherever the focus is: as if the user had entered it, or
// had typed it and left.
void Entrar_Al_Camp(QWidget* camp);
void Deixar_Camp(QWidget* camp);

// The field of a form where the user is, left without going anywhere. False when it refuses what it holds: it keeps the
// focus, and what was about to act does not.
bool Deixar_El_Camp_De(const QWidget* formulari);
// The same for a button that is pressed by its key.
bool Deixar_El_Camp_Pel_Boto(const QAbstractButton* boto);
// The same for a form that closes: nobody is kept in it.
void Deixar_El_Camp_En_Tancar(const QWidget* formulari);

// The field refuses what it holds: it looks it and says why (`motiu`, or the usual words for a field of its kind), and
// it takes the focus back with its text selected. Until then no other field counts as entered or left. The focus is not
// kept from a user who goes to the form's exit, or who clears the form.
void Retenir_Focus(QWidget* camp, const QString& motiu = {});
bool Focus_Retingut();

// The field and its whole text, ready to be typed over.
void Posar_Focus(QWidget* camp);

// Watches the application for the keys of buttons, and keeps the mouse wheel from changing a field that nobody is in.
// Once is enough.
void Vigilar_Aplicacio();
