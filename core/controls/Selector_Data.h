// A day as people type it, and the field that holds one.
#pragma once

#include <QWidget>
#include <optional>

#include "core/dades/Valor.h"

class QLineEdit;

// A day as people type it: 1/9/2026, 1-9-26, 1.9.2026, 010926, 01092026. A year of two digits is of this century, or of
// the last one when it lies more than 30 years ahead. None when it is no day of the calendar.
std::optional<Data_Hora> Dia_Escrit(const QString& text);

// A date that may be empty: typed, or picked from a calendar (the arrow, Alt+Down or F4). DT_*
class Selector_Data : public QWidget {
  Q_OBJECT
 public:
  explicit Selector_Data(QWidget* pare = nullptr);
  std::optional<Data_Hora> Data() const;
  void Data(const std::optional<Data_Hora>& data);
  QString Text() const;
  QLineEdit* Camp_Text() { return camp_; }

 Q_SIGNALS:
  void Canviada();  // the user changed the date and left the field

 protected:
  bool eventFilter(QObject* objecte, QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Deixar();
  void Indicar_Forma();
  void Obrir_Calendari();
  QLineEdit* camp_;
  QString desada_;
};
