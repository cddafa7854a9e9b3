#include "masters/M_Clients.h"

#include <algorithm>
#include <vector>

#include "core/M_Funcions_Comuns.h"
#include "core/M_Mestres.h"
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

std::string Nou_Client() {
  std::string codi = Proxim_Codi("CLIENTS");
  const std::string nom = "Client" + codi;
  Transaccio transaccio(sessio.Connexio_Comuna);
  Crear_Fila("CLIENTS", {{"NIF_CLI", codi},
                         {"RAO_SOCIAL_CLI", nom},
                         {"NOM_COMERCIAL_CLI", nom},
                         {"VENCIMENT_CLI", "NO"},
                         {"IVA_CLI", true}});
  // A deleted customer of that code may have left its row.
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

std::string Condicio_Nom_Client(const std::string& text) {
  return "RAO_SOCIAL_CLI LIKE " + Text_SQL('%' + text + '%');
}

std::string SQL_Clients(const std::string& text) {
  return "SELECT NIF_CLI, RAO_SOCIAL_CLI, LOCALITAT_CLI, TELEFON_CLI, MOBIL_CLI, EMAIL_CLI FROM CLIENTS" +
         (text.empty() ? std::string() : " WHERE " + Condicio_Nom_Client(text)) + " ORDER BY RAO_SOCIAL_CLI";
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
