#include "sales/M_Factures.h"

#include "payments/M_Flags.h"
#include "sales/M_Tipus_Venda.h"
#include "tests/regles/Base.h"

// Invoice 9, direct; invoice 5, made of the notes 1 and 2; fifty units of A1.
class M_Factures : public Base_Dades {
 protected:
  void SetUp() override {
    for (const std::int64_t factura : {5, 9}) Posar_Factura(factura);
    for (const std::int64_t albara : {1, 2}) {
      Posar_Albara(albara);
      Facturar(albara, 5);
    }
    Posar_Article({.codi = "A1"});
    Posar_Estoc("A1", "1", 50);
    linies.Open(SQL_Linies(tipus_factura, 9, empresa_prova), sessio.Connexio_Comuna, Bloqueig::Optimista);
    linia.article = "A1";
    linia.iva_article = "GN";
    linia.unitats = 4;
    linia.preu_unitari = 12.5;
  }
  static void Posar_Factura(std::int64_t numero, const std::string& empresa = empresa_prova) {
    Executar("INSERT INTO FACTURACAP (NUMALB_FC, EMPRESA_FC) VALUES(" + std::to_string(numero) + ", '" + empresa +
             "')");
  }
  static void Facturar(std::int64_t albara, std::int64_t factura) {
    Executar("UPDATE ALBARACAP SET ESTAT_AC = -1, NUMFAC_AC = '" + std::to_string(factura) +
             "' WHERE NUMALB_AC = " + std::to_string(albara));
  }
  void Afegir() {
    Transaccio transaccio(sessio.Connexio_Comuna);
    Afegir_Linia_Factura({.numero = 9, .empresa = empresa_prova, .iva = true, .re = false}, linia, linies, obert);
    transaccio.Confirmar();
  }
  bool Esborrar_Linia(std::int64_t factura, const std::string& article, double unitats) {
    pantalla.respostes.push_back(Resposta::Ok);
    Transaccio transaccio(sessio.Connexio_Comuna);
    const bool esborrada = Esborrar_Linia_Factura(factura, empresa_prova, 1, article, unitats);
    transaccio.Confirmar();
    return esborrada;
  }
  void Esborrar(std::int64_t factura) {
    pantalla.respostes.push_back(Resposta::Ok);
    Esborrar_Factura(factura, empresa_prova);
  }
  static void Posar_Numeros(std::initializer_list<std::int64_t> numeros) {
    Executar("DELETE * FROM FACTURACAP");
    for (const std::int64_t numero : numeros) Posar_Factura(numero);
  }
  Linia_Entrada linia;
  Recordset linies;
  Document_Fals obert;
};

TEST_F(M_Factures, a_line_moves_stock_by_itself_and_sets_the_flag) {
  Afegir();
  EXPECT_EQ(Estoc("A1", "1").Doble(), 46);
  EXPECT_EQ(Text("SELECT TIPO_MOV FROM MOVIMIENTOS"), "F");
  EXPECT_EQ(Text("SELECT DOCUMENTO_MOV FROM MOVIMIENTOS"), "9");
  EXPECT_EQ(Numero("SELECT UNIDADES_MOV FROM MOVIMIENTOS"), -4);
  EXPECT_EQ(obert.import, 60.5);
  EXPECT_TRUE(Flag_Pagament("F", 9));
}

TEST_F(M_Factures, a_line_that_finds_no_stock_has_words_of_its_own) {
  linia.unitats = 51;
  EXPECT_EQ(Error_De([&] { Afegir(); }).Descripcio(), "Error al intentar actualitzar movimientos, stock ...");
  EXPECT_EQ(pantalla.caixes.back().text, "1001 - Operació fallida. No hi ha prou STOCK!");
  EXPECT_EQ(Comptar_Linies_Factura(9, empresa_prova), 0);
}

