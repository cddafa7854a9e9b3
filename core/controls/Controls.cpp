#include "core/controls/Controls.h"

#include <QCalendarWidget>
#include <QChildEvent>
#include <QCompleter>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLocale>
#include <QMenu>
#include <QRadioButton>
#include <QStyledItemDelegate>
#include <QToolButton>
#include <QWidgetAction>

#include "core/controls/Camps.h"
#include "core/dades/Numeros.h"
#include "core/formularis/Teclat.h"

// ---- Selector_Data ----------------------------------------------------------------------------------------------

Selector_Data::Selector_Data(QWidget* pare) : QWidget(pare), camp_(new QLineEdit(this)) {
  auto* fila = new QHBoxLayout(this);
  fila->setContentsMargins(0, 0, 0, 0);
  fila->setSpacing(0);
  camp_->setPlaceholderText(QStringLiteral("DD/MM/AAAA"));
  camp_->setMinimumWidth(camp_->fontMetrics().horizontalAdvance(QStringLiteral("00/00/00000")) + 16);
  auto* boto = new QToolButton(this);
  boto->setArrowType(Qt::DownArrow);
  boto->setFocusPolicy(Qt::NoFocus);
  fila->addWidget(camp_);
  fila->addWidget(boto);
  setFocusProxy(camp_);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  connect(boto, &QToolButton::clicked, this, &Selector_Data::Obrir_Calendari);
  En_Sortir(camp_, [this] { Deixar(); });
}

// Text that is no day, and has not been left yet, leaves the day of before in force.
std::optional<Data_Hora> Selector_Data::Data() const {
  const QString escrit = camp_->text().trimmed();
  const auto dia = Data_De_Text(escrit.toStdString());
  return dia || escrit.isEmpty() ? dia : Data_De_Text(desada_.toStdString());
}

void Selector_Data::Data(const std::optional<Data_Hora>& dia) {
  desada_ = dia ? QString::fromStdString(Text_Data({dia->any, dia->mes, dia->dia})) : QString();
  camp_->setText(desada_);
}

QString Selector_Data::Text() const {
  return camp_->text();
}

// Only a day of the calendar or nothing at all can be left behind.
void Selector_Data::Deixar() {
  const QString escrit = camp_->text().trimmed();
  const auto dia = Data_De_Text(escrit.toStdString());
  if (!dia && !escrit.isEmpty()) return Retenir_Focus(camp_);
  const QString abans = desada_;
  Data(dia);
  if (desada_ != abans) Q_EMIT Canviada();
}

void Selector_Data::Obrir_Calendari() {
  QMenu menu(this);
  auto* calendari = new QCalendarWidget(&menu);
  calendari->setFirstDayOfWeek(Qt::Monday);
  if (const auto dia = Data()) calendari->setSelectedDate(QDate(dia->any, dia->mes, dia->dia));
  auto* accio = new QWidgetAction(&menu);
  accio->setDefaultWidget(calendari);
  menu.addAction(accio);
  connect(calendari, &QCalendarWidget::clicked, &menu, [&](const QDate& triat) {
    menu.close();
    camp_->setText(triat.toString(QStringLiteral("dd/MM/yyyy")));
    Deixar();
  });
  menu.exec(mapToGlobal(QPoint(0, height())));
}

// ---- Combo_Codi -------------------------------------------------------------------------------------------------

namespace {

// An entry of the open list: the name, and its note.
class Pintor_Amb_Nota : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* opcio, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(opcio, index);
    const QString nota = index.data(paper_nota).toString();
    if (!nota.isEmpty()) opcio->text += QStringLiteral("   ") + nota;
  }
};

}  // namespace

Combo_Codi::Combo_Codi(QWidget* pare) : QComboBox(pare) {
  setEditable(true);
  setInsertPolicy(NoInsert);
  setMaxVisibleItems(15);
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(20);
  setItemDelegate(new Pintor_Amb_Nota(this));
  completer()->setCompletionMode(QCompleter::PopupCompletion);
  completer()->setFilterMode(Qt::MatchContains);
  completer()->setCaseSensitivity(Qt::CaseInsensitive);
  connect(this, &QComboBox::activated, this, &Combo_Codi::Escollir);
  En_Sortir(this, [this] { Deixar(); });
}

