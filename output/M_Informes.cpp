#include "output/M_Informes.h"

#include <algorithm>

namespace {

constexpr Columna_Impresa columnes_venda[] = {{"LIN", "LIN"},
                                              {"ARTICLE", "ARTICLE"},
                                              {"DESCRIPCIO", "DESCRIPCIO"},
                                              {"UNITATS", "UNITATS"},
                                              {"PREU_UNITARI", "PREU_UNITARI"},
                                              {"DTE", "DTE"},
                                              {"IMPORT_NET", "TOTAL_IMPORT"}};
constexpr Columna_Impresa columnes_compra[] = {
    {"LIN", "LIN"},         {"ARTICLE", "ARTICLE"},   {"DESCRIPCIO", "DESCRIPCIO"},
    {"UNITATS", "UNITATS"}, {"COST", "PREU_UNITARI"}, {"IMPORT_NET", "TOTAL_IMPORT"}};

constexpr Linia_De_Peu peus_pressupost[] = {{"PRESS_PEU1", 8}, {"PRESS_PEU2", 9}};
constexpr Linia_De_Peu peus_factura[] = {{"FACT_PEU1", 10, "Nota"}};

constexpr std::string_view tel = " - Tel. ";

const Descripcio_Impressio informes[] = {
    {.formulari = "F_PRESSUPOST",
     .informe = "DR_PRESSUPOST_VALORAT",
     .titol = "Pressupost",
     .taula = {"PRESSUPOSTLIN_VALORAT_IMPR", "PL"},
     .columnes = columnes_venda,
     .destinatari = Destinatari::Client,
     .logo = true,
     .telefon = tel,
     .peus = peus_pressupost,
     .firmes = true,
     .codi_client = false,
     .venciments = false,
     .prefix_pdf = "P-"},
    {.formulari = "F_COMANDA",
     .informe = "DR_COMANDA_VALORAT",
     .titol = "Comanda",
     .taula = {"COMANDALIN_VALORAT_IMPR", "CL"},
     .columnes = columnes_venda,
     .destinatari = Destinatari::Client,
     .logo = false,
     .telefon = tel,
     .peus = {},
     .firmes = false,
     .codi_client = false,
     .venciments = false,
     .prefix_pdf = "C-"},
    {.formulari = "F_ALBARA",
     .informe = "DR_ALBARA_VALORAT",
     .titol = "Albarà",
     .taula = {"ALBARALIN_VALORAT_IMPR", "AL"},
     .columnes = columnes_venda,
     .destinatari = Destinatari::Client,
     .logo = false,
     .telefon = tel,
     .peus = {},
     .firmes = false,
     .codi_client = false,
     .venciments = false,
     .prefix_pdf = "A-"},
    {.formulari = "F_FACTURA",
     .informe = "DR_FACTURA_VALORAT",
     .titol = "Factura",
     .taula = {"FACTURALIN_VALORAT_IMPR", "FL"},
     .columnes = columnes_venda,
     .destinatari = Destinatari::Client,
     .logo = true,
     .telefon = " - ",
     .peus = peus_factura,
     .firmes = false,
     .codi_client = true,
     .venciments = true,
     .prefix_pdf = "F-"},
    // Through the work table of the delivery notes.
    {.formulari = "F_ALBCOMPRA",
     .informe = "DR_FACTCOMPRA_VALORAT",
     .titol = "Albarà de compra",
     .taula = {"ALBARALIN_VALORAT_IMPR", "AL"},
     .columnes = columnes_compra,
     .destinatari = Destinatari::Proveidor,
     .logo = false,
     .telefon = tel,
     .peus = {},
     .firmes = false,
     .codi_client = false,
     .venciments = false,
     .prefix_pdf = "AC-"},
};

}  // namespace

std::string_view Descripcio_Impressio::Linia_De(std::string_view impressio) const {
  const auto trobada = std::find_if(columnes.begin(), columnes.end(),
                                    [&](const Columna_Impresa& columna) { return columna.impressio == impressio; });
  return trobada == columnes.end() ? std::string_view() : trobada->linia;
}

const Tipus_Document& Descripcio_Impressio::Tipus() const {
  for (const Tipus_Document* tipus : Tipus_Registrats()) {
    if (tipus->formulari == formulari) return *tipus;
  }
  throw Error_Brollador(errors::general, "Informe_De", "no document for " + std::string(informe));
}

std::span<const Descripcio_Impressio> Informes_De_Documents() {
  return informes;
}

const Descripcio_Impressio& Informe_De(const Tipus_Document& tipus) {
  for (const auto& descripcio : informes) {
    if (descripcio.formulari == tipus.formulari) return descripcio;
  }
  throw Error_Brollador(errors::general, "Informe_De", "no report for " + std::string(tipus.formulari));
}