// Another terminal has put a paid note into it meanwhile.
TEST_F(M_Factures, an_invoice_that_may_have_no_payments_takes_no_line) {
  Posar_Pagament("A", 1);
  Posar_Flag_Pagament("A", 1, true);
  Facturar(1, 9);
  const Error_Brollador error = Error_De([&] { Afegir(); });
  EXPECT_EQ(error.Numero(), errors::refusat);
  EXPECT_EQ(error.Descripcio(), "No es poden afegir línies a una factura que no pot tenir pagaments!");
  EXPECT_EQ(Comptar_Linies_Factura(9, empresa_prova), 0);
  EXPECT_EQ(Estoc("A1", "1").Doble(), 50);
  EXPECT_EQ(Moviments(), 0);
}

TEST_F(M_Factures, a_deleted_line_brings_its_units_back) {
  Afegir();
  EXPECT_TRUE(Esborrar_Linia(9, "A1", 4));
  EXPECT_EQ(Estoc("A1", "1").Doble(), 50);
  EXPECT_EQ(Numero("SELECT SUM(UNIDADES_MOV) AS S FROM MOVIMIENTOS WHERE TIPO_MOV = 'F'"), 0);
  EXPECT_EQ(Moviments(), 2);
}

TEST_F(M_Factures, lines_of_notes_stay_and_the_refusal_is_in_Catalan_alone) {
  Executar("INSERT INTO FACTURALIN (NUMALB_FL, EMPRESA_FL, LIN_FL, ARTICLE_FL, UNITATS_FL) VALUES(5, '" +
           empresa_prova + "', 1, 'A1', 4)");
  sessio.Idioma_Actual = 2;
  EXPECT_FALSE(Esborrar_Linia(5, "A1", 4));
  EXPECT_EQ(pantalla.caixes,
            (std::vector<Caixa_Vista>{
                {"Aquesta Factura conté Albarans, no es poden esborrar línies!!!", estil::critic, "Brollador"}}));
  EXPECT_EQ(Comptar_Linies_Factura(5, empresa_prova), 1);
  EXPECT_EQ(Moviments(), 0);
}

TEST_F(M_Factures, the_number_of_an_invoice_is_the_one_after_the_last_of_its_company) {
  Posar_Factura(40, "C1");
  EXPECT_EQ(Seguent_Factura(), 10);
  EXPECT_EQ(Crear_Capcalera_Factura(), 10);
  Posar_Numeros({});
  EXPECT_EQ(Seguent_Factura(), 1);
  Posar_Numeros({0});
  EXPECT_EQ(Seguent_Factura(), 1) << "after the proforma";
}

TEST_F(M_Factures, the_gap_counts_from_the_lowest_invoice) {
  const auto forat = [](std::initializer_list<std::int64_t> numeros) {
    Posar_Numeros(numeros);
    return Primer_Forat_Factura();
  };
  EXPECT_EQ(forat({5, 6, 8}), 7);
  EXPECT_EQ(forat({5, 6, 7}), 8);
  EXPECT_EQ(forat({}), 1);
  EXPECT_EQ(forat({0, 5}), 1) << "a proforma begins the count";
  EXPECT_EQ(forat({0, 1, 2}), 3);
  Posar_Factura(6, "C1");
  EXPECT_EQ(forat({5}), 6) << "another company's does not count";
}

TEST_F(M_Factures, is_made_of_the_notes_of_its_company_that_name_it) {
  EXPECT_TRUE(Factura_Te_Albarans(5, empresa_prova));
  EXPECT_FALSE(Factura_Te_Albarans(9, empresa_prova));
  EXPECT_FALSE(Factura_Te_Albarans(0, empresa_prova)) << "notes that are not invoiced name no proforma";
  EXPECT_EQ(Albarans_De_Factura(5), 2);
  Executar("UPDATE ALBARACAP SET EMPRESA_AC = 'C1'");
  EXPECT_FALSE(Factura_Te_Albarans(5, empresa_prova));
  EXPECT_EQ(Albarans_De_Factura(5), 2);
  const Estat_Document d_una_altra = Llegir_Estat(tipus_factura, 5, empresa_prova);
  EXPECT_TRUE(d_una_altra.te_origens);
  EXPECT_FALSE(d_una_altra.congelat);
  EXPECT_TRUE(Llegir_Estat(tipus_factura, 5, "C1").congelat);
}

