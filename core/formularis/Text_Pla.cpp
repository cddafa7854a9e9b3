#include "core/formularis/Text_Pla.h"

#include <QEvent>
#include <QLabel>

// A label is polished before it is measured, which is when markup would be read. Tooltips and the texts of boxes are
// labels too.
bool Text_Pla::eventFilter(QObject* objecte, QEvent* event) {
  if (event->type() == QEvent::Polish) {
    auto* etiqueta = qobject_cast<QLabel*>(objecte);
    if (etiqueta != nullptr && etiqueta->textFormat() == Qt::AutoText) etiqueta->setTextFormat(Qt::PlainText);
  }
  return QObject::eventFilter(objecte, event);
}
