#include "masters/M_Venciments.h"

#include "core/M_Mestres.h"

namespace {
constexpr Lloc clau_venciment = referencia_venciments.clau;
constexpr Lloc us_venciment[] = {{"CLIENTS", "VENCIMENT_CLI"}, {"PROVEIDORS", "VENCIMENT_PRO"}};
constexpr Lloc clau_forma = {"FORMES_PAGAMENT", "ID_FP"};
constexpr Lloc us_forma[] = {{"PAGAMENTS", "PAGAMENT_PAG"}, {"VENCIMENTS", "FP_VEN"}};
}  // namespace

void Esborrar_Venciment(const std::string& codi) {
  Esborrar_Mestre(
      {"Segur d'esborrar el Venciment ", "¿Seguro de eliminar el Vencimiento ", "Are you sure to delete Terms Net "},
      codi, clau_venciment, codi, us_venciment);
}

std::string Descripcio_Venciment(const std::string& codi) {
  return Descripcio_De(referencia_venciments, codi);
}

bool Venciment_En_Us(const std::string& codi) {
  return Es_En_Us(us_venciment, codi);
}

void Esborrar_Forma_Pagament(const std::string& codi) {
  Esborrar_Mestre({"Segur d'esborrar la forma de pagament ", "¿Seguro de eliminar la forma de pago ",
                   "Are you sure to delete method of payment "},
                  codi, clau_forma, codi, us_forma);
}

bool Forma_Pagament_En_Us(const std::string& codi) {
  return Es_En_Us(us_forma, codi);
}
