// The data grid of lists and documents: a table over a recordset, whose columns are told once.
//
// Rows alternate two colours; a row may take a named style (OK, Yo, Actual, Baixa). A click on a header sorts by its
// field, ascending, by reopening the recordset. Numbers are right-aligned under their mask. Only what is visible is
// formatted, so that 100,000 rows scroll without a pause. Where a form allows it, rows are edited in place.
//
// By keyboard: letters go to the first row that begins with them in the column of the order, Home and End to the first
// and the last row, Ctrl+C copies the selected rows with their headings, Ctrl+Shift+C the cell. A grid that a right
// disables can still be scrolled, read and copied from.
#pragma once

#include <QElapsedTimer>

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
  bool fixa = false;         // never typed, also where rows are edited in place
  bool creix = false;        // takes the room that all leave; where none does, the last one
};

// What a combo column takes: a code, and the text that it shows.
struct Opcio_Graella {
  QString codi;
  QString text;
};

// What a table that is edited in place adds to the life of its rows. Each runs under the guard of events.
struct Passos_Fila {
  // A value has just been put into this column of a new row, which is the recordset's pending edit.
  std::function<void(const char* camp)> nova;
  // The row in edit is about to be written, left from this column. False gives its edit up.
  std::function<bool(const char* camp)> per_desar;
  // It has been written.
  std::function<void()> desada;
};

class Delegat_Graella;
class Model_Recordset;

class Graella : public QTableView {
  Q_OBJECT
 public:
  explicit Graella(QWidget* pare = nullptr);
  void keyboardSearch(const QString& lletres) override;
  void doItemsLayout() override;

  void Columnes(const std::vector<Columna_Graella>& columnes);
  // Shows the recordset (owned by the form). Null detaches.
  void Lligar(Recordset* rs);
  // After a requery or a filter: repaints and follows the recordset's current row.
  void Refrescar();
  // After a row has been added at the end: it is the current one, and only it is painted.
  void Mostrar_Fila_Afegida();
  // The style of a row, by its number from 0: the name of one of the styles, or empty.
  void Estil_De_Fila(std::function<QString(std::int64_t fila)> estil);
  // Rows where this boolean column is set take the style OK.
  void Files_OK(const std::string& camp);

  std::int64_t Files() const;
  std::int64_t Fila_Actual() const;     // from 0; -1 none. The recordset's current row follows it
  void Anar_A_Fila(std::int64_t fila);  // makes it current, in view
  // The first row that holds this text in the field, whatever its case. False when there is none.
  bool Anar_Al_Valor(const QString& camp, const QString& text);
  QString Text_Cella(std::int64_t fila, const QString& camp) const;  // a tick is on or off
  QString Text_Mostrat(std::int64_t fila, int columna) const;        // as it is painted, in one line
  QString Estil(std::int64_t fila) const;
  int Columna_De_Camp(const QString& camp) const;  // -1 none
  Valor Valor_Actual(const char* camp) const;      // of the current row; null without one
  void Titol_Columna(int index, const QString& titol);
  QString Titol_Columna(int index) const;
  int Amplada_Donada(int columna) const;  // pixels, before one takes what is left of the width

  // A list of which several rows are taken: it opens with a current row, in a frame, and no selected one.
  void Seleccio_Multiple(bool multiple);
  std::vector<std::int64_t> Files_Seleccionades() const;  // from 0, in their order
  QString Compte() const;     // how many rows, and how many selected; in the language of the session
  QString Text_Buit() const;  // what an empty grid says instead of rows; empty when there are some
  // The selected rows, or else the current one, with their headings: a table for a spreadsheet.
  QString Taula_Copiada() const;

  // Rows may be changed and added in the grid, or only read. A row is written when it is left; one that is refused
  // stays in edit with what was typed, and Esc gives it up; so does a cell that does not take its text; one that
  // another terminal changed is read again. Enter goes to the next cell.
  void Permetre_Canvis(bool permes);
  bool Permet_Canvis() const;
  // `titols` of its two columns, when the open list shows the codes too.
  void Desplegable(const QString& camp, const std::vector<Opcio_Graella>& opcions, const QStringList& titols = {});
  // Opened for a field: letters search, F2 or a second click edits, Ctrl+Enter hands the row over like a double click.
  void De_Triar(bool de_triar);
  void Passos(Passos_Fila passos);
  bool En_Edicio() const;
  // Writes the row in edit, under the guard of events. False when it was refused: it is still in edit.
  bool Desar_Fila();
  void Descartar_Fila();

  // Reopens the recordset on its statement cut at ORDER BY plus this field, on the row where the user was.
  void Ordenar_Per(const QString& camp);
  // A grid whose order is its own does not sort.
  void Permetre_Ordre(bool permes);
  int Columna_De_L_Ordre() const;  // -1: by none that it shows

  // The widths that the user gave to the columns, remembered by user, form and grid.
  void Desar_Amplades() const;
  void Recuperar_Amplades();

 Q_SIGNALS:
  void Doble_Clic(std::int64_t fila);  // also Enter on a row
  void Compte_Canviat();

 protected:
  void currentChanged(const QModelIndex& actual, const QModelIndex& anterior) override;
  void selectionChanged(const QItemSelection& nova, const QItemSelection& vella) override;
  void keyPressEvent(QKeyEvent* event) override;
  QModelIndex moveCursor(CursorAction accio, Qt::KeyboardModifiers amb) override;
  bool edit(const QModelIndex& index, EditTrigger motiu, QEvent* event) override;
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint com) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;

 private:
  // How it looks.
  QString Nom_Formulari() const;
  int Amplada_Propia(int columna) const;
  int Columna_Visible(bool ultima) const;
  void Canviada_D_Amplada(int columna, int amplada);
  int Columna_Que_Creix() const;
  void Omplir_Amplada();
  void Mostrar_Ordre();
  // Where the user is.
  bool Premer_Enter(const QKeyEvent& event);
  bool Copia(const QKeyEvent& event) const;
  void Cercar_Escrit();
  bool Es_De_Llegir() const;
  bool Llegir(QEvent* event);
  // Rows in edit.
  bool S_Hi_Escriu(const QModelIndex& index) const;
  void Deixar_Fila(int fila);
  void Deixar_Graella(const QWidget* ara);
  QModelIndex Cella_Del_Costat(int pas) const;
  void Avancar();
  void Avancar_Fila();
  int Primera_Que_S_Escriu() const;
  void Saltar(int pas);
  bool S_Obre_Sola(const QModelIndex& index) const;
  void Desar_I_Avisar();
  void Tornar_A_La_Cella();
  const QWidget* Espai_Propi() const;
  void Rellegir();

  Model_Recordset* model_;
  Delegat_Graella* delegat_;
  std::vector<int> amplades_;  // given by the description or by the user; 0: hidden
  bool omplint_ = false;
  bool nomes_afegida_ = false;  // the layout under way is for a row at the end
  bool desant_ = false;
  bool multiple_ = false;
  bool de_triar_ = false;
  Passos_Fila passos_;
  int columna_activa_ = -1;  // of the row in edit
  QString escrit_;           // letters typed to find a row
  QElapsedTimer des_de_l_ultima_;
};