void Combo_Codi::Omplir(const std::string& sentencia, Connexio& connexio, const char* camp_codi, const char* camp_nom,
                        const char* camp_nota) {
  const Recordset rs(sentencia, connexio);
  const int codi = rs.Index_Camp(camp_codi);
  const int nom = rs.Index_Camp(camp_nom);
  const int nota = camp_nota == nullptr ? -1 : rs.Index_Camp(camp_nota);
  clear();
  for (std::int64_t fila = 0; fila < rs.RecordCount(); ++fila) {
    addItem(QString::fromStdString(rs.Valor_De_Fila(fila, nom).Text()),
            QString::fromStdString(rs.Valor_De_Fila(fila, codi).Text()));
    if (nota >= 0) setItemData(count() - 1, QString::fromStdString(rs.Valor_De_Fila(fila, nota).Text()), paper_nota);
  }
  Posar({}, {});
}

std::string Combo_Codi::Codi() const {
  return codi_.toStdString();
}
std::string Combo_Codi::Nom() const {
  return nom_.toStdString();
}

void Combo_Codi::Posar(const std::string& codi, const std::string& nom) {
  codi_ = QString::fromStdString(codi);
  nom_ = QString::fromStdString(nom);
  setCurrentIndex(codi_.isEmpty() ? -1 : findData(codi_));
  setEditText(nom_);
  lineEdit()->setCursorPosition(0);
}

void Combo_Codi::Posar(const std::string& codi) {
  const int index = codi.empty() ? -1 : findData(QString::fromStdString(codi));
  Posar(codi, index < 0 ? codi : itemText(index).toStdString());
}

void Combo_Codi::Triar(const std::string& codi, const std::string& nom) {
  Posar(codi, nom);
  Q_EMIT Triat();
}

void Combo_Codi::Escollir(int index) {
  if (index < 0) return;
  codi_ = itemData(index).toString();
  nom_ = itemText(index);
  setEditText(nom_);
  Q_EMIT Triat();
}

// A name typed in full chooses its entry, an empty field chooses none, and any other text gives way to the choice.
void Combo_Codi::Deixar() {
  const QString escrit = currentText().trimmed();
  if (escrit.compare(nom_, Qt::CaseInsensitive) == 0) return setEditText(nom_);
  const int index = escrit.isEmpty() ? -1 : findText(escrit, Qt::MatchFixedString);
  if (index >= 0) {
    setCurrentIndex(index);
    return Escollir(index);
  }
  if (!escrit.isEmpty()) return setEditText(nom_);
  Posar({}, {});
  Q_EMIT Triat();
}

// ---- Grup_Opcions -----------------------------------------------------------------------------------------------

Grup_Opcions::Grup_Opcions(QWidget* pare) : QGroupBox(pare) {}

QList<QRadioButton*> Grup_Opcions::Opcions() const {
  return findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly);
}

int Grup_Opcions::Opcio() const {
  const auto opcions = Opcions();
  for (int i = 0; i < opcions.size(); ++i) {
    if (opcions[i]->isChecked()) return i;
  }
  return -1;
}

void Grup_Opcions::Opcio(int index) {
  if (QRadioButton* boto = Opcions().value(index)) boto->setChecked(true);
}

void Grup_Opcions::Titol_Opcio(int index, const QString& titol) {
  if (QRadioButton* boto = Opcions().value(index)) boto->setText(titol);
}

void Grup_Opcions::childEvent(QChildEvent* event) {
  QGroupBox::childEvent(event);
  auto* boto = event->polished() ? qobject_cast<QRadioButton*>(event->child()) : nullptr;
  if (boto == nullptr) return;
  connect(boto, &QRadioButton::clicked, this, [this] { Q_EMIT Triada(Opcio()); });
}

// ---- Camp_Numeric -----------------------------------------------------------------------------------------------

Camp_Numeric::Camp_Numeric(QWidget* pare) : QLineEdit(pare) {
  setAlignment(Qt::AlignRight);
}

void Camp_Numeric::Mascara(const char* mascara) {
  mascara_ = mascara;
}
bool Camp_Numeric::Es_Numeric() const {
  return Numero_De_Text(text().toStdString()).has_value();
}
double Camp_Numeric::Numero() const {
  return Numero_De_Text(text().toStdString()).value_or(0);
}
void Camp_Numeric::Numero(double valor) {
  setText(QString::fromStdString(Format_Numero(valor, mascara_)));
}

void Camp_Numeric::keyPressEvent(QKeyEvent* event) {
  if (!Punt_Per_Coma(*event, *this)) return QLineEdit::keyPressEvent(event);
  event->accept();
}
