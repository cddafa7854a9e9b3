// The printer of this terminal: which one the print dialog proposes, and what it was left with.
#pragma once

#include <QStringList>
#include <vector>

#include "core/formularis/Memoria_Pantalles.h"

struct Pagines;
class QPrinter;
class QWidget;

// What the dialog begins with: the printer of the last job while the computer still has it, else the default one (none:
// empty), and as many copies as the last time.
Impressora_Recordada Impressora_Proposada(const QStringList& disponibles, const QString& per_defecto);
// Paper and name of the job, before anything is asked about the printer.
void Preparar_Impressora(const Pagines& pagines, QPrinter& impressora);
// What the print dialog asked for, counted from 1: every page or those of its ranges, perhaps the last one first.
std::vector<int> Pagines_Demanades(const Pagines& pagines, const QPrinter& impressora);
// Raises 0x80004005 when the printer takes nothing.
void Enviar_A_Impressora(const Pagines& pagines, QPrinter& impressora);

bool Hi_Ha_Impressora();
QString Motiu_Sense_Impressora();  // for the button that prints, where there is none
// "HP LaserJet, 2 copies": what the dialog will propose. Empty without printers.
QString Impressora_I_Copies();
// The system's print dialog, then the printer; true when the pages were printed. Printer and copies are remembered.
bool Demanar_Impressora(const Pagines& pagines, QWidget* pare);
