#include "shell/F_Principal.h"

#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>

#include "core/M_Funcions_Comuns.h"
#include "core/formularis/Control_Interface.h"
#include "core/formularis/Formulari.h"
#include "session/Canvi_Idioma.h"
#include "session/M_Empresa.h"
#include "session/M_Usuaris.h"
#include "shell/Aplicacio.h"
#include "shell/F_Cerca.h"
#include "shell/Imprimir_Formulari.h"

namespace {

void Canviar_Usuari() {
  Descarregar_Tots();
  Habilitar_Menus(false);
  Mostrar_Formulari(QStringLiteral("F_SUBINICI"));
  Traduir_Formulari(QStringLiteral("F_SUBINICI"));
}

void Canviar_Empresa() {
  Descarregar_Tots();
  Demanar_Empresa();
}

void Tancar_Del_Davant() {
  if (const Formulari* davant = F_Principal::Unica()->Del_Davant()) Descarregar_Formulari(davant->Nom());
}

void Imprimir_Del_Davant() {
  Imprimir_Formulari(F_Principal::Unica()->Del_Davant());
}

void Cercar_Al_Davant() {
  Obrir_Cerca(F_Principal::Unica()->Del_Davant());
}

// The click has ticked its entry already: whatever becomes of the change, the ticks tell the language of the session.
template <std::int16_t idioma>
void Parlar() {
  try {
    Canviar_Idioma(idioma);
  } catch (...) {
    Actualitzar_Menu_Sessio();
    throw;
  }
}

// An entry of the menu: what it opens, or what it does. One that has neither waits for its screen and is disabled.
struct Entrada {
  const char16_t* nom;
  const char16_t* menu;  // the submenu that holds it; null: the bar itself
  const char16_t* titol;
  const char16_t* formulari = nullptr;
  void (*accio)() = nullptr;
  bool marcable = false;
};

constexpr const char16_t* submenu = u"";  // in place of a form
constexpr const char16_t* ratlla = u"-";

// Captions without letters of their own: Alt and a letter is for the form in front, Alt alone, or F10, goes to the
// menu.
const Entrada entrades[] = {
    {u"M_Mestres", nullptr, u"Mestres", submenu},
    {u"M_Empresa", u"M_Mestres", u"Empreses", u"F_EMPRESESM"},
    {u"M_Usuaris", u"M_Mestres", u"Usuaris", u"F_USUARISM"},
    {u"M_Guio1", u"M_Mestres", ratlla},
    {u"M_Marques", u"M_Mestres", u"Marques", u"F_MARQUESM"},
    {u"M_Families", u"M_Mestres", u"Famílies", u"F_FAMILIESM"},
    {u"M_Subfamilies", u"M_Mestres", u"SubFamílies", u"F_SUBFAMILIESM"},
    {u"M_Articles_C", u"M_Mestres", u"Articles", u"F_ARTICLESSELC"},
    {u"M_Guio2", u"M_Mestres", ratlla},
    {u"M_Magatzems", u"M_Mestres", u"Magatzems", u"F_MAGATZEMSM"},
    {u"M_Stocks", u"M_Mestres", u"Existències", u"F_STOCKSM"},
    {u"M_Moviments", u"M_Mestres", u"Moviments", u"F_MOVIMENTSS"},
    {u"M_Guio3", u"M_Mestres", ratlla},
    {u"M_Clients", u"M_Mestres", u"Clients", u"F_CLIENTSM"},
    {u"M_Proveidors", u"M_Mestres", u"Proveïdors", u"F_PROVEIDORSM"},
    {u"M_Guio4", u"M_Mestres", ratlla},
    {u"M_CP", u"M_Mestres", u"Codis Postals", u"F_CPM"},
    {u"M_IVA", u"M_Mestres", u"Tipus d'IVA", u"F_IVASM"},
    {u"M_FormesPagament", u"M_Mestres", u"Formes de Pagament", u"F_FORMESPAGAMENTM"},
    {u"M_Venciments", u"M_Mestres", u"Venciments", u"F_VENCIMENTSM"},
    {u"M_Guio5", u"M_Mestres", ratlla},
    {u"M_Exit", u"M_Mestres", u"Sortir", nullptr, Acabar_Aplicacio},
    {u"M_Gestio", nullptr, u"Gestió", submenu},
    {u"M_Pressupostos", u"M_Gestio", u"Pressupostos", u"F_PRESSUPOSTOSS"},
    {u"M_Comandes", u"M_Gestio", u"Comandes", u"F_COMANDESS"},
    {u"M_Albarans", u"M_Gestio", u"Albarans", u"F_ALBARANSS"},
    {u"M_Factures", u"M_Gestio", u"Factures", u"F_FACTURESS"},
    {u"M_Guio6", u"M_Gestio", ratlla},
    {u"M_AlbMag", u"M_Gestio", u"Albarans entre magatzems", u"F_ALBMAGS"},
    {u"M_Compres", u"M_Gestio", u"Albarans de Compres", u"F_ALBCOMPRESS"},
    {u"M_Guio7", u"M_Gestio", ratlla},
    {u"M_Cartera", u"M_Gestio", u"Cartera", u"F_PAGAMENTSS"},
    {u"M_Forms", nullptr, u"Formularis", submenu},
    {u"M_PrintScreen", u"M_Forms", u"Imprimir Formulari", nullptr, Imprimir_Del_Davant},
    {u"M_CloseForm", u"M_Forms", u"Tancar Formulari", nullptr, Tancar_Del_Davant},
    {u"M_Guio8", u"M_Forms", ratlla},
    {u"M_Search", u"M_Forms", u"Cercar", nullptr, Cercar_Al_Davant},
    {u"M_Languages", nullptr, u"Idiomes", submenu},
    {u"M_Catalan", u"M_Languages", u"Català", nullptr, Parlar<0>, true},
    {u"M_Spanish", u"M_Languages", u"Castellà", nullptr, Parlar<1>, true},
    {u"M_English", u"M_Languages", u"Anglès", nullptr, Parlar<2>, true},
    {u"M_Windows", nullptr, u"Finestres", submenu},
    {u"M_Help", nullptr, u"Ajuda", u"F_HELP"},
    {u"M_CanviUsuari", nullptr, u"Canviar d'usuari", nullptr, Canviar_Usuari},
    {u"M_Sel_Empresa", nullptr, u"Canviar d'Empresa", nullptr, Canviar_Empresa},
    {u"M_COPIA", nullptr, u"Còpia"},
};

QString Text(const char16_t* text) {
  return QString::fromUtf16(text);
}

bool Te_Feina(const Entrada& entrada) {
  if (entrada.accio != nullptr) return true;
  return entrada.formulari != nullptr && (*entrada.formulari == u'\0' || Hi_Ha_Fabrica(Text(entrada.formulari)));
}

void Fer(const Entrada& entrada) {
  if (entrada.accio == nullptr) return Obrir(Text(entrada.formulari));
  Formulari::Guardar_Event(entrada.accio);
}

}  // namespace

