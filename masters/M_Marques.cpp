#include "masters/M_Marques.h"

#include "core/M_Mestres.h"

namespace {
constexpr Lloc clau = {"MARQUES", "CODI_MAR"};
constexpr Lloc us[] = {{"ARTICLES", "MARCA_ART"}};
}  // namespace

void Esborrar_Marca(const std::string& codi) {
  Esborrar_Mestre({"Segur d'esborrar la marca ", "¿Seguro de eliminar la marca ", "Are you sure to delete the brand "},
                  codi, clau, codi, us);
}

std::string Descripcio_Marca(const std::string& codi) {
  return Camp_De(clau, codi, "DESCRIPCIO_MAR").Text();
}

bool Marca_En_Us(const std::string& codi) {
  return Es_En_Us(us, codi);
}
