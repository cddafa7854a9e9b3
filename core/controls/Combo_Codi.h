// A combo that shows a name and stands for the code behind it. CMB_*
#pragma once

#include <QComboBox>
#include <string>

class Connexio;

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
