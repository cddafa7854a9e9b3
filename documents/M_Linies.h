// The arithmetic of a document line, for every sales document. Touches no database and no form.
#pragma once

#include <string>
#include <string_view>

struct Resultat_Linia {
  double cost = 0;
  double unitats = 0;
  double porc_marge = 0;
  double preu_unitari = 0;
  double porc_iva = 0;
  double porc_re = 0;
  double pvp = 0;
  double import_net = 0;
  double import_brut = 0;
  double marge = 0;
  double dte = 0;
};

// Prices in euros, percentages in percent. `camp` says which field changed: COST_PL, DTE_PL, PORC_MARGE_PL,
// PREU_UNITARI_PL, PVP_PL, UNITATS_PL or IVA_ART; any other word gives zeros but for units and rates.
// PORC_MARGE_PL raises 11 when the net amount comes to exactly 0.
Resultat_Linia Calcular_Linia(double cost, double unitats, double porc_marge, double dte_article, double porc_iva,
                              double porc_re, double preu_unitari, double pvp, double dte, std::string_view camp);

// Tax rates that a line of the article's type takes under the boxes of its head, in percent. Reads IVAS when `iva`.
// Raises 13 when the type does not exist.
struct Taxes_Linia {
  double porc_iva = 0;
  double porc_re = 0;
};
Taxes_Linia Taxes_De_Linia(const std::string& codi_iva, bool iva, bool re);

// Price with tax of a net price: both rates on the price rounded to 2 decimals, each rounded by itself.
double Recalcular_PVP(double preu_unitari, double porc_iva, double porc_re);
