#include "shell/F_Principal.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QToolTip>
#include <algorithm>
#include <optional>

#include "core/controls/Focus_Camps.h"
#include "core/dades/Espera.h"
#include "core/formularis/Aparenca.h"
#include "core/formularis/Finestres.h"
#include "core/formularis/Formulari.h"
#include "core/formularis/Memoria_Pantalles.h"
#include "core/formularis/Motius.h"
#include "shell/Aplicacio.h"
#include "shell/Barra_Estat.h"
#include "shell/Menu_Principal.h"

namespace {

QString Text(const char16_t* text) {
  return QString::fromUtf16(text);
}

// Alt and a letter, alone.
std::optional<QKeySequence> Lletra_Amb_Alt(const QEvent& event) {
  if (event.type() != QEvent::ShortcutOverride && event.type() != QEvent::KeyPress) return std::nullopt;
  const auto& tecla = static_cast<const QKeyEvent&>(event);
  const bool lletra = tecla.key() >= Qt::Key_0 && tecla.key() <= Qt::Key_Z;
  if (tecla.modifiers() != Qt::AltModifier || !lletra) return std::nullopt;
  return QKeySequence(Qt::ALT | static_cast<Qt::Key>(tecla.key()));
}

// The control of a form that the letter stands for, among those that can be used now.
QWidget* Control_De_Lletra(const QWidget& formulari, const QKeySequence& lletra) {
  for (auto* control : formulari.findChildren<QWidget*>()) {
    if (!control->isVisible() || !control->isEnabled()) continue;
    const auto* etiqueta = qobject_cast<const QLabel*>(control);
    const auto* boto = qobject_cast<const QAbstractButton*>(control);
    if (boto != nullptr && QKeySequence::mnemonic(boto->text()) == lletra) return control;
    if (etiqueta == nullptr || etiqueta->buddy() == nullptr || !etiqueta->buddy()->isEnabled()) continue;
    if (QKeySequence::mnemonic(etiqueta->text()) == lletra) return etiqueta->buddy();
  }
  return nullptr;
}

// A button that cannot be used says why.
bool Dir_Per_Que_No(QObject* objecte, const QHelpEvent& event) {
  const auto* boto = qobject_cast<const QAbstractButton*>(objecte);
  if (boto == nullptr || boto->isEnabled()) return false;
  QToolTip::showText(event.globalPos(), Ajuda_De_Desactivat(*boto));
  return true;
}

}  // namespace

F_Principal::F_Principal() : area_(new QMdiArea(this)), estat_(new Barra_Estat(this)) {
  setObjectName(QStringLiteral("F_Principal"));
  resize(1366, 768);
  area_->setBackground(Fons_De_L_Area());
  area_->setActivationOrder(QMdiArea::ActivationHistoryOrder);
  area_->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
  area_->viewport()->installEventFilter(this);
  setCentralWidget(area_);
  setStatusBar(estat_);
  Crear_Menu();
  F_Principal::Accio(QStringLiteral("M_Languages"))->setEnabled(false);
  connect(area_, &QMdiArea::subWindowActivated, this, &F_Principal::Activada);
  // Whatever the user does may change what the form in front shows: told once, when it has been done.
  quan_toqui_.setSingleShot(true);
  quan_toqui_.setInterval(0);
  connect(&quan_toqui_, &QTimer::timeout, this, [this] { estat_->Actualitzar(Del_Davant()); });
  qApp->installEventFilter(this);
  En_Esperar_Torn([this] { estat_->Esperar(); });
}

// Forms that are still open go after this one's own members: nobody hears of them any more.
F_Principal::~F_Principal() {
  disconnect(area_, nullptr, this, nullptr);
  area_->viewport()->removeEventFilter(this);
  qApp->removeEventFilter(this);
  En_Esperar_Torn({});
}

void F_Principal::Mostrar() {
  const QRect lloc = screen()->availableGeometry();
  if (restoreGeometry(Estat_Recordat())) {
    show();
  } else {
    constexpr int marc = 40;  // of a window of the desktop, its title included
    resize(size().boundedTo(lloc.size() - QSize(marc, marc)));
    move(lloc.topLeft() + QPoint(marc / 2, 0));
    showMaximized();
  }
}

void F_Principal::Recordar_Estat() const {
  ::Recordar_Estat(saveGeometry());
}

void F_Principal::Crear_Menu() {
  QMap<QString, QMenu*> menus;
  for (const Entrada_Menu& entrada : Entrades_De_Menu()) {
    QWidget* on = entrada.menu == nullptr ? static_cast<QWidget*>(menuBar()) : menus[Text(entrada.menu)];
    QAction* accio = nullptr;
    if (Es_Submenu(entrada)) {
      auto* menu = new QMenu(Text(entrada.titol), on);
      menus[Text(entrada.nom)] = menu;
      accio = menu->menuAction();
    } else {
      accio = new QAction(Es_Ratlla(entrada) ? QString() : Text(entrada.titol), this);
    }
    accio->setObjectName(Text(entrada.nom));
    accio->setSeparator(Es_Ratlla(entrada));
    accio->setCheckable(entrada.marcable);
    accio->setEnabled(Te_Feina(entrada));
    accio->setShortcut(QKeySequence(QString::fromLatin1(entrada.drecera)));
    on->addAction(accio);
    accions_[Text(entrada.nom)] = accio;
    if (Te_Feina(entrada) && !Es_Submenu(entrada)) {
      connect(accio, &QAction::triggered, this, [&entrada] { Fer(entrada); });
    }
  }
  connect(new QShortcut(Qt::Key_F10, this), &QShortcut::activated, this, [this] {
    menuBar()->setFocus(Qt::MenuBarFocusReason);
    menuBar()->setActiveAction(Accio(QStringLiteral("M_Mestres")));
  });
  connect(menus[QStringLiteral("M_Windows")], &QMenu::aboutToShow, this, &F_Principal::Omplir_Finestres);
}

