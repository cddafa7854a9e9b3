// Laid-out pages on their way out: a PDF file, a printer, the user.
#pragma once

#include <QString>

struct Pagines;
class QWidget;

// A text as the name of a file: what cannot stand in one is a hyphen.
QString Nom_De_Fitxer(QString text);
// The file appears complete or not at all; raises 0x80004005 when it cannot be written.
void Escriure_PDF(const Pagines& pagines, const QString& fitxer);
// What a print command does: asks the user what to do with the pages.
void Imprimir_Pagines(const Pagines& pagines);
// Asks what to do with the pages: print, look at them, save them as PDF, nothing.
void Dialeg_Impressio(const Pagines& pagines, QWidget* pare);
// Each is true when the pages were printed or saved.
bool Previsualitzar(const Pagines& pagines, QWidget* pare);  // on the screen, with print and save
bool Demanar_PDF(const Pagines& pagines, QWidget* pare);     // asks for a file, writes it, says where it is
