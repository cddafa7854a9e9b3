// A control that shows a column of a row and takes what the user puts there: text fields, numbers under their mask,
// check boxes, dates, combos of codes.
#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/dades/Recordset.h"

class Formulari;
class QWidget;

// What was typed, for a column of that type: an empty text is null. Raises 13 for a text where a number or a date has
// to be, 80040E14 for a code that no statement could name; `on` names the place.
Valor Llegir_Escrit(const QString& text, Tipus_Columna tipus, const QString& on);

class Lligam {
 public:
  Lligam(QWidget* control, Recordset& fila, const Camp& camp)
      : control_(control), fila_(&fila), columna_(camp.nom), tipus_(camp.tipus) {}

  QWidget* Control() const { return control_; }
  bool Es_De_Text() const;  // it is typed, not chosen

  void Mostrar();  // what the row holds
  // The control does not hold any more what Mostrar put there.
  bool Canviat() const;
  // What it holds is what the row has now: it was saved.
  void Recordar();
  // What it holds was put there by a rule, which will see to its being saved.
  void Posat_Per_Una_Regla();
  // The user typed or chose what it holds.
  bool Canviat_Per_L_Usuari() const;
  // Puts what it holds into the pending edit of the row: an empty field is null, an empty number 0. Raises as
  // Llegir_Escrit does.
  void Posar() const;
  // `rutina` runs when the user leaves it (a field) or chooses in it (a box, a date, a combo).
  void En_Canviar(const std::function<void()>& rutina) const;

 private:
  QString Estat() const;
  Valor Escrit() const;

  QWidget* control_;
  Recordset* fila_;
  std::string columna_;
  Tipus_Columna tipus_;
  QString mostrat_;
  std::optional<QString> de_regla_;
};

// The controls of a form that are named after a column of the recordset: TXT_, CHK_, DT_ or CMB_ and its name.
std::vector<Lligam> Lligams_De(const Formulari& formulari, Recordset& rs);
