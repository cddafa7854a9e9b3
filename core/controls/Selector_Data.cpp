#include "core/controls/Selector_Data.h"

#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QToolButton>
#include <QWidgetAction>
#include <array>

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Focus_Camps.h"
#include "core/dades/Dates.h"
#include "core/dades/Numeros.h"

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
