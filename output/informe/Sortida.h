// Laid-out pages on their way out: a PDF file, a printer, the user.
#pragma once

#include <QString>

struct Pagines;
class QPrinter;
class QWidget;

// Raises 0x80004005 when the file cannot be written.
void Escriure_PDF(const Pagines& pagines, const QString& fitxer);
void Enviar_A_Impressora(const Pagines& pagines, QPrinter& impressora);

// Asks what to do with the pages: print, look at them, save them as PDF, nothing.
void Dialeg_Impressio(const Pagines& pagines, QWidget* pare);
// The pages on the screen, with print and save.
void Previsualitzar(const Pagines& pagines, QWidget* pare);
// The system's print dialog, then the printer.
void Demanar_Impressora(const Pagines& pagines, QWidget* pare);
// Asks for a file and writes it.
void Demanar_PDF(const Pagines& pagines, QWidget* pare);
