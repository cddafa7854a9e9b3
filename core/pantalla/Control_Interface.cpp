#include "core/pantalla/Control_Interface.h"

#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <algorithm>
#include <map>

#include "core/F_Principal.h"
#include "core/M_Funcions_Comuns.h"
#include "core/M_Idiomes.h"
#include "core/M_Usuaris.h"
#include "core/pantalla/Aparenca.h"
#include "core/pantalla/Formulari.h"
#include "core/pantalla/Graella.h"
#include "core/pantalla/Traduccio.h"

namespace {

// What stands behind a form: disabled while it is open; requeried when it closes if it may have changed what they show.
struct Parella {
  const char16_t* formulari;
  const char16_t* pare;
  bool requerir;
};

constexpr Parella pares[] = {
    {u"F_ALBARA", u"F_ALBARANSM", true},         {u"F_ALBARA", u"F_PAGAMENTSM", true},
    {u"F_ALBARA", u"F_PAGPENDM", true},          {u"F_ALBARANSM", u"F_ALBARANSS", false},
    {u"F_ALBCOMPRA", u"F_ALBCOMPRESM", true},    {u"F_ALBCOMPRESM", u"F_ALBCOMPRESS", false},
    {u"F_ALBMAG", u"F_ALBMAGM", true},           {u"F_ALBMAGM", u"F_ALBMAGS", false},
    {u"F_ARTICLE", u"F_ARTICLESMC", true},       {u"F_CLIENT", u"F_CLIENTSM", true},
    {u"F_COMANDA", u"F_COMANDESM", true},        {u"F_COMANDA", u"F_PAGAMENTSM", true},
    {u"F_COMANDA", u"F_PAGPENDM", true},         {u"F_COMANDESM", u"F_COMANDESS", false},
    {u"F_DETALL_LINIAC", u"F_ALBCOMPRA", false}, {u"F_EMPRESA", u"F_EMPRESESM", true},
    {u"F_FACTURA", u"F_FACTURESM", true},        {u"F_FACTURA", u"F_PAGAMENTSM", true},
    {u"F_FACTURA", u"F_PAGPENDM", true},         {u"F_FACTURAR", u"F_ALBARANSM", true},
    {u"F_FACTURESM", u"F_FACTURESS", false},     {u"F_MOVIMENTSM", u"F_MOVIMENTSS", false},
    {u"F_PAGAMENTSM", u"F_PAGAMENTSS", false},   {u"F_PAGPENDM", u"F_PAGAMENTSS", false},
    {u"F_PRESSUPOST", u"F_PRESSUPOSTOSM", true}, {u"F_PRESSUPOSTOSM", u"F_PRESSUPOSTOSS", false},
    {u"F_PROVEIDOR", u"F_PROVEIDORSM", true},    {u"F_USUARI", u"F_USUARISM", true},
};

std::map<QString, std::function<Formulari*()>>& Fabriques() {
  static std::map<QString, std::function<Formulari*()>> fabriques;
  return fabriques;
}

std::map<QString, Formulari*>& Carregats() {
  static std::map<QString, Formulari*> carregats;
  return carregats;
}

QMdiSubWindow* Subfinestra(Formulari* formulari) {
  return qobject_cast<QMdiSubWindow*>(formulari->parentWidget());
}

void Habilitar(Formulari* formulari, bool habilitat) {
  if (QMdiSubWindow* finestra = Subfinestra(formulari)) finestra->setEnabled(habilitat);
}

// Centred, a little above the middle: the menu and the status area need their room.
void Centrar_Formulari(QMdiSubWindow* finestra, const QMdiArea* area) {
  const QSize lloc = area->viewport()->size();
  const int x = std::max(0, (lloc.width() - finestra->width()) / 2);
  const int y = std::max(0, (lloc.height() * 7 / 8 - finestra->height()) / 2);
  finestra->move(x, y);
}

// Room enough for what the form asks for, never more than there is.
void Collocar(Formulari* formulari) {
  QMdiArea* area = F_Principal::Unica()->Area();
  QMdiSubWindow* finestra = area->addSubWindow(formulari);
  finestra->setAttribute(Qt::WA_DeleteOnClose);
  const QSize vora = finestra->sizeHint() - formulari->sizeHint();
  finestra->resize((formulari->sizeHint() + vora).boundedTo(area->viewport()->size()));
  Centrar_Formulari(finestra, area);
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
  nou->Carregar();
  for (auto* graella : nou->findChildren<Graella*>()) graella->Recuperar_Amplades();
  nou->Aplicar_Drets();
  return nou.release();
}

void Requerir(Formulari* pare) {
  Recordset* rs = pare->Recordset_Llista();
  if (rs == nullptr) return;
  sessio.Posicio_Guardada = static_cast<std::int32_t>(rs->AbsolutePosition());
  rs->Requery();
  Reposicionar(*rs, sessio.Posicio_Guardada - 1);
  if (Graella* graella = pare->Graella_Llista()) graella->Refrescar();
}

}  // namespace

void Registrar_Formulari(const QString& nom, std::function<Formulari*()> fabrica) {
  Fabriques()[nom.toUpper()] = std::move(fabrica);
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
  Formulari* formulari = Carregar_Amagat(nom);
  if (formulari == nullptr) return nullptr;
  if (Subfinestra(formulari) == nullptr) Collocar(formulari);
  F_Principal::Unica()->Portar_Al_Davant(Subfinestra(formulari));
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

void Obrir_Formulari(const QString& nom) {
  const QString majuscules = nom.toUpper();
  Traduir_Formulari(majuscules);
  for (const auto& [formulari, pare, requerir] : pares) {
    Formulari* carregat = majuscules == QStringView(formulari) ? Formulari_De_Nom(QString::fromUtf16(pare)) : nullptr;
    if (carregat != nullptr) Habilitar(carregat, false);
  }
}

void Tancar_Formulari(const QString& nom) {
  const QString majuscules = nom.toUpper();
  Carregats().erase(majuscules);
  QMdiSubWindow* seguent = nullptr;
  for (const auto& [formulari, pare, requerir] : pares) {
    Formulari* carregat = majuscules == QStringView(formulari) ? Formulari_De_Nom(QString::fromUtf16(pare)) : nullptr;
    if (carregat == nullptr) continue;
    if (requerir) Requerir(carregat);
    Habilitar(carregat, true);
    if (Graella* graella = carregat->Graella_Llista()) graella->setFocus();
    if (seguent == nullptr) seguent = Subfinestra(carregat);
  }
  if (majuscules != u"F_CERCA") Descarregar_Formulari(QStringLiteral("F_CERCA"));
  if (seguent != nullptr) F_Principal::Unica()->Portar_Al_Davant(seguent);
}

void Aplicar_Drets(const QString& nom) {
  if (Formulari* formulari = Formulari_De_Nom(nom)) formulari->Aplicar_Drets();
}

void Obrir(const QString& nom) {
  Formulari::Guardar_Event([&] {
    if (Mostrar_Formulari(nom) != nullptr) Obrir_Formulari(nom);
  });
}

void Canviar_Idioma(std::int16_t id) {
  Fixar_Idioma(id);
  Traduir_Formulari(QStringLiteral("F_PRINCIPAL"));
  for (const auto* formulari : Formularis_Carregats()) Traduir_Formulari(formulari->Nom());
  Actualitzar_Menu_Sessio();
}

void Punter_Ocupat() {
  QApplication::setOverrideCursor(Qt::WaitCursor);
}
void Punter_Normal() {
  QApplication::restoreOverrideCursor();
}
