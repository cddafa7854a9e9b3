// Pictures of the buttons that stand on many forms, by what they do: the desktop's own when its theme has them, else
// drawings of the program in the ink of its letters.
#pragma once

#include <QIcon>
#include <QPushButton>

enum class Dibuix {
  Nou,
  Esborrar,
  Sortir,
  Imprimir,
  Desar,
  Amunt,
  Avall,
  Primera,
  Anterior,
  Seguent,
  Darrera,
  Cercar,
  Ampliar,
  Reduir,
  Mida_Real,
  Amplada,
  Tot_El_Full,
  Netejar,
  Calcular,
  Correu,
  Llista
};

QIcon Icona(Dibuix dibuix);
QIcon Icona_Programa();
void Dibuixar(QPushButton* boto, Dibuix dibuix);