F_Principal::F_Principal() : area_(new QMdiArea(this)) {
  setObjectName(QStringLiteral("F_Principal"));
  resize(1366, 768);
  area_->setBackground(QColor(0xC9, 0xD3, 0xDC));
  setCentralWidget(area_);
  Crear_Menu();
  Accio(QStringLiteral("M_Languages"))->setEnabled(false);
  connect(area_, &QMdiArea::subWindowActivated, this, &F_Principal::Activada);
}

F_Principal::~F_Principal() = default;

void F_Principal::Crear_Menu() {
  QMap<QString, QMenu*> menus;
  for (const Entrada& entrada : entrades) {
    QWidget* on = entrada.menu == nullptr ? static_cast<QWidget*>(menuBar()) : menus[Text(entrada.menu)];
    QAction* accio = nullptr;
    if (entrada.formulari == submenu) {
      auto* menu = new QMenu(Text(entrada.titol), on);
      menus[Text(entrada.nom)] = menu;
      accio = menu->menuAction();
    } else {
      accio = new QAction(entrada.titol == ratlla ? QString() : Text(entrada.titol), this);
    }
    accio->setObjectName(Text(entrada.nom));
    accio->setSeparator(entrada.titol == ratlla);
    accio->setCheckable(entrada.marcable);
    accio->setEnabled(Te_Feina(entrada));
    on->addAction(accio);
    accions_[Text(entrada.nom)] = accio;
    if (Te_Feina(entrada) && entrada.formulari != submenu) {
      connect(accio, &QAction::triggered, this, [&entrada] { Fer(entrada); });
    }
  }
  Accio(QStringLiteral("M_Search"))->setShortcut(QKeySequence::Find);
  Accio(QStringLiteral("M_CloseForm"))->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_W));
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
  for (const Entrada& que : entrades) {
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
  if (finestra == nullptr || finestra == activa_) return;
  activa_ = finestra;
  connect(finestra, &QObject::destroyed, this, [this, finestra] {
    if (activa_ == finestra) activa_ = nullptr;
  });
  if (auto* formulari = qobject_cast<Formulari*>(finestra->widget())) {
    Formulari::Guardar_Event([formulari] { formulari->Activar(); });
  }
}

void F_Principal::closeEvent(QCloseEvent* event) {
  event->accept();
  Acabar_Aplicacio();
}
