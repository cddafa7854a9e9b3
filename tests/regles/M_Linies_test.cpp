#include "documents/M_Linies.h"

#include "tests/regles/Base.h"

namespace {

// The frame as the user left it; the tests change the fields that they speak of.
struct Marc {
  double cost = 0;
  double unitats = 1;
  double porc_marge = 0;
  double dte_article = 0;
  double porc_iva = 21;
  double porc_re = 0;
  double preu_unitari = 0;
  double pvp = 0;
  double dte = 0;
};

Resultat_Linia Calcular(const Marc& marc, std::string_view camp) {
  return Calcular_Linia(marc.cost, marc.unitats, marc.porc_marge, marc.dte_article, marc.porc_iva, marc.porc_re,
                        marc.preu_unitari, marc.pvp, marc.dte, camp);
}

}  // namespace

TEST(Calcular_Linia, a_cost_is_brought_back_up_through_the_discount_of_the_article) {
  const auto linia = Calcular({.cost = 10, .dte_article = 20}, "COST_PL");
  EXPECT_DOUBLE_EQ(linia.preu_unitari, 12.5);
  EXPECT_DOUBLE_EQ(linia.pvp, 15.13);
  EXPECT_EQ(linia.import_net, 12.5);
  EXPECT_DOUBLE_EQ(linia.import_brut, 15.13);
  EXPECT_EQ(linia.marge, 2.5);
  EXPECT_EQ(linia.porc_marge, 25);
}

TEST(Calcular_Linia, a_typed_cost_overwrites_the_price_unless_it_is_0) {
  EXPECT_EQ(Calcular({.cost = 10, .preu_unitari = 50}, "COST_PL").preu_unitari, 10);
  EXPECT_EQ(Calcular({.cost = 0, .preu_unitari = 50}, "COST_PL").preu_unitari, 50);
}

TEST(Calcular_Linia, a_typed_price_survives_a_change_of_discount_only_with_cost_0) {
  EXPECT_EQ(Calcular({.cost = 0, .preu_unitari = 50, .dte = 10}, "DTE_PL").preu_unitari, 50);
  EXPECT_EQ(Calcular({.cost = 10, .preu_unitari = 50, .dte = 10}, "DTE_PL").preu_unitari, 10);
}

TEST(Calcular_Linia, a_price_with_tax_gives_the_price_without_and_stays_as_typed) {
  const auto linia = Calcular({.porc_re = 5.2, .pvp = 121}, "PVP_PL");
  EXPECT_EQ(linia.preu_unitari, 95.88);
  EXPECT_DOUBLE_EQ(linia.pvp, 121);
}

TEST(Calcular_Linia, each_tax_is_rounded_by_itself_on_the_rounded_price) {
  EXPECT_DOUBLE_EQ(Calcular({.preu_unitari = 0.05}, "PREU_UNITARI_PL").pvp, 0.06);
}

TEST(Calcular_Linia, a_typed_margin_gives_the_net_amount_from_the_cost_and_empties_the_discount) {
  const auto linia =
      Calcular({.cost = 100, .unitats = 2, .porc_marge = 50, .dte_article = 20, .dte = 10}, "PORC_MARGE_PL");
  EXPECT_EQ(linia.import_net, 300);
  EXPECT_DOUBLE_EQ(linia.preu_unitari, 125);
  EXPECT_EQ(linia.porc_marge, 50);
  EXPECT_EQ(linia.dte, 0);
}

TEST(Calcular_Linia, a_line_is_saved_from_its_price_so_that_a_typed_margin_only_steers_what_is_shown) {
  const auto mostrada = Calcular({.cost = 100, .porc_marge = 50}, "PORC_MARGE_PL");
  const auto desada = Calcular({.cost = 100, .porc_marge = mostrada.porc_marge, .preu_unitari = mostrada.preu_unitari},
                               "PREU_UNITARI_PL");
  EXPECT_EQ(mostrada.import_net, 150);
  EXPECT_EQ(desada.import_net, 100);
  EXPECT_EQ(desada.porc_marge, 0);
}

TEST(Calcular_Linia, a_margin_on_a_line_worth_nothing_is_a_division_by_zero) {
  for (const Marc& marc : {Marc{.cost = 10, .unitats = 0}, Marc{.cost = 0}, Marc{.cost = 10, .porc_marge = -100}}) {
    EXPECT_EQ(Error_De([&] { Calcular(marc, "PORC_MARGE_PL"); }).Numero(), errors::divisio_per_zero);
  }
}

TEST(Calcular_Linia, an_article_discount_of_100_is_a_division_by_zero) {
  EXPECT_EQ(Error_De([] { Calcular({.cost = 10, .dte_article = 100}, "COST_PL"); }).Numero(), errors::divisio_per_zero);
}

TEST(Calcular_Linia, the_margin_is_0_without_cost_or_without_units) {
  EXPECT_EQ(Calcular({.cost = 0, .preu_unitari = 10}, "UNITATS_PL").porc_marge, 0);
  EXPECT_EQ(Calcular({.cost = 5, .unitats = 0, .preu_unitari = 10}, "UNITATS_PL").porc_marge, 0);
}

TEST(Calcular_Linia, an_unknown_field_gives_zeros_but_for_units_and_rates) {
  const auto linia = Calcular({.cost = 10, .unitats = 3, .porc_re = 5.2, .preu_unitari = 12, .dte = 4}, "ALTRE");
  EXPECT_EQ(linia.unitats, 3);
  EXPECT_EQ(linia.porc_iva, 21);
  EXPECT_EQ(linia.porc_re, 5.2);
  EXPECT_EQ(linia.cost + linia.preu_unitari + linia.pvp + linia.import_net + linia.import_brut + linia.dte, 0);
}

TEST(Recalcular_PVP, adds_both_taxes_to_the_price_rounded_to_cents) {
  EXPECT_DOUBLE_EQ(Recalcular_PVP(10.004, 21, 5.2), 12.62);
  EXPECT_EQ(Recalcular_PVP(10.005, 0, 0), 10.01);
}

using Taxes = Base_Dades;

TEST_F(Taxes, follow_the_boxes_of_the_head) {
  EXPECT_EQ(Taxes_De_Linia("GN", true, true).porc_iva, 21);
  EXPECT_EQ(Taxes_De_Linia("GN", true, true).porc_re, 5.2);
  EXPECT_EQ(Taxes_De_Linia("GN", true, false).porc_re, 0);
}

TEST_F(Taxes, are_0_without_IVA_even_with_the_surcharge_ticked) {
  const Taxes_Linia taxes = Taxes_De_Linia("GN", false, true);
  EXPECT_EQ(taxes.porc_iva, 0);
  EXPECT_EQ(taxes.porc_re, 0);
}

TEST_F(Taxes, of_an_unknown_type_are_a_type_error_and_of_none_asked_are_not) {
  EXPECT_EQ(Error_De([] { Taxes_De_Linia("ZZ", true, false); }).Numero(), errors::tipus);
  EXPECT_NO_THROW(Taxes_De_Linia("ZZ", false, false));
}
