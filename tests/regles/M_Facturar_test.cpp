#include "payments/M_Flags.h"
#include "sales/M_Albarans.h"
#include "sales/M_Consultes_Venda.h"
#include "sales/M_Factures.h"
#include "sales/M_Tipus_Venda.h"
#include "tests/regles/Base.h"

// Notes 1 (two lines), 2 (one line) and 3 (none) of B1, with IVA. Their lines have left gaps.
class M_Facturar : public Base_Dades {
 protected:
  void SetUp() override {
    Executar("INSERT INTO CLIENTS (NIF_CLI, RAO_SOCIAL_CLI) VALUES('B1', 'Ferreteria')");
    Posar_Albara_De(1, "#3/4/2011#");
    Posar_Albara_De(2, "#3/9/2011#");
    Posar_Albara_De(3, "#3/2/2011#");
    Posar_Linia_Albara(1, 2, 21, 10, 12.1);
    Posar_Linia_Albara(1, 5, 10, 20, 22);
    Posar_Linia_Albara(2, 9, 21, 30, 36.3);
  }
  static void Posar_Albara_De(std::int64_t numero, const std::string& data, const std::string& client = "B1",
                              bool iva = true) {
    Executar("INSERT INTO ALBARACAP (NUMALB_AC, EMPRESA_AC, DATA_AC, CLIENT_AC, CLIENT_DESC_AC, IVA_AC) VALUES(" +
             std::to_string(numero) + ", '" + empresa_prova + "', " + data + ", '" + client + "', 'Nom de " + client +
             "', " + (iva ? "-1" : "0") + ")");
  }
  static std::string De(const std::vector<std::int64_t>& numeros) {
    return Consulta_Albarans({}, true) + Llista_Albarans_Seleccionats(numeros);
  }
  static bool Fer(const std::vector<std::int64_t>& numeros, const std::string& numero = "7") {
    return Facturar({.albarans = De(numeros), .numero = numero, .data = Data_Hora{2011, 3, 9}});
  }
  static std::string Linia(int lin) {
    const Recordset rs(
        "SELECT ARTICLE_FL, DESCRIPCIO_FL, PORC_IVA_FL, IMPORT_NET_FL FROM FACTURALIN WHERE NUMALB_FL = "
        "7 AND LIN_FL = " +
            std::to_string(lin),
        sessio.Connexio_Comuna);
    if (rs.RecordCount() == 0) return "none";
    return rs[0].Text() + "|" + rs[1].Text() + "|" + rs[2].Text() + "|" + rs[3].Text();
  }
  static std::int64_t Marcats(const std::string& numero) {
    return Files("SELECT * FROM ALBARACAP WHERE ESTAT_AC = -1 AND NUMFAC_AC = '" + numero + "'");
  }
  static void Res_Fet() {
    EXPECT_EQ(Files("SELECT * FROM FACTURACAP"), 0);
    EXPECT_EQ(Files("SELECT * FROM FACTURALIN"), 0);
    EXPECT_EQ(Files("SELECT * FROM FACTURAPEU"), 0);
    EXPECT_EQ(Files("SELECT * FROM ALBARACAP WHERE ESTAT_AC <> 0 OR NUMFAC_AC <> ''"), 0);
    EXPECT_FALSE(sessio.Transaccio_Oberta());
  }
};

TEST_F(M_Facturar, the_lines_of_each_note_stand_behind_its_heading) {
  EXPECT_TRUE(Fer({2, 1}));
  EXPECT_EQ(Linia(1), "|Albarán 1 de 04/03/2011|21|0");
  EXPECT_EQ(Linia(2), "A1||21|10");
  EXPECT_EQ(Linia(3), "A1||10|20");
  EXPECT_EQ(Linia(4), "|Albarán 2 de 09/03/2011|21|0");
  EXPECT_EQ(Linia(5), "A1||21|30");
  EXPECT_EQ(Linia(6), "none");
  EXPECT_EQ(Files("SELECT * FROM FACTURALIN WHERE LIN_FL = 1 AND COST_FL = 0 AND UNITATS_FL = 0 AND PORC_MARGE_FL = 0 "
                  "AND PREU_UNITARI_FL = 0 AND PVP_FL = 0 AND IMPORT_BRUT_FL = 0 AND MARGE_FL = 0 AND DTE_FL = 0"),
            1);
  EXPECT_EQ(Moviments(), 0);
}

