#include <QPainter>

#include "output/informe/Informe.h"

namespace {

void Pintar(QPainter& pintor, const Text_Posat& text) {
  pintor.setFont(text.lletra);
  pintor.setPen(text.tinta);
  pintor.drawText(text.base, text.text);
}

void Pintar(QPainter& pintor, const Ratlla_Posada& ratlla) {
  pintor.fillRect(ratlla.lloc, ratlla.tinta);
}

void Pintar(QPainter& pintor, const Imatge_Posada& imatge) {
  pintor.setRenderHint(QPainter::SmoothPixmapTransform);
  pintor.drawImage(imatge.lloc, imatge.imatge);
}

}  // namespace

void Pintar_Pagina(QPainter& pintor, const Pagina& pagina) {
  for (const Element& element : pagina) std::visit([&](const auto& posat) { Pintar(pintor, posat); }, element);
}