TEST_F(M_Factures, deleted_it_frees_its_notes_and_moves_no_stock) {
  Afegir();
  Facturar(2, 9);
  Esborrar(9);
  EXPECT_EQ(pantalla.caixes, (std::vector<Caixa_Vista>{{"Segur d'esborrar la Factura 9 ?", 1, "Brollador"}}));
  EXPECT_FALSE(Existeix_Factura(9, empresa_prova));
  EXPECT_EQ(Comptar_Linies_Factura(9, empresa_prova), 0);
  EXPECT_EQ(Files(SQL_Peu(tipus_factura, 9, empresa_prova)), 0);
  EXPECT_EQ(Estoc("A1", "1").Doble(), 46);
  EXPECT_EQ(Files("SELECT * FROM ALBARACAP WHERE NUMALB_AC = 2 AND ESTAT_AC = 0 AND NUMFAC_AC = ''"), 1);
  EXPECT_EQ(Files("SELECT * FROM ALBARACAP WHERE NUMALB_AC = 1 AND ESTAT_AC = -1 AND NUMFAC_AC = '5'"), 1);
  EXPECT_TRUE(Flag_Pagament("A", 2));
}

// Each note by itself would find the other one still without its flag.
TEST_F(M_Factures, notes_that_share_an_order_are_freed_together) {
  Posar_Comanda(3);
  for (const std::int64_t albara : {1, 2})
    Executar("INSERT INTO ALBARALIN (NUMALB_AL, EMPRESA_AL, LIN_AL, COMANDA_AL) VALUES(" + std::to_string(albara) +
             ", '" + empresa_prova + "', 1, 3)");
  Propagar_Flag_Pagaments("F", 5);
  EXPECT_TRUE(Flag_Pagament("F", 5));
  Esborrar(5);
  EXPECT_EQ(pantalla.caixes.size(), 1U);
  for (const std::int64_t albara : {1, 2}) EXPECT_TRUE(Flag_Pagament("A", albara)) << albara;
  EXPECT_FALSE(Flag_Pagament("P", 3));
}

TEST_F(M_Factures, one_with_payments_cannot_go_and_keeps_its_notes) {
  Posar_Pagament("F", 5);
  Esborrar(5);
  EXPECT_EQ(pantalla.caixes.back(), (Caixa_Vista{"No es pot esborrar. Hi ha pagaments!", 16, "Brollador"}));
  EXPECT_TRUE(Existeix_Factura(5, empresa_prova));
  EXPECT_TRUE(Factura_Te_Albarans(5, empresa_prova));
}

TEST_F(M_Factures, a_deletion_that_the_flags_refuse_leaves_everything) {
  for (const std::int64_t comanda : {3, 4}) {
    Posar_Comanda(comanda);
    Executar("INSERT INTO ALBARALIN (NUMALB_AL, EMPRESA_AL, LIN_AL, COMANDA_AL) VALUES(1, '" + empresa_prova + "', " +
             std::to_string(comanda) + ", " + std::to_string(comanda) + ")");
  }
  Posar_Flag_Pagament("P", 3, true);
  for (const char* text : {"No es pot esborrar la Factura 5 !!!", "¡¡¡ No se puede eliminar la Factura 5 !!!",
                           "Unable to delete Invoice 5 !!!"}) {
    Esborrar(5);
    EXPECT_EQ(pantalla.caixes.back(), (Caixa_Vista{text, 16, "Brollador"}));
    ++sessio.Idioma_Actual;
  }
  EXPECT_TRUE(Existeix_Factura(5, empresa_prova));
  EXPECT_EQ(Albarans_De_Factura(5), 2);
}

TEST_F(M_Factures, one_left_empty_frees_the_notes_too) {
  EXPECT_EQ(Esborrar_Document_Buit(tipus_factura, 5, empresa_prova), Buit::Esborrat);
  EXPECT_EQ(Albarans_De_Factura(5), 0);
  EXPECT_EQ(Files("SELECT * FROM ALBARACAP WHERE ESTAT_AC = -1"), 0);
}
