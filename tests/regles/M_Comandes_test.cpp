#include "sales/M_Comandes.h"

#include "documents/M_Linies_Document.h"
#include "sales/M_Tipus_Venda.h"
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

// An order and its lines.
class Linies_De_Comanda : public M_Comandes {
 protected:
  void SetUp() override {
    Posar_Comanda(5);
    Posar_Article({.codi = "A1"});
    Posar_Estoc("A1", "1", 50);
    linies.Open(SQL_Linies(tipus_comanda, 5, empresa_prova), sessio.Connexio_Comuna, Bloqueig::Optimista);
    linia.article = "A1";
    linia.iva_article = "GN";
    linia.unitats = 4;
    linia.preu_unitari = 12.5;
    pantalla.documents["F_COMANDA"] = &formulari;
    formulari.numero = 5;
  }
  void Afegir() {
    Transaccio transaccio(sessio.Connexio_Comuna);
    Afegir_Linia(tipus_comanda, {.numero = 5, .empresa = empresa_prova, .iva = true, .re = false}, linia, linies,
                 formulari);
    transaccio.Confirmar();
  }
  bool Esborrar(std::int16_t numero) {
    pantalla.respostes.push_back(Resposta::Ok);
    Transaccio transaccio(sessio.Connexio_Comuna);
    const bool esborrada = Esborrar_Linia_Comanda(5, empresa_prova, numero, "A1");
    transaccio.Confirmar();
    return esborrada;
  }
  Linia_Entrada linia;
  Recordset linies;
  Document_Fals formulari;
};

TEST_F(Linies_De_Comanda, a_new_one_moves_no_stock_and_opens_the_order) {
  Afegir();
  EXPECT_EQ(Numero("SELECT IMPORT_NET_CL FROM COMANDALIN"), 50);
  EXPECT_EQ(Servides(5, 1), 0);
  EXPECT_EQ(formulari.import, 60.5);
  EXPECT_EQ(formulari.estat, false);
  EXPECT_EQ(formulari.pagament, true);
  EXPECT_EQ(Estoc("A1", "1").Doble(), 50);
  EXPECT_EQ(Moviments(), 0);
}

TEST_F(Linies_De_Comanda, one_that_is_served_in_part_stays_in_silence) {
  Afegir();
  Executar("UPDATE COMANDALIN SET SERVIDES_CL = 0.5");
  EXPECT_TRUE(Esborrar(1));
  EXPECT_EQ(pantalla.caixes.size(), 1U);
  EXPECT_EQ(Comptar_Linies_Comanda(5, empresa_prova), 1);
  EXPECT_TRUE(Comanda_Bloquejada(5, empresa_prova));
}

TEST_F(Linies_De_Comanda, a_pending_one_goes_and_frees_the_line_of_the_proposal_that_it_came_from) {
  Afegir();
  EXPECT_FALSE(Comanda_Bloquejada(5, empresa_prova));
  Executar("INSERT INTO PRESSUPOSTCAP (NUMALB_PC, EMPRESA_PC, ESTAT_PC) VALUES(9, '" + empresa_prova + "', -1)");
  Executar(
      "INSERT INTO PRESSUPOSTLIN (NUMALB_PL, EMPRESA_PL, LIN_PL, COMANDA_PL, COMANDA_LIN_PL, ESTAT_PL) VALUES(9, '" +
      empresa_prova + "', 2, 5, 1, -1)");
  EXPECT_TRUE(Esborrar(1));
  EXPECT_EQ(Comptar_Linies_Comanda(5, empresa_prova), 0);
  EXPECT_EQ(Files("SELECT * FROM PRESSUPOSTLIN WHERE COMANDA_PL = 0 AND COMANDA_LIN_PL = 0 AND ESTAT_PL = 0"), 1);
  EXPECT_EQ(Files("SELECT * FROM PRESSUPOSTCAP WHERE ESTAT_PC = 0"), 1);
}

// What may be served on which note, by the payment flags of both, the order's payments and the note's lines.
TEST_F(M_Comandes, an_order_goes_on_a_note_where_its_payments_can_follow) {
  const std::string te = "Aquesta comanda no es pot servir en aquest albarà, té pagaments!";
  const std::string no_te = "Aquesta comanda no es pot servir en aquest albarà, no té pagaments!";
  Posar_Albara(7);
  const auto refus = [](bool comanda, bool albara, bool linies) {
    Executar("UPDATE COMANDACAP SET PAGAMENT_CC = " + Valor_SQL(comanda));
    Executar("UPDATE ALBARACAP SET PAGAMENT_AC = " + Valor_SQL(albara));
    Executar("DELETE * FROM ALBARALIN");
    if (linies) Posar_Linia_Albara(7, 1, 21, 10, 12.1);
    const char* text = Per_Que_No_Es_Pot_Servir(3, 7);
    return std::string(text == nullptr ? "" : text);
  };
  for (const bool linies : {false, true}) {
    EXPECT_EQ(refus(true, false, linies), "");
    EXPECT_EQ(refus(false, true, linies), "");
    EXPECT_EQ(refus(true, true, linies), "");
    EXPECT_EQ(refus(false, false, linies), linies ? no_te : "");
  }
  Executar("INSERT INTO PAGAMENTS (DOCUMENT_PAG, NUMALB_PAG, EMPRESA_PAG) VALUES('P', 3, '" + empresa_prova + "')");
  for (const bool linies : {false, true}) {
    EXPECT_EQ(refus(true, true, linies), te);
    EXPECT_EQ(refus(true, false, linies), "");
  }
}

TEST_F(M_Comandes, the_pending_lines_of_a_customer_are_those_of_open_orders_the_oldest_first) {
  const auto files = [](const std::string& article, const std::string& descripcio) {
    std::string text;
    for (Recordset rs(SQL_Comandes_Pendents("C1", article, descripcio), sessio.Connexio_Comuna); !rs.Eof();
         rs.MoveNext())
      text += rs["NUMALB_CC"].Text() + "." + rs["LIN_CL"].Text() + ":" + rs["PENDENTS"].Text() + " ";
    return text;
  };
  for (const std::int64_t numero : {4, 5, 6}) Posar_Comanda(numero);
  Posar_Linia_Comanda(3, 2, 5, 5);
  Posar_Linia_Comanda(3, 3, 5, 6);
  Posar_Linia_Comanda(4, 1, 2, 0.5);
  Posar_Linia_Comanda(5, 1, 1);
  Posar_Linia_Comanda(6, 1, 1);
  Executar("UPDATE COMANDACAP SET CLIENT_CC = 'C1', ESTAT_CC = 0, DATA_CC = #3/10/2011#");
  Executar("UPDATE COMANDACAP SET DATA_CC = #3/1/2011# WHERE NUMALB_CC = 4");
  Executar("UPDATE COMANDACAP SET ESTAT_CC = -1 WHERE NUMALB_CC = 5");
  Executar("UPDATE COMANDACAP SET CLIENT_CC = 'C2' WHERE NUMALB_CC = 6");
  Executar("UPDATE COMANDALIN SET DESCRIPCIO_CL = 'Clau anglesa' WHERE NUMALB_CL = 4");
  EXPECT_EQ(files("", ""), "4.1:1,5 3.1:10 ");
  EXPECT_EQ(files("%", "%"), "4.1:1,5 3.1:10 ");
  EXPECT_EQ(files("A1", "ngl"), "4.1:1,5 ");
  EXPECT_EQ(files("NULO", "NULO"), "");
}
