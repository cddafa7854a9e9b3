#include "masters/F_Columnes_Articles.h"

const std::vector<Columna_Graella>& Columnes_Articles() {
  static const std::vector<Columna_Graella> columnes = {
      {"CODI_ART", 1600, "Codi"},
      {"DESCRIPCIO_ART", 3200, "Descripció Article"},
      {"DESCRIPCIO_FAM", 1900, "Família"},
      {"DESCRIPCIO_SUBF", 1900, "SubFamília"},
      {"DESCRIPCIO_MAR", 1900, "Marca"},
      {"PORC_IVA", 800, "% IVA", true},
      {"COST_ART", 1000, "Preu Cost", true, "0.00"},
      {"PVP_NET_ART", 1000, "PVP Net", true, "0.00"},
      {"DESCOMPTE_ART", 750, "Dte", true, "0.00"},
      {"ACTIU_ART", 800, "Actiu", false, "", true},
  };
  return columnes;
}

QString Estil_Article(const Recordset& rs, std::int64_t fila) {
  const Valor actiu = rs.Valor_De_Fila(fila, rs.Index_Camp("ACTIU_ART"));
  return actiu.Es_Nul() || !actiu.Boolea() ? QStringLiteral("Baixa") : QString();
}
