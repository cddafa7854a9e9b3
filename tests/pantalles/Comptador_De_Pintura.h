// How much of a window is painted while something is done.
#pragma once

#include <QApplication>
#include <QPaintEvent>
#include <QRegion>
#include <QWidget>

// Adds up what is painted of the window: each point once for every time that the window shows itself anew.
class Comptador_De_Pintura : public QObject {
 public:
  explicit Comptador_De_Pintura(QWidget* finestra) : finestra_(finestra) { qApp->installEventFilter(this); }
  void Comencar() {
    Acabar_Passada();
    punts_ = 0;
  }
  double Finestres() {
    Acabar_Passada();
    return punts_ / (static_cast<double>(finestra_->width()) * finestra_->height());
  }

 protected:
  bool eventFilter(QObject* objecte, QEvent* event) override {
    if (objecte == finestra_ && event->type() == QEvent::UpdateRequest) Acabar_Passada();
    auto* control = event->type() == QEvent::Paint ? qobject_cast<QWidget*>(objecte) : nullptr;
    if (control != nullptr && control->window() == finestra_) {
      const QPoint lloc = control->mapTo(finestra_, QPoint());
      passada_ += static_cast<QPaintEvent*>(event)->region().translated(lloc);
    }
    return false;
  }

 private:
  void Acabar_Passada() {
    for (const QRect& tros : passada_) punts_ += static_cast<double>(tros.width()) * tros.height();
    passada_ = {};
  }
  QWidget* finestra_;
  QRegion passada_;
  double punts_ = 0;
};
