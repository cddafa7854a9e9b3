#include "sales/M_Albarans.h"

#include "documents/M_Peu.h"
#include "sales/M_Tipus_Venda.h"
#include "tests/regles/Base.h"

class M_Albarans : public Base_Dades {
 protected:
  void SetUp() override {
    Posar_Albara(7);
    Posar_Article({.codi = "A1", .dte = 20});
    Posar_Estoc("A1", "1", 50);
    linies.Open(SQL_Linies(tipus_albara, 7, empresa_prova), sessio.Connexio_Comuna, Bloqueig::Optimista);
    linia.article = "A1";
    linia.descripcio = "Article de prova";
    linia.iva_article = "GN";
    linia.cost = 10;
    linia.unitats = 4;
    linia.preu_unitari = 12.5;
  }
  // As the event of the quantity field does it.
  void Afegir() {
    Transaccio transaccio(sessio.Connexio_Comuna);
    Afegir_Linia_Albara(cap, linia, linies, obert);
    transaccio.Confirmar();
  }
  bool Esborrar(std::int16_t numero_linia, double unitats) {
    pantalla.respostes.push_back(Resposta::Ok);
    Transaccio transaccio(sessio.Connexio_Comuna);
    const bool esborrada = Esborrar_Linia_Albara(7, empresa_prova, numero_linia, "A1", unitats);
    transaccio.Confirmar();
    return esborrada;
  }
  static std::int64_t Linies() { return Comptar_Linies_Albara(7, empresa_prova); }
  static double Camp(const std::string& camp) { return Numero("SELECT " + camp + " FROM ALBARALIN"); }

  Capcalera_Oberta cap{.numero = 7, .empresa = empresa_prova, .iva = true, .re = false};
  Linia_Entrada linia;
  Recordset linies;
  Document_Fals obert;
};

TEST_F(M_Albarans, a_line_is_saved_from_its_price_with_the_rates_of_its_type) {
  linia.dte = 10;
  Afegir();
  EXPECT_EQ(Camp("LIN_AL"), 1);
  EXPECT_EQ(Camp("PORC_IVA_AL"), 21);
  EXPECT_EQ(Camp("PORC_RE_AL"), 0);
  EXPECT_EQ(Camp("PREU_UNITARI_AL"), 12.5);
  EXPECT_DOUBLE_EQ(Camp("PVP_AL"), 15.13);
  EXPECT_EQ(Camp("IMPORT_NET_AL"), 45);
  EXPECT_EQ(Camp("IMPORT_BRUT_AL"), 54.45);
  EXPECT_EQ(Camp("MARGE_AL"), 5);
  EXPECT_EQ(Camp("PORC_MARGE_AL"), 12.5);
  EXPECT_EQ(Camp("DTE_AL"), 10);
  EXPECT_EQ(Text("SELECT DESCRIPCIO_AL FROM ALBARALIN"), "Article de prova");
}

TEST_F(M_Albarans, a_line_rebuilds_the_foot_and_moves_the_stock) {
  Afegir();
  EXPECT_EQ(Total_Peu_Albara(7, empresa_prova), 60.5);
  EXPECT_EQ(obert.import, 60.5);
  EXPECT_EQ(Estoc("A1", "1").Doble(), 46);
  EXPECT_EQ(Moviments(), 1);
}

TEST_F(M_Albarans, lines_follow_one_another) {
  Afegir();
  Afegir();
  EXPECT_EQ(linies.RecordCount(), 2);
  EXPECT_EQ(Seguent_Linia_Albara(7, empresa_prova), 3);
  EXPECT_EQ(obert.import, 121);
}

TEST_F(M_Albarans, a_head_without_IVA_makes_lines_without_tax_even_with_the_surcharge_ticked) {
  cap.iva = false;
  cap.re = true;
  Afegir();
  EXPECT_EQ(Camp("PORC_IVA_AL") + Camp("PORC_RE_AL"), 0);
  EXPECT_EQ(Camp("IMPORT_BRUT_AL"), Camp("IMPORT_NET_AL"));
  EXPECT_EQ(Camp("PVP_AL"), Camp("PREU_UNITARI_AL"));
}

