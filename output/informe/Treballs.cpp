#include "output/informe/Treballs.h"

#include "output/informe/Informe.h"
#include "output/informe/Sortida.h"

namespace {

QString carpeta_treballs;
std::function<int()> copies_treballs;
QString darrer_treball;
int impresos = 0;

}  // namespace

void Fixar_Carpeta_Treballs(const QString& carpeta) {
  carpeta_treballs = carpeta;
}
void Fixar_Copies_Treballs(std::function<int()> copies) {
  copies_treballs = std::move(copies);
}
bool Treballs_A_Fitxers() {
  return !carpeta_treballs.isEmpty();
}
int Demanar_Copies_Treball() {
  return copies_treballs ? copies_treballs() : 1;
}

bool Fer_Treball(const Pagines& pagines, int copies) {
  if (copies < 1) return false;
  Pagines totes = pagines;
  for (int copia = 1; copia < copies; ++copia)
    totes.pagines.insert(totes.pagines.end(), pagines.pagines.begin(), pagines.pagines.end());
  darrer_treball = QStringLiteral("%1/treball-%2.pdf").arg(carpeta_treballs).arg(++impresos);
  Escriure_PDF(totes, darrer_treball);
  return true;
}

int Treballs_Impresos() {
  return impresos;
}
QString Darrer_Treball() {
  return darrer_treball;
}
