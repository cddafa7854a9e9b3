#include "core/controls/Graella.h"

#include <QApplication>
#include <QHeaderView>
#include <QLocale>
#include <QPainter>
#include <QScopedValueRollback>
#include <algorithm>
#include <utility>

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Delegat_Graella.h"
#include "core/controls/Model_Recordset.h"
#include "core/formularis/Formulari.h"

namespace {

constexpr int alcada_fila = 24;

}  // namespace

Graella::Graella(QWidget* pare)
    : QTableView(pare), model_(new Model_Recordset(this)), delegat_(new Delegat_Graella(*model_, this)) {
  setModel(model_);
  setAlternatingRowColors(true);
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
  setItemDelegate(delegat_);
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
  horizontalHeader()->setSortIndicatorShown(true);
  horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  connect(horizontalHeader(), &QHeaderView::sectionResized, this,
          [this](int columna, int /*abans*/, int amplada) { Canviada_D_Amplada(columna, amplada); });
  connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int columna) {
    const char* camp = model_->Columnes()[static_cast<std::size_t>(columna)].camp;
    Formulari::Guardar_Event([&] { Ordenar_Per(QString::fromUtf8(camp)); });
    Mostrar_Ordre();
  });
  connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex& index) { Q_EMIT Doble_Clic(index.row()); });
}

void Graella::Columnes(const std::vector<Columna_Graella>& columnes) {
  model_->Columnes(columnes);
  amplades_.assign(columnes.size(), 0);
  int columna = 0;
  for (const auto& que : columnes) {
    setColumnHidden(columna, que.amplada == 0);
    if (que.amplada > 0) amplades_[static_cast<std::size_t>(columna)] = Amplada_Propia(columna);
    ++columna;
  }
  Omplir_Amplada();
}

void Graella::Lligar(Recordset* rs) {
  model_->Lligar(rs);
  {
    // A column that comes back takes the width that it was given, and not the one that it was hidden with.
    const QScopedValueRollback guarda(omplint_, true);
    for (int columna = 0; columna < model_->columnCount(); ++columna) {
      if (model_->Columnes()[static_cast<std::size_t>(columna)].opcional)
        setColumnHidden(columna, !model_->Hi_Es(columna));
    }
  }
  Omplir_Amplada();
  Mostrar_Ordre();
  Refrescar();
}

void Graella::Refrescar() {
  const Recordset* rs = model_->Lligat();
  const std::int64_t posicio = rs != nullptr && rs->State() ? rs->AbsolutePosition() : 0;
  model_->Refrescar();
  if (posicio > 0)
    Anar_A_Fila(posicio - 1);
  else if (model_->Permet_Canvis() && model_->Files() == 0)
    setCurrentIndex(model_->index(0, Primera_Que_S_Escriu()));
  Q_EMIT Compte_Canviat();
}

void Graella::Mostrar_Fila_Afegida() {
  const std::int64_t ultima = Files() - 1;
  const Recordset* rs = model_->Lligat();
  const bool es_una_mes = ultima > 0 && verticalHeader()->count() == ultima && rs->AbsolutePosition() == ultima + 1;
  if (!es_una_mes || model_->Permet_Canvis() || isHidden()) return Refrescar();
  nomes_afegida_ = true;
  model_->Mostrar_Fila_Afegida();
  Anar_A_Fila(ultima);
  Q_EMIT Compte_Canviat();
}

// The toolkit paints everything anew for a row that only the last place has changed for.
void Graella::doItemsLayout() {
  if (!std::exchange(nomes_afegida_, false)) return QTableView::doItemsLayout();
  const int desplacament = verticalHeader()->offset();
  updateGeometries();
  if (verticalHeader()->offset() != desplacament) viewport()->scroll(0, desplacament - verticalHeader()->offset());
  const int ultima = model_->Files() - 1;
  viewport()->update(0, rowViewportPosition(ultima), viewport()->width(), rowHeight(ultima));
}

void Graella::Estil_De_Fila(std::function<QString(std::int64_t fila)> estil) {
  model_->estil = std::move(estil);
}

void Graella::Files_OK(const std::string& camp) {
  Estil_De_Fila([this, camp](std::int64_t fila) {
    const Recordset& rs = *model_->Lligat();
    const Valor marcada = rs.Valor_De_Fila(fila, rs.Index_Camp(camp));
    return !marcada.Es_Nul() && marcada.Boolea() ? QStringLiteral("OK") : QString();
  });
}

