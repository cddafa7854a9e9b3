#include "masters/M_Proveidors.h"

#include "core/M_Funcions_Comuns.h"
#include "core/M_Mestres.h"
#include "session/M_Usuaris.h"

namespace {
constexpr Lloc clau = referencia_proveidors.clau;
constexpr Lloc us[] = {{"ALBCOMPRACAP", "PROVEIDOR_ACC"}, {"ARTICLES", "PROVEIDOR_ART"}};
}  // namespace

void Esborrar_Proveidor(const std::string& nif, const std::string& rao_social) {
  Esborrar_Mestre(
      {"Segur d'esborrar el Proveïdor ", "¿Seguro de eliminar el Proveedor ", "Are you sure to delete Provider "},
      rao_social, clau, nif, us);
}

std::string Nou_Proveidor() {
  std::string codi = Proxim_Codi("PROVEIDORS");
  Crear_Fila("PROVEIDORS", {{"NIF_PRO", codi},
                            {"RAO_SOCIAL_PRO", "Proveïdor" + codi},
                            {"NOM_COMERCIAL_PRO", "Proveïdor" + codi},
                            {"IVA_PRO", true}});
  return codi;
}

std::string Nom_Proveidor(const std::string& nif) {
  return Descripcio_De(referencia_proveidors, nif);
}

std::array<std::string, 6> Dades_Proveidor(const std::string& nif) {
  constexpr std::array<const char*, 6> camps = {"NIF_PRO",    "RAO_SOCIAL_PRO", "NOM_COMERCIAL_PRO",
                                                "ADREÇA_PRO", "CP_PRO",         "LOCALITAT_PRO"};
  std::array<std::string, 6> dades;
  const Recordset rs(SQL_Proveidor(nif), sessio.Connexio_Comuna);
  for (std::size_t i = 0; rs.RecordCount() > 0 && i < camps.size(); ++i) dades[i] = rs[camps[i]].Text();
  return dades;
}

bool Proveidor_Te_IVA(const std::string& nif) {
  return Nul_A_Defecte(Camp_De(clau, nif, "IVA_PRO")).Boolea();
}

bool Proveidor_En_Us(const std::string& nif) {
  return Es_En_Us(us, nif);
}

std::string SQL_Proveidors() {
  return "SELECT NIF_PRO, RAO_SOCIAL_PRO, LOCALITAT_PRO, TELEFON_PRO, FAX_PRO, EMAIL_PRO FROM PROVEIDORS "
         "ORDER BY RAO_SOCIAL_PRO";
}

std::string SQL_Proveidor(const std::string& nif) {
  return "SELECT * FROM PROVEIDORS WHERE NIF_PRO = " + Codi_SQL(nif);
}

std::string SQL_Combo_Proveidors() {
  return "SELECT NIF_PRO, RAO_SOCIAL_PRO FROM PROVEIDORS ORDER BY RAO_SOCIAL_PRO";
}