TEST_F(M_Facturar, lines_without_gaps_take_the_same_numbers) {
  Executar("UPDATE ALBARALIN SET LIN_AL = 1 WHERE NUMALB_AL = 1 AND LIN_AL = 2");
  Executar("UPDATE ALBARALIN SET LIN_AL = 2 WHERE NUMALB_AL = 1 AND LIN_AL = 5");
  Executar("UPDATE ALBARALIN SET LIN_AL = 1 WHERE NUMALB_AL = 2");
  EXPECT_TRUE(Fer({1, 2, 3}));
  EXPECT_EQ(Linia(1), "|Albarán 1 de 04/03/2011|21|0");
  EXPECT_EQ(Linia(2), "A1||21|10");
  EXPECT_EQ(Linia(3), "A1||10|20");
  EXPECT_EQ(Linia(4), "|Albarán 2 de 09/03/2011|21|0");
  EXPECT_EQ(Linia(5), "A1||21|30");
  EXPECT_EQ(Linia(6), "none");
}

TEST_F(M_Facturar, every_column_of_a_line_is_copied) {
  Executar(
      "UPDATE ALBARALIN SET DESCRIPCIO_AL = 'Clau', COST_AL = 1, UNITATS_AL = 2, PORC_MARGE_AL = 3, MARGE_AL = 4, "
      "PREU_UNITARI_AL = 5, PVP_AL = 6, DTE_AL = 7, PORC_RE_AL = 5.2 WHERE NUMALB_AL = 2");
  Fer({2});
  EXPECT_EQ(Files("SELECT * FROM FACTURALIN WHERE LIN_FL = 2 AND DESCRIPCIO_FL = 'Clau' AND COST_FL = 1 AND UNITATS_FL "
                  "= 2 AND PORC_MARGE_FL = 3 AND MARGE_FL = 4 AND PREU_UNITARI_FL = 5 AND PVP_FL = 6 AND DTE_FL = 7 "
                  "AND PORC_IVA_FL = 21 AND PORC_RE_FL = 5.2 AND IMPORT_NET_FL = 30 AND IMPORT_BRUT_FL = 36.3"),
            1);
}

TEST_F(M_Facturar, the_head_is_the_first_note_s_and_carries_the_total_of_the_foot) {
  Posar_Albara_De(4, "#3/1/2011#", "B2");
  EXPECT_TRUE(Fer({4, 2, 1}));
  EXPECT_EQ(Files("SELECT * FROM FACTURACAP WHERE NUMALB_FC = 7 AND CLIENT_FC = 'B1' AND CLIENT_DESC_FC = 'Nom de B1' "
                  "AND IVA_FC = -1 AND RE_FC = 0 AND EMP_DESC_FC = 'Empresa de prova' AND DATA_FC = #3/9/2011#"),
            1);
  EXPECT_EQ(Numero("SELECT IMPORT_FC FROM FACTURACAP"), 70.4);
  EXPECT_EQ(Numero("SELECT SUM(BASE_FP) AS S FROM FACTURAPEU"), 60);
  EXPECT_EQ(Marcats("7"), 3);
  EXPECT_EQ(Marcats("0"), 0);
}

TEST_F(M_Facturar, without_a_selection_it_is_the_whole_list) {
  EXPECT_TRUE(Fer({}));
  EXPECT_EQ(Marcats("7"), 3);
  EXPECT_EQ(Comptar_Linies_Factura(7, empresa_prova), 5) << "a note without lines has no heading";
}

