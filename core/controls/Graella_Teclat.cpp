// The current row of a grid, and its keys.
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

#include "core/controls/Graella.h"
#include "core/controls/Model_Recordset.h"

namespace {

constexpr qint64 pausa = 1000;  // ms without a letter, after which the next one begins another search

// Without case and accents, as whoever types in a hurry has it.
QString Plegat(const QString& text) {
  QString net;
  for (const QChar lletra : text.normalized(QString::NormalizationForm_D)) {
    if (lletra.category() != QChar::Mark_NonSpacing) net += lletra.toCaseFolded();
  }
  return net;
}

void Al_Porta_Retalls(const QString& text) {
  QApplication::clipboard()->setText(text);
}

}  // namespace

// The recordset stands where the user does, unless a row of it is in edit.
void Graella::currentChanged(const QModelIndex& actual, const QModelIndex& anterior) {
  QTableView::currentChanged(actual, anterior);
  if (multiple_) viewport()->update();
  const int fila = model_->Fila_En_Edicio();
  if (fila >= 0 && actual.isValid() && actual.row() != fila) return Deixar_Fila(fila);
  columna_activa_ = actual.column();
  Recordset* rs = model_->Lligat();
  if (rs == nullptr || !rs->State() || !actual.isValid() || rs->EditMode() != Edicio::Cap) return;
  if (actual.row() < rs->RecordCount()) rs->AbsolutePosition(actual.row() + 1);
}

void Graella::selectionChanged(const QItemSelection& nova, const QItemSelection& vella) {
  QTableView::selectionChanged(nova, vella);
  Q_EMIT Compte_Canviat();
}

void Graella::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && En_Edicio()) return Descartar_Fila();
  if (event->key() == Qt::Key_Escape) escrit_.clear();
  if (Premer_Enter(*event) || Copia(*event)) return;
  QTableView::keyPressEvent(event);
}

// In a list Enter is a double click, in a table edited in place it goes on, and Ctrl+Enter hands the row over. It never
// goes past the grid, where it would press a button.
bool Graella::Premer_Enter(const QKeyEvent& event) {
  if (event.key() != Qt::Key_Return && event.key() != Qt::Key_Enter) return false;
  if (state() == EditingState) return true;  // the editor has it
  const bool lliura = (event.modifiers() & Qt::ControlModifier) != 0;
  if (model_->Permet_Canvis() && !lliura) {
    Avancar();
  } else if (Desar_Fila() && Fila_Actual() >= 0) {
    Q_EMIT Doble_Clic(Fila_Actual());
  }
  return true;
}

// The first and the last row, and not the cells at the ends of this one.
QModelIndex Graella::moveCursor(CursorAction accio, Qt::KeyboardModifiers amb) {
  const int columna = currentIndex().isValid() ? currentIndex().column() : Columna_Visible(false);
  if (accio == MoveHome) return model_->index(0, columna);
  if (accio == MoveEnd) return model_->index(model_->Files() - 1, columna);
  return QTableView::moveCursor(accio, amb);
}

bool Graella::Copia(const QKeyEvent& event) const {
  constexpr auto la_cella = Qt::ControlModifier | Qt::ShiftModifier;
  if (event.key() != Qt::Key_C || (event.modifiers() & Qt::ControlModifier) == 0) return false;
  if (event.modifiers() == Qt::ControlModifier) Al_Porta_Retalls(Taula_Copiada());
  if (event.modifiers() == la_cella && Fila_Actual() >= 0) {
    Al_Porta_Retalls(model_->Columnes()[static_cast<std::size_t>(currentIndex().column())].casella
                         ? Text_Mostrat(Fila_Actual(), currentIndex().column())
                         : model_->Text(currentIndex().row(), currentIndex().column()));
  }
  return true;
}

