#include "masters/M_Marques.h"

#include "core/M_Mestres.h"

namespace {
constexpr Lloc clau = referencia_marques.clau;
constexpr Lloc us[] = {{"ARTICLES", "MARCA_ART"}};
}  // namespace

void Esborrar_Marca(const std::string& codi) {
  Esborrar_Mestre({"Segur d'esborrar la marca ", "¿Seguro de eliminar la marca ", "Are you sure to delete the brand "},
                  codi, clau, codi, us);
}

std::string Descripcio_Marca(const std::string& codi) {
  return Descripcio_De(referencia_marques, codi);
}

bool Marca_En_Us(const std::string& codi) {
  return Es_En_Us(us, codi);
}