std::int64_t Graella::Files() const {
  return model_->Files();
}
std::int64_t Graella::Fila_Actual() const {
  return currentIndex().isValid() && currentIndex().row() < Files() ? currentIndex().row() : -1;
}

void Graella::Anar_A_Fila(std::int64_t fila) {
  const QModelIndex index = model_->index(static_cast<int>(fila), Columna_Visible(false));
  if (!index.isValid()) return;
  if (multiple_) {
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
  } else {
    setCurrentIndex(index);
  }
  scrollTo(index);
}

bool Graella::Anar_Al_Valor(const QString& camp, const QString& text) {
  const int columna = Columna_De_Camp(camp);
  for (int fila = 0; columna >= 0 && fila < model_->Files(); ++fila) {
    if (model_->Text(fila, columna).compare(text, Qt::CaseInsensitive) != 0) continue;
    Anar_A_Fila(fila);
    return true;
  }
  return false;
}

int Graella::Columna_De_Camp(const QString& camp) const {
  return model_->Columna_De(camp);
}

QString Graella::Text_Cella(std::int64_t fila, const QString& camp) const {
  const int columna = Columna_De_Camp(camp);
  return columna < 0 || fila < 0 || fila >= Files() ? QString() : model_->Text(static_cast<int>(fila), columna);
}

QString Graella::Text_Mostrat(std::int64_t fila, int columna) const {
  return model_->Text_Mostrat(static_cast<int>(fila), columna);
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
  const bool en_te = index >= 0 && index < model_->columnCount() && Amplada_Donada(index) > 0;
  const bool propia = en_te && Amplada_Donada(index) == Amplada_Propia(index);
  model_->Titol(index, titol);
  if (propia) Canviada_D_Amplada(index, Amplada_Propia(index));
}
QString Graella::Titol_Columna(int index) const {
  return model_->Titol(index);
}

void Graella::Seleccio_Multiple(bool multiple) {
  multiple_ = multiple;
}

std::vector<std::int64_t> Graella::Files_Seleccionades() const {
  std::vector<std::int64_t> files;
  for (const QItemSelectionRange& tram : selectionModel()->selection()) {
    for (int fila = tram.top(); fila <= std::min(tram.bottom(), model_->Files() - 1); ++fila) files.push_back(fila);
  }
  std::sort(files.begin(), files.end());
  files.erase(std::unique(files.begin(), files.end()), files.end());
  return files;
}

QString Graella::Compte() const {
  const auto text = [](std::size_t quantes, const std::string& una, const std::string& unes) {
    return QLocale(QLocale::Catalan).toString(static_cast<qlonglong>(quantes)) + u' ' +
           QString::fromStdString(quantes == 1 ? una : unes);
  };
  QString files = text(static_cast<std::size_t>(model_->Files()), Missatge("fila", "fila", "row"),
                       Missatge("files", "filas", "rows"));
  const std::size_t triades = Files_Seleccionades().size();
  if (!multiple_ && triades < 2) return files;
  return files + QStringLiteral(", ") +
         text(triades, Missatge("seleccionada", "seleccionada", "selected"),
              Missatge("seleccionades", "seleccionadas", "selected"));
}

QString Graella::Text_Buit() const {
  const Recordset* rs = model_->Lligat();
  if (rs == nullptr || !rs->State() || model_->Files() > 0 || En_Edicio()) return {};
  return QString::fromStdString(Missatge("No hi ha cap fila", "No hay ninguna fila", "There are no rows"));
}

// An empty grid says so; where several rows may be selected, the current one has a frame.
void Graella::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  QPainter pintor(viewport());
  pintor.setPen(palette().color(QPalette::Disabled, QPalette::Text));
  pintor.drawText(viewport()->rect(), Qt::AlignCenter, Text_Buit());
  if (!multiple_ || Fila_Actual() < 0) return;
  const int amplada = std::min(viewport()->width(), horizontalHeader()->length() - horizontalOffset());
  pintor.setPen(palette().color(QPalette::Highlight));
  pintor.drawRect(0, rowViewportPosition(currentIndex().row()), amplada - 1, rowHeight(currentIndex().row()) - 1);
}
