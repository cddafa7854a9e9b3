// Every text is shown as it is written: what a row or TEXTS holds is never read as markup, in no label, tooltip or box
// of the program. A label that is given a format of its own keeps it.
#pragma once

#include <QObject>

class Text_Pla : public QObject {
 public:
  explicit Text_Pla(QObject* pare) : QObject(pare) {}

 protected:
  bool eventFilter(QObject* objecte, QEvent* event) override;
};
