#include "masters/M_Families.h"

#include "core/M_Mestres.h"

namespace {
constexpr Lloc clau = {"FAMILIES", "CODI_FAM"};
constexpr Lloc us[] = {{"ARTICLES", "FAMILIA_ART"}};
}  // namespace

void Esborrar_Familia(const std::string& codi) {
  Esborrar_Mestre(
      {"Segur d'esborrar la família ", "¿Seguro de eliminar la familia ", "Are you sure to delete the family "}, codi,
      clau, codi, us);
}

std::string Descripcio_Familia(const std::string& codi) {
  return Camp_De(clau, codi, "DESCRIPCIO_FAM").Text();
}

bool Familia_En_Us(const std::string& codi) {
  return Es_En_Us(us, codi);
}
