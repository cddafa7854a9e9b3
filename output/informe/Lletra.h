// The letter of printed pages, measured in twips so that every device shows the same page.
#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <QStringList>

enum class Tinta { Fosca, Grisa, Clara, Negra };

struct Estil_Lletra {
  double punts = 9;
  bool negreta = false;
  Tinta tinta = Tinta::Fosca;
};

QFont Lletra(const Estil_Lletra& estil, double escala = 1);  // its pixel is a twip
QColor Color(Tinta tinta);
double Pas_De_Linia(const Estil_Lletra& estil);   // from one line to the next
double Base_De_Linia(const Estil_Lletra& estil);  // from the top of a line down to where its letters stand
double Amplada(const QString& text, const QFont& lletra);

struct Linia_Encongida {
  QString text;
  QFont lletra;
  double amplada;  // what the text takes
};
// One line that fits: smaller, down to `minim` of its size, then cut with an ellipsis. Line breaks become blanks.
Linia_Encongida Encongir(const QString& text, const Estil_Lletra& estil, double amplada, double minim);
// Lines broken between words, or inside a word longer than a line; of more than `maxim` the last ends in an ellipsis.
QStringList Partir_En_Linies(const QString& text, const Estil_Lletra& estil, double amplada, int maxim);
