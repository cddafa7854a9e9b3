#include "masters/M_Clients.h"

#include "core/M_Funcions_Comuns.h"

namespace {

bool Client_Te(const char* camp, const std::string& nif) {
  const Recordset rs(std::string("SELECT ") + camp + " FROM CLIENTS WHERE NIF_CLI = " + Text_SQL(nif),
                     sessio.Connexio_Comuna);
  return rs.RecordCount() > 0 && Nul_A_Defecte(rs[camp]).Boolea();
}

}  // namespace

bool Client_Te_IVA(const std::string& nif) {
  return Client_Te("IVA_CLI", nif);
}

bool Client_Te_RE(const std::string& nif) {
  return Client_Te("RE_CLI", nif);
}

std::array<std::string, 7> Dades_Client(const std::string& nif) {
  std::array<std::string, 7> dades;
  const Recordset rs(
      "SELECT NIF_CLI, RAO_SOCIAL_CLI, NOM_COMERCIAL_CLI, ADREÇA_CLI, CP_CLI, LOCALITAT_CLI, CODI_CLIENT_CLI "
      "FROM CLIENTS WHERE NIF_CLI = " +
          Text_SQL(nif),
      sessio.Connexio_Comuna);
  if (rs.RecordCount() == 0) return dades;
  for (std::size_t i = 0; i < dades.size(); ++i) dades[i] = rs[static_cast<int>(i)].Text();
  return dades;
}

std::string SQL_Combo_Clients() {
  return "SELECT NIF_CLI, RAO_SOCIAL_CLI FROM CLIENTS ORDER BY RAO_SOCIAL_CLI";
}
