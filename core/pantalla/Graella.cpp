#include "core/pantalla/Graella.h"

#include <QHeaderView>
#include <QKeyEvent>

#include "core/pantalla/Control_Interface.h"
#include "core/pantalla/Formulari.h"
#include "core/pantalla/Memoria_Pantalles.h"
#include "core/pantalla/Model_Recordset.h"

namespace {

constexpr int twips_per_pixel = 15;
constexpr int alcada_fila = 24;

// The statement without its order.
std::string Sense_Ordre(const std::string& sentencia) {
  const QString text = QString::fromStdString(sentencia);
  const qsizetype ordre = text.indexOf(u"ORDER BY", 0, Qt::CaseInsensitive);
  return text.left(ordre).trimmed().toStdString();
}

}  // namespace

Graella::Graella(QWidget* pare) : QTableView(pare), model_(new Model_Recordset(this)) {
  setModel(model_);
  setAlternatingRowColors(true);
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
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
    if (que.amplada > 0) setColumnWidth(columna, que.amplada / twips_per_pixel);
    ++columna;
  }
}

void Graella::Lligar(Recordset* rs) {
  model_->Lligar(rs);
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
  return model_->rowCount();
}
std::int64_t Graella::Fila_Actual() const {
  return currentIndex().isValid() ? currentIndex().row() : -1;
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
  int columna = 0;
  for (const auto& que : model_->Columnes()) {
    if (camp.compare(QString::fromUtf8(que.camp), Qt::CaseInsensitive) == 0) return columna;
    ++columna;
  }
  return -1;
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

void Graella::Titol_Columna(int index, const QString& titol) {
  model_->Titol(index, titol);
}
QString Graella::Titol_Columna(int index) const {
  return model_->Titol(index);
}

void Graella::Permetre_Canvis(bool permes) {
  setEditTriggers(permes ? DoubleClicked | EditKeyPressed | AnyKeyPressed : EditTriggers(NoEditTriggers));
}

void Graella::Ordenar_Per(const QString& camp) {
  Recordset* rs = model_->Lligat();
  if (rs == nullptr || !rs->State()) return;
  rs->Reopen(Sense_Ordre(rs->Source()) + " ORDER BY " + camp.toStdString());
  Lligar(rs);
}

// The recordset stands where the user does, unless a row of it is in edit.
void Graella::currentChanged(const QModelIndex& actual, const QModelIndex& anterior) {
  QTableView::currentChanged(actual, anterior);
  Recordset* rs = model_->Lligat();
  if (rs == nullptr || !rs->State() || !actual.isValid() || rs->EditMode() != Edicio::Cap) return;
  if (actual.row() < rs->RecordCount()) rs->AbsolutePosition(actual.row() + 1);
}

void Graella::keyPressEvent(QKeyEvent* event) {
  const bool entra = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (entra && Fila_Actual() >= 0) {
    Q_EMIT Doble_Clic(Fila_Actual());
    return;
  }
  QTableView::keyPressEvent(event);
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
                     que.amplada / twips_per_pixel);
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
