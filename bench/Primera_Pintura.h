// When a window has really appeared: its first painting. The process then tells its memory to whoever measures it.
#pragma once

#include <QObject>

class Primera_Pintura : public QObject {
 public:
  // Of the widget of this name. Prints the resident memory (KiB) and ends the process.
  explicit Primera_Pintura(const char* nom);
  bool eventFilter(QObject* objecte, QEvent* event) override;

 private:
  const QString nom_;
};
