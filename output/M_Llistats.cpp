#include "output/M_Llistats.h"

#include "core/M_Funcions_Comuns.h"
#include "core/dades/Numeros.h"
#include "masters/M_Clients.h"
#include "session/M_Empresa.h"

namespace {

constexpr Columna_Llistat marges_albarans[] = {{"NUMALB_AC", "L_ALBARA_AC", "Albarà", 18},
                                               {"DATA_AC", "L_DATA_AC", "Data", 22},
                                               {"CLIENT_DESC_AC", "L_CLIENT_AC", "Client", 68},
                                               {"COST_NET_AL", "L_COST_NET_AL", "Cost", 24, true},
                                               {"IMPORT_NET_AL", "L_VENDA_NET_AL", "Venda", 24, true},
                                               {"MARGE_AL", "L_MARGE_EUR_AL", "Marge (€)", 24, true}};

constexpr Columna_Llistat marges_factures[] = {
    {"NUMALB_FC", "L_FACTURA_FC", "Factura", 18},           {"DATA_FC", "L_DATA_FC", "Data", 22},
    {"CLIENT_DESC_FC", "L_CLIENT_FC", "Client", 68},        {"COST_NET_FL", "L_COST_NET_FL", "Cost", 24, true},
    {"IMPORT_NET_FL", "L_VENDA_NET_FL", "Venda", 24, true}, {"MARGE_FL", "L_MARGE_EUR_FL", "Marge (€)", 24, true}};

constexpr Columna_Llistat factures[] = {{"NUMALB_FC", "L_FACTURA_FC", "Factura", 18},
                                        {"DATA_FC", "L_DATA_FC", "Data", 22},
                                        {"CLIENT_DESC_FC", "L_CLIENT_FC", "Client", 52},
                                        {"BASE", "L_BASE", "Base", 23, true},
                                        {"IVA", "L_IVA", "IVA", 21, true},
                                        {"RE", "L_RE", "RE", 19, true},
                                        {"TOTAL", "L_TOTAL", "Total", 25, true}};

std::string Text_Del_Dia(const std::optional<Data_Hora>& dia) {
  return dia ? Text_Data(*dia) : std::string();
}

}  // namespace

const Descripcio_Llistat llistat_marges_albarans = {.informe = "DR_ALBARA_MARGES",
                                                    .titol = "Marges d'albarans",
                                                    .numero = "ALBARA",
                                                    .numero_entre = "Albarà entre",
                                                    .amb_articles = true,
                                                    .columnes = marges_albarans};
const Descripcio_Llistat llistat_marges_factures = {.informe = "DR_FACTURA_MARGES",
                                                    .titol = "Marges de factures",
                                                    .numero = "FACTURA",
                                                    .numero_entre = "Factura entre",
                                                    .amb_articles = true,
                                                    .columnes = marges_factures};
const Descripcio_Llistat llistat_factures = {.informe = "DR_FACTURES",
                                             .titol = "Llibre de factures",
                                             .numero = "FACTURA",
                                             .numero_entre = "Factura entre",
                                             .amb_articles = false,
                                             .columnes = factures};

std::vector<std::pair<std::string, std::string>> Textos_De_Llistat(const Descripcio_Llistat& llistat,
                                                                   const Valors_Cerca& valors) {
  const auto valor = [&](const std::string& control) {
    const auto trobat = valors.find(control);
    return trobat == valors.end() ? Valor_Criteri() : trobat->second;
  };
  const std::string numero = llistat.numero;
  const Valor_Criteri numeros = valor("TXT_" + numero);
  const Valor_Criteri dies = valor("DT_DATA");
  const Valor_Criteri imports = valor("TXT_IMPORT");
  const std::string client = valor("CMB_CLIENT").text;
  constexpr std::size_t rao_social = 1;
  std::vector<std::pair<std::string, std::string>> textos = {
      {"L_RAO_SOCIAL_EMP", Dades_Empresa()[0]},
      {"L_TXT_" + numero + "_ENTRE", numeros.text},
      {"L_TXT_" + numero + "_Y", numeros.text_y},
      {"L_TXT_DATA_ENTRE", Text_Del_Dia(dies.data)},
      {"L_TXT_DATA_Y", Text_Del_Dia(dies.data_y)},
      {"L_TXT_CLIENT", client.empty() ? std::string() : Dades_Client(client)[rao_social]},
      {"L_TXT_IMPORT_ENTRE", imports.text},
      {"L_TXT_IMPORT_Y", imports.text_y}};
  if (llistat.amb_articles) {
    textos.emplace_back("L_TXT_ARTICLE_CODI", valor("TXT_ARTICLE").text);
    textos.emplace_back("L_TXT_ARTICLE_DESC", valor("TXT_ARTICLE_DESC").text);
  }
  return textos;
}
