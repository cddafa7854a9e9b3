#include "masters/M_Mestre_Magatzems.h"

#include "core/M_Mestres.h"

namespace {
constexpr Lloc clau_magatzem = {"ALMACENES", "CODI_ALM"};
constexpr Lloc us_magatzem[] = {{"ALBALMCAP", "ORI_AAC"},
                                {"ALBALMCAP", "DEST_AAC"},
                                {"ARTICLES", "MAGATZEM_ART"},
                                {"MOVIMIENTOS", "ALMACEN_MOV"},
                                {"STOCK", "ALMACEN_ST"}};
}  // namespace

void Esborrar_Magatzem(const std::string& codi) {
  Esborrar_Mestre(
      {"Segur d'esborrar el magatzem ", "¿Seguro de eliminar el almacén ", "Are you sure to delete the store "}, codi,
      clau_magatzem, codi, us_magatzem);
}

bool Magatzem_En_Us(const std::string& codi) {
  return Es_En_Us(us_magatzem, codi);
}
