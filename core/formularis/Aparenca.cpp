#include "core/formularis/Aparenca.h"

#include <QApplication>
#include <QFont>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QStyleFactory>

namespace {

const QColor tinta(0x2F, 0x45, 0x58);
const QColor vermell(0xA8, 0x32, 0x32);

struct Estil_Fila {
  const char16_t* nom;
  QVariant fons;
  QVariant tinta;
  bool gruixuda;
  bool cursiva;
};

const Estil_Fila* Cercar_Estil(const QString& nom) {
  static const Estil_Fila estils[] = {
      {u"OK", QColor(0xDC, 0xEF, 0xDC), QVariant(), false, false},
      {u"Yo", QVariant(), QColor(0x1F, 0x4E, 0x99), true, false},
      {u"Actual", QVariant(), QVariant(), true, false},
      {u"Baixa", QVariant(), QColor(0x80, 0x80, 0x80), false, true},
  };
  for (const auto& estil : estils) {
    if (nom == QStringView(estil.nom)) return &estil;
  }
  return nullptr;
}

// Line drawings on a square of 16: few strokes, readable at any size.
QPainterPath Traces(Dibuix dibuix) {
  QPainterPath p;
  const auto linia = [&](qreal x, qreal y, std::initializer_list<QPointF> punts) {
    p.moveTo(x, y);
    for (const auto& punt : punts) p.lineTo(punt);
  };
  switch (dibuix) {
    case Dibuix::Nou:
      linia(8, 3, {{8, 13}}), linia(3, 8, {{13, 8}});
      break;
    case Dibuix::Esborrar:
      linia(3, 4.5, {{13, 4.5}}), linia(6, 4.5, {{6, 2.5}, {10, 2.5}, {10, 4.5}});
      linia(4.5, 4.5, {{5, 13.5}, {11, 13.5}, {11.5, 4.5}});
      break;
    case Dibuix::Sortir:
      linia(4, 4, {{12, 12}}), linia(12, 4, {{4, 12}});
      break;
    case Dibuix::Imprimir:
      linia(5, 6, {{5, 2.5}, {11, 2.5}, {11, 6}}), linia(5, 11, {{2.5, 11}, {2.5, 6}, {13.5, 6}, {13.5, 11}, {11, 11}});
      linia(5, 9, {{5, 13.5}, {11, 13.5}, {11, 9}, {5, 9}});
      break;
    case Dibuix::Amunt:
      linia(8, 13, {{8, 3}}), linia(4, 7, {{8, 3}, {12, 7}});
      break;
    case Dibuix::Avall:
      linia(8, 3, {{8, 13}}), linia(4, 9, {{8, 13}, {12, 9}});
      break;
    case Dibuix::Cercar:
      p.addEllipse(2.5, 2.5, 8, 8), linia(9.5, 9.5, {{13.5, 13.5}});
      break;
    case Dibuix::Netejar:
      linia(3, 10, {{9, 3}, {13, 7}, {8, 13}, {6, 13}, {3, 10}}), linia(6, 6.5, {{10.5, 10.5}});
      break;
    case Dibuix::Calcular:
      linia(4, 2.5, {{12, 2.5}, {12, 13.5}, {4, 13.5}, {4, 2.5}}), linia(6, 5.5, {{10, 5.5}});
      linia(6, 9, {{10, 9}}), linia(6, 11.5, {{10, 11.5}});
      break;
    case Dibuix::Pagar:
      linia(2.5, 4.5, {{13.5, 4.5}, {13.5, 11.5}, {2.5, 11.5}, {2.5, 4.5}}), linia(2.5, 7, {{13.5, 7}});
      break;
    case Dibuix::Correu:
      linia(2.5, 4, {{13.5, 4}, {13.5, 12}, {2.5, 12}, {2.5, 4}, {8, 9}, {13.5, 4}});
      break;
    case Dibuix::Llista:
      linia(3, 4, {{13, 4}}), linia(3, 8, {{13, 8}}), linia(3, 12, {{13, 12}});
      break;
  }
  return p;
}

}  // namespace

void Vestir(QApplication& aplicacio) {
  aplicacio.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
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
  aplicacio.setPalette(paleta);
  aplicacio.setWindowIcon(Icona_Programa());
}

// What cannot be typed into looks it.
void Vestir_Formulari(QWidget* formulari) {
  for (auto* camp : formulari->findChildren<QLineEdit*>()) {
    if (!camp->isReadOnly()) continue;
    QPalette paleta = camp->palette();
    paleta.setColor(QPalette::Base, QColor(0xEA, 0xEE, 0xF2));
    camp->setPalette(paleta);
  }
}

// A spring: three jets of water over a basin.
QIcon Icona_Programa() {
  constexpr int costat = 64;
  QPixmap quadre(costat, costat);
  quadre.fill(Qt::transparent);
  QPainter pintor(&quadre);
  pintor.setRenderHint(QPainter::Antialiasing);
  pintor.setPen(Qt::NoPen);
  pintor.setBrush(QColor(0x2F, 0x6F, 0xA8));
  pintor.drawRoundedRect(0, 0, costat, costat, 12, 12);
  pintor.setBrush(Qt::NoBrush);
  pintor.setPen(QPen(Qt::white, 5, Qt::SolidLine, Qt::RoundCap));
  pintor.drawLine(32, 12, 32, 40);
  pintor.drawArc(14, 16, 18, 30, 0, 180 * 16);
  pintor.drawArc(32, 16, 18, 30, 0, 180 * 16);
  pintor.drawLine(12, 52, 52, 52);
  return quadre;
}

QVariant Fons_Estil(const QString& estil) {
  const Estil_Fila* trobat = Cercar_Estil(estil);
  return trobat == nullptr ? QVariant() : trobat->fons;
}

QVariant Tinta_Estil(const QString& estil) {
  const Estil_Fila* trobat = Cercar_Estil(estil);
  return trobat == nullptr ? QVariant() : trobat->tinta;
}

QVariant Lletra_Estil(const QString& estil) {
  const Estil_Fila* trobat = Cercar_Estil(estil);
  if (trobat == nullptr || (!trobat->gruixuda && !trobat->cursiva)) return {};
  QFont lletra;
  lletra.setBold(trobat->gruixuda);
  lletra.setItalic(trobat->cursiva);
  return lletra;
}

QIcon Icona(Dibuix dibuix) {
  constexpr int costat = 16;
  QIcon icona;
  for (const int escala : {1, 2}) {
    QPixmap quadre(costat * escala, costat * escala);
    quadre.fill(Qt::transparent);
    QPainter pintor(&quadre);
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.scale(escala, escala);
    const bool perill = dibuix == Dibuix::Esborrar;
    pintor.setPen(QPen(perill ? vermell : tinta, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    pintor.drawPath(Traces(dibuix));
    pintor.end();
    quadre.setDevicePixelRatio(escala);
    icona.addPixmap(quadre);
  }
  return icona;
}

void Dibuixar(QPushButton* boto, Dibuix dibuix) {
  boto->setIcon(Icona(dibuix));
}
