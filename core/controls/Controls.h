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

// A date that may be empty: typed as DD/MM/YYYY or picked from a calendar. DT_*
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

 private:
  void Deixar();
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

 Q_SIGNALS:
  void Triat();  // the user chose an entry, or none

 private:
  void Escollir(int index);
  void Deixar();
  QString codi_;
  QString nom_;
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
