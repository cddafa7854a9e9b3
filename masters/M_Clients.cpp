#include "masters/M_Clients.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "core/M_Condicions.h"
#include "core/M_Funcions_Comuns.h"
#include "core/M_Mestres.h"
#include "core/dades/Dates.h"
#include "core/dades/Numeros.h"
#include "session/M_Usuaris.h"

namespace {

constexpr Lloc clau = {"CLIENTS", "NIF_CLI"};
constexpr Lloc us[] = {{"ALBARACAP", "CLIENT_AC"},
                       {"COMANDACAP", "CLIENT_CC"},
                       {"FACTURACAP", "CLIENT_FC"},
                       {"PRESSUPOSTCAP", "CLIENT_PC"},
                       {"REBUTS", "CLIENT_RE"}};

bool Client_Te(const char* camp, const std::string& nif) {
  return Nul_A_Defecte(Camp_De(clau, nif, camp)).Boolea();
}

// ---- Due dates

struct Condicions {
  std::string descripcio;
  double dies = 0;
  int terminis = 0;
  int dia_pagament = 0;  // of the month; 0 none
};

Condicions Condicions_De(const std::string& nif) {
  Condicions condicions;
  const Recordset client("SELECT VENCIMENT_CLI, DIA_PAG_CLI FROM CLIENTS WHERE NIF_CLI = " + Codi_SQL(nif),
                         sessio.Connexio_Comuna);
  const bool existeix = client.RecordCount() > 0;
  const std::string codi = existeix ? client["VENCIMENT_CLI"].Text() : "0";
  if (existeix) condicions.dia_pagament = static_cast<int>(Nul_A_Defecte(client["DIA_PAG_CLI"]).Enter());
  const Recordset venciment("SELECT * FROM VENCIMENTS WHERE CODI_VEN = " + Codi_SQL(codi), sessio.Connexio_Comuna);
  if (venciment.RecordCount() == 0) return condicions;
  condicions.dies = Nul_A_Defecte(venciment["DIES_VEN"]).Doble();
  condicions.terminis = static_cast<int>(Nul_A_Defecte(venciment["TERMINIS_VEN"]).Enter());
  condicions.descripcio = venciment["DESCRIPCIO_VEN"].Text();
  const std::string& d = condicions.descripcio;
  if (d.size() == 2 && std::toupper(d[0]) == 'N' && std::toupper(d[1]) == 'O') condicions.descripcio.clear();
  return condicions;
}

// The same day of a later month, or the last one of a shorter month.
Data_Hora Mes_Tard(const Data_Hora& data, int mesos) {
  const Data_Hora primer = Data_Serial(data.any, data.mes + mesos, 1);
  const Data_Hora ultim = Data_Serial(primer.any, primer.mes + 1, 0);
  return {primer.any, primer.mes, std::min(data.dia, ultim.dia)};
}

// A multiple of 30 days is so many months.
Data_Hora Un_Pas(const Data_Hora& data, double dies) {
  constexpr double mes = 30;
  if (std::fmod(dies, mes) == 0) return Mes_Tard(data, static_cast<int>(dies / mes));
  return Data_Serial(data.any, data.mes, data.dia + static_cast<int>(Arrodonir_Parell(dies, 0)));
}

// The first such day of a month from `data` on; a day that no month has leaves the date as it is.
Data_Hora Al_Dia_De_Pagament(const Data_Hora& data, int dia) {
  if (dia < 1 || dia > 31) return data;
  Data_Hora buscada = data;
  while (buscada.dia != dia) buscada = Data_Serial(buscada.any, buscada.mes, buscada.dia + 1);
  return buscada;
}

std::string Text_Venciments(const Condicions& condicions, const Data_Hora& data, double import) {
  if (import <= 0 || condicions.terminis < 1) return {};
  double quota = Arrodonir_Parell(Arrodonir_Parell(import, 2) / condicions.terminis, 2);
  double acumulat = 0;
  Data_Hora venciment = {data.any, data.mes, data.dia};
  std::string text;
  for (int i = 1; i <= condicions.terminis; ++i) {
    // The cents that the division lost fall on the last term.
    if (i == condicions.terminis) quota = Arrodonir_Parell(import - acumulat, 2);
    venciment = Al_Dia_De_Pagament(Un_Pas(venciment, condicions.dies), condicions.dia_pagament);
    text += Text_Data(venciment) + " " + Text_Numero(quota) + " ; ";
    acumulat += quota;
  }
  return text;
}

// ---- Birthdays

std::string Sentencia_Aniversaris(int dies) {
  const Data_Hora avui = Avui();
  const Data_Hora final = Data_Serial(avui.any, avui.mes, avui.dia + dies);
  return "SELECT NIF_CLI, RAO_SOCIAL_CLI, LOCALITAT_CLI, NAIXEMENT_CLID, TELEFON_CLI, MOBIL_CLI, EMAIL_CLI"
         " FROM CLIENTS INNER JOIN CLIENTS_DADES ON (CLIENTS.RAO_SOCIAL_CLI = CLIENTS_DADES.CLIENT_DESC_CLID)"
         " AND (CLIENTS.NIF_CLI = CLIENTS_DADES.NIF_CLID) WHERE " +
         Condicio_Aniversari(avui, final, "NAIXEMENT_CLID");
}

std::string Amb_Nom(const std::string& text) {
  return "RAO_SOCIAL_CLI LIKE " + Text_SQL('%' + text + '%');
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
          Codi_SQL(nif),
      sessio.Connexio_Comuna);
  if (rs.RecordCount() == 0) return dades;
  for (std::size_t i = 0; i < dades.size(); ++i) dades[i] = rs[static_cast<int>(i)].Text();
  return dades;
}

