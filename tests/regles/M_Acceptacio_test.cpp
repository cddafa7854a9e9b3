// Lines on their way from a proposal to an order and to delivery notes, and back.
#include "sales/M_Acceptacio.h"

#include "sales/M_Albarans.h"
#include "sales/M_Comandes.h"
#include "sales/M_Pressupostos.h"
#include "sales/M_Tipus_Venda.h"
#include "tests/regles/Dos_Terminals.h"

namespace {

class M_Acceptacio : public Base_Dades {
 protected:
  void SetUp() override {
    Posar_Article({.codi = "A1", .magatzem = "2"});
    Posar_Estoc("A1", "2", 100);
    Executar("INSERT INTO PRESSUPOSTCAP (NUMALB_PC, EMPRESA_PC, CLIENT_PC, IVA_PC) VALUES(5, '" + empresa_prova +
             "', 'B1', -1)");
    for (const char* lin : {"1", "2"})
      Executar("INSERT INTO PRESSUPOSTLIN (NUMALB_PL, EMPRESA_PL, LIN_PL, ARTICLE_PL, UNITATS_PL) VALUES(5, '" +
               empresa_prova + "', " + lin + ", 'A1', 4)");
    pantalla.documents["F_PRESSUPOST"] = &formulari;
    Posar_Comanda(3);
    Posar_Linia_Comanda(3, 1, 4);
  }
  // The line as its detail holds it: four units at 10 euros.
  static Linia_Detall Linia(std::int64_t document, std::int16_t lin, double porc_re = 0) {
    const Taxes_Linia taxes{21, porc_re};
    const Linia_Entrada escrita{
        .article = "A1", .descripcio = "Clau", .iva_article = "GN", .cost = 6, .unitats = 4, .preu_unitari = 10};
    return {.cap = {document, empresa_prova, true, porc_re > 0},
            .qui = {"B1", "Ferreteria d'en Soler"},
            .lin = lin,
            .contingut = {"A1", "Clau", Calcular_Linia(escrita, taxes, Mode_Calcul::Preu_Unitari)}};
  }
  static void Posar_Cap_D_Albara(std::int64_t numero, const std::string& data, bool facturat) {
    Executar("INSERT INTO ALBARACAP (NUMALB_AC, EMPRESA_AC, CLIENT_AC, DATA_AC, ESTAT_AC) VALUES(" +
             std::to_string(numero) + ", '" + empresa_prova + "', 'B1', " + data + ", " + (facturat ? "-1" : "0") +
             ")");
  }
  // A note of that number that serves units of order 3, line 1.
  static void Posar_Entrega(std::int64_t nota, double unitats, bool facturada = false) {
    Posar_Cap_D_Albara(nota, "#1/1/2011#", facturada);
    Executar(
        "INSERT INTO ALBARALIN (NUMALB_AL, EMPRESA_AL, LIN_AL, ARTICLE_AL, UNITATS_AL, COMANDA_AL, "
        "COMANDA_LIN_AL) VALUES(" +
        std::to_string(nota) + ", '" + empresa_prova + "', 1, 'A1', " + Numero_SQL(unitats) + ", 3, 1)");
  }
  static std::string Avui_SQL() { return Data_SQL(Avui()); }
  static bool Acceptada(int lin) {
    return Llegir("SELECT ESTAT_PL FROM PRESSUPOSTLIN WHERE LIN_PL = " + std::to_string(lin)).Boolea();
  }
  Document_Fals formulari;
};

TEST_F(M_Acceptacio, the_open_document_of_today_is_the_lowest_of_the_customer) {
  EXPECT_EQ(Cercar_Albara_Obert("B1", empresa_prova), 0);
  Posar_Cap_D_Albara(4, "#1/1/2011#", false);
  Posar_Cap_D_Albara(5, Avui_SQL(), true);
  EXPECT_EQ(Cercar_Albara_Obert("B1", empresa_prova), 0) << "another day, or invoiced";
  Posar_Cap_D_Albara(9, Avui_SQL(), false);
  Posar_Cap_D_Albara(7, Avui_SQL(), false);
  EXPECT_EQ(Cercar_Albara_Obert("B1", empresa_prova), 7);
  EXPECT_EQ(Cercar_Albara_Obert("B2", empresa_prova), 0);
  EXPECT_EQ(Cercar_Albara_Obert("B1", "C1"), 0);
  Executar("UPDATE COMANDACAP SET CLIENT_CC = 'B1', DATA_CC = " + Avui_SQL());
  EXPECT_EQ(Cercar_Comanda_Oberta("B1", empresa_prova), 3);
}

TEST_F(M_Acceptacio, what_routines_say_of_rows_that_are_not_there) {
  EXPECT_FALSE(Estat_Albara(99, empresa_prova));
  EXPECT_FALSE(Linia_Comanda_Servida(99, empresa_prova, 1));
  EXPECT_EQ(Comanda_De_Linia_Pressupost(99, empresa_prova, 1).numero.Enter(), 0);
  EXPECT_FALSE(Estat_Linia_Pressupost(99, empresa_prova, 1));
}

TEST_F(M_Acceptacio, an_accepted_line_becomes_the_line_of_a_new_order_with_the_customer_and_the_taxes) {
  Acceptar_Linia_Pressupost(Linia(5, 1, 5.2));
  EXPECT_EQ(Text("SELECT CLIENT_DESC_CC FROM COMANDACAP WHERE NUMALB_CC = 4"), "Ferreteria d'en Soler");
  EXPECT_EQ(Numero("SELECT RE_CC FROM COMANDACAP WHERE NUMALB_CC = 4"), -1);
  EXPECT_EQ(Numero("SELECT IMPORT_CC FROM COMANDACAP WHERE NUMALB_CC = 4"), 50.48);
  EXPECT_EQ(Numero("SELECT RE_CP FROM COMANDAPEU WHERE NUMALB_CP = 4"), 2.08);
  const Lloc_Linia lloc = Comanda_De_Linia_Pressupost(5, empresa_prova, 1);
  EXPECT_EQ(lloc.numero.Enter(), 4);
  EXPECT_EQ(lloc.lin, 1);
  EXPECT_EQ(Moviments(), 0);
  EXPECT_EQ(formulari.estat, false);
  Acceptar_Linia_Pressupost(Linia(5, 2));
  EXPECT_EQ(Comanda_De_Linia_Pressupost(5, empresa_prova, 2).lin, 2);
  EXPECT_EQ(formulari.estat, true);
  EXPECT_EQ(Numero("SELECT ESTAT_PC FROM PRESSUPOSTCAP"), 0) << "the form saves it";
}

TEST_F(M_Acceptacio, accepting_twice_does_nothing) {
  Acceptar_Linia_Pressupost(Linia(5, 1));
  Acceptar_Linia_Pressupost(Linia(5, 1));
  EXPECT_EQ(Comptar_Linies_Comanda(4, empresa_prova), 1);
}

TEST_F(M_Acceptacio, a_line_that_another_terminal_deleted_becomes_nothing) {
  Executar("DELETE * FROM PRESSUPOSTLIN WHERE LIN_PL = 1");
  EXPECT_EQ(Error_De([] { Acceptar_Linia_Pressupost(Linia(5, 1)); }).Numero(), errors::concurrencia);
  EXPECT_EQ(Files("SELECT * FROM COMANDACAP"), 1);
}

TEST_F(M_Acceptacio, discarding_takes_the_line_and_the_empty_order_away_and_can_be_undone) {
  Acceptar_Linia_Pressupost(Linia(5, 1));
  Acceptar_Linia_Pressupost(Linia(5, 2));
  Descartar_Linia_Pressupost(Linia(5, 1));
  EXPECT_FALSE(Acceptada(1));
  EXPECT_EQ(Numero("SELECT SUM(IMPORT_CP) FROM COMANDAPEU WHERE NUMALB_CP = 4"), 48.4);
  EXPECT_EQ(Numero("SELECT IMPORT_CC FROM COMANDACAP WHERE NUMALB_CC = 4"), 48.4);
  EXPECT_EQ(formulari.estat, false);
  Acceptar_Linia_Pressupost(Linia(5, 1));
  EXPECT_EQ(Comanda_De_Linia_Pressupost(5, empresa_prova, 1).lin, 3);
  Descartar_Linia_Pressupost(Linia(5, 1));
  Descartar_Linia_Pressupost(Linia(5, 2));
  EXPECT_FALSE(Existeix_Comanda(4, empresa_prova));
  EXPECT_EQ(Files("SELECT * FROM COMANDAPEU WHERE NUMALB_CP = 4"), 0);
}

TEST_F(M_Acceptacio, a_rate_that_leaves_with_its_line_leaves_no_money_in_the_foot) {
  Acceptar_Linia_Pressupost(Linia(5, 1));
  Linia_Detall reduida = Linia(5, 2);
  reduida.contingut.xifres.porc_iva = 10;
  Acceptar_Linia_Pressupost(reduida);
  ASSERT_EQ(Files("SELECT * FROM COMANDAPEU WHERE NUMALB_CP = 4"), 2);
  Descartar_Linia_Pressupost(reduida);
  EXPECT_EQ(Files("SELECT * FROM COMANDAPEU WHERE NUMALB_CP = 4"), 1);
}

TEST_F(M_Acceptacio, what_was_served_is_not_discarded) {
  Acceptar_Linia_Pressupost(Linia(5, 1));
  Executar("UPDATE COMANDALIN SET SERVIDES_CL = 1 WHERE NUMALB_CL = 4");
  Descartar_Linia_Pressupost(Linia(5, 1));
  ASSERT_EQ(pantalla.caixes.size(), 1U);
  EXPECT_EQ(pantalla.caixes[0], (Caixa_Vista{"No es pot esborrar la comanda. Ja hi ha Albarà!!", 16, "Brollador"}));
  EXPECT_TRUE(Acceptada(1));
}

TEST_F(M_Acceptacio, a_line_accepted_into_no_order_is_pending_again) {
  Executar("UPDATE PRESSUPOSTLIN SET ESTAT_PL = -1 WHERE LIN_PL = 1");
  Descartar_Linia_Pressupost(Linia(5, 1));
  EXPECT_FALSE(Acceptada(1));
}

TEST_F(M_Acceptacio, a_line_whose_order_was_deleted_whole_is_pending_again) {
  Acceptar_Linia_Pressupost(Linia(5, 1));
  Executar("DELETE * FROM COMANDACAP WHERE NUMALB_CC = 4");
  Descartar_Linia_Pressupost(Linia(5, 1));
  EXPECT_FALSE(Acceptada(1));
}

TEST_F(M_Acceptacio, without_orders_the_line_goes_into_a_note_and_stays_there) {
  sessio.P_Comandes = "X";
  Acceptar_Linia_Pressupost(Linia(5, 1));
  EXPECT_EQ(Numero("SELECT UNITATS_AL FROM ALBARALIN WHERE COMANDA_AL = 0"), 4);
  EXPECT_EQ(Estoc("A1", "2").Doble(), 96);
  EXPECT_EQ(Numero("SELECT PAGAMENT_AC FROM ALBARACAP"), -1);
  Descartar_Linia_Pressupost(Linia(5, 1));
  EXPECT_EQ(pantalla.caixes.back().text, "No es pot esborrar el pressupost. Ja hi ha Albarà!!");
  EXPECT_TRUE(Acceptada(1));
}

TEST_F(M_Acceptacio, a_refused_stock_leaves_the_proposal_and_the_notes_as_they_were) {
  sessio.P_Comandes = "X";
  Executar("UPDATE ARTICLES SET MAGATZEM_ART = '1'");
  EXPECT_EQ(Error_De([] { Acceptar_Linia_Pressupost(Linia(5, 1)); }).Numero(), errors::refusat);
  EXPECT_FALSE(Acceptada(1));
  EXPECT_EQ(Files("SELECT * FROM ALBARACAP"), 0);
  EXPECT_EQ(Moviments(), 0);
}

TEST_F(M_Acceptacio, an_order_line_is_served_whole_and_once) {
  Servir_Linia_Sencera(Linia(3, 1));
  EXPECT_EQ(Servides(3, 1), 4);
  EXPECT_EQ(Estat_Comanda(3), -1);
  EXPECT_EQ(Numero("SELECT COMANDA_AL * 10 + COMANDA_LIN_AL FROM ALBARALIN"), 31);
  EXPECT_EQ(Estoc("A1", "2").Doble(), 96);
  EXPECT_EQ(Moviments(), 1);
  Servir_Linia_Sencera(Linia(3, 1));
  EXPECT_EQ(Files("SELECT * FROM ALBARALIN"), 1);
}

TEST_F(M_Acceptacio, a_line_served_in_part_is_not_served_from_here) {
  Executar("UPDATE COMANDALIN SET SERVIDES_CL = 1");
  Servir_Linia_Sencera(Linia(3, 1));
  EXPECT_EQ(Files("SELECT * FROM ALBARALIN"), 0);
}

TEST_F(M_Acceptacio, units_served_are_rounded_as_balances_are) {
  Linia_Detall linia = Linia(3, 1);
  linia.contingut.xifres.unitats = 0.1 + 0.2;
  Servir_Linia_Sencera(linia);
  EXPECT_EQ(Servides(3, 1), 0.3);
}

TEST_F(M_Acceptacio, taking_back_undoes_the_stock_the_units_and_the_emptied_note) {
  Servir_Linia_Sencera(Linia(3, 1));
  Retirar_Linia_Servida(Linia(3, 1));
  EXPECT_EQ(Servides(3, 1), 0);
  EXPECT_EQ(Estat_Comanda(3), 0);
  EXPECT_EQ(Estoc("A1", "2").Doble(), 100);
  EXPECT_EQ(Moviments(), 2);
  EXPECT_EQ(Files("SELECT * FROM ALBARACAP"), 0);
  EXPECT_EQ(Files("SELECT * FROM ALBARAPEU"), 0);
  Retirar_Linia_Servida(Linia(3, 1));
  EXPECT_EQ(Moviments(), 2);
}

TEST_F(M_Acceptacio, of_several_notes_the_invoiced_ones_stay_and_are_told_of_once) {
  for (const std::int64_t nota : {1, 2}) Posar_Entrega(nota, 1, true);
  for (const std::int64_t nota : {3, 4}) Posar_Entrega(nota, 1);
  Executar("UPDATE COMANDALIN SET SERVIDES_CL = 4");
  Retirar_Linia_Servida(Linia(3, 1));
  EXPECT_EQ(Servides(3, 1), 2);
  EXPECT_EQ(Files("SELECT * FROM ALBARACAP"), 2);
  EXPECT_EQ(Estoc("A1", "2").Doble(), 102);
  ASSERT_EQ(pantalla.caixes.size(), 1U);
  EXPECT_EQ(pantalla.caixes[0], (Caixa_Vista{"No s'ha pogut desfer l'albarà. Està Facturat!!", 16, "Brollador"}));
}

TEST_F(M_Acceptacio, what_is_left_of_fractions_is_what_was_typed) {
  Posar_Entrega(1, 5);
  Executar("UPDATE COMANDALIN SET SERVIDES_CL = 7.3");
  Retirar_Linia_Servida(Linia(3, 1));
  EXPECT_EQ(Servides(3, 1), 2.3);
}

TEST_F(M_Acceptacio, a_fraction_cannot_be_taken_back_and_nothing_changes) {
  Posar_Entrega(1, 2.5);
  Executar("UPDATE COMANDALIN SET SERVIDES_CL = 2.5");
  EXPECT_EQ(Error_De([] { Retirar_Linia_Servida(Linia(3, 1)); }).Numero(), errors::sentencia);
  EXPECT_EQ(Servides(3, 1), 2.5);
  EXPECT_EQ(Files("SELECT * FROM ALBARALIN"), 1);
  EXPECT_EQ(Moviments(), 0);
}

TEST_F(M_Acceptacio, the_form_of_an_order_takes_its_state) {
  Document_Fals comanda;
  pantalla.documents["F_COMANDA"] = &comanda;
  Servir_Linia_Sencera(Linia(3, 1));
  EXPECT_EQ(comanda.estat, true);
  Retirar_Linia_Servida(Linia(3, 1));
  EXPECT_EQ(comanda.estat, false);
}

// Each line of a day's order has a number of its own, however many terminals pass lines into it.
using Dos_Terminals_Que_Accepten = A_Dos_Terminals<M_Acceptacio>;

TEST_F(Dos_Terminals_Que_Accepten, fill_the_same_order) {
  Executar("UPDATE COMANDACAP SET CLIENT_CC = 'B1', DATA_CC = " + Avui_SQL());
  Executar("DELETE * FROM PRESSUPOSTLIN");
  Executar("INSERT INTO PRESSUPOSTCAP (NUMALB_PC, EMPRESA_PC) VALUES(6, '" + empresa_prova + "')");
  for (const char* document : {"5", "6"}) {
    for (int lin = 1; lin <= vegades; ++lin)
      Executar(std::string("INSERT INTO PRESSUPOSTLIN (NUMALB_PL, EMPRESA_PL, LIN_PL, ARTICLE_PL) VALUES(") + document +
               ", '" + empresa_prova + "', " + std::to_string(lin) + ", 'A1')");
  }
  Alhora([](bool primer, int vegada) {
    Acceptar_Linia_Pressupost(Linia(primer ? 5 : 6, static_cast<std::int16_t>(vegada + 1)));
  });
  EXPECT_EQ(Comptar_Linies_Comanda(3, empresa_prova), 1 + 2 * vegades);
  EXPECT_EQ(Files("SELECT * FROM PRESSUPOSTLIN WHERE ESTAT_PL = 0"), 0);
  EXPECT_NEAR(Numero("SELECT IMPORT_CC FROM COMANDACAP"), 48.4 * 2 * vegades, 1e-6);
}

}  // namespace
