// The arithmetic of a document line, for every sales document. Touches no database and no form.
#pragma once

#include <string>
#include <string_view>

// Units are rounded to these before they are added up or compared.
inline constexpr int decimals_unitats = 5;

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
  bool operator==(const Resultat_Linia&) const = default;
};

// Which field changed: the others follow it.
enum class Mode_Calcul { Cost, Dte, Porc_Marge, Preu_Unitari, Pvp, Unitats, Iva, Cap };
// The mode of a word: COST_PL, DTE_PL, PORC_MARGE_PL, PREU_UNITARI_PL, PVP_PL, UNITATS_PL (of purchases with _ACL) or
// IVA_ART; Cap for any other.
Mode_Calcul Mode_De_Paraula(std::string_view paraula);

// Prices in euros, percentages in percent. Mode Cap gives zeros but for units and rates. Porc_Marge raises 11 when the
// net amount comes to exactly 0.
Resultat_Linia Calcular_Linia(double cost, double unitats, double porc_marge, double dte_article, double porc_iva,
                              double porc_re, double preu_unitari, double pvp, double dte, Mode_Calcul mode);
Resultat_Linia Calcular_Linia(double cost, double unitats, double porc_marge, double dte_article, double porc_iva,
                              double porc_re, double preu_unitari, double pvp, double dte, std::string_view camp);
// Goods that come in count at their cost: both amounts of the line follow from it.
void Valorar_Al_Cost(Resultat_Linia& linia);

// Tax rates that a line of the article's type takes under the boxes of its head, in percent. Reads IVAS when `iva`.
// Raises 13 when the type does not exist.
struct Taxes_Linia {
  double porc_iva = 0;
  double porc_re = 0;
};
Taxes_Linia Taxes_De_Linia(const std::string& codi_iva, bool iva, bool re);

// Price with tax of a net price: both rates on the price rounded to 2 decimals, each rounded by itself.
double Recalcular_PVP(double preu_unitari, double porc_iva, double porc_re);
