#include "tests/regles/Base_Magatzems.h"

TEST_F(M_Magatzems, the_minimum_is_passed_on_as_a_truth_value) {
  Posar_Article({.codi = "A1", .minim = 10});
  Posar_Article({.codi = "A2", .minim = 0});
  EXPECT_EQ(Preparar_Article_Estoc("A1", 0).minim, -1);
  EXPECT_EQ(Preparar_Article_Estoc("A2", 0).minim, 0);
}

TEST_F(M_Magatzems, the_article_brings_its_warehouse_and_what_it_allows) {
  Posar_Article({.codi = "A1", .magatzem = "1"});
  Posar_Article({.codi = "A2", .magatzem = "2"});
  EXPECT_EQ(Preparar_Article_Estoc("A1", 0).magatzem, "1");
  EXPECT_FALSE(Preparar_Article_Estoc("A1", 0).stock_neg);
  EXPECT_TRUE(Preparar_Article_Estoc("A2", 0).stock_neg);
}

TEST_F(M_Magatzems, a_warehouse_that_does_not_exist_may_not_go_below_zero) {
  EXPECT_TRUE(Stock_Negatiu_Permes("2"));
  EXPECT_FALSE(Stock_Negatiu_Permes("1"));
  EXPECT_FALSE(Stock_Negatiu_Permes(""));
  EXPECT_FALSE(Stock_Negatiu_Permes("9"));
}

TEST_F(M_Magatzems, a_sale_takes_the_units_out_and_writes_its_journal_row) {
  Posar_Article({});
  Posar_Estoc("A1", "1", 8);
  Vendre("A1", 3);
  EXPECT_EQ(Estoc("A1", "1").Doble(), 5);
  EXPECT_EQ(Moviments(), 1);
  EXPECT_EQ(Ultim_Moviment("EMPRESA_MOV"), empresa_prova);
  EXPECT_EQ(Ultim_Moviment("ARTICULO_MOV"), "A1");
  EXPECT_EQ(Ultim_Moviment("TIPO_MOV"), "AC");
  EXPECT_EQ(Ultim_Moviment("ALMACEN_MOV"), "1");
  EXPECT_EQ(Ultim_Moviment("DOCUMENTO_MOV"), "7");
  EXPECT_EQ(Ultim_Moviment("UNIDADES_MOV"), "-3");
}

TEST_F(M_Magatzems, the_journal_carries_date_and_time_of_the_engines_clock) {
  Posar_Article({.magatzem = "2"});
  Fixar_Rellotge([] { return Data_Hora{2011, 3, 5, 10, 20, 30}; });
  Vendre("A1", 1);
  const Data_Hora data = Llegir("SELECT FECHA_MOV FROM MOVIMIENTOS").Data();
  if (Proves_Al_Servidor()) {
    EXPECT_GT(data.any, 2011);  // a server has a clock of its own
  } else {
    EXPECT_EQ(data, (Data_Hora{2011, 3, 5, 10, 20, 30}));
  }
}

TEST_F(M_Magatzems, each_kind_of_document_has_its_type_and_its_sign) {
  Posar_Article({.magatzem = "2"});
  const Article_Estoc article = Preparar_Article_Estoc("A1", 0);
  Moviment_Factura(+1, article, 2, 8);
  EXPECT_EQ(Ultim_Moviment("TIPO_MOV") + Ultim_Moviment("DOCUMENTO_MOV") + Ultim_Moviment("UNIDADES_MOV"), "F8-2");
  Moviment_Compra(+1, article, 2, "12/A");
  EXPECT_EQ(Ultim_Moviment("TIPO_MOV") + Ultim_Moviment("DOCUMENTO_MOV") + Ultim_Moviment("UNIDADES_MOV"), "C12/A2");
}

