#include "core/formularis/Finestres.h"

#include <QAction>
#include <QApplication>
#include <QLayout>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <algorithm>

#include "core/formularis/Formulari.h"
#include "core/formularis/Memoria_Pantalles.h"

namespace {

constexpr const char* mida_donada = "mida_donada";  // property of a window: the size that the program gave it

QSize Lloc_De(const QMdiArea& area) {
  return area.viewport()->size();
}

// Centred, a little above the middle.
void Centrar(QMdiSubWindow* finestra, const QMdiArea& area) {
  const QSize lloc = Lloc_De(area);
  const int x = std::max(0, (lloc.width() - finestra->width()) / 2);
  const int y = std::max(0, (lloc.height() * 7 / 8 - finestra->height()) / 2);
  finestra->move(x, y);
}

// What the form asks for, with its frame, which has to show its title.
QSize Mida_Propia(const Formulari* formulari) {
  const QMdiSubWindow* finestra = Subfinestra(formulari);
  const QSize vora = finestra->sizeHint() - formulari->sizeHint();
  constexpr int botons_del_marc = 120;
  const int titol = finestra->fontMetrics().horizontalAdvance(formulari->windowTitle()) + botons_del_marc;
  return (formulari->sizeHint() + vora).expandedTo(QSize(titol, 0));
}

// The contents of tab pages were measured before their fonts and texts were set.
void Mesurar_De_Nou(const Formulari* formulari) {
  for (auto* peca : formulari->findChildren<QWidget*>()) peca->ensurePolished();
  for (auto* disposicio : formulari->findChildren<QLayout*>()) disposicio->invalidate();
  for (auto* peca : formulari->findChildren<QWidget*>()) peca->updateGeometry();
}

void Donar_Mida(QMdiSubWindow* finestra, QSize mida) {
  finestra->resize(mida);
  finestra->setProperty(mida_donada, finestra->size());
}

bool Mida_De_L_Usuari(const QMdiSubWindow* finestra) {
  return finestra->property(mida_donada).toSize() != finestra->size();
}

bool Ocupa_Tot(const QMdiSubWindow* finestra) {
  return finestra->isMaximized() || finestra->isMinimized();
}

// The frame's own menu has Ctrl+W too, which would make the shortcut ambiguous.
void Treure_Dreceres(QMdiSubWindow* finestra) {
  QMenu* menu = finestra->systemMenu();
  if (menu == nullptr) return;
  for (QAction* accio : menu->actions()) accio->setShortcut({});
}

// The toolkit paints the frame of the window in front anew whenever its focus goes from one field to another. It only
// has to be told of what may bring another window to the front.
void No_Repintar_El_Marc(QMdiSubWindow* finestra) {
  constexpr const char* rutina = "_q_processFocusChanged";
  if (finestra->metaObject()->indexOfMethod("_q_processFocusChanged(QWidget*,QWidget*)") < 0) return;
  QObject::disconnect(qApp, &QApplication::focusChanged, finestra, nullptr);
  QObject::connect(qApp, &QApplication::focusChanged, finestra, [finestra](QWidget* abans, QWidget* ara) {
    const QMdiArea* area = finestra->mdiArea();
    const bool es_davant = area != nullptr && area->activeSubWindow() == finestra;
    if (ara == nullptr || (es_davant && ara != finestra)) return;
    QMetaObject::invokeMethod(finestra, rutina, Q_ARG(QWidget*, abans), Q_ARG(QWidget*, ara));
  });
}

void Encabir(QMdiSubWindow* finestra, const QSize& lloc) {
  const bool era_seva = Mida_De_L_Usuari(finestra);
  const QSize mida = finestra->size().boundedTo(lloc);
  if (mida != finestra->size()) {
    finestra->resize(mida);
    if (!era_seva) finestra->setProperty(mida_donada, finestra->size());
  }
  finestra->move(std::clamp(finestra->x(), 0, std::max(0, lloc.width() - finestra->width())),
                 std::clamp(finestra->y(), 0, std::max(0, lloc.height() - finestra->height())));
}

}  // namespace

QMdiSubWindow* Subfinestra(const Formulari* formulari) {
  return qobject_cast<QMdiSubWindow*>(formulari->parentWidget());
}

void Collocar(QMdiArea& area, Formulari* formulari) {
  Mesurar_De_Nou(formulari);
  QMdiSubWindow* finestra = area.addSubWindow(formulari);
  finestra->setAttribute(Qt::WA_DeleteOnClose);
  Treure_Dreceres(finestra);
  No_Repintar_El_Marc(finestra);
  if (formulari->Sempre_A_Dalt()) {
    finestra->setWindowFlag(Qt::WindowStaysOnTopHint);
    finestra->setWindowFlag(Qt::WindowMaximizeButtonHint, false);
  }
  const QSize propia = Mida_Propia(formulari);
  const QSize volguda = formulari->Vol_Tot_El_Lloc() ? propia.expandedTo(Lloc_De(area)) : propia;
  Donar_Mida(finestra, Mida_Recordada(formulari->Nom()).value_or(volguda).boundedTo(Lloc_De(area)));
  Centrar(finestra, area);
  finestra->setEnabled(formulari->isEnabled());
  finestra->show();
}

void Encabir_Textos(QMdiArea& area, const Formulari* formulari) {
  QMdiSubWindow* finestra = Subfinestra(formulari);
  if (finestra == nullptr || Ocupa_Tot(finestra) || Mida_De_L_Usuari(finestra)) return;
  Mesurar_De_Nou(formulari);
  const QSize cal = finestra->size().expandedTo(Mida_Propia(formulari)).boundedTo(Lloc_De(area));
  if (cal == finestra->size()) return;
  Donar_Mida(finestra, cal);
  Encabir(finestra, Lloc_De(area));
}

void Encabir_Finestres(QMdiArea& area) {
  for (QMdiSubWindow* finestra : area.subWindowList()) {
    if (finestra->isVisible() && !Ocupa_Tot(finestra)) Encabir(finestra, Lloc_De(area));
  }
}

// A window that fills the area, or is put away, tells nothing about its size.
void Recordar_Mida(const Formulari* formulari) {
  const QMdiSubWindow* finestra = Subfinestra(formulari);
  if (finestra == nullptr || Ocupa_Tot(finestra) || !Mida_De_L_Usuari(finestra)) return;
  const auto* area = finestra->mdiArea();
  const QSize propia = area == nullptr ? Mida_Propia(formulari) : Mida_Propia(formulari).boundedTo(Lloc_De(*area));
  Recordar_Mida(formulari->Nom(), finestra->size(), propia);
}

QMdiSubWindow* Del_Davant_Abans(const QMdiArea& area, const QMdiSubWindow* menys) {
  const auto finestres = area.subWindowList(QMdiArea::ActivationHistoryOrder);
  const auto trobada = std::find_if(finestres.rbegin(), finestres.rend(), [menys](const QMdiSubWindow* finestra) {
    const auto* formulari = qobject_cast<const Formulari*>(finestra->widget());
    return finestra != menys && finestra->isVisible() && finestra->isEnabled() && formulari != nullptr &&
           !formulari->Es_Tanca();
  });
  return trobada == finestres.rend() ? nullptr : *trobada;
}