TEST_F(M_Albarans, a_line_of_VAR_needs_no_article_and_moves_no_stock) {
  linia.article = "VAR";
  linia.descripcio = "Muntatge";
  Afegir();
  EXPECT_EQ(Linies(), 1);
  EXPECT_EQ(Moviments(), 0);
}

TEST_F(M_Albarans, fractions_of_a_unit_are_sold) {
  linia.unitats = 2.5;
  Afegir();
  EXPECT_EQ(Camp("UNITATS_AL"), 2.5);
  EXPECT_EQ(Estoc("A1", "1").Doble(), 47.5);
}

TEST_F(M_Albarans, a_line_that_serves_an_order_names_it_and_counts_there) {
  Posar_Comanda(3);
  Posar_Linia_Comanda(3, 1, 4);
  linia.comanda = 3;
  linia.comanda_lin = 1;
  Afegir();
  EXPECT_EQ(Camp("COMANDA_AL"), 3);
  EXPECT_EQ(Camp("COMANDA_LIN_AL"), 1);
  EXPECT_EQ(Servides(3, 1), 4);
  EXPECT_EQ(Estat_Comanda(3), -1);
}

TEST_F(M_Albarans, a_free_line_names_order_0) {
  Afegir();
  EXPECT_EQ(Camp("COMANDA_AL") + Camp("COMANDA_LIN_AL"), 0);
}

TEST_F(M_Albarans, a_shortage_is_shown_once_and_leaves_no_line_stock_journal_or_foot_behind) {
  Posar_Comanda(3);
  Posar_Linia_Comanda(3, 1, 60);
  linia.comanda = 3;
  linia.comanda_lin = 1;
  linia.unitats = 51;
  Bloquejar_Entrada();
  const Error_Brollador error = Error_De([&] { Afegir(); });
  EXPECT_EQ(error.Numero(), errors::refusat);
  EXPECT_EQ(error.Descripcio(), "Error al intentar actualizar movimientos, stock ...");
  EXPECT_EQ(pantalla.caixes,
            (std::vector<Caixa_Vista>{{"1001 - Operació fallida. No hi ha prou STOCK!", 16, "Brollador"}}));
  EXPECT_FALSE(pantalla.entrada_blocada);
  EXPECT_FALSE(sessio.Transaccio_Oberta());
  EXPECT_EQ(Linies(), 0);
  EXPECT_EQ(Moviments(), 0);
  EXPECT_EQ(Files(SQL_Peu(tipus_albara, 7, empresa_prova)), 0);
  EXPECT_EQ(Estoc("A1", "1").Doble(), 50);
  EXPECT_EQ(Servides(3, 1), 0);
}

TEST_F(M_Albarans, after_a_refused_line_the_next_one_is_saved) {
  linia.unitats = 51;
  EXPECT_EQ(Error_De([&] { Afegir(); }).Numero(), errors::refusat);
  linies.Requery();
  linia.unitats = 1;
  Afegir();
  EXPECT_EQ(linies.RecordCount(), 1);
  EXPECT_EQ(Estoc("A1", "1").Doble(), 49);
}

TEST_F(M_Albarans, an_unknown_tax_type_is_a_type_error_that_leaves_nothing) {
  linia.iva_article = "ZZ";
  EXPECT_EQ(Error_De([&] { Afegir(); }).Numero(), errors::tipus);
  linies.CancelUpdate();
  EXPECT_EQ(Linies(), 0);
  EXPECT_FALSE(sessio.Transaccio_Oberta());
}

TEST_F(M_Albarans, after_line_32767_comes_an_overflow) {
  Posar_Linia_Albara(7, 32767, 21, 1, 1.21);
  EXPECT_EQ(Error_De([&] { Afegir(); }).Numero(), errors::desbordament);
}