TEST_F(M_Magatzems, what_keeps_no_stock_posts_nothing_and_is_never_refused) {
  Posar_Article({.codi = "A1", .stock = false});
  for (const char* article : {"A1", "VAR", "ZZ"}) {
    EXPECT_NO_THROW(Vendre(article, 5)) << article;
    EXPECT_TRUE(Estoc(article, "1").Es_Nul());
  }
  EXPECT_EQ(Moviments(), 0);
}

TEST_F(M_Magatzems, a_balance_of_0_is_no_row) {
  Posar_Article({});
  Posar_Estoc("A1", "1", 5);
  Vendre("A1", 5);
  EXPECT_TRUE(Estoc("A1", "1").Es_Nul());
  EXPECT_EQ(Ultim_Moviment("UNIDADES_MOV"), "-5");
}

TEST_F(M_Magatzems, a_sixth_unit_of_five_is_refused_and_shown_once) {
  Posar_Article({});
  Posar_Estoc("A1", "1", 5);
  sessio.Entrada_Bloquejada = true;
  const Error_Brollador error = Error_De([] { Vendre("A1", 6); });
  EXPECT_EQ(error.Numero(), errors::refusat);
  EXPECT_EQ(error.Descripcio(), "Error en los Movimientos...");
  EXPECT_EQ(pantalla.caixes, std::vector{caixa_sense_estoc});
  EXPECT_TRUE(sessio.Error_Mostrat);
  EXPECT_FALSE(sessio.Entrada_Bloquejada);
  EXPECT_EQ(Estoc("A1", "1").Doble(), 5);
  EXPECT_EQ(Moviments(), 0);
}

TEST_F(M_Magatzems, a_failure_that_was_shown_already_is_not_shown_again) {
  Posar_Article({});
  sessio.Error_Mostrat = true;
  EXPECT_EQ(Error_De([] { Vendre("A1", 1); }).Numero(), errors::refusat);
  EXPECT_TRUE(pantalla.caixes.empty());
}

TEST_F(M_Magatzems, fractions_of_a_unit_add_up_as_they_are_typed) {
  Posar_Article({});
  Posar_Estoc("A1", "1", 0.3);
  Vendre("A1", 0.1);
  EXPECT_EQ(Estoc("A1", "1").Doble(), 0.2);
  Vendre("A1", 0.2);
  EXPECT_TRUE(Estoc("A1", "1").Es_Nul());
  Posar_Estoc("A1", "1", 1.1);
  Vendre("A1", 0.7);
  Vendre("A1", 0.4);
  EXPECT_TRUE(Estoc("A1", "1").Es_Nul());
  EXPECT_TRUE(pantalla.caixes.empty());
  EXPECT_EQ(Moviments(), 4);
}

TEST_F(M_Magatzems, from_no_row_even_a_fraction_is_refused) {
  Posar_Article({});
  EXPECT_EQ(Error_De([] { Vendre("A1", 0.001); }).Numero(), errors::refusat);
}

TEST_F(M_Magatzems, nothing_of_nothing_leaves_no_row_and_a_journal_row_of_0) {
  Posar_Article({});
  Vendre("A1", 0);
  EXPECT_TRUE(Estoc("A1", "1").Es_Nul());
  EXPECT_EQ(Moviments(), 1);
  EXPECT_EQ(Ultim_Moviment("UNIDADES_MOV"), "0");
}

TEST_F(M_Magatzems, where_it_may_go_below_zero_a_sale_from_no_row_makes_a_negative_one) {
  Posar_Article({.magatzem = "2"});
  Vendre("A1", 3);
  EXPECT_EQ(Estoc("A1", "2").Doble(), -3);
}

TEST_F(M_Magatzems, an_article_without_warehouse_may_not_go_below_zero) {
  Posar_Article({.magatzem = ""});
  EXPECT_EQ(Error_De([] { Vendre("A1", 1); }).Numero(), errors::refusat);
}

