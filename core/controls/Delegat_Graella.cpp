#include "core/controls/Delegat_Graella.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "core/controls/Controls.h"
#include "core/controls/Model_Recordset.h"
#include "core/formularis/Formulari.h"

namespace {

bool Es_De_Nombre(Tipus_Columna tipus) {
  return tipus == Tipus_Columna::Llarg || tipus == Tipus_Columna::Curt || tipus == Tipus_Columna::Doble;
}

QRect Quadre(const QRect& cella) {
  const QStyle& estil = *QApplication::style();
  const QSize mida(estil.pixelMetric(QStyle::PM_IndicatorWidth), estil.pixelMetric(QStyle::PM_IndicatorHeight));
  return QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, mida, cella);
}

}  // namespace

QWidget* Delegat_Graella::createEditor(QWidget* pare, const QStyleOptionViewItem& opcio,
                                       const QModelIndex& index) const {
  if (const auto* opcions = model_.Opcions(index.column())) {
    auto* combo = new QComboBox(pare);
    combo->addItem(QString());
    for (const Opcio_Graella& que : *opcions) combo->addItem(que.text, que.codi);
    return combo;
  }
  if (Es_De_Nombre(model_.Tipus(index.column()))) return new Camp_Numeric(pare);
  return QStyledItemDelegate::createEditor(pare, opcio, index);
}

void Delegat_Graella::setEditorData(QWidget* editor, const QModelIndex& index) const {
  if (auto* combo = qobject_cast<QComboBox*>(editor)) {
    return combo->setCurrentIndex(
        std::max(0, combo->findData(index.data(Qt::EditRole), Qt::UserRole, Qt::MatchFixedString)));
  }
  auto* camp = qobject_cast<QLineEdit*>(editor);
  camp->setText(index.data(Qt::EditRole).toString());
}

// What the row does not take is told, and the cell shows what it held.
void Delegat_Graella::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
  const auto* combo = qobject_cast<QComboBox*>(editor);
  const QVariant escrit = combo != nullptr ? combo->currentData() : qobject_cast<QLineEdit*>(editor)->text();
  Formulari::Guardar_Event([&] { model->setData(index, escrit, Qt::EditRole); });
}

// The box is painted in the middle, and not where the style has it. The row that waits for a new one says so.
void Delegat_Graella::initStyleOption(QStyleOptionViewItem* opcio, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(opcio, index);
  opcio->features &= ~QStyleOptionViewItem::HasCheckIndicator;
  if (index.column() != 0 || !Per_Estrenar(index)) return;
  opcio->text = QStringLiteral("+");
  opcio->features |= QStyleOptionViewItem::HasDisplay;
  opcio->palette.setColor(QPalette::Text, opcio->palette.color(QPalette::Disabled, QPalette::Text));
}

bool Delegat_Graella::Per_Estrenar(const QModelIndex& index) const {
  return index.row() >= model_.Files() && index.row() != model_.Fila_En_Edicio();
}

void Delegat_Graella::paint(QPainter* pintor, const QStyleOptionViewItem& opcio, const QModelIndex& index) const {
  const QVariant estat = index.data(Qt::CheckStateRole);
  QStyledItemDelegate::paint(pintor, opcio, index);
  if (!estat.isValid() || Per_Estrenar(index)) return;
  QStyleOptionButton quadre;
  quadre.rect = Quadre(opcio.rect);
  quadre.palette = opcio.palette;
  quadre.state = QStyle::State_Enabled | (estat.toInt() == Qt::Checked ? QStyle::State_On : QStyle::State_Off);
  QApplication::style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &quadre, pintor);
}

// The space bar, or a click on the box itself.
bool Delegat_Graella::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& opcio,
                                  const QModelIndex& index) {
  const QVariant estat = index.data(Qt::CheckStateRole);
  if (!estat.isValid() || !(model->flags(index) & Qt::ItemIsUserCheckable)) return false;
  const bool tecla = event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space;
  const bool clic = event->type() == QEvent::MouseButtonRelease &&
                    Quadre(opcio.rect).contains(static_cast<QMouseEvent*>(event)->position().toPoint());
  if (!tecla && !clic) return false;
  const Qt::CheckState nou = estat.toInt() == Qt::Checked ? Qt::Unchecked : Qt::Checked;
  Formulari::Guardar_Event([&] { model->setData(index, nou, Qt::CheckStateRole); });
  return true;
}
