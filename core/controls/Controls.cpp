#include "core/controls/Controls.h"

#include <QCalendarWidget>
#include <QChildEvent>
#include <QCompleter>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenu>
#include <QRadioButton>
#include <QRegularExpression>
#include <QStyledItemDelegate>
#include <QToolButton>
#include <QWidgetAction>
#include <array>

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Focus_Camps.h"
#include "core/dades/Dates.h"
#include "core/dades/Nombre_Escrit.h"
#include "core/dades/Numeros.h"
#include "core/formularis/Teclat.h"

// ---- Selector_Data ----------------------------------------------------------------------------------------------

namespace {

// The three numbers of a day, however they are parted.
std::optional<std::array<QString, 3>> Parts_De_Dia(const QString& text) {
  static const QRegularExpression partit(QStringLiteral("^(\\d{1,2})([/.-])(\\d{1,2})\\2(\\d{2}|\\d{4})$"));
  static const QRegularExpression seguit(QStringLiteral("^(\\d{2})()(\\d{2})(\\d{2}|\\d{4})$"));
  for (const QRegularExpression* forma : {&partit, &seguit}) {
    const auto trobat = forma->match(text);
    if (trobat.hasMatch()) return std::array{trobat.captured(1), trobat.captured(3), trobat.captured(4)};
  }
  return std::nullopt;
}

int Any_Escrit(const QString& text) {
  constexpr int segle = 100;
  constexpr int anys_endavant = 30;
  const int escrit = text.toInt();
  if (text.size() > 2) return escrit;
  const int ara = Avui().any;
  const int any = ara - ara % segle + escrit;
  return any > ara + anys_endavant ? any - segle : any;
}

}  // namespace

std::optional<Data_Hora> Dia_Escrit(const QString& text) {
  const auto parts = Parts_De_Dia(text.trimmed());
  if (!parts) return std::nullopt;
  const Data_Hora dia{.any = Any_Escrit((*parts)[2]), .mes = (*parts)[1].toInt(), .dia = (*parts)[0].toInt()};
  return Es_Data(dia) ? std::optional(dia) : std::nullopt;
}

Selector_Data::Selector_Data(QWidget* pare) : QWidget(pare), camp_(new QLineEdit(this)) {
  auto* fila = new QHBoxLayout(this);
  fila->setContentsMargins(0, 0, 0, 0);
  fila->setSpacing(0);
  camp_->setMinimumWidth(camp_->fontMetrics().horizontalAdvance(QStringLiteral("00/00/00000")) + 16);
  auto* boto = new QToolButton(this);
  boto->setArrowType(Qt::DownArrow);
  boto->setFocusPolicy(Qt::NoFocus);
  fila->addWidget(camp_);
  fila->addWidget(boto);
  setFocusPolicy(Qt::StrongFocus);  // the key of a label reaches only what takes the focus
  setFocusProxy(camp_);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  Indicar_Forma();
  camp_->installEventFilter(this);
  connect(boto, &QToolButton::clicked, this, &Selector_Data::Obrir_Calendari);
  En_Sortir(camp_, [this] { Deixar(); });
}

void Selector_Data::Indicar_Forma() {
  camp_->setPlaceholderText(QString::fromStdString(Missatge("DD/MM/AAAA", "DD/MM/AAAA", "DD/MM/YYYY")));
}

void Selector_Data::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) Indicar_Forma();
  QWidget::changeEvent(event);
}

bool Selector_Data::eventFilter(QObject* objecte, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(objecte, event);
  const auto* tecla = static_cast<QKeyEvent*>(event);
  const bool avall = tecla->key() == Qt::Key_Down && (tecla->modifiers() & Qt::AltModifier) != 0;
  if (!avall && tecla->key() != Qt::Key_F4) return QWidget::eventFilter(objecte, event);
  Obrir_Calendari();
  return true;
}

// Text that is no day, and has not been left yet, leaves the day of before in force.
std::optional<Data_Hora> Selector_Data::Data() const {
  const QString escrit = camp_->text().trimmed();
  const auto dia = Dia_Escrit(escrit);
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
  const auto dia = Dia_Escrit(escrit);
  if (!dia && !escrit.isEmpty()) return Retenir_Focus(camp_);
  const QString abans = desada_;
  Data(dia);
  if (desada_ != abans) Q_EMIT Canviada();
}

// In the language of the session. A click, or Enter, takes the day; Esc leaves the field as it was.
void Selector_Data::Obrir_Calendari() {
  if (camp_->isReadOnly() || !isEnabled()) return;
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  auto* calendari = new QCalendarWidget(menu);
  calendari->setFirstDayOfWeek(Qt::Monday);
  if (const auto dia = Data()) calendari->setSelectedDate(QDate(dia->any, dia->mes, dia->dia));
  auto* accio = new QWidgetAction(menu);
  accio->setDefaultWidget(calendari);
  menu->addAction(accio);
  const auto triar = [this, menu](const QDate& triat) {
    menu->close();
    camp_->setText(triat.toString(QStringLiteral("dd/MM/yyyy")));
    camp_->setFocus(Qt::OtherFocusReason);
    Deixar();
  };
  connect(calendari, &QCalendarWidget::clicked, this, triar);
  connect(calendari, &QCalendarWidget::activated, this, triar);
  menu->popup(mapToGlobal(QPoint(0, height())));
  calendari->setFocus();
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
  if (!escrit.isEmpty() && !text_estrany_es_cap_) return setEditText(nom_);
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
  return Nombre_Escrit(text().toStdString()).has_value();
}
double Camp_Numeric::Numero() const {
  return Nombre_Escrit(text().toStdString()).value_or(0);
}
void Camp_Numeric::Numero(double valor) {
  setText(QString::fromStdString(Format_Numero(valor, mascara_)));
}

void Camp_Numeric::keyPressEvent(QKeyEvent* event) {
  if (!Punt_Per_Coma(*event, *this)) return QLineEdit::keyPressEvent(event);
  event->accept();
}
