#include "sales/M_Pressupostos.h"

#include "core/Sessio.h"
#include "documents/Documents.h"
#include "sales/M_Tipus_Venda.h"

void Alliberar_Linia_Pressupost(std::int64_t document, const std::string& empresa, std::int64_t linia) {
  const std::string condicio = " WHERE EMPRESA_PL = " + Text_SQL(empresa) +
                               " AND COMANDA_PL = " + std::to_string(document) +
                               " AND COMANDA_LIN_PL = " + std::to_string(linia);
  const Recordset rs("SELECT NUMALB_PL FROM PRESSUPOSTLIN" + condicio, sessio.Connexio_Comuna);
  if (rs.RecordCount() == 0) return;
  const Valor pressupost = rs["NUMALB_PL"];
  sessio.Connexio_Comuna.Execute("UPDATE PRESSUPOSTLIN SET COMANDA_PL = 0, COMANDA_LIN_PL = 0, ESTAT_PL = 0" +
                                 condicio);
  sessio.Connexio_Comuna.Execute("UPDATE PRESSUPOSTCAP SET ESTAT_PC = 0" +
                                 Condicio_Document(tipus_pressupost, tipus_pressupost.cap, pressupost, empresa));
}

bool Te_Linies_De_Pressupost(std::int64_t document, const std::string& empresa) {
  const Recordset rs("SELECT * FROM PRESSUPOSTLIN WHERE COMANDA_PL = " + std::to_string(document) +
                         " AND EMPRESA_PL = " + Text_SQL(empresa),
                     sessio.Connexio_Comuna);
  return rs.RecordCount() > 0;
}
