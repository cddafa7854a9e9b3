#include "core/formularis/Formularis_Oberts.h"

#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <algorithm>
#include <map>

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Focus_Camps.h"
#include "core/controls/Graella.h"
#include "core/formularis/Aparenca.h"
#include "core/formularis/Crides.h"
#include "core/formularis/Finestra_Principal.h"
#include "core/formularis/Finestres.h"
#include "core/formularis/Formulari.h"
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

// The window and what is in it: a form that has not been shown yet comes to its window as it was left.
void Habilitar(Formulari* formulari, bool habilitat) {
  formulari->setEnabled(habilitat);
  if (QMdiSubWindow* finestra = Subfinestra(formulari)) finestra->setEnabled(habilitat);
}

// Property of a form that was translated before it was measured and shown: Obrir_Formulari need not do it again.
constexpr const char* traduit = "traduit";

QMdiArea& Area() {
  return *Finestra_Principal::Unica()->Area();
}

// A wrong row of TEXTS is told, and the form opens as it was designed.
void Traduir_O_Avisar(const QString& nom) {
  try {
    Traduir_Formulari(nom);
  } catch (const Error_Brollador& error) {
    Mostrar_Error(error);
    sessio.Error_Mostrat = false;  // a later failure has a box of its own
  }
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
  Requerir_Alla_Mateix(*rs);
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

// The loaded form that was opened over this one; null when nothing lies over it.
Formulari* El_De_Sobre(const Formulari* formulari) {
  const QString nom = formulari->Nom().toUpper();
  for (const auto& [fill, pares] : Pares_En_Obrir()) {
    const bool hi_es =
        std::any_of(pares.begin(), pares.end(), [&](const Pare* pare) { return nom == QStringView(pare->pare); });
    Formulari* sobre = hi_es ? Formulari_De_Nom(fill) : nullptr;
    if (sobre != nullptr && sobre != formulari && Subfinestra(sobre) != nullptr) return sobre;
  }
  return nullptr;
}

// A form that others lie over comes with them: the last of them is the one that can be used.
void Portar_Al_Davant(Formulari* formulari) {
  while (!formulari->isEnabled()) {
    Formulari* sobre = El_De_Sobre(formulari);
    if (sobre == nullptr) break;
    Subfinestra(formulari)->raise();
    formulari = sobre;
  }
  Finestra_Principal::Unica()->Portar_Al_Davant(Subfinestra(formulari));
}

// The calls that lists were opened for, while the session's tag may already say something else.
std::map<QString, const Crida*>& Crides_En_Obrir() {
  static std::map<QString, const Crida*> crides;
  return crides;
}

const Crida* Crida_En_Tancar(const QString& nom) {
  auto recordada = Crides_En_Obrir().extract(nom);
  const Crida* crida = recordada.empty() ? nullptr : recordada.mapped();
  const bool hi_es = crida != nullptr && Formulari_De_Nom(QString::fromUtf16(crida->formulari)) != nullptr;
  return hi_es ? crida : nullptr;
}

// What comes to the front when a form goes: the form that asked it for a row, the parent that was used last, or else
// the form that was in front before.
QMdiSubWindow* El_Seguent(const QMdiSubWindow* tancada, const std::vector<Formulari*>& pares, const Crida* crida) {
  if (crida != nullptr) return Subfinestra(Formulari_De_Nom(QString::fromUtf16(crida->formulari)));
  QMdiSubWindow* abans = Del_Davant_Abans(Area(), tancada);
  if (pares.empty()) return abans;
  const bool es_pare =
      std::any_of(pares.begin(), pares.end(), [&](const Formulari* pare) { return Subfinestra(pare) == abans; });
  return es_pare ? abans : Subfinestra(pares.front());
}

// A list that was closed without a choice leaves the user in the field that asked. Where no field did, the form knows
// where its users go on.
void Tornar_Al_Camp(const Crida& crida) {
  const Formulari* formulari = Formulari_De_Nom(QString::fromUtf16(crida.formulari));
  if (formulari == nullptr || crida.destins.empty() || crida.mena == Mena_Crida::Directa) return;
  QWidget* camp = formulari->Cercar_Control(QString::fromUtf16(crida.destins.front().control));
  if (camp != nullptr) Posar_Focus(camp);
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

Formulari* Mostrar_Formulari(const QString& nom) {
  Formulari* formulari = Formulari_De_Nom(nom);
  if (formulari != nullptr && Subfinestra(formulari) != nullptr) {
    formulari->Tornar_A_Obrir();
  } else {
    formulari = Carregar_Amagat(nom);
    if (formulari == nullptr) return nullptr;
    if (Es_Del_Sistema(nom.toUpper())) Traduir_O_Avisar(nom);
    formulari->setProperty(traduit, true);
    Collocar(Area(), formulari);
  }
  Crides_En_Obrir()[nom.toUpper()] = Crida_Pendent(nom);
  Portar_Al_Davant(formulari);
  return formulari;
}

bool Deixar_El_D_Abans(const QString& nom) {
  Formulari* obert = Formulari_De_Nom(nom);
  if (obert == nullptr || Deixar_El_Camp_De(obert)) return true;
  if (Subfinestra(obert) != nullptr) Portar_Al_Davant(obert);
  return false;
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

bool Descarregar_Tots() {
  QStringList noms;
  for (QMdiSubWindow* finestra : Finestra_Principal::Unica()->Area()->subWindowList(QMdiArea::StackingOrder)) {
    noms.prepend(finestra->widget() == nullptr ? QString() : finestra->widget()->objectName());
  }
  for (const auto* amagat : Formularis_Carregats()) noms << amagat->Nom();
  return std::all_of(noms.begin(), noms.end(), [](const QString& nom) {
    Descarregar_Formulari(nom);
    const Formulari* encara = Formulari_De_Nom(nom);
    return encara == nullptr || encara->Es_Tanca() || !encara->Pot_Tancar();
  });
}

void Obrir_Formulari(const QString& nom) {
  const QString majuscules = nom.toUpper();
  if (!Es_Del_Sistema(majuscules)) return;
  Formulari* formulari = Formulari_De_Nom(majuscules);
  const bool acabat_de_traduir = formulari != nullptr && formulari->property(traduit).toBool();
  if (formulari != nullptr) formulari->setProperty(traduit, QVariant());
  if (!acabat_de_traduir) Traduir_O_Avisar(majuscules);
  Pares_En_Obrir()[majuscules] = Pares_De(majuscules);
  for (const Pare* pare : Pares_De(majuscules)) {
    if (pare->mena == Mena_Pare::Creat) Carregar_Amagat(QString::fromUtf16(pare->pare));
    if (Formulari* carregat = Carregat(*pare)) Habilitar(carregat, false);
  }
}

void Tancar_Formulari(const QString& nom) {
  const QString majuscules = nom.toUpper();
  const Formulari* tancat = Formulari_De_Nom(majuscules);
  const QMdiSubWindow* finestra = tancat == nullptr ? nullptr : Subfinestra(tancat);
  // A form that no main window holds leaves nothing in front.
  const bool amb_finestra = Finestra_Principal::Unica() != nullptr;
  const QMdiSubWindow* davant = amb_finestra ? Area().activeSubWindow() : nullptr;
  const Crida* crida = Crida_En_Tancar(majuscules);
  Carregats().erase(majuscules);
  Oblidar_Crida(majuscules);
  std::vector<Formulari*> pares;
  for (const Pare* pare : Pares_En_Tancar(majuscules)) {
    Formulari* carregat = Carregat(*pare);
    if (carregat == nullptr) continue;
    Habilitar(carregat, true);
    if (pare->requerir) Requerir(carregat);
    if (Graella* graella = carregat->Graella_Llista()) graella->setFocus();
    if (Subfinestra(carregat) != nullptr) pares.push_back(carregat);
  }
  if (majuscules != u"F_CERCA") Descarregar_Formulari(QStringLiteral("F_CERCA"));
  if (pares.empty() && davant != nullptr && davant != finestra) return;  // it was not in front
  QMdiSubWindow* seguent = amb_finestra ? El_Seguent(finestra, pares, crida) : nullptr;
  if (seguent == nullptr) return;
  Finestra_Principal::Unica()->Portar_Al_Davant(seguent);
  if (crida != nullptr) Tornar_Al_Camp(*crida);
}

void Aplicar_Drets(const QString& nom) {
  if (Formulari* formulari = Formulari_De_Nom(nom)) formulari->Aplicar_Drets();
}

void Obrir(const QString& nom) {
  Formulari::Guardar_Event([&] {
    if (Mostrar_Formulari(nom) != nullptr) Obrir_Formulari(nom);
  });
}

void Traduir_Formularis() {
  Traduir_O_Avisar(QStringLiteral("F_PRINCIPAL"));
  for (const auto* formulari : Formularis_Carregats()) {
    Traduir_O_Avisar(formulari->Nom());
    Encabir_Textos(Area(), formulari);
  }
}

void Punter_Ocupat() {
  QApplication::setOverrideCursor(Qt::WaitCursor);
}
void Punter_Normal() {
  QApplication::restoreOverrideCursor();
}
