#include "masters/M_Aniversaris.h"

#include <algorithm>
#include <limits>

#include "core/M_Condicions.h"
#include "core/M_Funcions_Comuns.h"
#include "core/dades/Dates.h"
#include "masters/M_Clients.h"

namespace {

std::string Sentencia_Aniversaris(int dies) {
  const Data_Hora avui = Avui();
  const Data_Hora final = Data_Serial(avui.any, avui.mes, avui.dia + dies);
  return "SELECT NIF_CLI, RAO_SOCIAL_CLI, LOCALITAT_CLI, NAIXEMENT_CLID, TELEFON_CLI, MOBIL_CLI, EMAIL_CLI"
         " FROM CLIENTS INNER JOIN CLIENTS_DADES ON (CLIENTS.RAO_SOCIAL_CLI = CLIENTS_DADES.CLIENT_DESC_CLID)"
         " AND (CLIENTS.NIF_CLI = CLIENTS_DADES.NIF_CLID) WHERE " +
         Condicio_Aniversari(avui, final, "NAIXEMENT_CLID");
}

}  // namespace

bool Hi_Ha_Aniversaris(int dies) {
  return dies >= 1 && Recordset(Sentencia_Aniversaris(dies), sessio.Connexio_Comuna).RecordCount() > 0;
}

bool Toca_Avisar_Aniversaris() {
  const auto parametre = sessio.Parametres.find("P_Avis_Aniversaris_Dies");
  if (parametre == sessio.Parametres.end()) return false;
  const std::int64_t dies = Valor(parametre->second).Enter();
  if (dies > std::numeric_limits<std::int16_t>::max()) Llancar_Error(errors::desbordament, "Toca_Avisar_Aniversaris");
  sessio.Dies_Avis_Aniversaris = static_cast<std::int16_t>(std::max<std::int64_t>(dies, 0));
  return Hi_Ha_Aniversaris(sessio.Dies_Avis_Aniversaris);
}

std::string SQL_Aniversaris(const std::string& text) {
  return Sentencia_Aniversaris(sessio.Dies_Avis_Aniversaris) +
         (text.empty() ? std::string() : " AND " + Condicio_Nom_Client(text)) +
         " ORDER BY DAY(NAIXEMENT_CLID), RAO_SOCIAL_CLI";
}
