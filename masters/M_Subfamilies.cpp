#include "masters/M_Subfamilies.h"

#include "core/M_Mestres.h"

namespace {
constexpr Lloc clau = referencia_subfamilies.clau;
constexpr Lloc us[] = {{"ARTICLES", "SUBFAMILIA_ART"}};
}  // namespace

void Esborrar_Subfamilia(const std::string& codi) {
  Esborrar_Mestre({"Segur d'esborrar la subfamília ", "¿Seguro de eliminar la subfamilia ",
                   "Are you sure to delete the subfamily "},
                  codi, clau, codi, us);
}

std::string Descripcio_Subfamilia(const std::string& codi) {
  return Descripcio_De(referencia_subfamilies, codi);
}

bool Subfamilia_En_Us(const std::string& codi) {
  return Es_En_Us(us, codi);
}
