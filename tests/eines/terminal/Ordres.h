// What a terminal can be told: the commands of a script that drive windows, by their names. Each raises Error_Guio when
// it cannot be carried out.
#pragma once

#include <QStringList>

void Executar_Ordre(const QStringList& mots);

// The commands of grids (Ordres_Graella.cpp).
void Ordre_Row(const QStringList& mots);
void Ordre_Rows(const QStringList& mots);
void Ordre_Doubleclick(const QStringList& mots);
void Ordre_Header(const QStringList& mots);
void Ordre_Cell(const QStringList& mots);
void Ordre_Leave_Row(const QStringList& mots);

// `expect` of what windows show (Comprovacions.cpp).
void Ordre_Expect(const QStringList& mots);
