// Rows of a grid that are edited in place: begun by the first key, written when they are left, held meanwhile.
#include <QApplication>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTimer>
#include <algorithm>

#include "core/controls/Delegat_Graella.h"
#include "core/controls/Focus_Camps.h"
#include "core/controls/Graella.h"
#include "core/controls/Model_Recordset.h"
#include "core/controls/Refus.h"
#include "core/formularis/Formulari.h"

void Graella::Permetre_Canvis(bool permes) {
  if (permes == model_->Permet_Canvis()) return;
  model_->Permetre_Canvis(permes);
  De_Triar(de_triar_);
  Refrescar();
}

bool Graella::Permet_Canvis() const {
  return model_->Permet_Canvis();
}

// A double click hands a row over where rows are picked, so that it cannot open a cell too.
void Graella::De_Triar(bool de_triar) {
  de_triar_ = de_triar;
  const EditTriggers amb_ratoli = de_triar_ ? SelectedClicked : DoubleClicked;
  setEditTriggers(model_->Permet_Canvis() ? amb_ratoli | EditKeyPressed | AnyKeyPressed : EditTriggers(NoEditTriggers));
}

void Graella::Passos(Passos_Fila passos) {
  passos_ = std::move(passos);
  model_->nova = passos_.nova;
}

void Graella::Desplegable(const QString& camp, const std::vector<Opcio_Graella>& opcions, const QStringList& titols) {
  model_->Desplegable(model_->Columna_De(camp), {opcions, titols});
}

bool Graella::En_Edicio() const {
  return model_->Fila_En_Edicio() >= 0;
}

// What was typed into the open cell enters the row.
bool Graella::Desar_Fila() {
  if (state() == EditingState && indexWidget(currentIndex()) != nullptr) commitData(indexWidget(currentIndex()));
  if (delegat_->Retingut() != nullptr) return false;
  if (!En_Edicio()) return true;
  if (desant_) return false;
  const QScopedValueRollback guarda(desant_, true);
  Formulari::Guardar_Event([this] { Desar_I_Avisar(); });
  return !En_Edicio();
}

void Graella::Desar_I_Avisar() {
  const char* camp = columna_activa_ < 0 ? "" : model_->Columnes()[static_cast<std::size_t>(columna_activa_)].camp;
  if (passos_.per_desar && !passos_.per_desar(camp)) return Descartar_Fila();
  try {
    model_->Desar_Fila();
  } catch (const Error_Brollador& error) {
    if (error.Numero() == errors::concurrencia) Rellegir();
    throw;
  }
  Q_EMIT Compte_Canviat();
  if (passos_.desada) passos_.desada();
}

// What another terminal has changed or deleted meanwhile is shown as it stands, and the edit is given up.
void Graella::Rellegir() {
  model_->Descartar_Fila();
  Recordset& rs = *model_->Lligat();
  const std::int64_t posicio = rs.AbsolutePosition();
  rs.Requery();
  if (rs.RecordCount() > 0) rs.AbsolutePosition(std::clamp<std::int64_t>(posicio, 1, rs.RecordCount()));
  Refrescar();
}

void Graella::Descartar_Fila() {
  if (QWidget* editor = delegat_->Retingut()) closeEditor(editor, QAbstractItemDelegate::RevertModelCache);
  model_->Descartar_Fila();
}

// Letters change what is there, unless they look for a row: the code of a row that exists is not typed over by chance.
bool Graella::S_Hi_Escriu(const QModelIndex& index) const {
  return index.row() >= model_->Files() || (!de_triar_ && !model_->Es_Clau(index.column()));
}

// A row that another terminal holds is not opened. The second click of a row that is picked may be half of a double
// one.
bool Graella::edit(const QModelIndex& index, EditTrigger motiu, QEvent* event) {
  if (motiu == AnyKeyPressed && index.isValid() && !S_Hi_Escriu(index)) return false;
  const bool sencer = motiu != NoEditTriggers && motiu != SelectedClicked &&
                      (motiu == AllEditTriggers || (editTriggers() & motiu) != 0);
  const bool editable = index.isValid() && (model_->flags(index) & (Qt::ItemIsEditable | Qt::ItemIsUserCheckable)) != 0;
  if (sencer && editable && state() != EditingState) {
    bool oberta = false;
    Formulari::Guardar_Event([&] {
      model_->Comencar(index.row());
      oberta = true;
    });
    if (!oberta) return false;
  }
  return QTableView::edit(index, motiu, event);
}

// A cell that does not take what was typed stays open with it, wherever the user was going: it is put right there, or
// given up with Esc.
void Graella::Tornar_A_La_Cella() {
  const auto tornar = [this] {
    QWidget* editor = delegat_->Retingut();
    if (editor == nullptr) return;
    setCurrentIndex(delegat_->Cella_Retinguda());
    const QWidget* ara = QApplication::focusWidget();
    if (ara != nullptr && !Espai_Propi()->isAncestorOf(ara)) return Senyalar_Refus(editor);
    Retenir_Focus(editor);
  };
  QMetaObject::invokeMethod(this, tornar, Qt::QueuedConnection);
}

