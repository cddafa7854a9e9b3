#include "masters/M_IVAs.h"

#include "core/M_Mestres.h"
#include "core/dades/Numeros.h"

namespace {

constexpr Lloc clau = referencia_ivas.clau;
constexpr Lloc us[] = {{"ALBARAPEU", "TIPUS_IVA_AP"},  {"ALBCOMPRAPEU", "TIPUS_IVA_ACP"},
                       {"ARTICLES", "IVA_ART"},        {"COMANDAPEU", "TIPUS_IVA_CP"},
                       {"FACTURAPEU", "TIPUS_IVA_FP"}, {"PRESSUPOSTPEU", "TIPUS_IVA_PP"}};

std::string Sentencia(const std::string& condicio) {
  return "SELECT * FROM IVAS WHERE " + condicio;
}

std::string Condicio_Codi(const std::string& codi) {
  return "CODI_IVA = " + Text_SQL(codi);
}

Tipus_IVA Llegir_Tipus(const std::string& condicio) {
  const Recordset rs(Sentencia(condicio), sessio.Connexio_Comuna);
  if (rs.RecordCount() == 0) return {};
  return {rs["CODI_IVA"], rs["DESC_IVA"], rs["PORC_IVA"], rs["RE_IVA"]};
}

// Of two types at one percentage the first by its code counts.
std::string Condicio_Percentatge(double percentatge) {
  return "PORC_IVA = " + Text_Numero(percentatge) + " ORDER BY CODI_IVA";
}

}  // namespace

Tipus_IVA Dades_IVA(const std::string& codi) {
  return Llegir_Tipus(Condicio_Codi(codi));
}

void Demanar_IVA(const std::string& codi) {
  sessio.Connexio_Comuna.Demanar(Sentencia(Condicio_Codi(codi)));
}

Tipus_IVA Dades_IVA_Percentatge(double percentatge) {
  return Llegir_Tipus(Condicio_Percentatge(percentatge));
}

std::string Codi_IVA_Percentatge(double percentatge) {
  const Recordset rs("SELECT CODI_IVA FROM IVAS WHERE " + Condicio_Percentatge(percentatge), sessio.Connexio_Comuna);
  return rs.RecordCount() > 0 ? rs["CODI_IVA"].Text() : std::string();
}

void Esborrar_Iva(const std::string& codi) {
  Esborrar_Mestre(
      {"Segur d'esborrar el tipus d'IVA ", "¿Seguro de eliminar el tipo de IVA ", "Are you sure to delete VAT type "},
      codi, clau, codi, us);
}

std::string Descripcio_Iva(const std::string& codi) {
  return Descripcio_De(referencia_ivas, codi);
}

bool Iva_En_Us(const std::string& codi) {
  return Es_En_Us(us, codi);
}
