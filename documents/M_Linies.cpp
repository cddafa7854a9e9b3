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

Resultat_Linia Calcular_Linia(double cost, double unitats, double porc_marge, double dte_article, double porc_iva,
                              double porc_re, double preu_unitari, double pvp, double dte, std::string_view camp) {
  const Resultat_Linia zeros{.unitats = unitats, .porc_iva = porc_iva, .porc_re = porc_re};
  Resultat_Linia linia = zeros;
  linia.cost = cost;
  linia.dte = dte;
  if (camp == "PORC_MARGE_PL") {
    Calcular_Des_Del_Marge(linia, porc_marge, dte_article);
    return linia;
  }
  if (camp == "PVP_PL") {
    linia.preu_unitari = Arrodonir(Dividir(pvp, 1 + (porc_iva + porc_re) / 100), 2);
    linia.pvp = pvp;
    Calcular_Des_Del_Preu(linia);
    return linia;
  }
  if (camp == "COST_PL" || camp == "DTE_PL") {
    linia.preu_unitari = cost == 0 ? preu_unitari : Preu_Des_Del_Cost(cost, dte_article);
  } else if (camp == "PREU_UNITARI_PL" || camp == "UNITATS_PL" || camp == "IVA_ART") {
    linia.preu_unitari = preu_unitari;
  } else {
    return zeros;
  }
  linia.pvp = Amb_Impostos(linia.preu_unitari, porc_iva, porc_re);
  Calcular_Des_Del_Preu(linia);
  return linia;
}

Taxes_Linia Taxes_De_Linia(const std::string& codi_iva, bool iva, bool re) {
  if (!iva) return {};
  const Tipus_IVA tipus = Dades_IVA(codi_iva);
  return {tipus.porc_iva.Doble(), re ? tipus.porc_re.Doble() : 0};
}

double Recalcular_PVP(double preu_unitari, double porc_iva, double porc_re) {
  return Amb_Impostos(Arrodonir(preu_unitari, 2), porc_iva, porc_re);
}