std::string SQL_Combo_Clients() {
  return "SELECT NIF_CLI, RAO_SOCIAL_CLI FROM CLIENTS ORDER BY RAO_SOCIAL_CLI";
}

std::string Compte_Client(const std::string& nif) {
  return Camp_De(clau, nif, "COMPTE_CLI").Text();
}

std::string Email_Client(const std::string& nif) {
  return Camp_De(clau, nif, "EMAIL_CLI").Text();
}

bool Client_Existeix(const std::string& nif) {
  return !Camp_De(clau, nif, "NIF_CLI").Es_Nul();
}

bool Client_En_Us(const std::string& nif) {
  return Es_En_Us(us, nif);
}

// ---- New, deleted -----------------------------------------------------------------------------------------------

std::string Nou_Client() {
  std::string codi = Proxim_Codi("CLIENTS");
  const std::string nom = "Client" + codi;
  Transaccio transaccio(sessio.Connexio_Comuna);
  Crear_Fila("CLIENTS", {{"NIF_CLI", codi},
                         {"RAO_SOCIAL_CLI", nom},
                         {"NOM_COMERCIAL_CLI", nom},
                         {"VENCIMENT_CLI", "NO"},
                         {"IVA_CLI", true}});
  // A customer of that code that was deleted has left its row: it is nobody's now.
  sessio.Connexio_Comuna.Execute("DELETE * FROM CLIENTS_DADES WHERE NIF_CLID = " + Text_SQL(codi));
  Crear_Fila("CLIENTS_DADES", {{"NIF_CLID", codi}, {"CLIENT_DESC_CLID", nom}});
  transaccio.Confirmar();
  return codi;
}

void Esborrar_Client(const std::string& nif, const std::string& rao_social) {
  Esborrar_Mestre(
      {"Segur d'esborrar el Client ", "¿Seguro de eliminar el Cliente ", "Are you sure to delete Customer "},
      rao_social, clau, nif, us);
}

void Assegurar_Dades_Client(const std::string& nif) {
  if (Recordset(SQL_Client_Dades(nif), sessio.Connexio_Comuna).RecordCount() > 0) return;
  Crear_Fila("CLIENTS_DADES", {{"NIF_CLID", nif}, {"CLIENT_DESC_CLID", Camp_De(clau, nif, "RAO_SOCIAL_CLI")}});
}

