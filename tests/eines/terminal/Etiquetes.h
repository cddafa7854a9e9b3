// What labels showed at some moment of the last command, also those of forms that have closed since.
#pragma once

#include <QString>

// Looks at every label that is painted from now on.
void Vigilar_Etiquetes();
// A new command: what was seen before does not count.
void Oblidar_Etiquetes();
// The texts that FORM.LABEL showed, in their order.
QStringList Textos_De_L_Etiqueta(const QString& adreca);
