// Small controls that the forms share, over Qt's own: promoted widgets of the .ui files.
#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QList>
#include <optional>
#include <string>

#include "core/dades/Recordset.h"

class Connexio;
class QRadioButton;

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

// A combo that shows a name and stands for the code behind it. CMB_*
constexpr int paper_nota = Qt::UserRole + 1;  // of its entries: the note beside the name

class Combo_Codi : public QComboBox {
  Q_OBJECT
 public:
  explicit Combo_Codi(QWidget* pare = nullptr);
  // Fills it from a statement; the user sees `camp_nom`, the value is `camp_codi`, and the open list may tell a note
  // beside the name. Nothing is chosen then.
  void Omplir(const std::string& sentencia, Connexio& connexio, const char* camp_codi, const char* camp_nom,
              const char* camp_nota = nullptr);
  std::string Codi() const;  // empty: none
  std::string Nom() const;
  void Posar(const std::string& codi, const std::string& nom);  // also a name that the list does not hold
  void Posar(const std::string& codi);                          // the name is that of the list, or the code itself
  void Triar(const std::string& codi, const std::string& nom);  // the same, as the user's choice
  // A text that is no entry chooses none, where otherwise it gives way to the choice.
  void Text_Estrany_Es_Cap() { text_estrany_es_cap_ = true; }

 Q_SIGNALS:
  void Triat();  // the user chose an entry, or none

 private:
  void Escollir(int index);
  void Deixar();
  QString codi_;
  QString nom_;
  bool text_estrany_es_cap_ = false;
};

// An option set: radio buttons by index, in the order of the form. OPT
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

// A numeric field: its mask, the period key gives a comma, text that is no number is told apart.
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
