#include "payments/M_Pagaments.h"

#include "core/Sessio.h"

bool Tenir_Pagaments(const std::string& document, std::int64_t numalb) {
  const Recordset rs("SELECT * FROM PAGAMENTS WHERE DOCUMENT_PAG = " + Text_SQL(document) + " AND NUMALB_PAG = " +
                         std::to_string(numalb) + " AND EMPRESA_PAG = " + Text_SQL(sessio.Empresa_Actual),
                     sessio.Connexio_Comuna);
  return rs.RecordCount() > 0;
}
