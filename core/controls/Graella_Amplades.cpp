#include <QHeaderView>
#include <QScopedValueRollback>
#include <algorithm>

#include "core/controls/Graella.h"
#include "core/controls/Model_Recordset.h"
#include "core/formularis/Formulari.h"
#include "core/formularis/Memoria_Pantalles.h"

namespace {

constexpr int twips_per_pixel = 15;

}  // namespace

// The width of the description, or that of the title with the sort arrow when it is larger.
int Graella::Amplada_Propia(int columna) const {
  const int voltant = horizontalHeader()->isSortIndicatorShown() ? 24 : 12;
  const int titol = fontMetrics().horizontalAdvance(model_->Titol(columna)) + voltant;
  return std::max(model_->Columnes()[static_cast<std::size_t>(columna)].amplada / twips_per_pixel, titol);
}

int Graella::Amplada_Donada(int columna) const {
  return amplades_[static_cast<std::size_t>(columna)];
}

// The first or the last visible column as they stand on the screen; -1 none.
int Graella::Columna_Visible(bool ultima) const {
  const QHeaderView& capcalera = *horizontalHeader();
  const int quantes = capcalera.count();
  for (int lloc = 0; lloc < quantes; ++lloc) {
    const int columna = capcalera.logicalIndex(ultima ? quantes - 1 - lloc : lloc);
    if (!capcalera.isSectionHidden(columna)) return columna;
  }
  return -1;
}

void Graella::Canviada_D_Amplada(int columna, int amplada) {
  if (omplint_ || amplada == 0 || columna >= static_cast<int>(amplades_.size())) return;
  amplades_[static_cast<std::size_t>(columna)] = amplada;
  Omplir_Amplada();
}

// The column that takes spare width: the one described so unless the user gave it a width, else the last one.
int Graella::Columna_Que_Creix() const {
  const auto& columnes = model_->Columnes();
  const auto que = std::ranges::find(columnes, true, &Columna_Graella::creix);
  const int columna = que == columnes.end() ? -1 : static_cast<int>(que - columnes.begin());
  const bool propia = columna >= 0 && !isColumnHidden(columna) && Amplada_Donada(columna) == Amplada_Propia(columna);
  return propia ? columna : Columna_Visible(true);
}

// One column takes what the others leave, and never less than it was given.
void Graella::Omplir_Amplada() {
  const int creix = Columna_Que_Creix();
  if (omplint_ || creix < 0) return;
  const QScopedValueRollback guarda(omplint_, true);
  for (int columna = 0; columna < horizontalHeader()->count(); ++columna) {
    if (!isColumnHidden(columna)) setColumnWidth(columna, Amplada_Donada(columna));
  }
  const int resta = viewport()->width() - horizontalHeader()->length();
  if (resta > 0) setColumnWidth(creix, Amplada_Donada(creix) + resta);
}

void Graella::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  Omplir_Amplada();
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
    Recordar_Amplada(Nom_Formulari(), objectName(), QString::fromUtf8(que.camp), Amplada_Donada(columna),
                     Amplada_Propia(columna));
  }
}

void Graella::Recuperar_Amplades() {
  int columna = -1;
  for (const auto& que : model_->Columnes()) {
    ++columna;
    const auto desada = Amplada_Recordada(Nom_Formulari(), objectName(), QString::fromUtf8(que.camp));
    if (que.amplada > 0 && desada) Canviada_D_Amplada(columna, *desada);
  }
}
