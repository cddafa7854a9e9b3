#include "core/controls/Delegat_Graella.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStandardItemModel>
#include <QTableView>
#include <QToolTip>

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

// The combo of a cell: what is chosen in its list is taken at once, what the arrows pass over is not.
class Combo_De_Cella : public QComboBox {
 public:
  using QComboBox::QComboBox;
  bool De_La_Llista() const { return de_la_llista_; }
  void showPopup() override {
    de_la_llista_ = true;
    QComboBox::showPopup();
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    de_la_llista_ = false;
    QComboBox::keyPressEvent(event);
  }
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }

 private:
  bool de_la_llista_ = false;
};

// The list of a combo whose entries show their codes too.
QTableView* Llista_De_Dues_Columnes() {
  auto* llista = new QTableView;
  llista->verticalHeader()->hide();
  llista->horizontalHeader()->setStretchLastSection(true);
  llista->horizontalHeader()->setHighlightSections(false);
  llista->setSelectionBehavior(QAbstractItemView::SelectRows);
  llista->setSelectionMode(QAbstractItemView::SingleSelection);
  llista->setShowGrid(false);
  return llista;
}

}  // namespace

// What is chosen in the open list is taken, and the cell closes.
QWidget* Delegat_Graella::Nou_Combo(QWidget* pare, const Desplegable_Graella& desplegable) const {
  constexpr int amplada_codi = 70;
  constexpr int amplada_llista = 270;
  auto* combo = new Combo_De_Cella(pare);
  auto* files = new QStandardItemModel(0, 2, combo);
  files->setHorizontalHeaderLabels(desplegable.titols);
  files->appendRow({new QStandardItem, new QStandardItem});
  for (const Opcio_Graella& que : desplegable.opcions) {
    auto* text = new QStandardItem(que.text);
    text->setData(que.codi, Qt::UserRole);
    files->appendRow({new QStandardItem(que.codi), text});
  }
  combo->setModel(files);
  combo->setModelColumn(1);
  if (!desplegable.titols.isEmpty()) {
    auto* llista = Llista_De_Dues_Columnes();
    combo->setView(llista);
    llista->setColumnWidth(0, amplada_codi);
    llista->setMinimumWidth(amplada_llista);
  }
  auto* jo = const_cast<Delegat_Graella*>(this);
  connect(combo, &QComboBox::activated, jo, [jo, combo] {
    if (!combo->De_La_Llista()) return;
    Q_EMIT jo->commitData(combo);
    Q_EMIT jo->closeEditor(combo);
  });
  return combo;
}

QWidget* Delegat_Graella::createEditor(QWidget* pare, const QStyleOptionViewItem& opcio,
                                       const QModelIndex& index) const {
  if (const auto* desplegable = model_.Desplegable(index.column())) return Nou_Combo(pare, *desplegable);
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

// What the row does not take is told, once, and stays in its cell.
void Delegat_Graella::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
  const auto* combo = qobject_cast<QComboBox*>(editor);
  const QVariant escrit = combo != nullptr ? combo->currentData() : qobject_cast<QLineEdit*>(editor)->text();
  if (editor == retingut_ && escrit == refusat_) return;
  retingut_.clear();
  bool pres = false;
  Formulari::Guardar_Event([&] {
    model->setData(index, escrit, Qt::EditRole);
    pres = true;
  });
  if (pres) return;
  retingut_ = editor;
  cella_ = index;
  refusat_ = escrit;
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

// Ctrl+Enter takes what was typed and hands its row over.
bool Delegat_Graella::eventFilter(QObject* editor, QEvent* event) {
  const auto* tecla = event->type() == QEvent::KeyPress ? static_cast<const QKeyEvent*>(event) : nullptr;
  const bool lliura = tecla != nullptr && (tecla->key() == Qt::Key_Return || tecla->key() == Qt::Key_Enter) &&
                      (tecla->modifiers() & Qt::ControlModifier) != 0;
  if (!lliura) return QStyledItemDelegate::eventFilter(editor, event);
  auto* camp = qobject_cast<QWidget*>(editor);
  Q_EMIT commitData(camp);
  Q_EMIT closeEditor(camp);
  QCoreApplication::postEvent(parent(), tecla->clone());
  return true;
}

bool Delegat_Graella::helpEvent(QHelpEvent* event, QAbstractItemView* graella, const QStyleOptionViewItem& opcio,
                                const QModelIndex& index) {
  if (event->type() != QEvent::ToolTip || !index.isValid())
    return QStyledItemDelegate::helpEvent(event, graella, opcio, index);
  const QString text = model_.Text(index.row(), index.column());
  const QRect vist = graella->visualRect(index) & graella->viewport()->rect();
  const bool es_veu_sencer = text == index.data().toString() && sizeHint(opcio, index).width() <= vist.width();
  const bool casella = model_.Columnes()[static_cast<std::size_t>(index.column())].casella;
  QToolTip::showText(event->globalPos(), es_veu_sencer || casella ? QString() : text, graella->viewport());
  return true;
}