QString Graella::Taula_Copiada() const {
  std::vector<std::int64_t> files = Files_Seleccionades();
  if (files.empty() && Fila_Actual() >= 0) files.push_back(Fila_Actual());
  QStringList linies;
  linies.resize(static_cast<qsizetype>(files.size()) + 1);  // the headings first
  for (int lloc = 0; lloc < horizontalHeader()->count(); ++lloc) {
    const int columna = horizontalHeader()->logicalIndex(lloc);
    if (isColumnHidden(columna)) continue;
    const QString entre = columna == Columna_Visible(false) ? QString() : QStringLiteral("\t");
    linies[0] += entre + Titol_Columna(columna).simplified();
    for (std::size_t i = 0; i < files.size(); ++i)
      linies[static_cast<qsizetype>(i) + 1] += entre + Text_Mostrat(files[i], columna);
  }
  return files.empty() ? QString() : linies.join(u'\n') + u'\n';
}

void Graella::keyboardSearch(const QString& lletres) {
  if (lletres.isEmpty() || !lletres[0].isPrint()) return;
  if (!des_de_l_ultima_.isValid() || des_de_l_ultima_.hasExpired(pausa)) escrit_.clear();
  if (escrit_.isEmpty() && lletres == u" ") return;  // the bar selects
  des_de_l_ultima_.start();
  escrit_ += lletres;
  Cercar_Escrit();
}

// In the column that the rows are sorted by, or else in the first one.
void Graella::Cercar_Escrit() {
  const int ordre = Columna_De_L_Ordre();
  const int columna = ordre < 0 ? Columna_Visible(false) : ordre;
  const QString buscat = Plegat(escrit_);
  for (int fila = 0; columna >= 0 && fila < model_->Files(); ++fila) {
    if (!Plegat(model_->Text(fila, columna).left(2 * buscat.size())).startsWith(buscat)) continue;
    const QModelIndex index = model_->index(fila, columna);
    selectionModel()->setCurrentIndex(index, multiple_
                                                 ? QItemSelectionModel::NoUpdate
                                                 : QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    return scrollTo(index);
  }
}

bool Graella::Es_De_Llegir() const {
  return !isEnabled() && parentWidget() != nullptr && parentWidget()->isEnabled();
}

// The bars and the cells of a grid that is disabled by itself, and not with its form, take the mouse and the focus.
void Graella::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() != QEvent::EnabledChange) return;
  const bool llegir = Es_De_Llegir();
  viewport()->setFocusProxy(llegir ? nullptr : this);
  viewport()->setFocusPolicy(llegir ? Qt::StrongFocus : Qt::NoFocus);
  const std::initializer_list<QWidget*> peces = {viewport(), verticalScrollBar(), horizontalScrollBar()};
  for (QWidget* peca : peces) peca->setAttribute(Qt::WA_Disabled, !isEnabled() && !llegir);
}

bool Graella::viewportEvent(QEvent* event) {
  return (Es_De_Llegir() && Llegir(event)) || QTableView::viewportEvent(event);
}

// Moving, selecting and copying; nothing that the form would hear of.
bool Graella::Llegir(QEvent* event) {
  static constexpr int moviments[] = {Qt::Key_Up,     Qt::Key_Down,     Qt::Key_Left, Qt::Key_Right,
                                      Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};
  const auto es_moviment = [](int tecla) {
    return std::find(std::begin(moviments), std::end(moviments), tecla) != std::end(moviments);
  };
  switch (event->type()) {
    case QEvent::Wheel:
      QTableView::wheelEvent(static_cast<QWheelEvent*>(event));
      return true;
    case QEvent::MouseButtonPress:
      QTableView::mousePressEvent(static_cast<QMouseEvent*>(event));
      return true;
    case QEvent::MouseMove:
      QTableView::mouseMoveEvent(static_cast<QMouseEvent*>(event));
      return true;
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
      return true;
    case QEvent::KeyPress: {
      auto* tecla = static_cast<QKeyEvent*>(event);
      if (Copia(*tecla)) return true;
      if (es_moviment(tecla->key())) QTableView::keyPressEvent(tecla);
      return es_moviment(tecla->key());
    }
    default:
      return false;
  }
}
