// The search form of a kind of document: criteria with their defaults, and the buttons that open its list. The controls
// have the same names in every kind, but for the word of the kind in its number fields.
#pragma once

#include "core/formularis/Formulari.h"
#include "documents/M_Consultes.h"

class Camp_Numeric;
class Combo_Codi;
class QLineEdit;
class QPushButton;
class Selector_Data;

class Cerca_Document : public Formulari {
  Q_OBJECT
 public:
  using Formulari::Formulari;
  void Carregar() override;
  void Activar() override;
  Criteris_Cerca Criteris() const;

 protected:
  // Finds the controls of the .ui file: `paraula` is the kind's word (ALBARA), `llista` the form that the buttons open.
  void Muntar(const QString& paraula, const QString& llista, QPushButton* tots, QPushButton* pendents);

 private:
  void Netejar();
  void Obrir_Llista(bool nomes_pendents);

  QString llista_;
  Camp_Numeric* numero_entre_ = nullptr;
  Camp_Numeric* numero_y_ = nullptr;
  Selector_Data* data_entre_ = nullptr;
  Selector_Data* data_y_ = nullptr;
  Combo_Codi* client_ = nullptr;
  Camp_Numeric* import_entre_ = nullptr;
  Camp_Numeric* import_y_ = nullptr;
  QLineEdit* article_ = nullptr;
  QLineEdit* article_desc_ = nullptr;
};