TEST_F(M_Facturar, a_list_that_asks_for_an_article_is_marked_too) {
  const std::string albarans = Consulta_Albarans({{"TXT_ARTICLE", {.text = "A1"}}}, true);
  EXPECT_TRUE(Facturar({.albarans = albarans, .numero = "7"}));
  EXPECT_EQ(Marcats("7"), 2);
  EXPECT_TRUE(Llegir("SELECT DATA_FC FROM FACTURACAP").Es_Nul()) << "no date was given";
}

TEST_F(M_Facturar, the_flag_goes_to_the_invoice_unless_a_note_holds_payments) {
  Propagar_Flag_Pagaments("A", 1);
  Fer({1});
  EXPECT_TRUE(Flag_Pagament("F", 7));
  EXPECT_FALSE(Flag_Pagament("A", 1));
  Propagar_Flag_Pagaments("A", 2);
  Posar_Pagament("A", 2);
  Fer({2}, "8");
  EXPECT_FALSE(Flag_Pagament("F", 8));
  EXPECT_TRUE(Flag_Pagament("A", 2));
}

TEST_F(M_Facturar, flags_that_disagree_undo_the_whole_run) {
  Propagar_Flag_Pagaments("A", 1);
  const Error_Brollador error = Error_De([] { Fer({1, 2}); });
  EXPECT_EQ(error.Descripcio(), "Error: hi ha albarans amb pagaments i altres no!");
  Res_Fet();
}

TEST_F(M_Facturar, different_tax_conditions_stop_it_before_anything_is_written) {
  Posar_Albara_De(4, "#3/1/2011#", "B1", false);
  const Error_Brollador error = Error_De([] { Fer({1, 4}); });
  EXPECT_EQ(error.Numero(), 1005);
  EXPECT_EQ(error.Descripcio(), "Els Albarans seleccionats no tenen les mateixes condicions d'IVA i RE!!!");
  Res_Fet();
}

TEST_F(M_Facturar, a_number_that_is_none_fails_as_a_number) {
  for (const char* numero : {"proforma", "", "set", "PROFORMA "})
    EXPECT_EQ(Error_De([&] { Fer({1}, numero); }).Numero(), errors::tipus) << numero;
  EXPECT_EQ(Error_De([] { Fer({1}, "3000000000"); }).Numero(), errors::desbordament);
  Res_Fet();
}

TEST_F(M_Facturar, a_number_in_use_fails_on_its_key_and_marks_nothing) {
  Fer({1});
  EXPECT_EQ(Error_De([] { Fer({2}); }).Motiu(), Falla::Clau_Repetida);
  EXPECT_EQ(Comptar_Linies_Factura(7, empresa_prova), 3);
  EXPECT_EQ(Marcats("7"), 1);
}

TEST_F(M_Facturar, no_notes_make_no_invoice) {
  EXPECT_FALSE(Fer({99}));
  Res_Fet();
}

TEST_F(M_Facturar, a_proforma_touches_no_note_and_there_is_one_at_most) {
  Propagar_Flag_Pagaments("A", 1);
  EXPECT_TRUE(Fer({1}, "PROFORMA"));
  EXPECT_EQ(Comptar_Linies_Factura(0, empresa_prova), 3);
  EXPECT_EQ(Files("SELECT * FROM ALBARACAP WHERE ESTAT_AC = 0 AND NUMFAC_AC = ''"), 3);
  EXPECT_TRUE(Flag_Pagament("A", 1));
  EXPECT_FALSE(Flag_Pagament("F", 0));
  EXPECT_EQ(Error_De([] { Fer({1}, "PROFORMA"); }).Motiu(), Falla::Clau_Repetida);
  pantalla.respostes = {Resposta::Ok};
  Esborrar_Factura(0, empresa_prova);
  EXPECT_TRUE(Fer({1}, "PROFORMA"));
}