TEST_F(M_Albarans, an_apostrophe_in_a_description_is_data_and_in_an_article_a_faulty_statement) {
  linia.descripcio = "d'Anoia";
  Afegir();
  EXPECT_EQ(Text("SELECT DESCRIPCIO_AL FROM ALBARALIN"), "d'Anoia");
  linia.article = "d'A";
  EXPECT_EQ(Error_De([&] { Afegir(); }).Numero(), errors::sentencia);
  EXPECT_EQ(Linies(), 1);
}

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
  EXPECT_FALSE(Moure_Linia_Albara(7, empresa_prova, 1, true));
  sessio.P_Comandes = "M";
  EXPECT_TRUE(Moure_Linia_Albara(7, empresa_prova, 1, true));
}

TEST_F(M_Albarans, a_deleted_note_leaves_stock_and_order_as_they_were) {
  Posar_Comanda(3);
  Posar_Linia_Comanda(3, 1, 4);
  linia.comanda = 3;
  linia.comanda_lin = 1;
  Afegir();
  pantalla.respostes = {Resposta::Ok};
  Esborrar_Albara(7, empresa_prova);
  EXPECT_EQ(pantalla.caixes, (std::vector<Caixa_Vista>{{"Segur d'esborrar l'Albarà 7 ?", 1, "Brollador"}}));
  EXPECT_FALSE(Existeix_Albara(7, empresa_prova));
  EXPECT_EQ(Linies(), 0);
  EXPECT_EQ(Files(SQL_Peu(tipus_albara, 7, empresa_prova)), 0);
  EXPECT_EQ(Estoc("A1", "1").Doble(), 46);
  EXPECT_EQ(Servides(3, 1), 4);
  EXPECT_EQ(Estat_Comanda(3), -1);
}

TEST_F(M_Albarans, a_note_stays_when_the_user_thinks_better_of_it) {
  pantalla.respostes = {Resposta::Cancel};
  Esborrar_Albara(7, empresa_prova);
  EXPECT_TRUE(Existeix_Albara(7, empresa_prova));
}

TEST_F(M_Albarans, a_note_with_payments_cannot_go_and_says_so_in_Catalan_alone) {
  Posar_Pagament("A", 7);
  sessio.Idioma_Actual = 2;
  pantalla.respostes = {Resposta::Ok};
  Esborrar_Albara(7, empresa_prova);
  EXPECT_EQ(pantalla.caixes.back(), (Caixa_Vista{"No es pot esborrar. Hi ha pagaments!", 16, "Brollador"}));
  EXPECT_TRUE(Existeix_Albara(7, empresa_prova));
}

TEST_F(M_Albarans, an_invoiced_note_can_go_all_the_same) {
  Executar("UPDATE ALBARACAP SET ESTAT_AC = -1, NUMFAC_AC = '1'");
  pantalla.respostes = {Resposta::Ok};
  Esborrar_Albara(7, empresa_prova);
  EXPECT_FALSE(Existeix_Albara(7, empresa_prova));
}

TEST_F(M_Albarans, a_note_left_empty_goes_on_closing_unless_it_holds_payments) {
  Posar_Albara(8);
  Posar_Pagament("A", 8);
  EXPECT_TRUE(Esborrar_Albara_Buit(7, empresa_prova));
  EXPECT_FALSE(Esborrar_Albara_Buit(8, empresa_prova));
  EXPECT_TRUE(Existeix_Albara(8, empresa_prova));
}

TEST_F(M_Albarans, a_new_note_closed_at_once_gives_its_number_to_the_next) {
  const std::int64_t numero = Crear_Capcalera_Albara();
  EXPECT_EQ(numero, 8);
  Esborrar_Albara_Buit(numero, empresa_prova);
  EXPECT_EQ(Seguent_Numero_Albara(empresa_prova), 8);
}

