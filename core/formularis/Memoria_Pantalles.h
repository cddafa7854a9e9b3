// What each user of this terminal did to the windows: their sizes and the widths of their columns, in a file of the
// data folder; and the printer of the terminal. A file that is missing, damaged or cannot be written is as good as an
// empty one. Before a login no form is remembered.
#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>
#include <optional>

std::optional<QSize> Mida_Recordada(const QString& formulari);
// Only what differs from `propia`, the size that the form asks for, takes room in the file.
void Recordar_Mida(const QString& formulari, QSize mida, QSize propia);

std::optional<int> Amplada_Recordada(const QString& formulari, const QString& graella, const QString& camp);
void Recordar_Amplada(const QString& formulari, const QString& graella, const QString& camp, int amplada, int propia);

// Place, size and state of the main window, which is there before anybody logs in: the terminal's, not a user's. Empty
// when nothing is remembered.
QByteArray Estat_Recordat();
void Recordar_Estat(const QByteArray& estat);

// What the last job of this terminal was printed with, whoever printed it.
struct Impressora_Recordada {
  QString nom = {};  // empty: the computer's own choice
  int copies = 1;
};
Impressora_Recordada Darrera_Impressora();
void Recordar_Impressora(const Impressora_Recordada& impressora);
