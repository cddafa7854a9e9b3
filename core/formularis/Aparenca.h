// How the program looks: style, palette, the styles of rows, the pictures of buttons.
#pragma once

#include <QPushButton>
#include <QStyle>
#include <QVariant>

class QApplication;

void Vestir(QApplication& aplicacio);
void Vestir_Formulari(QWidget* formulari);

// The look of a row of a grid by the name of its style; nothing for an unknown name.
QVariant Fons_Estil(const QString& estil);
QVariant Tinta_Estil(const QString& estil);
QVariant Lletra_Estil(const QString& estil);

// Pictures of the buttons that stand on many forms, by what they do.
enum class Dibuix { Nou, Esborrar, Sortir, Imprimir, Amunt, Avall, Cercar, Netejar, Calcular, Pagar, Correu, Llista };
QIcon Icona(Dibuix dibuix);
QIcon Icona_Programa();
void Dibuixar(QPushButton* boto, Dibuix dibuix);