TEST_F(M_Magatzems, a_purchase_whose_units_were_sold_cannot_be_undone) {
  Posar_Article({});
  const Article_Estoc article = Preparar_Article_Estoc("A1", 0);
  Moviment_Compra(+1, article, 5, "1");
  Vendre("A1", 3);
  EXPECT_EQ(Error_De([&] { Moviment_Compra(-1, article, 5, "1"); }).Numero(), errors::refusat);
  EXPECT_EQ(Estoc("A1", "1").Doble(), 2);
}

TEST_F(M_Magatzems, units_that_change_from_3_to_5_are_given_back_before_the_5_are_tested) {
  Posar_Article({});
  Posar_Estoc("A1", "1", 4);
  Vendre("A1", 3);
  Tornar("A1", 3);
  EXPECT_EQ(Error_De([] { Vendre("A1", 5); }).Numero(), errors::refusat);
  EXPECT_EQ(Estoc("A1", "1").Doble(), 4);
  EXPECT_EQ(Moviments(), 2);
}

TEST_F(M_Magatzems, the_warehouse_is_read_at_posting_so_that_a_reversal_may_go_to_another) {
  Posar_Article({.magatzem = "2"});
  Vendre("A1", 3);
  Executar("UPDATE ARTICLES SET MAGATZEM_ART = '1'");
  Tornar("A1", 3);
  EXPECT_EQ(Estoc("A1", "2").Doble(), -3);
  EXPECT_EQ(Estoc("A1", "1").Doble(), 3);
}

TEST_F(M_Magatzems, stock_belongs_to_a_company) {
  Posar_Article({});
  Posar_Estoc("A1", "1", 5);
  sessio.Empresa_Actual = "C1";
  EXPECT_EQ(Error_De([] { Vendre("A1", 1); }).Numero(), errors::refusat);
}

class Minim : public M_Magatzems {
 protected:
  const Caixa_Vista avis = {"A1: Article sota mínims.", 16, "Brollador"};
};

TEST_F(Minim, of_10_with_3_left_is_no_reason_to_warn) {
  Posar_Article({.minim = 10, .magatzem = "2"});
  Posar_Estoc("A1", "2", 5);
  Vendre("A1", 2);
  EXPECT_TRUE(pantalla.caixes.empty());
}

TEST_F(Minim, is_warned_of_below_minus_1_and_the_posting_goes_on) {
  Posar_Article({.minim = 10, .magatzem = "2"});
  Vendre("A1", 1);
  EXPECT_TRUE(pantalla.caixes.empty());
  Bloquejar_Entrada();
  Vendre("A1", 1);
  EXPECT_EQ(pantalla.caixes, std::vector{avis});
  EXPECT_TRUE(pantalla.entrada_blocada);  // let go for the box alone
  EXPECT_EQ(Estoc("A1", "2").Doble(), -2);
  EXPECT_EQ(Moviments(), 2);
}

// While somebody reads the warning no other terminal waits, and what it writes meanwhile counts.
TEST_F(Minim, is_warned_of_before_anything_is_written) {
  class Pantalla_Que_Ven : public Pantalla_Falsa {
   public:
    Resposta Obrir_Caixa(const std::string& text, int estil, const std::string& titol) override {
      Connexio altra;
      altra.Open(sessio.Connexio_Comuna.Adreca(), 0);
      altra.Execute("UPDATE STOCK SET UNIDADES_ST = UNIDADES_ST - 10");
      return Pantalla_Falsa::Obrir_Caixa(text, estil, titol);
    }
  };
  Pantalla_Que_Ven ven;
  sessio.pantalla = &ven;
  Posar_Article({.minim = 10, .magatzem = "2"});
  Posar_Estoc("A1", "2", -1);
  Transaccio transaccio(sessio.Connexio_Comuna);
  Vendre("A1", 1);
  transaccio.Confirmar();
  EXPECT_EQ(ven.caixes, std::vector{avis});
  EXPECT_EQ(Estoc("A1", "2").Doble(), -12);
}

TEST_F(Minim, of_0_never_warns) {
  Posar_Article({.minim = 0, .magatzem = "2"});
  Vendre("A1", 50);
  EXPECT_TRUE(pantalla.caixes.empty());
}

