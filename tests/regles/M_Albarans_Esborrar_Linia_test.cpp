// What a deleted line of a delivery note gives back.
#include "documents/M_Linies_Document.h"
#include "tests/regles/Base_Albarans.h"

TEST_F(M_Albarans, the_question_names_the_line_in_the_language_of_the_session) {
  Afegir();
  pantalla.respostes = {Resposta::Cancel, Resposta::Cancel};
  EXPECT_FALSE(Esborrar_Linia_Albara(7, empresa_prova, 1, "A1", 4));
  sessio.Idioma_Actual = 2;
  EXPECT_FALSE(Esborrar_Linia_Albara(7, empresa_prova, 1, "A1", 4));
  EXPECT_EQ(pantalla.caixes, (std::vector<Caixa_Vista>{{"Segur d'esborrar la línia 1 ?", 1, "Brollador"},
                                                       {"Are you sure to delete line 1 ?", 1, "Brollador"}}));
}

TEST_F(M_Albarans, a_cancelled_deletion_changes_nothing) {
  Afegir();
  pantalla.respostes = {Resposta::Cancel};
  EXPECT_FALSE(Esborrar_Linia_Albara(7, empresa_prova, 1, "A1", 4));
  EXPECT_EQ(Linies(), 1);
  EXPECT_EQ(Estoc("A1", "1").Doble(), 46);
}

TEST_F(M_Albarans, a_line_of_a_note_that_another_terminal_deleted_posts_nothing_and_says_so_in_the_language) {
  Afegir();
  Executar("DELETE * FROM ALBARACAP");
  const std::vector<std::string> textos = {"El document ja no existeix.", "El documento ya no existe.",
                                           "The document no longer exists."};
  for (std::int16_t idioma = 0; idioma < 3; ++idioma) {
    sessio.Idioma_Actual = idioma;
    const Error_Brollador error = Error_De([&] { Esborrar(1, 4); });
    EXPECT_EQ(error.Numero(), errors::refusat);
    EXPECT_EQ(error.Origen(), "F_ALBARA");
    EXPECT_EQ(error.Descripcio(), textos[static_cast<std::size_t>(idioma)]);
    EXPECT_EQ(pantalla.caixes.back(), (Caixa_Vista{error.Descripcio(), estil::critic, "Brollador"}));
    EXPECT_TRUE(sessio.Error_Mostrat);
  }
  EXPECT_EQ(Estoc("A1", "1").Doble(), 46);
  EXPECT_EQ(Moviments(), 1);
}

TEST_F(M_Albarans, a_line_that_another_terminal_deleted_or_put_in_its_place_posts_nothing) {
  Afegir();
  Afegir();
  Executar("DELETE * FROM ALBARALIN WHERE LIN_AL = 1");
  EXPECT_EQ(Error_De([&] { Esborrar(1, 4); }).Numero(), errors::concurrencia);
  Executar("UPDATE ALBARALIN SET ARTICLE_AL = 'B2'");
  EXPECT_EQ(Error_De([&] { Esborrar(2, 4); }).Numero(), errors::concurrencia);
  EXPECT_EQ(Linies(), 1);
  EXPECT_EQ(Estoc("A1", "1").Doble(), 42);
  EXPECT_EQ(Moviments(), 2);
}

TEST_F(M_Albarans, a_deleted_line_gives_its_stock_back) {
  Afegir();
  EXPECT_TRUE(Esborrar(1, 4));
  EXPECT_EQ(Linies(), 0);
  EXPECT_EQ(Estoc("A1", "1").Doble(), 50);
  EXPECT_EQ(Moviments(), 2);
}

TEST_F(M_Albarans, the_total_of_a_note_whose_last_line_went_is_0) {
  Afegir();
  Esborrar(1, 4);
  Buidar_Peu(tipus_albara, 7, empresa_prova);
  Calcular_Peu(tipus_albara, 7, empresa_prova, obert);
  EXPECT_EQ(obert.import, 0);
}

TEST_F(M_Albarans, a_deleted_line_that_served_an_order_opens_it_whatever_its_count_says) {
  Posar_Comanda(3);
  Posar_Linia_Comanda(3, 1, 4, 4);  // served by another note already
  linia.comanda = 3;
  linia.comanda_lin = 1;
  Afegir();
  EXPECT_EQ(Servides(3, 1), 8);
  Esborrar(1, 4);
  EXPECT_EQ(Servides(3, 1), 4);
  EXPECT_EQ(Estat_Comanda(3), 0);
}

TEST_F(M_Albarans, a_deleted_free_line_touches_no_order) {
  Posar_Comanda(3);
  Posar_Linia_Comanda(3, 1, 4, 4);
  Executar("UPDATE COMANDACAP SET ESTAT_CC = -1");
  Afegir();
  Esborrar(1, 4);
  EXPECT_EQ(Estat_Comanda(3), -1);
}

TEST_F(M_Albarans, a_line_whose_stock_cannot_be_given_back_stays) {
  linia.unitats = -5;  // goods that came back
  Afegir();
  Executar("DELETE * FROM STOCK");
  EXPECT_EQ(Error_De([&] { Esborrar(1, -5); }).Numero(), errors::refusat);
  EXPECT_EQ(pantalla.caixes.size(), 2U);  // the question and the shortage
  EXPECT_EQ(Linies(), 1);
  EXPECT_EQ(Moviments(), 1);
}

class Sense_Comandes : public M_Albarans {
 protected:
  void SetUp() override {
    M_Albarans::SetUp();
    sessio.P_Comandes = "X";
    Executar("INSERT INTO PRESSUPOSTCAP (NUMALB_PC, EMPRESA_PC, ESTAT_PC) VALUES(2, '" + empresa_prova + "', -1)");
    Executar(
        "INSERT INTO PRESSUPOSTLIN (NUMALB_PL, EMPRESA_PL, LIN_PL, ESTAT_PL, COMANDA_PL, COMANDA_LIN_PL) VALUES(2, '" +
        empresa_prova + "', 1, -1, 7, 1)");
    Afegir();
  }
};

TEST_F(Sense_Comandes, a_deleted_line_makes_its_line_of_the_proposal_pending_again) {
  Esborrar(1, 4);
  EXPECT_EQ(Numero("SELECT ESTAT_PL FROM PRESSUPOSTLIN"), 0);
  EXPECT_EQ(Numero("SELECT COMANDA_PL FROM PRESSUPOSTLIN"), 0);
  EXPECT_EQ(Numero("SELECT COMANDA_LIN_PL FROM PRESSUPOSTLIN"), 0);
  EXPECT_EQ(Numero("SELECT ESTAT_PC FROM PRESSUPOSTCAP"), 0);
  EXPECT_EQ(Linies(), 0);
}

TEST_F(Sense_Comandes, a_free_line_goes_and_releases_nothing) {
  Afegir();
  Esborrar(2, 4);
  EXPECT_EQ(Linies(), 1);
  EXPECT_EQ(Numero("SELECT ESTAT_PL FROM PRESSUPOSTLIN"), -1);
}

TEST_F(Sense_Comandes, lines_that_proposals_point_at_do_not_move) {
  Afegir();
  EXPECT_FALSE(Moure_Linia(tipus_albara, 7, empresa_prova, 1, true));
  sessio.P_Comandes = "M";
  EXPECT_TRUE(Moure_Linia(tipus_albara, 7, empresa_prova, 1, true));
}
