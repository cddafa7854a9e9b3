#include "core/formularis/Control_Interface.h"

#include <QApplication>
#include <QLayout>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <algorithm>
#include <map>

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Graella.h"
#include "core/formularis/Aparenca.h"
#include "core/formularis/Crides.h"
#include "core/formularis/Finestra_Principal.h"
#include "core/formularis/Formulari.h"
#include "core/formularis/Memoria_Pantalles.h"
#include "core/formularis/Pares.h"
#include "core/formularis/Traduccio.h"

namespace {

std::map<QString, std::function<Formulari*()>>& Fabriques() {
  static std::map<QString, std::function<Formulari*()>> fabriques;
  return fabriques;
}

std::map<QString, Formulari*>& Carregats() {
  static std::map<QString, Formulari*> carregats;
  return carregats;
}

QMdiSubWindow* Subfinestra(const Formulari* formulari) {
  return qobject_cast<QMdiSubWindow*>(formulari->parentWidget());
}

// The window and what is in it: a form that has not been shown yet comes to its window as it was left.
void Habilitar(Formulari* formulari, bool habilitat) {
  formulari->setEnabled(habilitat);
  if (QMdiSubWindow* finestra = Subfinestra(formulari)) finestra->setEnabled(habilitat);
}

// Centred, a little above the middle: the menu and the status area need their room.
void Centrar_Formulari(QMdiSubWindow* finestra, const QMdiArea* area) {
  const QSize lloc = area->viewport()->size();
  const int x = std::max(0, (lloc.width() - finestra->width()) / 2);
  const int y = std::max(0, (lloc.height() * 7 / 8 - finestra->height()) / 2);
  finestra->move(x, y);
}

// What the form asks for, with its frame.
QSize Mida_Propia(const Formulari* formulari) {
  const QSize vora = Subfinestra(formulari)->sizeHint() - formulari->sizeHint();
  return formulari->sizeHint() + vora;
}

// What is inside pages of tabs has been measured before its fonts and texts were there.
void Mesurar_De_Nou(const Formulari* formulari) {
  for (auto* peca : formulari->findChildren<QWidget*>()) peca->ensurePolished();
  for (auto* disposicio : formulari->findChildren<QLayout*>()) disposicio->invalidate();
  for (auto* peca : formulari->findChildren<QWidget*>()) peca->updateGeometry();
}

// The size that the user gave it, or room enough for what the form asks for; never more than there is.
void Collocar(Formulari* formulari) {
  Mesurar_De_Nou(formulari);
  QMdiArea* area = Finestra_Principal::Unica()->Area();
  QMdiSubWindow* finestra = area->addSubWindow(formulari);
  finestra->setAttribute(Qt::WA_DeleteOnClose);
  if (formulari->Sempre_A_Dalt()) finestra->setWindowFlag(Qt::WindowStaysOnTopHint);
  finestra->resize(
      Mida_Recordada(formulari->Nom()).value_or(Mida_Propia(formulari)).boundedTo(area->viewport()->size()));
  Centrar_Formulari(finestra, area);
  finestra->setEnabled(formulari->isEnabled());
  finestra->show();
}

Formulari* Carregar_Formulari(const QString& nom) {
  const auto fabrica = Fabriques().find(nom);
  if (fabrica == Fabriques().end()) return nullptr;
  std::unique_ptr<Formulari> nou(fabrica->second());
  Carregats()[nom] = nou.get();
  QObject::connect(nou.get(), &QObject::destroyed, qApp, [nom, quin = nou.get()] {
    const auto it = Carregats().find(nom);
    if (it != Carregats().end() && it->second == quin) Carregats().erase(it);
  });
  Vestir_Formulari(nou.get());
  Connectar_Crides(*nou);
  nou->Carregar();
  for (auto* graella : nou->findChildren<Graella*>()) graella->Recuperar_Amplades();
  nou->Aplicar_Drets();
  return nou.release();
}

void Requerir(Formulari* pare) {
  Recordset* rs = pare->Recordset_Llista();
  if (rs == nullptr) return;
  pare->Preparar_Requery();
  sessio.Posicio_Guardada = static_cast<std::int32_t>(rs->AbsolutePosition());
  rs->Requery();
  Reposicionar(*rs, sessio.Posicio_Guardada - 1);
  if (Graella* graella = pare->Graella_Llista()) graella->Refrescar();
}

// The parents that were disabled at the opening of a form whose parent the session tells: what told it may have
// changed when the form closes.
std::map<QString, std::vector<const Pare*>>& Pares_En_Obrir() {
  static std::map<QString, std::vector<const Pare*>> pares;
  return pares;
}

std::vector<const Pare*> Pares_En_Tancar(const QString& nom) {
  auto recordats = Pares_En_Obrir().extract(nom);
  return recordats.empty() ? Pares_De(nom) : std::move(recordats.mapped());
}

Formulari* Carregat(const Pare& pare) {
  return Formulari_De_Nom(QString::fromUtf16(pare.pare));
}

}  // namespace

