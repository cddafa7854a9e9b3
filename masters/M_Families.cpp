#include "masters/M_Families.h"

#include "core/M_Mestres.h"

namespace {
constexpr Lloc clau = referencia_families.clau;
constexpr Lloc us[] = {{"ARTICLES", "FAMILIA_ART"}};
}  // namespace

void Esborrar_Familia(const std::string& codi) {
  Esborrar_Mestre(
      {"Segur d'esborrar la família ", "¿Seguro de eliminar la familia ", "Are you sure to delete the family "}, codi,
      clau, codi, us);
}

std::string Descripcio_Familia(const std::string& codi) {
  return Descripcio_De(referencia_families, codi);
}

bool Familia_En_Us(const std::string& codi) {
  return Es_En_Us(us, codi);
}
