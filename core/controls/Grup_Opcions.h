// An option set: radio buttons by index, in the order of the form. OPT
#pragma once

#include <QGroupBox>
#include <QList>

class QRadioButton;

class Grup_Opcions : public QGroupBox {
  Q_OBJECT
 public:
  explicit Grup_Opcions(QWidget* pare = nullptr);
  int Opcio() const;  // from 0; -1 none
  void Opcio(int index);
  void Titol_Opcio(int index, const QString& titol);
  QList<QRadioButton*> Opcions() const;

 Q_SIGNALS:
  void Triada(int index);

 protected:
  void childEvent(QChildEvent* event) override;
};
