// Two fields in a window, so that one can be left for the other.
#pragma once

#include <QApplication>
#include <QLineEdit>
#include <QVBoxLayout>

class Finestra_De_Camps {
 public:
  explicit Finestra_De_Camps(QWidget* camp) : camp_(camp) {
    auto* columna = new QVBoxLayout(&finestra_);
    columna->addWidget(camp_);
    columna->addWidget(&altre_);
    finestra_.show();
    QApplication::setActiveWindow(&finestra_);
    camp_->setFocus();
  }
  void Sortir() {
    altre_.setFocus(Qt::TabFocusReason);
    QApplication::processEvents();
  }
  bool Te_Focus() const { return camp_->hasFocus() || camp_->isAncestorOf(QApplication::focusWidget()); }

 private:
  QWidget finestra_;
  QLineEdit altre_;
  QWidget* camp_;
};
