#include "sales/M_Comandes.h"

#include "tests/regles/Base.h"

class M_Comandes : public Base_Dades {
 protected:
  void SetUp() override {
    Posar_Comanda(3);
    Posar_Linia_Comanda(3, 1, 10);
  }
  static void Servir(double unitats) { Servir_Linia_Comanda(3, empresa_prova, 1, unitats); }
};

TEST_F(M_Comandes, an_order_served_in_part_is_open_and_served_whole_is_not) {
  Servir(4);
  EXPECT_EQ(Servides(3, 1), 4);
  EXPECT_EQ(Estat_Comanda(3), 0);
  Servir(6);
  EXPECT_EQ(Servides(3, 1), 10);
  EXPECT_EQ(Estat_Comanda(3), -1);
}

TEST_F(M_Comandes, fractions_that_add_up_to_what_was_ordered_serve_it) {
  Posar_Linia_Comanda(3, 2, 0.3);
  Servir(10);
  for (const double unitats : {0.1, 0.1, 0.1}) Servir_Linia_Comanda(3, empresa_prova, 2, unitats);
  EXPECT_EQ(Servides(3, 2), 0.3);
  EXPECT_EQ(Estat_Comanda(3), -1);
  Executar("UPDATE COMANDALIN SET UNITATS_CL = 1.1, SERVIDES_CL = 0 WHERE LIN_CL = 2");
  for (const double unitats : {0.7, 0.4}) Servir_Linia_Comanda(3, empresa_prova, 2, unitats);
  EXPECT_EQ(Estat_Comanda(3), -1);
}

TEST_F(M_Comandes, more_may_be_served_than_was_ordered) {
  Servir(12);
  EXPECT_EQ(Servides(3, 1), 12);
  EXPECT_EQ(Estat_Comanda(3), -1);
}

TEST_F(M_Comandes, undoing_a_delivery_opens_the_order_again) {
  Servir(10);
  Servir(-6);
  EXPECT_EQ(Servides(3, 1), 4);
  EXPECT_EQ(Estat_Comanda(3), 0);
}

TEST_F(M_Comandes, an_order_stays_open_while_any_line_is_pending) {
  Posar_Linia_Comanda(3, 2, 1);
  Servir(10);
  EXPECT_EQ(Estat_Comanda(3), 0);
}

TEST_F(M_Comandes, two_notes_that_serve_the_same_line_both_count) {
  Servir(10);
  Servir(10);
  EXPECT_EQ(Servides(3, 1), 20);
}

TEST_F(M_Comandes, a_line_that_does_not_exist_leaves_everything_as_it_is) {
  Posar_Estat_Comanda(3, empresa_prova, true);
  Servir_Linia_Comanda(3, empresa_prova, 9, 5);
  Servir_Linia_Comanda(0, empresa_prova, 0, 5);
  EXPECT_EQ(Servides(3, 1), 0);
  EXPECT_EQ(Estat_Comanda(3), -1);
}

TEST_F(M_Comandes, an_order_without_lines_is_not_served) {
  Posar_Comanda(4);
  Posar_Estat_Comanda(4, empresa_prova, true);
  Actualitzar_Estat_Comanda(4, empresa_prova);
  EXPECT_EQ(Estat_Comanda(4), 0);
}

TEST_F(M_Comandes, the_open_form_takes_the_tick_of_any_order_and_the_table_is_not_written) {
  Document_Fals formulari;
  pantalla.documents["F_COMANDA"] = &formulari;
  Servir(10);
  EXPECT_EQ(formulari.estat, true);
  EXPECT_EQ(Estat_Comanda(3), 0);
}

TEST_F(M_Comandes, an_order_of_another_company_is_another_order) {
  Servir_Linia_Comanda(3, "C1", 1, 5);
  EXPECT_EQ(Servides(3, 1), 0);
}
