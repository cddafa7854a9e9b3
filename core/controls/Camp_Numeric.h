// A numeric field: its mask, the period key gives a comma, text that is no number is told apart.
#pragma once

#include <QLineEdit>
#include <string>

class Camp_Numeric : public QLineEdit {
  Q_OBJECT
 public:
  explicit Camp_Numeric(QWidget* pare = nullptr);
  void Mascara(const char* mascara);
  bool Es_Numeric() const;
  double Numero() const;      // 0 when it is no number
  void Numero(double valor);  // under the mask

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  std::string mascara_;
};
