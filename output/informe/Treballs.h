// Print jobs that go to files, so that scripts print without a printer and without anybody at the dialog.
#pragma once

#include <QString>
#include <functional>

struct Pagines;

namespace treballs {
constexpr int desdit = 0;     // whoever was asked changes their mind
constexpr int finestra = -1;  // the program's own window opens, and the script goes on in it
}  // namespace treballs

// Jobs go to files of this folder instead of the dialog. Empty: back to the user.
void Fixar_Carpeta_Treballs(const QString& carpeta);
// How many copies the next job is asked for, or one of the above. Empty: one.
void Fixar_Copies_Treballs(std::function<int()> copies);
bool Treballs_A_Fitxers();
int Demanar_Copies_Treball();
// False when there are no copies to print.
bool Fer_Treball(const Pagines& pagines, int copies);

int Treballs_Impresos();
QString Darrer_Treball();  // file of the last job; empty: none
