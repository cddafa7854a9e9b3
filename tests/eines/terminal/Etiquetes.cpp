#include "tests/eines/terminal/Etiquetes.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QMap>

namespace {

// Names of controls are found whatever the case of their letters.
QMap<QString, QStringList>& Vistes() {
  static QMap<QString, QStringList> vistes;
  return vistes;
}

class Vigia : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* objecte, QEvent* event) override {
    const auto* etiqueta = event->type() == QEvent::Paint ? qobject_cast<const QLabel*>(objecte) : nullptr;
    const QWidget* sobre = etiqueta == nullptr ? nullptr : etiqueta->parentWidget();
    for (; sobre != nullptr; sobre = sobre->parentWidget()) {
      if (sobre->objectName().isEmpty()) continue;
      QStringList& textos = Vistes()[(sobre->objectName() + u'.' + etiqueta->objectName()).toUpper()];
      if (textos.isEmpty() || textos.last() != etiqueta->text()) textos << etiqueta->text();
    }
    return QObject::eventFilter(objecte, event);
  }
};

}  // namespace

void Vigilar_Etiquetes() {
  QCoreApplication::instance()->installEventFilter(new Vigia(QCoreApplication::instance()));
}

void Oblidar_Etiquetes() {
  Vistes().clear();
}

QStringList Textos_De_L_Etiqueta(const QString& adreca) {
  return Vistes().value(adreca.toUpper());
}
