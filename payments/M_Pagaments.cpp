#include "payments/M_Pagaments.h"

#include "core/M_Funcions_Comuns.h"
#include "core/M_Mestres.h"

namespace {

std::string Condicio(const std::string& document, std::int64_t numalb) {
  return " FROM PAGAMENTS WHERE EMPRESA_PAG = " + Text_SQL(sessio.Empresa_Actual) +
         " AND DOCUMENT_PAG = " + Text_SQL(document) + " AND NUMALB_PAG = " + std::to_string(numalb);
}

}  // namespace

bool Tenir_Pagaments(const std::string& document, std::int64_t numalb) {
  return Recordset("SELECT *" + Condicio(document, numalb), sessio.Connexio_Comuna).RecordCount() > 0;
}

double Total_Pagaments_Document(const std::string& document, std::int64_t numalb) {
  const Recordset rs(SQL_Total_Pagaments(document, numalb), sessio.Connexio_Comuna);
  return Nul_A_Defecte(rs["IMPORT"]).Doble();
}

bool Supera_El_Total(double import, double pagat, double total) {
  return Arrodonir(import + pagat - total, 2) > 0;
}

bool Esborrar_Pagament(std::int64_t id) {
  if (!Confirmar(
          {"Segur d'esborrar el pagament ", "¿Seguro de eliminar el pago ", "Are you sure to delete the payment "},
          std::to_string(id), estil::pregunta))
    return false;
  sessio.Connexio_Comuna.Execute("DELETE * FROM PAGAMENTS WHERE ID_PAG = " + std::to_string(id));
  return true;
}

std::string SQL_Pagaments_Document(const std::string& document, std::int64_t numalb) {
  return "SELECT ID_PAG, DOCUMENT_PAG, NUMALB_PAG, EMPRESA_PAG, CLIENT_PAG, PAGAMENT_PAG, DATA_PAG, IMPORT_PAG" +
         Condicio(document, numalb) + " ORDER BY DATA_PAG, ID_PAG";
}

std::string SQL_Total_Pagaments(const std::string& document, std::int64_t numalb) {
  return "SELECT SUM(IMPORT_PAG) AS IMPORT" + Condicio(document, numalb);
}
