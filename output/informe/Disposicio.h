// Where the controls of a page header or of a report footer come to stand, once their texts are known: a text that
// takes more lines than its place pushes down what stands below it, one that is empty lets it rise.
#pragma once

#include <limits>

#include "output/informe/Informe.h"

struct Control_Disposat {
  const Estat_Control* estat;
  QRectF lloc;  // in its section
  QStringList linies;
  QFont lletra;
};

struct Seccio_Disposada {
  std::vector<Control_Disposat> controls;
  double alcada = 0;
};

constexpr int sense_maxim = std::numeric_limits<int>::max();

// The visible controls of a section that is `alcada` tall by its definition. Texts that grow stop at `maxim` lines.
Seccio_Disposada Disposar(const std::vector<Estat_Control>& estats, Seccio seccio, double alcada,
                          int maxim = sense_maxim);

// One line of a control, drawn smaller where it must be.
Linia_Encongida Linia_De(const QString& text, const Estat_Control& estat);
