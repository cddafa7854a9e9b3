#include "documents/M_Linies.h"

#include "core/M_Funcions_Comuns.h"
#include "masters/M_IVAs.h"

namespace {

double Dividir(double dividend, double divisor) {
  if (divisor == 0) Llancar_Error(errors::divisio_per_zero, "Calcular_Linia");
  return dividend / divisor;
}

// The amount that a percentage of a base comes to, in cents.
double Percentatge(double base, double percentatge) {
  return Arrodonir(base * percentatge / 100, 2);
}

double Amb_Impostos(double base, double porc_iva, double porc_re) {
  return Percentatge(base, porc_iva) + base + Percentatge(base, porc_re);
}

// The net price of an article with a cost: the cost brought back up through the discount of the article.
double Preu_Des_Del_Cost(double cost, double dte_article) {
  return Arrodonir(Dividir(cost, 1 - dte_article / 100), 2);
}

void Calcular_Imports(Resultat_Linia& linia) {
  linia.import_brut = Amb_Impostos(linia.import_net, linia.porc_iva, linia.porc_re);
  linia.marge = linia.import_net - Arrodonir(linia.cost * linia.unitats, 2);
}

// Price and discount are known: amounts and margin follow.
void Calcular_Des_Del_Preu(Resultat_Linia& linia) {
  linia.import_net = Arrodonir(linia.preu_unitari * linia.unitats * (1 - linia.dte / 100), 2);
  Calcular_Imports(linia);
  const double cost = linia.cost * linia.unitats;
  linia.porc_marge = cost != 0 ? Arrodonir(linia.marge * 100 / cost, 5) : 0;
}

// A typed margin only steers what the frame shows: the line is saved from its price. The discount is emptied, and the
// division that would find it has the net amount as its divisor just when that is 0.
void Calcular_Des_Del_Marge(Resultat_Linia& linia, double porc_marge, double dte_article) {
  linia.porc_marge = porc_marge;
  linia.dte = 0;
  linia.import_net = Arrodonir(linia.cost * linia.unitats * (1 + porc_marge / 100), 2);
  linia.preu_unitari = Preu_Des_Del_Cost(linia.cost, dte_article);
  linia.pvp = Amb_Impostos(linia.preu_unitari, linia.porc_iva, linia.porc_re);
  Calcular_Imports(linia);
  if (linia.import_net == 0)
    linia.dte = Arrodonir(Dividir((linia.pvp * linia.unitats - linia.import_net) * 100, linia.import_net), 5);
}

}  // namespace

Mode_Calcul Mode_De_Paraula(std::string_view paraula) {
  static constexpr std::pair<std::string_view, Mode_Calcul> modes[] = {
      {"COST", Mode_Calcul::Cost},
      {"DTE", Mode_Calcul::Dte},
      {"PORC_MARGE", Mode_Calcul::Porc_Marge},
      {"PREU_UNITARI", Mode_Calcul::Preu_Unitari},
      {"PVP", Mode_Calcul::Pvp},
      {"UNITATS", Mode_Calcul::Unitats},
  };
  if (paraula == "IVA_ART") return Mode_Calcul::Iva;
  for (const auto& [nom, mode] : modes) {
    if (paraula == std::string(nom) + "_PL" || paraula == std::string(nom) + "_ACL") return mode;
  }
  return Mode_Calcul::Cap;
}

Resultat_Linia Calcular_Linia(double cost, double unitats, double porc_marge, double dte_article, double porc_iva,
                              double porc_re, double preu_unitari, double pvp, double dte, std::string_view camp) {
  return Calcular_Linia(cost, unitats, porc_marge, dte_article, porc_iva, porc_re, preu_unitari, pvp, dte,
                        Mode_De_Paraula(camp));
}

Resultat_Linia Calcular_Linia(double cost, double unitats, double porc_marge, double dte_article, double porc_iva,
                              double porc_re, double preu_unitari, double pvp, double dte, Mode_Calcul mode) {
  Resultat_Linia linia{.unitats = unitats, .porc_iva = porc_iva, .porc_re = porc_re};
  if (mode == Mode_Calcul::Cap) return linia;
  linia.cost = cost;
  linia.dte = dte;
  if (mode == Mode_Calcul::Porc_Marge) {
    Calcular_Des_Del_Marge(linia, porc_marge, dte_article);
    return linia;
  }
  if (mode == Mode_Calcul::Pvp) {
    linia.preu_unitari = Arrodonir(Dividir(pvp, 1 + (porc_iva + porc_re) / 100), 2);
    linia.pvp = pvp;
    Calcular_Des_Del_Preu(linia);
    return linia;
  }
  const bool del_cost = (mode == Mode_Calcul::Cost || mode == Mode_Calcul::Dte) && cost != 0;
  linia.preu_unitari = del_cost ? Preu_Des_Del_Cost(cost, dte_article) : preu_unitari;
  linia.pvp = Amb_Impostos(linia.preu_unitari, porc_iva, porc_re);
  Calcular_Des_Del_Preu(linia);
  return linia;
}

void Valorar_Al_Cost(Resultat_Linia& linia) {
  linia.import_net = Arrodonir(linia.cost * linia.unitats, 2);
  linia.import_brut = Amb_Impostos(linia.import_net, linia.porc_iva, linia.porc_re);
}

Taxes_Linia Taxes_De_Linia(const std::string& codi_iva, bool iva, bool re) {
  if (!iva) return {};
  const Tipus_IVA tipus = Dades_IVA(codi_iva);
  return {tipus.porc_iva.Doble(), re ? tipus.porc_re.Doble() : 0};
}

double Recalcular_PVP(double preu_unitari, double porc_iva, double porc_re) {
  return Amb_Impostos(Arrodonir(preu_unitari, 2), porc_iva, porc_re);
}