TEST_F(M_Albarans, a_note_is_blocked_when_invoiced_or_when_a_line_serves_an_order) {
  Afegir();
  EXPECT_FALSE(Albara_Bloquejat(7, empresa_prova));
  Executar("UPDATE ALBARALIN SET COMANDA_AL = 3");
  EXPECT_TRUE(Albara_Bloquejat(7, empresa_prova));
  Executar("UPDATE ALBARALIN SET COMANDA_AL = 0");
  Executar("UPDATE ALBARACAP SET ESTAT_AC = -1");
  EXPECT_TRUE(Albara_Bloquejat(7, empresa_prova));
}

TEST_F(M_Albarans, has_discounts_when_a_line_has_one) {
  Afegir();
  EXPECT_FALSE(Hi_Ha_Descomptes_Albara(7, empresa_prova));
  linia.dte = 5;
  Afegir();
  EXPECT_TRUE(Hi_Ha_Descomptes_Albara(7, empresa_prova));
}

TEST_F(M_Albarans, lines_change_places_without_changing_themselves) {
  Afegir();
  linia.unitats = 9;
  Afegir();
  EXPECT_TRUE(Moure_Linia_Albara(7, empresa_prova, 2, false));
  EXPECT_EQ(Numero("SELECT UNITATS_AL FROM ALBARALIN WHERE LIN_AL = 1"), 9);
  EXPECT_EQ(Numero("SELECT UNITATS_AL FROM ALBARALIN WHERE LIN_AL = 2"), 4);
}

TEST_F(M_Albarans, a_customer_without_IVA_takes_the_rates_off_and_leaves_net_price_and_margin) {
  Afegir();
  cap.iva = false;
  Recalcular_Linies_Albara(cap, obert);
  EXPECT_EQ(Camp("PORC_IVA_AL"), 0);
  EXPECT_EQ(Camp("IMPORT_BRUT_AL"), 50);
  EXPECT_EQ(Camp("IMPORT_NET_AL"), 50);
  EXPECT_DOUBLE_EQ(Camp("PVP_AL"), 15.13);
  EXPECT_EQ(obert.import, 50);
  EXPECT_EQ(Text("SELECT TIPUS_IVA_AP FROM ALBARAPEU"), "EX");
  EXPECT_FALSE(sessio.Transaccio_Oberta());
}

TEST_F(M_Albarans, a_customer_with_surcharge_puts_it_on_every_line_and_on_a_foot_made_anew) {
  Afegir();
  Afegir();
  cap.re = true;
  obert.re = true;
  Recalcular_Linies_Albara(cap, obert);
  EXPECT_EQ(Files("SELECT * FROM ALBARALIN WHERE PORC_RE_AL = 5.2 AND IMPORT_BRUT_AL = 63.1"), 2);
  EXPECT_EQ(obert.import, 126.2);
}

TEST_F(M_Albarans, lines_take_the_tax_of_their_article_as_it_stands_today_and_VAR_the_general_one) {
  Afegir();
  linia.article = "VAR";
  linia.iva_article = "RD";
  Afegir();
  Executar("UPDATE ARTICLES SET IVA_ART = 'SR'");
  Recalcular_Linies_Albara(cap, obert);
  EXPECT_EQ(Numero("SELECT PORC_IVA_AL FROM ALBARALIN WHERE ARTICLE_AL = 'A1'"), 4);
  EXPECT_EQ(Numero("SELECT PORC_IVA_AL FROM ALBARALIN WHERE ARTICLE_AL = 'VAR'"), 21);
  EXPECT_EQ(Files(SQL_Peu(tipus_albara, 7, empresa_prova)), 2);
}

TEST_F(M_Albarans, a_recalculation_that_fails_leaves_the_lines_as_they_were) {
  Afegir();
  Executar("UPDATE ARTICLES SET IVA_ART = 'ZZ'");
  EXPECT_EQ(Error_De([&] { Recalcular_Linies_Albara(cap, obert); }).Numero(), errors::tipus);
  EXPECT_EQ(Camp("PORC_IVA_AL"), 21);
  EXPECT_EQ(Files(SQL_Peu(tipus_albara, 7, empresa_prova)), 1);
  EXPECT_FALSE(sessio.Transaccio_Oberta());
}