// Its form, or the window of a grid that stands in none.
const QWidget* Graella::Espai_Propi() const {
  const QWidget* formulari = parentWidget();
  while (formulari != nullptr && qobject_cast<const Formulari*>(formulari) == nullptr)
    formulari = formulari->parentWidget();
  return formulari == nullptr ? window() : formulari;
}

// Enter goes on through the row; Tab opens the next cell.
void Graella::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint com) {
  using enum QAbstractItemDelegate::EndEditHint;
  if (com != RevertModelCache && editor == delegat_->Retingut()) return Tornar_A_La_Cella();
  delegat_->Deixar_Anar();
  Treure_Refus(editor);
  const bool es_mou = com == SubmitModelCache || com == EditNextItem || com == EditPreviousItem;
  const QPersistentModelIndex cella = indexAt(editor->geometry().center());
  QTableView::closeEditor(editor, es_mou ? NoHint : com);
  if (!es_mou) return;
  const auto moure = [this, com, cella] {  // when the editor has gone, and the user has not
    if (currentIndex() != cella) return;
    if (com == SubmitModelCache) return Avancar();
    Saltar(com == EditNextItem ? 1 : -1);
  };
  QMetaObject::invokeMethod(this, moure, Qt::QueuedConnection);
}

// The visible cell on the left or right; none beyond the ends of the row.
QModelIndex Graella::Cella_Del_Costat(int pas) const {
  const QHeaderView& capcalera = *horizontalHeader();
  int lloc = capcalera.visualIndex(currentIndex().column());
  do {
    lloc += pas;
  } while (lloc >= 0 && lloc < capcalera.count() && capcalera.isSectionHidden(capcalera.logicalIndex(lloc)));
  if (lloc < 0 || lloc >= capcalera.count()) return {};
  return currentIndex().siblingAtColumn(capcalera.logicalIndex(lloc));
}

// The next cell; after the last one of a row, the first one of the next row.
void Graella::Avancar() {
  const QModelIndex seguent = Cella_Del_Costat(1);
  if (seguent.isValid()) return setCurrentIndex(seguent);
  Avancar_Fila();
}

void Graella::Avancar_Fila() {
  const int fila = currentIndex().row();
  if (!Desar_Fila()) return;
  if (fila + 1 < model_->rowCount()) setCurrentIndex(model_->index(fila + 1, Primera_Que_S_Escriu()));
}

// As they are seen; the first one of all where none is typed.
int Graella::Primera_Que_S_Escriu() const {
  const QHeaderView& capcalera = *horizontalHeader();
  for (int lloc = 0; lloc < capcalera.count(); ++lloc) {
    const int columna = capcalera.logicalIndex(lloc);
    const bool s_escriu = !model_->Columnes()[static_cast<std::size_t>(columna)].fixa;
    if (s_escriu && !capcalera.isSectionHidden(columna)) return columna;
  }
  return Columna_Visible(false);
}

// The code of an existing row opens only by F2 or a click, never by Tab.
bool Graella::S_Obre_Sola(const QModelIndex& index) const {
  const bool nova = index.row() >= model_->Files();
  return (model_->flags(index) & Qt::ItemIsEditable) != 0 && (nova || !model_->Es_Clau(index.column()));
}

void Graella::Saltar(int pas) {
  const QModelIndex seguent = Cella_Del_Costat(pas);
  if (seguent.isValid()) {
    setCurrentIndex(seguent);
  } else if (pas > 0) {
    Avancar_Fila();
    if (En_Edicio() || currentIndex().row() < model_->Files()) return;
  } else {
    return;
  }
  if (S_Obre_Sola(currentIndex())) QTableView::edit(currentIndex());
}

// A row that could not be written becomes the current one again.
void Graella::Deixar_Fila(int fila) {
  const QModelIndex lloc = model_->index(fila, 0);
  if (Desar_Fila()) return currentChanged(currentIndex(), lloc);
  QTimer::singleShot(0, this, [this, fila] {
    if (model_->Fila_En_Edicio() == fila) setCurrentIndex(model_->index(fila, std::max(0, currentIndex().column())));
  });
}

// Leaving the grid for another control of its form leaves the row. The exit gives up what is refused.
void Graella::Deixar_Graella(const QWidget* ara) {
  if (!En_Edicio() || ara == nullptr || ara->window() != window() || ara == this || isAncestorOf(ara)) return;
  const auto* formulari = qobject_cast<const Formulari*>(Espai_Propi());
  if (formulari == nullptr || !formulari->isAncestorOf(ara) || formulari->Es_Tanca()) return;
  if (!Desar_Fila() && delegat_->Retingut() == nullptr) Retenir_Focus(this);
}
