#include "core/formularis/Aparenca.h"

#include <QApplication>
#include <QFont>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QStyleFactory>
#include <QTableView>

#include "core/formularis/Dibuixos.h"

#include "core/formularis/Text_Pla.h"

namespace {

bool Es_Fosca(const QPalette& paleta) {
  constexpr int mig = 128;
  return paleta.color(QPalette::Window).lightness() < mig;
}
bool Som_A_Les_Fosques() {
  return Es_Fosca(QApplication::palette());
}

// A colour on a light desktop, and the one that stands for it on a dark one.
struct Tint {
  QVariant clar;
  QVariant fosc;
  QVariant Ara() const { return Som_A_Les_Fosques() ? fosc : clar; }
};

struct Estil_Fila {
  const char16_t* nom;
  Tint fons;
  Tint tinta;
  bool gruixuda;
  bool cursiva;
};

const Estil_Fila* Cercar_Estil(const QString& nom) {
  static const Estil_Fila estils[] = {
      {u"OK", {QColor(0xDC, 0xEF, 0xDC), QColor(0x23, 0x45, 0x2B)}, {}, false, false},
      {u"Yo", {}, {QColor(0x1F, 0x4E, 0x99), QColor(0x8C, 0xB8, 0xF5)}, true, false},
      {u"Actual", {}, {}, true, false},
      {u"Baixa", {}, {QColor(0x80, 0x80, 0x80), QColor(0x9A, 0x9A, 0x9A)}, false, true},
  };
  for (const auto& estil : estils) {
    if (nom == QStringView(estil.nom)) return &estil;
  }
  return nullptr;
}

QPalette Paleta_Clara() {
  QPalette paleta;
  paleta.setColor(QPalette::Window, QColor(0xF2, 0xF4, 0xF6));
  paleta.setColor(QPalette::Base, Qt::white);
  paleta.setColor(QPalette::AlternateBase, QColor(0xF3, 0xF7, 0xFB));
  paleta.setColor(QPalette::Button, QColor(0xE9, 0xED, 0xF1));
  paleta.setColor(QPalette::WindowText, QColor(0x1E, 0x29, 0x33));
  paleta.setColor(QPalette::Text, QColor(0x1E, 0x29, 0x33));
  paleta.setColor(QPalette::ButtonText, QColor(0x1E, 0x29, 0x33));
  paleta.setColor(QPalette::Highlight, QColor(0x2F, 0x6F, 0xA8));
  paleta.setColor(QPalette::HighlightedText, Qt::white);
  for (const auto paper : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    paleta.setColor(QPalette::Disabled, paper, QColor(0x86, 0x90, 0x99));
  }
  paleta.setColor(QPalette::Disabled, QPalette::Base, QColor(0xF2, 0xF4, 0xF6));
  return paleta;
}

}  // namespace

QPalette Paleta_Per(const QPalette& escriptori) {
  return Es_Fosca(escriptori) ? escriptori : Paleta_Clara();
}

void Vestir(QApplication& aplicacio) {
  aplicacio.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  aplicacio.setPalette(Paleta_Per(QApplication::palette()));
  aplicacio.setWindowIcon(Icona_Programa());
  aplicacio.installEventFilter(new Text_Pla(&aplicacio));
}

// Read-only fields look read-only. A label with a key is drawn in pieces, without the kerning around the underlined
// letter that its size hint counts on, so it needs some pixels more.
void Vestir_Formulari(QWidget* formulari) {
  constexpr int entre_lletres = 3;  // pixels
  for (auto* etiqueta : formulari->findChildren<QLabel*>()) {
    if (etiqueta->buddy() != nullptr) etiqueta->setContentsMargins(0, 0, entre_lletres, 0);
  }
  for (auto* camp : formulari->findChildren<QLineEdit*>()) {
    if (!camp->isReadOnly()) continue;
    QPalette paleta = camp->palette();
    paleta.setColor(QPalette::Base, Som_A_Les_Fosques() ? paleta.color(QPalette::Window) : QColor(0xEA, 0xEE, 0xF2));
    camp->setPalette(paleta);
  }
}

void Vestir_Taula(QTableView& taula) {
  constexpr int alcada_fila = 24;
  taula.setAlternatingRowColors(true);
  taula.setSelectionBehavior(QTableView::SelectRows);
  taula.setSelectionMode(QTableView::SingleSelection);
  taula.setEditTriggers(QTableView::NoEditTriggers);
  taula.setShowGrid(false);
  taula.setWordWrap(false);
  taula.setTabKeyNavigation(false);
  taula.verticalHeader()->hide();
  taula.verticalHeader()->setDefaultSectionSize(alcada_fila);
  taula.horizontalHeader()->setHighlightSections(false);
  taula.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  taula.horizontalHeader()->setStretchLastSection(true);
}

QColor Fons_De_L_Area() {
  constexpr int una_mica = 125;  // percent
  return Som_A_Les_Fosques() ? QApplication::palette().color(QPalette::Window).darker(una_mica)
                             : QColor(0xC9, 0xD3, 0xDC);
}

QPalette Paleta_De_Refus(QPalette paleta) {
  const bool fosca = Es_Fosca(paleta);
  paleta.setColor(QPalette::Base, fosca ? QColor(0x5A, 0x26, 0x26) : QColor(0xFB, 0xE4, 0xE4));
  paleta.setColor(QPalette::Text, fosca ? QColor(0xFF, 0xDC, 0xDC) : QColor(0xB0, 0x20, 0x20));
  paleta.setColor(QPalette::Highlight, QColor(0xB0, 0x20, 0x20));
  paleta.setColor(QPalette::HighlightedText, Qt::white);
  return paleta;
}

QColor Tinta_De_Refus(const QPalette& paleta) {
  return Es_Fosca(paleta) ? QColor(0xFF, 0x9A, 0x9A) : QColor(0xB0, 0x20, 0x20);
}

QVariant Fons_Estil(const QString& estil) {
  const Estil_Fila* trobat = Cercar_Estil(estil);
  return trobat == nullptr ? QVariant() : trobat->fons.Ara();
}

QVariant Tinta_Estil(const QString& estil) {
  const Estil_Fila* trobat = Cercar_Estil(estil);
  return trobat == nullptr ? QVariant() : trobat->tinta.Ara();
}

QVariant Lletra_Estil(const QString& estil) {
  const Estil_Fila* trobat = Cercar_Estil(estil);
  if (trobat == nullptr || (!trobat->gruixuda && !trobat->cursiva)) return {};
  QFont lletra;
  lletra.setBold(trobat->gruixuda);
  lletra.setItalic(trobat->cursiva);
  return lletra;
}
