#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPointer>
#include <QStyledItemDelegate>

#include "core/controls/Graella.h"
#include "tests/eines/terminal/Cercar.h"
#include "tests/eines/terminal/Ma.h"
#include "tests/eines/terminal/Ordres.h"
#include "tests/eines/terminal/Servidor.h"

namespace {

Graella& Graella_De(const QString& adreca) {
  return De_Tipus<Graella>(Control_Usable(adreca), adreca, "grid");
}

int Columna_Visible(const Graella& graella) {
  for (int columna = 0; columna < graella.model()->columnCount(); ++columna)
    if (!graella.isColumnHidden(columna)) return columna;
  throw Error_Guio(QStringLiteral("the grid shows no column"));
}

int Columna_De(const Graella& graella, const QString& camp) {
  const int columna = graella.Columna_De_Camp(camp);
  if (columna < 0) throw Error_Guio(QStringLiteral("the grid has no column of %1").arg(camp));
  return columna;
}

// A point of the cell that can be seen, after scrolling to it.
QPoint Punt_De_Cella(Graella& graella, const QModelIndex& index) {
  graella.scrollTo(index);
  Calmar();
  const QRect vist = graella.visualRect(index) & graella.viewport()->rect();
  if (vist.isEmpty()) throw Error_Guio(QStringLiteral("the cell cannot be brought into view"));
  return vist.center();
}

void Clica_Fila(Graella& graella, int fila, Qt::KeyboardModifiers amb = Qt::NoModifier) {
  const QModelIndex index = graella.model()->index(fila, Columna_Visible(graella));
  Clica(*graella.viewport(), Punt_De_Cella(graella, index), amb);
}

// Opens the list of the cell and clicks the entry, as a person would.
void Triar_A_La_Llista(QComboBox& combo, const QString& text) {
  const int quina = combo.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
  if (quina < 0) throw Error_Guio(QStringLiteral("the cell has no entry that shows it"));
  combo.showPopup();
  Calmar();
  QAbstractItemView& llista = *combo.view();
  const QModelIndex index = combo.model()->index(quina, combo.modelColumn(), combo.rootModelIndex());
  llista.scrollTo(index);
  const QPointer<QAbstractItemView> oberta(&llista);
  Clica(*llista.viewport(), llista.visualRect(index).center());
  Calmar();
  if (oberta && oberta->isVisible()) throw Error_Guio(QStringLiteral("the list of the cell stays open"));
}

void Posar_A_L_Editor(QWidget& editor, const QString& text) {
  if (auto* combo = qobject_cast<QComboBox*>(&editor)) return Triar_A_La_Llista(*combo, text);
  Selecciona_Tot();
  if (text.isEmpty()) return Prem_Tecla(QStringLiteral("Del"));
  Tecleja(text);
}

void Editar_Cella(Graella& graella, const QModelIndex& index, const QString& text) {
  graella.setCurrentIndex(index);
  static_cast<QTableView&>(graella).edit(index);
  Calmar();
  QPointer<QWidget> editor = graella.indexWidget(index);
  if (editor == nullptr) editor = QApplication::focusWidget();
  if (editor == nullptr || !graella.viewport()->isAncestorOf(editor))
    throw Error_Guio(QStringLiteral("the cell cannot be edited"));
  Posar_A_L_Editor(*editor, text);
  if (!editor || !editor->isVisible()) return;  // what was chosen has been taken
  auto* delegat = graella.itemDelegateForIndex(index);
  Q_EMIT delegat->commitData(editor);
  Q_EMIT delegat->closeEditor(editor);
}

void Marcar_Cella(Graella& graella, const QModelIndex& index, const QString& estat) {
  if (estat != QLatin1String("on") && estat != QLatin1String("off"))
    throw Error_Guio(QStringLiteral("a check box takes on or off"));
  const bool marcada = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
  if (marcada == (estat == QLatin1String("on"))) return;
  graella.setCurrentIndex(index);
  Prem_Tecla(QStringLiteral("Space"));
}

}  // namespace

void Ordre_Row(const QStringList& mots) {
  Graella& graella = Graella_De(mots[1]);
  Clica_Fila(graella, Fila_De(graella, mots[2]));
}

void Ordre_Rows(const QStringList& mots) {
  Graella& graella = Graella_De(mots[1]);
  Qt::KeyboardModifiers amb = Qt::NoModifier;
  for (const QString& fila : mots[2].split(u' ', Qt::SkipEmptyParts)) {
    Clica_Fila(graella, Fila_De(graella, fila), amb);
    amb = Qt::ControlModifier;
  }
}

void Ordre_Doubleclick(const QStringList& mots) {
  Graella& graella = Graella_De(mots[1]);
  const QModelIndex index = graella.model()->index(Fila_De(graella, mots[2]), Columna_Visible(graella));
  Clica_Dos_Cops(*graella.viewport(), Punt_De_Cella(graella, index));
}

void Ordre_Header(const QStringList& mots) {
  Graella& graella = Graella_De(mots[1]);
  const int columna = Columna_De(graella, mots[2]);
  QHeaderView& capcalera = *graella.horizontalHeader();
  if (capcalera.isSectionHidden(columna)) throw Error_Guio(QStringLiteral("the column is hidden"));
  const QRect vist =
      QRect(capcalera.sectionViewportPosition(columna), 0, capcalera.sectionSize(columna), capcalera.height()) &
      capcalera.viewport()->rect();
  if (vist.isEmpty()) throw Error_Guio(QStringLiteral("the header is out of view"));
  Clica(*capcalera.viewport(), vist.center());
}

void Ordre_Cell(const QStringList& mots) {
  Graella& graella = Graella_De(mots[1]);
  const bool nova = mots[2] == QLatin1String("new");
  const int fila = nova ? graella.model()->rowCount() - 1 : Fila_De(graella, mots[2]);
  const QModelIndex index = graella.model()->index(fila, Columna_De(graella, mots[3]));
  const Qt::ItemFlags trets = graella.model()->flags(index);
  if ((trets & (Qt::ItemIsEditable | Qt::ItemIsUserCheckable)) == 0 ||
      graella.editTriggers() == QAbstractItemView::NoEditTriggers)
    throw Error_Guio(QStringLiteral("the cell cannot be edited"));
  if ((trets & Qt::ItemIsUserCheckable) != 0) return Marcar_Cella(graella, index, mots[4]);
  Editar_Cella(graella, index, mots[4]);
}

// By going to another row, or out of the grid when there is no other.
void Ordre_Leave_Row(const QStringList& mots) {
  Graella& graella = Graella_De(mots[1]);
  const int fila = graella.currentIndex().row();
  const int files = graella.model()->rowCount();
  if (files > 1) return Clica_Fila(graella, fila > 0 ? fila - 1 : 1);
  Enfoca(graella);
  Prem_Tecla(QStringLiteral("Tab"));
}
