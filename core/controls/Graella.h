// The data grid of lists and documents: a table over a recordset, whose columns are told once.
//
// Rows alternate two colours; a row may take a named style (OK, Yo, Actual, Baixa). A click on a header sorts by its
// field, ascending, by reopening the recordset. Numbers are right-aligned under their mask. Only what is visible is
// formatted, so that 100,000 rows scroll without a pause. Where a form allows it, rows are edited in place.
#pragma once

#include <QTableView>
#include <functional>
#include <vector>

#include "core/dades/Recordset.h"

struct Columna_Graella {
  const char* camp;   // column of the recordset
  int amplada;        // twips; 0 hides the column
  const char* titol;  // Catalan caption; TEXTS replaces it
  bool a_la_dreta = false;
  const char* mascara = "";  // "#,##0.00", "0.00"; empty: as it is. Dates are DD/MM/YYYY
  bool casella = false;      // a boolean, shown as a tick
  bool opcional = false;     // hidden when the statement does not give its field
};

// What a combo column takes: a code, and the text that it shows.
struct Opcio_Graella {
  QString codi;
  QString text;
};

class Model_Recordset;

class Graella : public QTableView {
  Q_OBJECT
 public:
  explicit Graella(QWidget* pare = nullptr);

  void Columnes(const std::vector<Columna_Graella>& columnes);
  // Shows the recordset (owned by the form). Null detaches.
  void Lligar(Recordset* rs);
  // After a requery or a filter: repaints and follows the recordset's current row.
  void Refrescar();
  // The style of a row, by its number from 0: the name of one of the styles, or empty.
  void Estil_De_Fila(std::function<QString(std::int64_t fila)> estil);

  std::int64_t Files() const;
  std::int64_t Fila_Actual() const;     // from 0; -1 none. The recordset's current row follows it
  void Anar_A_Fila(std::int64_t fila);  // makes it current, in view
  QString Text_Cella(std::int64_t fila, const QString& camp) const;  // a tick is on or off
  QString Estil(std::int64_t fila) const;
  int Columna_De_Camp(const QString& camp) const;  // -1 none
  Valor Valor_Actual(const char* camp) const;      // of the current row; null without one
  void Titol_Columna(int index, const QString& titol);
  QString Titol_Columna(int index) const;

  // Rows may be changed and added in the grid, or only read. A row is written when it is left; one that is refused
  // stays in edit with what was typed, and Esc gives it up; one that another terminal changed is read again. Enter goes
  // to the next cell.
  void Permetre_Canvis(bool permes);
  void Desplegable(const QString& camp, const std::vector<Opcio_Graella>& opcions);
  bool En_Edicio() const;
  // Writes the row in edit, under the guard of events. False when it was refused: it is still in edit.
  bool Desar_Fila();
  void Descartar_Fila();

  // Reopens the recordset on its statement cut at ORDER BY plus this field.
  void Ordenar_Per(const QString& camp);

  // The widths that the user gave to the columns, remembered by user, form and grid.
  void Desar_Amplades() const;
  void Recuperar_Amplades();

 Q_SIGNALS:
  void Doble_Clic(std::int64_t fila);  // also Enter on a row

 protected:
  void currentChanged(const QModelIndex& actual, const QModelIndex& anterior) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool edit(const QModelIndex& index, EditTrigger motiu, QEvent* event) override;
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint com) override;

 private:
  QString Nom_Formulari() const;
  int Amplada_Propia(int columna) const;
  void Deixar_Fila(int fila);
  void Deixar_Graella(const QWidget* ara);
  void Avancar();
  void Rellegir();
  Model_Recordset* model_;
};
