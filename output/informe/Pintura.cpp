#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

#include "output/informe/Informe.h"
#include "output/informe/Lletra.h"

namespace {

constexpr double twips_per_punt = 20;
constexpr double lletra_minima = 5;  // points

// A figure is never cut: it is drawn smaller until it fits.
QFont Lletra_Que_Hi_Cap(const Element& element) {
  double punts = element.punts;
  QFont lletra = Lletra(punts, element.negreta);
  while (punts > lletra_minima && QFontMetricsF(lletra).horizontalAdvance(element.text) > element.lloc.width()) {
    punts -= 0.5;
    lletra = Lletra(punts, element.negreta);
  }
  return lletra;
}

void Pintar_Text(QPainter& pintor, const Element& element) {
  const bool xifra = element.alineacio.testFlag(Qt::AlignRight);
  pintor.setFont(xifra ? Lletra_Que_Hi_Cap(element) : Lletra(element.punts, element.negreta));
  if (element.creix) {
    pintor.drawText(element.lloc, static_cast<int>(element.alineacio) | Qt::TextWordWrap, element.text);
    return;
  }
  const QFontMetricsF mesura(pintor.font());
  const QString text = xifra ? element.text : mesura.elidedText(element.text, Qt::ElideRight, element.lloc.width());
  pintor.drawText(element.lloc, static_cast<int>(element.alineacio | Qt::AlignTop) | Qt::TextSingleLine, text);
}

void Pintar_Imatge(QPainter& pintor, const Element& element) {
  if (element.imatge.isNull()) return;
  QRectF lloc(QPointF(0, 0), QSizeF(element.imatge.size()).scaled(element.lloc.size(), Qt::KeepAspectRatio));
  lloc.moveTopLeft(element.lloc.topLeft());
  pintor.drawImage(lloc, element.imatge);
}

void Pintar_Ratlla(QPainter& pintor, const Element& element) {
  pintor.setPen(QPen(Qt::black, std::max(element.lloc.height(), 6.0)));
  pintor.drawLine(element.lloc.topLeft(), element.lloc.topRight());
}

}  // namespace

QFont Lletra(double punts, bool negreta) {
  QFont lletra(
      QStringList{QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans"), QStringLiteral("Sans Serif")});
  lletra.setPixelSize(static_cast<int>(punts * twips_per_punt));
  lletra.setBold(negreta);
  lletra.setHintingPreference(QFont::PreferNoHinting);
  return lletra;
}

void Pintar_Pagina(QPainter& pintor, const std::vector<Element>& pagina) {
  for (const Element& element : pagina) {
    pintor.setPen(Qt::black);
    if (element.mena == Mena_Control::Ratlla)
      Pintar_Ratlla(pintor, element);
    else if (element.mena == Mena_Control::Imatge)
      Pintar_Imatge(pintor, element);
    else
      Pintar_Text(pintor, element);
  }
}
