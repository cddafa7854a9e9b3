#include <QPainter>

#include "output/informe/Informe.h"

namespace {

void Pintar(QPainter& pintor, const Text_Posat& text) {
  pintor.setFont(text.lletra);
  pintor.setPen(text.tinta);
  pintor.drawText(text.base, text.text);
}

// A rule thinner than a dot of the device would come and go with its place and the zoom: there is always a dot of it.
void Pintar(QPainter& pintor, const Ratlla_Posada& ratlla) {
  pintor.fillRect(ratlla.lloc, ratlla.tinta);
  QPen punt(ratlla.tinta, 1);
  punt.setCosmetic(true);
  punt.setCapStyle(Qt::FlatCap);
  pintor.setPen(punt);
  const QPointF mig = ratlla.lloc.center();
  const bool estirada = ratlla.lloc.width() >= ratlla.lloc.height();
  pintor.drawLine(estirada ? QLineF(ratlla.lloc.left(), mig.y(), ratlla.lloc.right(), mig.y())
                           : QLineF(mig.x(), ratlla.lloc.top(), mig.x(), ratlla.lloc.bottom()));
}

void Pintar(QPainter& pintor, const Imatge_Posada& imatge) {
  pintor.setRenderHint(QPainter::SmoothPixmapTransform);
  pintor.drawImage(imatge.lloc, imatge.imatge);
}

}  // namespace

void Pintar_Pagina(QPainter& pintor, const Pagina& pagina) {
  for (const Element& element : pagina) std::visit([&](const auto& posat) { Pintar(pintor, posat); }, element);
}