TEST_F(M_Facturar, the_foot_takes_the_surcharge_of_the_last_note_or_none) {
  Executar("UPDATE ALBARALIN SET PORC_RE_AL = 5.2 WHERE PORC_IVA_AL = 21");
  Fer({1, 2});
  EXPECT_EQ(Numero("SELECT RE_FP FROM FACTURAPEU WHERE PORC_IVA_FP = 21"), 2.08);
  Executar("UPDATE ALBARACAP SET ESTAT_AC = 0");
  Fer({1, 2, 3}, "8");
  EXPECT_EQ(Numero("SELECT SUM(RE_FP) AS S FROM FACTURAPEU WHERE NUMALB_FP = 8"), 0);
}

TEST_F(M_Facturar, no_more_lines_than_their_numbers_have_room_for) {
  Executar("DELETE * FROM ALBARALIN");
  Posar_Linia_Albara(1, 1, 21, 1, 1.21);
  for (int quantes = 1; quantes < 16384; quantes *= 2)
    Executar(
        "INSERT INTO ALBARALIN (NUMALB_AL, EMPRESA_AL, LIN_AL, PORC_IVA_AL) SELECT NUMALB_AL, EMPRESA_AL, LIN_AL + " +
        std::to_string(quantes) + ", PORC_IVA_AL FROM ALBARALIN");
  Executar(
      "INSERT INTO ALBARALIN (NUMALB_AL, EMPRESA_AL, LIN_AL, PORC_IVA_AL) SELECT 2, EMPRESA_AL, LIN_AL, PORC_IVA_AL "
      "FROM ALBARALIN WHERE LIN_AL < 16382");
  EXPECT_TRUE(Fer({1, 2}));
  EXPECT_EQ(Numero("SELECT MAX(LIN_FL) AS M FROM FACTURALIN"), 32767);
  pantalla.respostes = {Resposta::Ok};
  Esborrar_Factura(7, empresa_prova);
  Posar_Linia_Albara(2, 20000, 21, 1, 1.21);
  EXPECT_EQ(Error_De([] { Fer({1, 2}); }).Numero(), errors::desbordament);
  Res_Fet();
}

TEST_F(M_Facturar, the_proposed_date_is_that_of_the_newest_note) {
  Fixar_Avui({2011, 6, 1});
  EXPECT_EQ(Data_Maxima_Albarans(De({1, 3})), (Data_Hora{2011, 3, 4}));
  EXPECT_EQ(Data_Maxima_Albarans(De({})), (Data_Hora{2011, 3, 9}));
  EXPECT_EQ(Data_Maxima_Albarans(De({99})), (Data_Hora{2011, 6, 1}));
}

// Note 1 is invoiced already, in 5.
class M_Facturar_De_Nou : public M_Facturar {
 protected:
  void SetUp() override {
    M_Facturar::SetUp();
    Fer({1}, "5");
  }
  static std::string Avis(const std::string& numeros) {
    return "\nHi ha Albarans ja Facturats: \n" + numeros + "\n\n          Segur que vols Continuar?\n";
  }
};

TEST_F(M_Facturar_De_Nou, asks_in_Catalan_alone_and_a_No_leaves_everything) {
  sessio.Idioma_Actual = 2;
  pantalla.respostes = {Resposta::No};
  EXPECT_FALSE(Fer({1, 2}));
  EXPECT_EQ(pantalla.caixes, (std::vector<Caixa_Vista>{{Avis("     1\n"), estil::si_no, "Brollador"}}));
  EXPECT_FALSE(Existeix_Factura(7, empresa_prova));
  EXPECT_EQ(Marcats("5"), 1);
}

TEST_F(M_Facturar_De_Nou, a_Yes_takes_the_note_from_its_first_invoice_which_keeps_the_lines) {
  pantalla.respostes = {Resposta::Si, Resposta::Ok};
  EXPECT_TRUE(Fer({1, 2}));
  EXPECT_EQ(Marcats("7"), 2);
  EXPECT_EQ(Comptar_Linies_Factura(5, empresa_prova), 3);
  Esborrar_Factura(5, empresa_prova);
  EXPECT_EQ(Marcats("7"), 2) << "the first invoice finds it no more";
}