TEST_F(Minim, is_a_matter_of_the_articles_own_warehouse_alone) {
  Posar_Article({.minim = 10, .magatzem = "1"});
  Avisar_Sota_Minims({.article = "A1", .magatzem = "2", .minim = -1, .stock_neg = true, .porta_stock = true}, -5);
  EXPECT_TRUE(pantalla.caixes.empty());
}

TEST_F(M_Magatzems, a_shortage_is_undone_before_its_box_is_shown) {
  // While somebody reads the box, no other terminal waits for the database.
  class Pantalla_Que_Mira : public Pantalla_Falsa {
   public:
    Resposta Obrir_Caixa(const std::string& text, int estil, const std::string& titol) override {
      en_transaccio = sessio.Connexio_Comuna.En_Transaccio();
      return Pantalla_Falsa::Obrir_Caixa(text, estil, titol);
    }
    bool en_transaccio = true;
  };
  Pantalla_Que_Mira mira;
  sessio.pantalla = &mira;
  Posar_Article({});
  const Transaccio transaccio(sessio.Connexio_Comuna);
  Executar("INSERT INTO MARQUES (CODI_MAR) VALUES('M')");
  EXPECT_EQ(Error_De([] { Moviment_Albara(+1, Preparar_Article_Estoc("A1", -3), 3, 9); }).Numero(), errors::refusat);
  EXPECT_EQ(mira.caixes, std::vector{caixa_sense_estoc});
  EXPECT_FALSE(mira.en_transaccio);
  EXPECT_EQ(Files("SELECT * FROM MARQUES"), 0);
}

TEST_F(M_Magatzems, a_transfer_moves_two_balances_and_writes_two_journal_rows) {
  Posar_Article({});
  Posar_Estoc("A1", "1", 5);
  Moviment_Traspas(+1, "A1", true, "1", "2", 3, 9);
  EXPECT_EQ(Estoc("A1", "1").Doble(), 2);
  EXPECT_EQ(Estoc("A1", "2").Doble(), 3);
  EXPECT_EQ(Moviments(), 2);
  EXPECT_EQ(Ultim_Moviment("TIPO_MOV"), "AM");
  EXPECT_FALSE(sessio.Transaccio_Oberta());
}

TEST_F(M_Magatzems, a_transfer_commits_the_transaction_of_its_caller) {
  Posar_Article({});
  Posar_Estoc("A1", "1", 5);
  {
    const Transaccio transaccio(sessio.Connexio_Comuna);
    Moviment_Traspas(+1, "A1", true, "1", "2", 3, 9);
    EXPECT_FALSE(sessio.Transaccio_Oberta());
  }
  EXPECT_EQ(Estoc("A1", "1").Doble(), 2);
}

TEST_F(M_Magatzems, a_transfer_that_fails_rolls_everything_back) {
  Posar_Article({});
  Posar_Estoc("A1", "1", 2);
  const Transaccio transaccio(sessio.Connexio_Comuna);
  Executar("INSERT INTO MARQUES (CODI_MAR) VALUES('M')");
  EXPECT_EQ(Error_De([] { Moviment_Traspas(+1, "A1", true, "1", "2", 3, 9); }).Numero(), errors::refusat);
  EXPECT_FALSE(sessio.Transaccio_Oberta());
  EXPECT_EQ(Files("SELECT * FROM MARQUES"), 0);
  EXPECT_EQ(Estoc("A1", "1").Doble(), 2);
  EXPECT_EQ(pantalla.caixes, std::vector{caixa_sense_estoc});
}

TEST_F(M_Magatzems, a_transfer_never_warns_of_the_minimum) {
  Posar_Article({.minim = 10, .magatzem = "2"});
  Moviment_Traspas(+1, "A1", true, "2", "1", 5, 9);
  EXPECT_TRUE(pantalla.caixes.empty());
}
