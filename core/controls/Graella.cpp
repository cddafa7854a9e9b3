#include "core/controls/Graella.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTimer>

#include "core/controls/Camps.h"
#include "core/controls/Delegat_Graella.h"
#include "core/controls/Model_Recordset.h"
#include "core/dades/Dialecte.h"
#include "core/formularis/Control_Interface.h"
#include "core/formularis/Formulari.h"
#include "core/formularis/Memoria_Pantalles.h"

namespace {

constexpr int twips_per_pixel = 15;
constexpr int alcada_fila = 24;

}  // namespace

Graella::Graella(QWidget* pare) : QTableView(pare), model_(new Model_Recordset(this)) {
  setModel(model_);
  setAlternatingRowColors(true);
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
  setItemDelegate(new Delegat_Graella(*model_, this));
  connect(qApp, &QApplication::focusChanged, this,
          [this](const QWidget* /*abans*/, const QWidget* ara) { Deixar_Graella(ara); });
  setWordWrap(false);
  setShowGrid(false);
  setTabKeyNavigation(false);
  setVerticalScrollMode(ScrollPerItem);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(alcada_fila);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionsClickable(true);
  horizontalHeader()->setMinimumSectionSize(24);
  connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int columna) {
    const char* camp = model_->Columnes()[static_cast<std::size_t>(columna)].camp;
    Formulari::Guardar_Event([&] { Ordenar_Per(QString::fromUtf8(camp)); });
  });
  connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex& index) { Q_EMIT Doble_Clic(index.row()); });
}

void Graella::Columnes(const std::vector<Columna_Graella>& columnes) {
  model_->Columnes(columnes);
  int columna = 0;
  for (const auto& que : columnes) {
    setColumnHidden(columna, que.amplada == 0);
    if (que.amplada > 0) setColumnWidth(columna, Amplada_Propia(columna));
    ++columna;
  }
}

// What the column asks for, or what its title does.
int Graella::Amplada_Propia(int columna) const {
  constexpr int voltant = 12;
  const int titol = fontMetrics().horizontalAdvance(model_->Titol(columna)) + voltant;
  return std::max(model_->Columnes()[static_cast<std::size_t>(columna)].amplada / twips_per_pixel, titol);
}

void Graella::Lligar(Recordset* rs) {
  model_->Lligar(rs);
  for (int columna = 0; columna < model_->columnCount(); ++columna) {
    if (model_->Columnes()[static_cast<std::size_t>(columna)].opcional)
      setColumnHidden(columna, !model_->Hi_Es(columna));
  }
  Refrescar();
}

void Graella::Refrescar() {
  const Recordset* rs = model_->Lligat();
  const std::int64_t posicio = rs != nullptr && rs->State() ? rs->AbsolutePosition() : 0;
  model_->Refrescar();
  if (posicio > 0) Anar_A_Fila(posicio - 1);
}

void Graella::Estil_De_Fila(std::function<QString(std::int64_t fila)> estil) {
  model_->estil = std::move(estil);
}

std::int64_t Graella::Files() const {
  return model_->Files();
}
std::int64_t Graella::Fila_Actual() const {
  return currentIndex().isValid() && currentIndex().row() < Files() ? currentIndex().row() : -1;
}

void Graella::Anar_A_Fila(std::int64_t fila) {
  int columna = 0;
  while (columna < model_->columnCount() && isColumnHidden(columna)) ++columna;
  const QModelIndex index = model_->index(static_cast<int>(fila), columna);
  if (!index.isValid()) return;
  setCurrentIndex(index);
  scrollTo(index);
}

int Graella::Columna_De_Camp(const QString& camp) const {
  return model_->Columna_De(camp);
}

QString Graella::Text_Cella(std::int64_t fila, const QString& camp) const {
  const int columna = Columna_De_Camp(camp);
  return columna < 0 || fila < 0 || fila >= Files() ? QString() : model_->Text(static_cast<int>(fila), columna);
}

QString Graella::Estil(std::int64_t fila) const {
  return model_->Estil(static_cast<int>(fila));
}

Valor Graella::Valor_Actual(const char* camp) const {
  const Recordset* rs = model_->Lligat();
  return Fila_Actual() < 0 || rs == nullptr ? Valor() : rs->Valor_De_Fila(Fila_Actual(), rs->Index_Camp(camp));
}

// A column of its own width stays so under another title.
void Graella::Titol_Columna(int index, const QString& titol) {
  const bool visible = index >= 0 && index < model_->columnCount() && !isColumnHidden(index);
  const bool propia = visible && columnWidth(index) == Amplada_Propia(index);
  model_->Titol(index, titol);
  if (propia) setColumnWidth(index, Amplada_Propia(index));
}
QString Graella::Titol_Columna(int index) const {
  return model_->Titol(index);
}

void Graella::Ordenar_Per(const QString& camp) {
  Recordset* rs = model_->Lligat();
  if (rs == nullptr || !rs->State() || !Desar_Fila()) return;
  rs->Reopen(Sense_Ordre(rs->Source()) + " ORDER BY " + camp.toStdString());
  Lligar(rs);
}