TEST_F(M_Facturar_De_Nou, a_note_that_becomes_invoiced_meanwhile_is_asked_about_before_anything_is_made) {
  class Pantalla_Lenta : public Pantalla_Falsa {
   public:
    Resposta Obrir_Caixa(const std::string& text, int estil, const std::string& titol) override {
      if (caixes.empty()) Executar("UPDATE ALBARACAP SET ESTAT_AC = -1, NUMFAC_AC = '6' WHERE NUMALB_AC = 2");
      return Pantalla_Falsa::Obrir_Caixa(text, estil, titol);
    }
  } lenta;
  sessio.pantalla = &lenta;
  lenta.respostes = {Resposta::Si, Resposta::No};
  EXPECT_FALSE(Fer({1, 2}));
  ASSERT_EQ(lenta.caixes.size(), 2U);
  EXPECT_EQ(lenta.caixes[0].text, Avis("     1\n"));
  EXPECT_EQ(lenta.caixes[1].text, Avis("     1\n     2\n"));
  EXPECT_FALSE(Existeix_Factura(7, empresa_prova));
  EXPECT_EQ(Marcats("6"), 1);
  sessio.pantalla = &pantalla;
}

// A month of 200 notes of forty customers, an invoice each; a third of them undone and made again.
TEST_F(M_Facturar, the_book_of_a_month_agrees_to_the_cent_with_the_feet_and_the_lines) {
  Executar("DELETE * FROM ALBARACAP");
  constexpr int clients = 40;
  constexpr int notes = 200;
  {
    Transaccio transaccio(sessio.Connexio_Comuna);
    for (int nota = 1; nota <= notes; ++nota) {
      Posar_Albara_De(nota, "#3/" + std::to_string(1 + nota % 28) + "/2011#", "C" + std::to_string(nota % clients));
      for (int lin = 1; lin <= 4; ++lin) {
        const double net = 0.07 * nota + 1.13 * lin;
        Posar_Linia_Albara(nota, lin, lin % 2 == 0 ? 21 : 10, net, net * 1.1);
      }
    }
    transaccio.Confirmar();
  }
  const auto facturar = [](int client) {
    const std::string albarans =
        Consulta_Albarans({{"CMB_CLIENT", {.text = "C" + std::to_string(client)}}}, true) + " AND ESTAT_AC = 0";
    EXPECT_TRUE(Facturar({.albarans = albarans, .numero = std::to_string(Primer_Forat_Factura())}));
  };
  for (int client = 0; client < clients; ++client) facturar(client);
  for (int factura = 2; factura <= clients; factura += 3) {
    pantalla.respostes = {Resposta::Ok};
    Esborrar_Factura(factura, empresa_prova);
  }
  EXPECT_EQ(Files("SELECT * FROM ALBARACAP WHERE ESTAT_AC = 0"), 13 * notes / clients);
  for (int factura = 2; factura <= clients; factura += 3) facturar(factura - 1);
  EXPECT_EQ(Files("SELECT * FROM ALBARACAP WHERE ESTAT_AC = 0 OR NUMFAC_AC = ''"), 0);
  const Recordset llibre(
      "SELECT COUNT(*) AS N, SUM(BASE) AS B, SUM(TOTAL) AS T FROM (" + Consulta_Llistat_Factures({}) + ")",
      sessio.Connexio_Comuna);
  EXPECT_EQ(llibre["N"].Enter(), clients);
  EXPECT_EQ(Arrodonir(llibre["T"].Doble(), 2), Arrodonir(Numero("SELECT SUM(IMPORT_FC) AS S FROM FACTURACAP"), 2));
  EXPECT_EQ(Arrodonir(llibre["T"].Doble(), 2), Arrodonir(Numero("SELECT SUM(IMPORT_FP) AS S FROM FACTURAPEU"), 2));
  // Each foot rounds once a rate: the bases are those of the lines.
  EXPECT_NEAR(llibre["B"].Doble(), Numero("SELECT SUM(IMPORT_NET_AL) AS S FROM ALBARALIN"), 0.005 * 2 * clients);
  EXPECT_EQ(Files("SELECT * FROM FACTURALIN"), notes * 5);
}
