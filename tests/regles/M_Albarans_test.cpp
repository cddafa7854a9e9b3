#include "documents/M_Linies_Document.h"
#include "tests/regles/Base_Albarans.h"

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
  EXPECT_EQ(Esborrar_Document_Buit(tipus_albara, 7, empresa_prova), Buit::Esborrat);
  EXPECT_EQ(Esborrar_Document_Buit(tipus_albara, 8, empresa_prova), Buit::Es_Queda);
  EXPECT_TRUE(Existeix_Albara(8, empresa_prova));
}

TEST_F(M_Albarans, a_new_note_closed_at_once_gives_its_number_to_the_next) {
  const std::int64_t numero = Crear_Capcalera_Albara();
  EXPECT_EQ(numero, 8);
  Esborrar_Document_Buit(tipus_albara, numero, empresa_prova);
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
  EXPECT_TRUE(Moure_Linia(tipus_albara, 7, empresa_prova, 2, false));
  EXPECT_EQ(Numero("SELECT UNITATS_AL FROM ALBARALIN WHERE LIN_AL = 1"), 9);
  EXPECT_EQ(Numero("SELECT UNITATS_AL FROM ALBARALIN WHERE LIN_AL = 2"), 4);
}

TEST_F(M_Albarans, a_customer_without_IVA_takes_the_rates_off_and_leaves_net_price_and_margin) {
  Afegir();
  cap.iva = false;
  Recalcular_Linies(tipus_albara, cap, obert);
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
  Recalcular_Linies(tipus_albara, cap, obert);
  EXPECT_EQ(Files("SELECT * FROM ALBARALIN WHERE PORC_RE_AL = 5.2 AND IMPORT_BRUT_AL = 63.1"), 2);
  EXPECT_EQ(obert.import, 126.2);
}

TEST_F(M_Albarans, lines_take_the_tax_of_their_article_as_it_stands_today_and_VAR_the_general_one) {
  Afegir();
  linia.article = "VAR";
  linia.iva_article = "RD";
  Afegir();
  Executar("UPDATE ARTICLES SET IVA_ART = 'SR'");
  Recalcular_Linies(tipus_albara, cap, obert);
  EXPECT_EQ(Numero("SELECT PORC_IVA_AL FROM ALBARALIN WHERE ARTICLE_AL = 'A1'"), 4);
  EXPECT_EQ(Numero("SELECT PORC_IVA_AL FROM ALBARALIN WHERE ARTICLE_AL = 'VAR'"), 21);
  EXPECT_EQ(Files(SQL_Peu(tipus_albara, 7, empresa_prova)), 2);
}

TEST_F(M_Albarans, a_recalculation_that_fails_leaves_the_lines_as_they_were) {
  Afegir();
  Executar("UPDATE ARTICLES SET IVA_ART = 'ZZ'");
  EXPECT_EQ(Error_De([&] { Recalcular_Linies(tipus_albara, cap, obert); }).Numero(), errors::tipus);
  EXPECT_EQ(Camp("PORC_IVA_AL"), 21);
  EXPECT_EQ(Files(SQL_Peu(tipus_albara, 7, empresa_prova)), 1);
  EXPECT_FALSE(sessio.Transaccio_Oberta());
}
