#include "core/menes/Llista_Descrita.h"

Llista_Descrita::Llista_Descrita(const Descripcio_Llista& descripcio)
    : Llista_Mestra(QString::fromUtf16(descripcio.formulari), descripcio.mestra), descripcio_(descripcio) {
  Construir({descripcio.titol, descripcio.graella, &descripcio.nou, descripcio.esborrar}, descripcio.columnes);
  if (descripcio.estil == nullptr) return;
  Graella_Llista()->Estil_De_Fila([this](std::int64_t fila) { return descripcio_.estil(rs_, fila); });
}