void Esborrar_Dades_Sobreres(const std::string& nif, const std::string& nif_abans) {
  sessio.Connexio_Comuna.Execute_Despres("DELETE * FROM CLIENTS_DADES WHERE NIF_CLID = " + Codi_SQL(nif) +
                                         " AND NIF_CLID <> " + Codi_SQL(nif_abans));
}

void Avisar_Client_Existent() {
  sessio.pantalla->Caixa("Ja Existeix !!!", estil::critic, "Client");
}

// ---- Due dates, birthdays, addresses ----------------------------------------------------------------------------

std::array<std::string, 3> Venciments_Factura(const std::string& nif, const Data_Hora& data, double import) {
  const Condicions condicions = Condicions_De(nif);
  return {"", condicions.descripcio, Text_Venciments(condicions, data, import)};
}

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

// So many codes at a time as a statement can hold.
std::string Emails_Clients(Recordset& clients) {
  constexpr std::size_t per_sentencia = 500;
  std::vector<std::string> codis;
  const int nif = clients.Index_Camp("NIF_CLI");
  for (std::int64_t fila = 0; fila < clients.RecordCount(); ++fila)
    codis.push_back(Codi_SQL(clients.Valor_De_Fila(fila, nif).Text()));
  std::sort(codis.begin(), codis.end());
  std::string adreces;
  for (std::size_t i = 0; i < codis.size(); i += per_sentencia) {
    std::string llista;
    for (std::size_t k = i; k < std::min(codis.size(), i + per_sentencia); ++k)
      llista += (llista.empty() ? "" : ",") + codis[k];
    Recordset rs("SELECT EMAIL_CLI FROM CLIENTS WHERE NIF_CLI IN(" + llista + ") ORDER BY NIF_CLI",
                 sessio.Connexio_Comuna);
    for (; !rs.Eof(); rs.MoveNext()) {
      const std::string adreca = rs["EMAIL_CLI"].Text();
      if (!adreca.empty()) adreces += (adreces.empty() ? "" : ";") + adreca;
    }
  }
  return adreces;
}

// ---- Statements -------------------------------------------------------------------------------------------------

std::string SQL_Clients(const std::string& text) {
  return "SELECT NIF_CLI, RAO_SOCIAL_CLI, LOCALITAT_CLI, TELEFON_CLI, MOBIL_CLI, EMAIL_CLI FROM CLIENTS" +
         (text.empty() ? std::string() : " WHERE " + Amb_Nom(text)) + " ORDER BY RAO_SOCIAL_CLI";
}

std::string SQL_Aniversaris(const std::string& text) {
  return Sentencia_Aniversaris(sessio.Dies_Avis_Aniversaris) +
         (text.empty() ? std::string() : " AND " + Amb_Nom(text)) + " ORDER BY DAY(NAIXEMENT_CLID), RAO_SOCIAL_CLI";
}

std::string SQL_Client(const std::string& nif) {
  return "SELECT * FROM CLIENTS WHERE NIF_CLI = " + Codi_SQL(nif);
}

std::string SQL_Client_Dades(const std::string& nif) {
  return "SELECT * FROM CLIENTS_DADES WHERE NIF_CLID = " + Codi_SQL(nif);
}

std::string SQL_Vendes_Client(const std::string& nif) {
  return "SELECT DATA_AC, DESCRIPCIO_AL, UNITATS_AL, PVP_AL, ROUND(UNITATS_AL*PVP_AL,2) AS IMPORT FROM ALBARACAP INNER "
         "JOIN "
         "ALBARALIN ON (ALBARACAP.EMPRESA_AC = ALBARALIN.EMPRESA_AL) AND (ALBARACAP.NUMALB_AC = ALBARALIN.NUMALB_AL) "
         "WHERE CLIENT_AC = " +
         Codi_SQL(nif) + " ORDER BY DATA_AC DESC";
}
