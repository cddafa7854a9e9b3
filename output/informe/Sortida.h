// Laid-out pages on their way out: a PDF file, a printer, the user.
#pragma once

#include <QString>
#include <functional>

struct Pagines;
class QPrinter;
class QWidget;

// A text as the name of a file: what cannot stand in one is a hyphen.
QString Nom_De_Fitxer(QString text);
// The file appears complete or not at all; raises 0x80004005 when it cannot be written.
void Escriure_PDF(const Pagines& pagines, const QString& fitxer);
// Paper and name of the job, before anything is asked about the printer.
void Preparar_Impressora(const Pagines& pagines, QPrinter& impressora);
// The pages that the printer's range tells. Raises 0x80004005 when the printer takes nothing.
void Enviar_A_Impressora(const Pagines& pagines, QPrinter& impressora);

// What a print command does: asks the user what to do with the pages.
void Imprimir_Pagines(const Pagines& pagines);
// For scripts: print jobs go to files of this folder instead of the dialog. Empty: back to the user.
void Fixar_Carpeta_Treballs(const QString& carpeta);
// For scripts too: how many copies the next job is asked for, none when the user changes their mind. Empty: one.
void Fixar_Copies_Treballs(std::function<int()> copies);
int Treballs_Impresos();
QString Darrer_Treball();  // file of the last job; empty: none

// Asks what to do with the pages: print, look at them, save them as PDF, nothing.
void Dialeg_Impressio(const Pagines& pagines, QWidget* pare);
// Each is true when the pages were printed or saved.
bool Previsualitzar(const Pagines& pagines, QWidget* pare);      // on the screen, with print and save
bool Demanar_Impressora(const Pagines& pagines, QWidget* pare);  // the system's print dialog, then the printer
bool Demanar_PDF(const Pagines& pagines, QWidget* pare);         // asks for a file, writes it, says where it is
