// How the program looks: style, palette, the styles of rows. A dark desktop is followed; on a light one the colours are
// ours.
#pragma once

#include <QPalette>
#include <QVariant>

#include "core/formularis/Dibuixos.h"

class QApplication;
class QTableView;
class QWidget;

void Vestir(QApplication& aplicacio);
void Vestir_Formulari(QWidget* formulari);
// The palette of the program on a desktop that has this one.
QPalette Paleta_Per(const QPalette& escriptori);
// A table of few fixed rows that looks like the lists.
void Vestir_Taula(QTableView& taula);
// Behind the forms.
QColor Fons_De_L_Area();

// The look of a field that refuses what it holds, and the ink of the words that say why, in a palette of the desktop.
QPalette Paleta_De_Refus(QPalette paleta);
QColor Tinta_De_Refus(const QPalette& paleta);

// The look of a row of a grid by the name of its style; nothing for an unknown name.
QVariant Fons_Estil(const QString& estil);
QVariant Tinta_Estil(const QString& estil);
QVariant Lletra_Estil(const QString& estil);
