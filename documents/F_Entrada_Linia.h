// The entry frame of a document editor, FR_NOVA: the fields of the line in progress, and what happens when each is
// left. The line reaches the database when the quantity is left, through the editor. Kinds differ in the suffix of the
// fields and in the masks of the prices.
#pragma once

#include <QObject>
#include <functional>

#include "documents/F_Preus_Linia.h"

class QGroupBox;
class QLineEdit;

struct Descripcio_Entrada {
  const char* sufix;  // AL; a transfer's fields have that of notes
  const std::vector<Camp_De_Preu>& preus = preus_de_venda;
};

class Entrada_Linia : public QObject {
  Q_OBJECT
 public:
  // What the frame has to know of the head and may ask of its editor.
  struct Editor {
    std::function<Capcalera_Oberta()> cap;
    std::function<bool()> desar;  // writes the line; false: it can be tried again as it is
  };
  Entrada_Linia(QGroupBox* marc, const Descripcio_Entrada& descripcio, Editor editor);

  Linia_Entrada Linia() const;
  void Netejar();
  // PVP from the net price under the last rates that were looked up.
  void Refer_PVP();
  // An order line was picked into the frame: its rates, and the focus where the user goes on.
  void Continuar_Comanda();
  QLineEdit* Article() const { return article_; }

 protected:
  bool eventFilter(QObject* objecte, QEvent* event) override;

 private:
  template <class Control>
  Control* Buscar(const char* nom) const;
  void Buscar_Altres(const Descripcio_Entrada& descripcio);
  void Deixar_Article();
  void Deixar_Unitats();
  Taxes_Linia Buscar_Taxes();
  void Recalcular(const Camp_De_Preu& quin);

  QGroupBox* marc_;
  QString sufix_;
  Editor editor_;
  Preus_Linia preus_;
  QLineEdit* article_;
  QLineEdit* descripcio_;
  QLineEdit* iva_article_;
  Camp_Numeric* unitats_;
  Camp_Numeric* dte_article_;
  QLineEdit* comanda_;  // only where lines serve orders
  QLineEdit* comanda_lin_;
  std::map<std::string, QLineEdit*> altres_;
  Taxes_Linia taxes_;  // the last ones looked up
};
