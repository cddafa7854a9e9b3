// The windows that hold the forms inside the main window: their sizes, their place and which one is in front.
#pragma once

class Formulari;
class QMdiArea;
class QMdiSubWindow;

// The window of a form that is shown, or null.
QMdiSubWindow* Subfinestra(const Formulari* formulari);

// A window for the form, inside the area: of the size that the user gave it, or of what the form asks for; one that
// wants all the room takes it. Its texts are there already.
void Collocar(QMdiArea& area, Formulari* formulari);
// The texts of the form have changed: the window grows by what they need, unless the user gave it its size.
void Encabir_Textos(QMdiArea& area, const Formulari* formulari);
// The area has another size: no window hangs out of it.
void Encabir_Finestres(QMdiArea& area);
// For the next time that this user opens the form; before it goes. Only a size that the user gave is remembered.
void Recordar_Mida(const Formulari* formulari);

// The window that was in front last among those that can be used, but for `menys`; null when there is none.
QMdiSubWindow* Del_Davant_Abans(const QMdiArea& area, const QMdiSubWindow* menys);
