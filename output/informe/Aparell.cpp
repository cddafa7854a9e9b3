#include "output/informe/Aparell.h"

#include <QPagedPaintDevice>
#include <QPainter>
#include <numeric>

#include "core/M_Funcions_Comuns.h"
#include "output/informe/Informe.h"

QPageLayout Full_A4(const Pagines& pagines) {
  return {QPageSize(QPageSize::A4), pagines.apaisades ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()};
}

bool Pintar_A(QPagedPaintDevice& aparell, const Pagines& pagines, const std::vector<int>& quines) {
  constexpr double twips_per_polzada = 1440;
  QPainter pintor;
  if (!pintor.begin(&aparell)) return false;
  const double escala = aparell.logicalDpiX() / twips_per_polzada;
  bool primera = true;
  for (const int pagina : quines) {
    if (!primera && !aparell.newPage()) return false;
    primera = false;
    pintor.resetTransform();
    pintor.scale(escala, escala);
    Pintar_Pagina(pintor, pagines.pagines[static_cast<std::size_t>(pagina - 1)]);
  }
  return pintor.end();
}

std::vector<int> Totes_Les_Pagines(const Pagines& pagines) {
  std::vector<int> totes(pagines.pagines.size());
  std::iota(totes.begin(), totes.end(), 1);
  return totes;
}

void Llancar_No_Escrit(const QString& on) {
  const std::string text =
      Missatge("No es pot escriure el document", "No se puede escribir el documento", "The document cannot be written");
  throw Error_Brollador(errors::general, "Sortida", text + ": " + on.toStdString());
}
