#include "core/controls/Camp_Numeric.h"

#include <QKeyEvent>

#include "core/dades/Nombre_Escrit.h"
#include "core/dades/Numeros.h"
#include "core/formularis/Teclat.h"

Camp_Numeric::Camp_Numeric(QWidget* pare) : QLineEdit(pare) {
  setAlignment(Qt::AlignRight);
}

void Camp_Numeric::Mascara(const char* mascara) {
  mascara_ = mascara;
}
bool Camp_Numeric::Es_Numeric() const {
  return Nombre_Escrit(text().toStdString()).has_value();
}
double Camp_Numeric::Numero() const {
  return Nombre_Escrit(text().toStdString()).value_or(0);
}
void Camp_Numeric::Numero(double valor) {
  setText(QString::fromStdString(Format_Numero(valor, mascara_)));
}

void Camp_Numeric::keyPressEvent(QKeyEvent* event) {
  if (!Punt_Per_Coma(*event, *this)) return QLineEdit::keyPressEvent(event);
  event->accept();
}
