// Where a script takes the place of the person and of the printer: message boxes, the company chooser, print jobs.
#pragma once

#include <QString>

#include "core/Pantalla.h"

class Servidor;

// Boxes are told to `servidor`; a question that nobody answered fails the command under way.
void Posar_Ganxos(Servidor& servidor);
void Encuar_Resposta(Resposta resposta);
// How many copies the next print dialog is asked for; 0: it is cancelled.
void Encuar_Copies(int copies);
// What the next company chooser is answered; empty: none.
void Encuar_Empresa(const QString& nif);

// Starts the program, up to its login form; ends the process when the start fails, as the program does.
void Engegar_Programa();
