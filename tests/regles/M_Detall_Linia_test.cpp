// A line in its detail: what it shows, what fixes it, and what closing it writes.
#include "documents/M_Detall_Linia.h"

#include "documents/M_Peu.h"
#include "sales/M_Tipus_Venda.h"
#include "tests/regles/Base.h"

namespace {

class M_Detall_Linia : public Base_Dades {
 protected:
  void SetUp() override {
    Posar_Article({.codi = "A1", .dte = 12.5, .magatzem = "2"});
    Posar_Estoc("A1", "2", 100);
    Posar_Albara(5);
    Executar(
        "INSERT INTO ALBARALIN (NUMALB_AL, EMPRESA_AL, LIN_AL, ARTICLE_AL, DESCRIPCIO_AL, COST_AL, UNITATS_AL, "
        "PREU_UNITARI_AL, PORC_IVA_AL, PVP_AL, IMPORT_NET_AL, IMPORT_BRUT_AL, MARGE_AL) VALUES(5, '" +
        empresa_prova + "', 1, 'A1', 'Clau', 6.123, 4, 10, 21, 12.1, 40, 48.4, 15.51)");
    Calcular_Peu(tipus_albara, 5, empresa_prova, formulari);
  }
  std::unique_ptr<Linia_Oberta> Obrir(const Tipus_Document& tipus = tipus_albara) {
    return std::make_unique<Linia_Oberta>(tipus, Capcalera_Oberta{5, empresa_prova, true, false}, Qui_Del_Document{},
                                          std::int16_t{1});
  }
  // The line as its fields hold it, with other units.
  static Linia_Entrada Escrita(const Linia_Oberta& linia, double unitats, const std::string& iva = "GN") {
    const Resultat_Linia& xifres = linia.Linia().contingut.xifres;
    return {.article = {},
            .descripcio = {},
            .iva_article = iva,
            .cost = xifres.cost,
            .unitats = unitats,
            .porc_marge = xifres.porc_marge,
            .preu_unitari = xifres.preu_unitari,
            .pvp = xifres.pvp,
            .dte = xifres.dte,
            .dte_article = linia.Descompte_Article().value_or(0)};
  }
  static double Columna(const std::string& nom) { return Numero("SELECT " + nom + " FROM ALBARALIN"); }
  Document_Fals formulari;
};

TEST_F(M_Detall_Linia, shows_the_article_s_discount_and_the_type_of_its_percentage) {
  const auto linia = Obrir();
  EXPECT_EQ(linia->Descompte_Article(), 12.5);
  EXPECT_EQ(linia->Codi_IVA(), "GN");
  EXPECT_FALSE(linia->Fixada());
  Executar("DELETE * FROM ARTICLES");
  EXPECT_EQ(Obrir()->Descompte_Article(), std::nullopt);
}

TEST_F(M_Detall_Linia, a_line_that_is_gone_does_not_open) {
  Executar("DELETE * FROM ALBARALIN");
  EXPECT_EQ(Error_De([&] { Obrir(); }).Numero(), errors::concurrencia);
}

TEST_F(M_Detall_Linia, closed_untouched_writes_nothing_of_the_line) {
  const auto linia = Obrir();
  Executar("UPDATE ALBARALIN SET PREU_UNITARI_AL = 11");
  linia->Desar(formulari);
  EXPECT_EQ(Columna("PREU_UNITARI_AL"), 11);
  EXPECT_EQ(Columna("COST_AL"), 6.123);
  EXPECT_EQ(Moviments(), 0);
}

TEST_F(M_Detall_Linia, other_units_are_two_postings) {
  const auto linia = Obrir();
  linia->Recalcular(Escrita(*linia, 6), Mode_Calcul::Unitats);
  linia->Desar(formulari);
  EXPECT_EQ(Columna("IMPORT_NET_AL"), 60);
  EXPECT_EQ(formulari.import, 72.6);
  EXPECT_EQ(Estoc("A1", "2").Doble(), 98);
  EXPECT_EQ(Files("SELECT * FROM MOVIMIENTOS WHERE UNIDADES_MOV = 4"), 1);
  EXPECT_EQ(Files("SELECT * FROM MOVIMIENTOS WHERE UNIDADES_MOV = -6"), 1);
  linia->Desar(formulari);
  EXPECT_EQ(Moviments(), 2) << "the units at opening are now those";
}

TEST_F(M_Detall_Linia, the_minimum_is_warned_of_for_what_is_left_in_the_end) {
  Executar("UPDATE ARTICLES SET STOCK_MINIM_ART = 1");
  Executar("UPDATE STOCK SET UNIDADES_ST = -4");
  const auto linia = Obrir();
  linia->Recalcular(Escrita(*linia, 1), Mode_Calcul::Unitats);
  linia->Desar(formulari);
  EXPECT_TRUE(pantalla.caixes.empty()) << "-4 + 4 - 1 is no less than the minimum";
}

TEST_F(M_Detall_Linia, a_refused_stock_changes_nothing_and_the_next_try_works) {
  Executar("UPDATE ARTICLES SET MAGATZEM_ART = '1'");
  Posar_Estoc("A1", "1", 2);
  const auto linia = Obrir();
  linia->Recalcular(Escrita(*linia, 9), Mode_Calcul::Unitats);
  EXPECT_EQ(Error_De([&] { linia->Desar(formulari); }).Numero(), errors::refusat);
  EXPECT_EQ(Columna("UNITATS_AL"), 4);
  EXPECT_EQ(Moviments(), 0);
  linia->Recalcular(Escrita(*linia, 5), Mode_Calcul::Unitats);
  linia->Desar(formulari);
  EXPECT_EQ(Columna("UNITATS_AL"), 5);
  EXPECT_EQ(Estoc("A1", "1").Doble(), 1);
}

TEST_F(M_Detall_Linia, another_tax_type_empties_the_foot_and_saving_builds_it) {
  const auto linia = Obrir();
  linia->Buidar_Peu_Per_IVA();
  linia->Recalcular(Escrita(*linia, 4, "RD"), Mode_Calcul::Iva);
  EXPECT_EQ(Files("SELECT * FROM ALBARAPEU"), 0);
  linia->Refer_Peu(formulari);
  EXPECT_EQ(Numero("SELECT PORC_IVA_AP FROM ALBARAPEU"), 21) << "refused: as the lines stand";
  linia->Desar(formulari);
  EXPECT_EQ(Files("SELECT * FROM ALBARAPEU"), 1);
  EXPECT_EQ(Numero("SELECT PORC_IVA_AP FROM ALBARAPEU"), 10);
}

TEST_F(M_Detall_Linia, a_tax_type_that_is_not_there_raises_and_the_line_stays) {
  const auto linia = Obrir();
  EXPECT_EQ(Error_De([&] { linia->Recalcular(Escrita(*linia, 4, "XX"), Mode_Calcul::Iva); }).Numero(), errors::tipus);
  EXPECT_EQ(linia->Linia().contingut.xifres.porc_iva, 21);
  EXPECT_EQ(linia->Codi_IVA(), "GN");
}

TEST_F(M_Detall_Linia, a_line_that_another_terminal_changed_is_read_again) {
  const auto linia = Obrir();
  linia->Recalcular(Escrita(*linia, 6), Mode_Calcul::Unitats);
  Executar("UPDATE ALBARALIN SET DESCRIPCIO_AL = 'Una altra'");
  EXPECT_EQ(Error_De([&] { linia->Desar(formulari); }).Numero(), errors::concurrencia);
  EXPECT_EQ(Moviments(), 0);
  EXPECT_TRUE(linia->Rellegir());
  EXPECT_EQ(linia->Linia().contingut.descripcio, "Una altra");
  EXPECT_EQ(linia->Linia().contingut.xifres.unitats, 4);
  Executar("DELETE * FROM ALBARALIN");
  EXPECT_FALSE(linia->Rellegir());
}

TEST_F(M_Detall_Linia, what_fixes_a_line) {
  Executar("UPDATE ALBARALIN SET COMANDA_AL = 3");
  EXPECT_TRUE(Obrir()->Fixada());
  Executar("UPDATE ALBARALIN SET COMANDA_AL = 0");
  EXPECT_FALSE(Obrir()->Fixada());
  Executar("UPDATE ALBARACAP SET ESTAT_AC = -1");
  EXPECT_TRUE(Obrir()->Fixada());

  Executar("INSERT INTO FACTURACAP (NUMALB_FC, EMPRESA_FC) VALUES(5, '" + empresa_prova + "')");
  Executar("INSERT INTO FACTURALIN (NUMALB_FL, EMPRESA_FL, LIN_FL, ARTICLE_FL) VALUES(5, '" + empresa_prova +
           "', 1, 'A1')");
  EXPECT_FALSE(Obrir(tipus_factura)->Fixada());
  Executar("UPDATE ALBARACAP SET NUMFAC_AC = '5'");
  EXPECT_TRUE(Obrir(tipus_factura)->Fixada());

  Posar_Comanda(5);
  Posar_Linia_Comanda(5, 1, 10);
  EXPECT_FALSE(Obrir(tipus_comanda)->Fixada());
  Executar("UPDATE COMANDALIN SET SERVIDES_CL = 0.5");
  EXPECT_TRUE(Obrir(tipus_comanda)->Fixada());
}

}  // namespace
