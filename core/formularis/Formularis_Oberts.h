// Form services that all screens share: single instances by name, parents disabled and requeried, rights, texts.
// Names are folded to upper case first.
#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "core/formularis/Traduccio.h"

class Formulari;
class QWidget;

// Forms by name (an empty factory takes the name out), so that a menu entry or another form can show one without
// knowing its class.
void Registrar_Formulari(const QString& nom, std::function<Formulari*()> fabrica);
bool Hi_Ha_Fabrica(const QString& nom);  // the screen exists in this program

// Loads the form if it is not loaded, shows it and brings it to the front. Null when no such screen exists.
Formulari* Mostrar_Formulari(const QString& nom);
// Loads it without showing it: for a form whose criteria another one reads.
Formulari* Carregar_Amagat(const QString& nom);
// The fields of a form that stands open are left, for it to show another row. False, with the form in front, when one
// of them refuses what it holds: the row that it shows has to stay.
bool Deixar_El_D_Abans(const QString& nom);
// The loaded form of that name, or null.
Formulari* Formulari_De_Nom(const QString& nom);
std::vector<Formulari*> Formularis_Carregats();
// Unloads a form (its own unload runs first). Nothing when it is not loaded.
void Descarregar_Formulari(const QString& nom);
// All of them, the one in front first. False, and no further, when one of them has work that it could not save: it
// stays.
bool Descarregar_Tots();

// Every opener, right after the form is shown: texts, parents disabled. Nothing for a name that is none of the system's
// forms.
void Obrir_Formulari(const QString& nom);
// The main window and every open form in the language of the session.
void Traduir_Formularis();
// The unload of every form: parents requeried and enabled, F_Cerca unloaded.
void Tancar_Formulari(const QString& nom);
void Aplicar_Drets(const QString& nom);
// Mostrar_Formulari and Obrir_Formulari under the busy pointer: what a menu entry does.
void Obrir(const QString& nom);

// The application's override cursor: the busy clock, and back to what it was before.
void Punter_Ocupat();
void Punter_Normal();
