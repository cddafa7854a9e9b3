// The entry frame of a document editor, FR_NOVA: the fields of the line in progress, and what happens when each is
// left. The arithmetic is Calcular_Linia's; the line reaches the database when the quantity is left, through the
// editor.
#pragma once

#include <QObject>
#include <functional>

#include "documents/Documents.h"
#include "documents/M_Linies.h"

class Camp_Numeric;
class QGroupBox;
class QLineEdit;

class Entrada_Linia : public QObject {
  Q_OBJECT
 public:
  // What the frame has to know of the head and may ask of its editor.
  struct Editor {
    std::function<bool()> iva;    // CHK_IVA_*
    std::function<bool()> re;     // CHK_RE_*
    std::function<void()> desar;  // writes the line
  };
  // Finds the fields in the frame by the suffix of the kind's lines (AL).
  Entrada_Linia(QGroupBox* marc, const QString& sufix, Editor editor);

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
  enum Camp { Cost, Preu, Pvp, Marge, Descompte, quants_camps };
  template <class Control>
  Control* Buscar(const char* nom) const;
  void Deixar_Article();
  void Deixar_Preu(Camp camp);
  void Deixar_Unitats();
  void Recalcular(Camp camp);
  void Buscar_Taxes();

  QGroupBox* marc_;
  QString sufix_;
  Editor editor_;
  QLineEdit* article_;
  QLineEdit* descripcio_;
  QLineEdit* iva_article_;
  Camp_Numeric* preus_[quants_camps];
  Camp_Numeric* unitats_;
  Camp_Numeric* dte_article_;
  QLineEdit* comanda_;  // only where lines serve orders
  QLineEdit* comanda_lin_;
  Taxes_Linia taxes_;    // the last ones looked up
  double recordat_ = 0;  // of the price field that was entered last
};