QAction* F_Principal::Accio(const QString& entrada) const {
  QAction* accio = accions_.value(entrada);
  if (accio == nullptr) qFatal("no menu entry %s", qUtf8Printable(entrada));
  return accio;
}

void F_Principal::Habilitar(const QString& entrada, bool habilitada) {
  for (const Entrada_Menu& que : Entrades_De_Menu()) {
    if (entrada == QStringView(que.nom)) Accio(entrada)->setEnabled(habilitada && Te_Feina(que));
  }
}

void F_Principal::Omplir_Finestres() {
  QMenu* menu = Accio(QStringLiteral("M_Windows"))->menu();
  menu->clear();
  for (QMdiSubWindow* finestra : area_->subWindowList()) {
    QAction* accio = menu->addAction(finestra->windowTitle().replace(u'&', QStringLiteral("&&")));
    accio->setCheckable(true);
    accio->setChecked(finestra == area_->activeSubWindow());
    accio->setEnabled(finestra->isEnabled());
    connect(accio, &QAction::triggered, finestra, [this, finestra] { Portar_Al_Davant(finestra); });
  }
}

Formulari* F_Principal::Del_Davant() const {
  const QMdiSubWindow* davant = area_->activeSubWindow();
  return davant == nullptr ? nullptr : qobject_cast<Formulari*>(davant->widget());
}

void F_Principal::Portar_Al_Davant(QMdiSubWindow* finestra) {
  if (finestra->isMinimized()) finestra->showNormal();
  finestra->show();
  area_->setActiveSubWindow(finestra);
  // The keys follow, also when the field that had them last has gone.
  const QWidget* ara = focusWidget();
  if (ara == nullptr || !finestra->isAncestorOf(ara)) finestra->widget()->setFocus();
}

void F_Principal::Portar_Al_Davant_Del_Tot() {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

// A form hears that it came to the front only when another one was there before, not when the user comes back from
// another program.
void F_Principal::Activada(QMdiSubWindow* finestra) {
  quan_toqui_.start();
  if (finestra == nullptr || finestra == activa_) return;
  activa_ = finestra;
  if (auto* formulari = qobject_cast<Formulari*>(finestra->widget())) {
    Formulari::Guardar_Event([formulari] { formulari->Activar(); });
  }
}

// A letter that the form in front and the menu both have is the form's.
bool F_Principal::Lletra_Del_Formulari(QEvent* event) {
  const auto lletra = Lletra_Amb_Alt(*event);
  if (!lletra || QApplication::activePopupWidget() != nullptr || QApplication::activeModalWidget() != nullptr) {
    return false;
  }
  const auto entrades = menuBar()->actions();
  const bool del_menu = std::any_of(entrades.begin(), entrades.end(), [&](const QAction* accio) {
    return QKeySequence::mnemonic(accio->text()) == *lletra;  // a disabled entry takes its letter all the same
  });
  const Formulari* davant = Del_Davant();
  QWidget* control = del_menu && davant != nullptr ? Control_De_Lletra(*davant, *lletra) : nullptr;
  if (control == nullptr) return false;
  event->accept();
  if (event->type() == QEvent::ShortcutOverride) return true;
  auto* boto = qobject_cast<QAbstractButton*>(control);
  if (boto == nullptr) {
    control->setFocus(Qt::ShortcutFocusReason);
  } else if (Deixar_El_Camp_Pel_Boto(boto)) {
    boto->click();
  }
  return true;
}

bool F_Principal::eventFilter(QObject* objecte, QEvent* event) {
  switch (event->type()) {
    case QEvent::Resize:
      if (objecte == area_->viewport()) Encabir_Finestres(*area_);
      break;
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
      if (Lletra_Del_Formulari(event)) return true;
      quan_toqui_.start();
      break;
    case QEvent::ToolTip:
      if (Dir_Per_Que_No(objecte, *static_cast<QHelpEvent*>(event))) return true;
      break;
    case QEvent::MouseButtonRelease:
    case QEvent::FocusIn:
      quan_toqui_.start();
      break;
    default:
      break;
  }
  return QMainWindow::eventFilter(objecte, event);
}

// A piece of work in the middle is not cut: whoever asked may ask again when it is done.
void F_Principal::closeEvent(QCloseEvent* event) {
  if (sessio.Entrada_Bloquejada || sessio.Transaccio_Oberta()) return event->ignore();
  event->setAccepted(Acabar_Aplicacio());
}