// ---- Where the user is ------------------------------------------------------------------------------------------

// The recordset stands where the user does, unless a row of it is in edit.
void Graella::currentChanged(const QModelIndex& actual, const QModelIndex& anterior) {
  QTableView::currentChanged(actual, anterior);
  const int fila = model_->Fila_En_Edicio();
  if (fila >= 0 && actual.isValid() && actual.row() != fila) return Deixar_Fila(fila);
  Recordset* rs = model_->Lligat();
  if (rs == nullptr || !rs->State() || !actual.isValid() || rs->EditMode() != Edicio::Cap) return;
  if (actual.row() < rs->RecordCount()) rs->AbsolutePosition(actual.row() + 1);
}

void Graella::keyPressEvent(QKeyEvent* event) {
  const bool entra = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (event->key() == Qt::Key_Escape && En_Edicio()) return Descartar_Fila();
  if (entra && state() == EditingState) return;  // the editor has it
  if (entra && model_->Permet_Canvis()) return Avancar();
  if (entra && Fila_Actual() >= 0) {
    Q_EMIT Doble_Clic(Fila_Actual());
    return;
  }
  QTableView::keyPressEvent(event);
}

// The next cell; after the last one of a row, the first one of the next row.
void Graella::Avancar() {
  QModelIndex seguent = currentIndex();
  do {
    seguent = seguent.siblingAtColumn(seguent.column() + 1);
  } while (seguent.isValid() && isColumnHidden(seguent.column()));
  if (seguent.isValid()) return setCurrentIndex(seguent);
  const int fila = currentIndex().row();
  if (!Desar_Fila()) return;
  if (fila + 1 < model_->rowCount()) setCurrentIndex(model_->index(fila + 1, 0));
}

// ---- Rows in edit -----------------------------------------------------------------------------------------------

void Graella::Permetre_Canvis(bool permes) {
  if (permes == model_->Permet_Canvis()) return;
  setEditTriggers(permes ? DoubleClicked | EditKeyPressed | AnyKeyPressed : EditTriggers(NoEditTriggers));
  model_->Permetre_Canvis(permes);
  Refrescar();
}

void Graella::Desplegable(const QString& camp, const std::vector<Opcio_Graella>& opcions) {
  model_->Desplegable(model_->Columna_De(camp), opcions);
}

bool Graella::En_Edicio() const {
  return model_->Fila_En_Edicio() >= 0;
}

bool Graella::Desar_Fila() {
  if (!En_Edicio()) return true;
  Formulari::Guardar_Event([this] {
    try {
      model_->Desar_Fila();
    } catch (const Error_Brollador& error) {
      if (error.Numero() == errors::concurrencia) Rellegir();
      throw;
    }
  });
  return !En_Edicio();
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
  model_->Descartar_Fila();
}

// A row that another terminal holds is not opened.
bool Graella::edit(const QModelIndex& index, EditTrigger motiu, QEvent* event) {
  const bool sencer = motiu != NoEditTriggers && (motiu == AllEditTriggers || (editTriggers() & motiu) != 0);
  if (sencer && index.isValid() && model_->Permet_Canvis() && state() != EditingState) {
    bool oberta = false;
    Formulari::Guardar_Event([&] {
      model_->Comencar(index.row());
      oberta = true;
    });
    if (!oberta) return false;
  }
  return QTableView::edit(index, motiu, event);
}

void Graella::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint com) {
  const bool entra = com == QAbstractItemDelegate::SubmitModelCache;
  QTableView::closeEditor(editor, entra ? QAbstractItemDelegate::NoHint : com);
  if (entra) QMetaObject::invokeMethod(this, &Graella::Avancar, Qt::QueuedConnection);  // when the editor has gone
}

// A row that is refused is where the user goes back to.
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
  const QWidget* formulari = parentWidget();
  while (formulari != nullptr && qobject_cast<const Formulari*>(formulari) == nullptr)
    formulari = formulari->parentWidget();
  if (formulari == nullptr || !formulari->isAncestorOf(ara) || static_cast<const Formulari*>(formulari)->Es_Tanca())
    return;
  if (!Desar_Fila()) Retenir_Focus(this);
}

QString Graella::Nom_Formulari() const {
  const QWidget* formulari = parentWidget();
  while (formulari != nullptr && qobject_cast<const Formulari*>(formulari) == nullptr)
    formulari = formulari->parentWidget();
  return formulari == nullptr ? QString() : formulari->objectName();
}

void Graella::Desar_Amplades() const {
  int columna = -1;
  for (const auto& que : model_->Columnes()) {
    ++columna;
    if (que.amplada == 0) continue;
    Recordar_Amplada(Nom_Formulari(), objectName(), QString::fromUtf8(que.camp), columnWidth(columna),
                     Amplada_Propia(columna));
  }
}

void Graella::Recuperar_Amplades() {
  int columna = -1;
  for (const auto& que : model_->Columnes()) {
    ++columna;
    const auto desada = Amplada_Recordada(Nom_Formulari(), objectName(), QString::fromUtf8(que.camp));
    if (que.amplada > 0 && desada) setColumnWidth(columna, *desada);
  }
}