void Registrar_Formulari(const QString& nom, std::function<Formulari*()> fabrica) {
  if (fabrica) {
    Fabriques()[nom.toUpper()] = std::move(fabrica);
  } else {
    Fabriques().erase(nom.toUpper());
  }
}

bool Hi_Ha_Fabrica(const QString& nom) {
  return Fabriques().contains(nom.toUpper());
}

Formulari* Formulari_De_Nom(const QString& nom) {
  const auto it = Carregats().find(nom.toUpper());
  return it == Carregats().end() ? nullptr : it->second;
}

std::vector<Formulari*> Formularis_Carregats() {
  std::vector<Formulari*> tots;
  for (const auto& [nom, formulari] : Carregats()) tots.push_back(formulari);
  return tots;
}

Formulari* Carregar_Amagat(const QString& nom) {
  Formulari* carregat = Formulari_De_Nom(nom);
  return carregat != nullptr ? carregat : Carregar_Formulari(nom.toUpper());
}

// A window that fills the area, or is put away, tells nothing about its size.
void Recordar_Mida(const Formulari* formulari) {
  const QMdiSubWindow* finestra = Subfinestra(formulari);
  if (finestra == nullptr || finestra->isMaximized() || finestra->isMinimized()) return;
  const QSize lloc = Finestra_Principal::Unica()->Area()->viewport()->size();
  Recordar_Mida(formulari->Nom(), finestra->size(), Mida_Propia(formulari).boundedTo(lloc));
}

Formulari* Mostrar_Formulari(const QString& nom) {
  Formulari* formulari = Carregar_Amagat(nom);
  if (formulari == nullptr) return nullptr;
  if (Subfinestra(formulari) == nullptr) Collocar(formulari);
  Finestra_Principal::Unica()->Portar_Al_Davant(Subfinestra(formulari));
  return formulari;
}

void Descarregar_Formulari(const QString& nom) {
  Formulari* formulari = Formulari_De_Nom(nom);
  if (formulari == nullptr) return;
  QMdiSubWindow* finestra = Subfinestra(formulari);
  if (finestra != nullptr) {
    finestra->close();
  } else {
    formulari->close();
    delete formulari;
  }
}

void Descarregar_Tots() {
  QStringList noms;
  for (QMdiSubWindow* finestra : Finestra_Principal::Unica()->Area()->subWindowList(QMdiArea::StackingOrder)) {
    noms.prepend(finestra->widget() == nullptr ? QString() : finestra->widget()->objectName());
  }
  for (const auto* amagat : Formularis_Carregats()) noms << amagat->Nom();
  for (const QString& nom : noms) Descarregar_Formulari(nom);
}

void Obrir_Formulari(const QString& nom) {
  const QString majuscules = nom.toUpper();
  if (!Es_Del_Sistema(majuscules)) return;
  Traduir_Formulari(majuscules);
  Pares_En_Obrir()[majuscules] = Pares_De(majuscules);
  for (const Pare* pare : Pares_De(majuscules)) {
    if (pare->mena == Mena_Pare::Creat) Carregar_Amagat(QString::fromUtf16(pare->pare));
    if (Formulari* carregat = Carregat(*pare)) Habilitar(carregat, false);
  }
}

void Tancar_Formulari(const QString& nom) {
  const QString majuscules = nom.toUpper();
  Carregats().erase(majuscules);
  Oblidar_Crida(majuscules);
  QMdiSubWindow* seguent = nullptr;
  for (const Pare* pare : Pares_En_Tancar(majuscules)) {
    Formulari* carregat = Carregat(*pare);
    if (carregat == nullptr) continue;
    Habilitar(carregat, true);
    if (pare->requerir) Requerir(carregat);
    if (Graella* graella = carregat->Graella_Llista()) graella->setFocus();
    if (seguent == nullptr) seguent = Subfinestra(carregat);
  }
  if (majuscules != u"F_CERCA") Descarregar_Formulari(QStringLiteral("F_CERCA"));
  if (seguent != nullptr) Finestra_Principal::Unica()->Portar_Al_Davant(seguent);
}

void Aplicar_Drets(const QString& nom) {
  if (Formulari* formulari = Formulari_De_Nom(nom)) formulari->Aplicar_Drets();
}

void Obrir(const QString& nom) {
  Formulari::Guardar_Event([&] {
    if (Mostrar_Formulari(nom) != nullptr) Obrir_Formulari(nom);
  });
}

void Punter_Ocupat() {
  QApplication::setOverrideCursor(Qt::WaitCursor);
}
void Punter_Normal() {
  QApplication::restoreOverrideCursor();
}
