#include "payments/M_Flags.h"

#include "payments/Decisions_Flag.h"

#include "tests/regles/Base.h"

// Orders 1 and 2, notes 1 and 2, invoice 9; links are added by each test.
class M_Flags : public Base_Dades {
 protected:
  void SetUp() override {
    for (const std::int64_t n : {1, 2}) {
      Posar_Comanda(n);
      Posar_Albara(n);
    }
    Executar("INSERT INTO FACTURACAP (NUMALB_FC, EMPRESA_FC) VALUES(9, '" + empresa_prova + "')");
  }
  static void Servir(std::int64_t albara, int linia, std::int64_t comanda) {
    Executar("INSERT INTO ALBARALIN (NUMALB_AL, EMPRESA_AL, LIN_AL, COMANDA_AL) VALUES(" + std::to_string(albara) +
             ", '" + empresa_prova + "', " + std::to_string(linia) + ", " + std::to_string(comanda) + ")");
  }
  static void Facturar(std::int64_t albara) {
    Executar("UPDATE ALBARACAP SET NUMFAC_AC = '9' WHERE NUMALB_AC = " + std::to_string(albara));
  }
  static std::int64_t En_La_Llista(const std::string& condicio) {
    return Recordset("SELECT * FROM FLAG_PAGAMENTS_TEMP WHERE " + condicio, sessio.Connexio_Local).RecordCount();
  }
  static std::string Error_En_Propagar(const std::string& document, std::int64_t numero) {
    const Error_Brollador error = Error_De([&] { Propagar_Flag_Pagaments(document, numero); });
    EXPECT_EQ(error.Numero(), errors::refusat);
    EXPECT_EQ(error.Origen(), "Flag Pagament");
    return error.Descripcio();
  }
};

TEST_F(M_Flags, a_document_alone_carries_the_flag) {
  Propagar_Flag_Pagaments("P", 1);
  EXPECT_TRUE(Flag_Pagament("P", 1));
  EXPECT_FALSE(Flag_Pagament("P", 2));
}

TEST_F(M_Flags, a_chain_without_payments_has_it_on_the_invoice_whichever_paper_was_touched_last) {
  Servir(1, 1, 1);
  Facturar(1);
  for (const auto& [lletra, numero] : std::vector<std::pair<std::string, std::int64_t>>{{"P", 1}, {"A", 1}, {"F", 9}}) {
    Propagar_Flag_Pagaments(lletra, numero);
    EXPECT_FALSE(Flag_Pagament("P", 1)) << lletra;
    EXPECT_FALSE(Flag_Pagament("A", 1)) << lletra;
    EXPECT_TRUE(Flag_Pagament("F", 9)) << lletra;
  }
}

TEST_F(M_Flags, an_order_with_payments_keeps_it_from_the_note_that_serves_it) {
  Posar_Pagament("P", 1);
  Propagar_Flag_Pagaments("P", 1);
  Servir(1, 1, 1);
  Propagar_Flag_Pagaments("A", 1);
  EXPECT_TRUE(Flag_Pagament("P", 1));
  EXPECT_FALSE(Flag_Pagament("A", 1));
}

TEST_F(M_Flags, orders_that_disagree_stop_the_walk_and_what_was_written_stays) {
  Posar_Flag_Pagament("P", 1, true);
  Servir(1, 1, 1);
  Servir(1, 2, 2);
  EXPECT_EQ(Error_En_Propagar("A", 1), "Error: hi ha comandes amb pagaments i altres no!");
  EXPECT_EQ(En_La_Llista("FLAG = 0"), 2);  // the note itself and the order that was asked first
  EXPECT_TRUE(Flag_Pagament("P", 1));
}

TEST_F(M_Flags, every_document_of_a_chain_that_loops_is_evaluated_once) {
  for (const std::int64_t albara : {1, 2}) {
    Servir(albara, 1, 1);
    Servir(albara, 2, 2);
    Facturar(albara);
  }
  Posar_Flag_Pagament("F", 9, true);
  Propagar_Flag_Pagaments("A", 2);
  EXPECT_EQ(En_La_Llista("FLAG = -1"), 5);
  EXPECT_EQ(En_La_Llista("FLAG = 0"), 0);
}

TEST_F(M_Flags, a_line_of_no_order_is_no_link) {
  Servir(1, 1, 0);
  Propagar_Flag_Pagaments("A", 1);
  EXPECT_EQ(En_La_Llista("DOCUMENT = 'P'"), 0);
  EXPECT_TRUE(Flag_Pagament("A", 1));
}

TEST_F(M_Flags, a_document_that_is_there_no_more_changes_nothing) {
  Propagar_Flag_Pagaments("F", 77);
  EXPECT_EQ(Files("SELECT * FROM FACTURACAP WHERE PAGAMENT_FC = -1"), 0);
  EXPECT_FALSE(Flag_Pagament("F", 77));
}

TEST_F(M_Flags, the_work_list_holds_the_last_walk_and_is_written_when_it_is_another) {
  Propagar_Flag_Pagaments("A", 1);
  EXPECT_EQ(En_La_Llista("DOCUMENT = 'A' AND NUMALB = 1 AND FLAG <> 0"), 1);
  sessio.Connexio_Local.Execute("UPDATE FLAG_PAGAMENTS_TEMP SET FLAG = 0");
  Propagar_Flag_Pagaments("A", 1);
  EXPECT_EQ(En_La_Llista("DOCUMENT = 'A' AND NUMALB = 1 AND FLAG <> 0"), 1);
  Propagar_Flag_Pagaments("P", 2);
  EXPECT_EQ(En_La_Llista("DOCUMENT = 'A'"), 0);
  EXPECT_EQ(En_La_Llista("DOCUMENT = 'P' AND NUMALB = 2 AND FLAG <> 0"), 1);
}

TEST_F(M_Flags, only_papers_of_the_company_count) {
  Servir(1, 1, 1);
  Executar("UPDATE ALBARALIN SET EMPRESA_AL = EMPRESA_AL");
  sessio.Empresa_Actual = "C1";
  Propagar_Flag_Pagaments("P", 1);
  sessio.Empresa_Actual = empresa_prova;
  EXPECT_FALSE(Flag_Pagament("P", 1));
  EXPECT_FALSE(Flag_Pagament("A", 1));
}

TEST_F(M_Flags, an_open_form_takes_the_flag_on_the_document_that_it_shows) {
  Document_Fals formulari;
  formulari.numero = 2;
  pantalla.documents["F_ALBARA"] = &formulari;
  Propagar_Flag_Pagaments("A", 1);
  EXPECT_EQ(formulari.pagament, true);
  EXPECT_EQ(formulari.capcaleres_desades, 1);
  EXPECT_FALSE(Flag_Pagament("A", 1));
}

TEST_F(M_Flags, the_events_run_once_a_pass) {
  Servir(1, 1, 1);
  Propagar_Flag_Pagaments("A", 1);
  EXPECT_EQ(pantalla.events, 2);  // the note, then its order
}

TEST_F(M_Flags, a_walk_inside_a_transaction_goes_with_it) {
  {
    const Transaccio transaccio(sessio.Connexio_Comuna);
    Propagar_Flag_Pagaments("A", 1);
    EXPECT_TRUE(Flag_Pagament("A", 1));
  }
  EXPECT_FALSE(Flag_Pagament("A", 1));
}

class Linia_Nova : public M_Flags {
 protected:
  static void Comprovar(std::int64_t albara, std::int64_t comanda) {
    Transaccio transaccio(sessio.Connexio_Comuna);
    Cadena cadena({{'A', albara}, {'P', comanda}});
    Posar_Flags(cadena, Comprovar_Linia_Albara(cadena, albara, comanda));
    transaccio.Confirmar();
  }
};

TEST_F(Linia_Nova, is_refused_where_the_orders_of_the_note_carry_the_payments) {
  Servir(1, 1, 1);
  Posar_Flag_Pagament("P", 1, true);
  Posar_Pagament("P", 1);
  const Error_Brollador error = Error_De([] { Comprovar(1, 0); });
  EXPECT_EQ(error.Numero(), errors::refusat);
  EXPECT_EQ(error.Descripcio(), "No es poden afegir línies a l'albarà si no pot tenir pagaments!");
}

TEST_F(Linia_Nova, takes_the_flag_from_a_note_whose_orders_carry_it_without_payments) {
  Servir(1, 1, 1);
  Posar_Flag_Pagament("P", 1, true);
  Posar_Flag_Pagament("A", 1, true);
  Comprovar(1, 0);
  EXPECT_FALSE(Flag_Pagament("A", 1));
  EXPECT_TRUE(Flag_Pagament("P", 1));
}

TEST_F(Linia_Nova, puts_the_flag_of_the_order_right_by_its_payments) {
  Posar_Pagament("P", 1);
  Comprovar(1, 1);
  EXPECT_TRUE(Flag_Pagament("P", 1));
  Posar_Flag_Pagament("P", 2, true);
  Comprovar(2, 2);
  EXPECT_FALSE(Flag_Pagament("P", 2));
}

TEST_F(Linia_Nova, of_a_free_line_touches_no_order) {
  Posar_Flag_Pagament("P", 1, true);
  Comprovar(1, 0);
  EXPECT_TRUE(Flag_Pagament("P", 1));
}

// On a slow line every trip counts: a level of the chain costs one, however wide it is.
TEST_F(M_Flags, a_wide_chain_costs_as_many_trips_as_a_narrow_one) {
  const auto viatges = [] {
    const std::int64_t abans = sessio.Connexio_Comuna.Viatges();
    Propagar_Flag_Pagaments("F", 9);
    return sessio.Connexio_Comuna.Viatges() - abans;
  };
  Servir(1, 1, 1);
  Facturar(1);
  viatges();
  const std::int64_t estreta = viatges();
  for (std::int64_t n = 10; n < 60; ++n) {
    Posar_Albara(n);
    Servir(n, 1, n % 2 + 1);
    Facturar(n);
  }
  viatges();
  EXPECT_EQ(viatges(), estreta);
}

// Every combination of answers has one row and no more: what it writes, or what it raises. An answer is given in the
// order of the table: y all of them, n none or not one, d they disagree.
class Decisions : public testing::Test {
 protected:
  static std::string Decidir(std::span<const Decisio_Flag> taula, const std::string& respostes) {
    const auto conjunt = [&](std::size_t i) {
      return respostes[i] == 'y' ? resposta::si : respostes[i] == 'n' ? resposta::no : resposta::discrepen;
    };
    std::vector<std::string> fets;
    for (const Decisio_Flag& fila : taula) {
      if ((fila.primer & conjunt(0)) == 0 || (fila.segon & conjunt(1)) == 0 || (fila.tercer & conjunt(2)) == 0)
        continue;
      fets.emplace_back(!fila.flag ? fila.error : *fila.flag ? "on" : "off");
    }
    return fets.size() == 1 ? fets[0] : std::to_string(fets.size()) + " rows";
  }
  static void Exigir(std::span<const Decisio_Flag> taula,
                     const std::vector<std::pair<std::vector<std::string>, std::string>>& esperats) {
    for (const auto& [combinacions, resultat] : esperats)
      for (const std::string& respostes : combinacions) EXPECT_EQ(Decidir(taula, respostes), resultat) << respostes;
  }
};

TEST_F(Decisions, of_an_order_go_by_its_invoices_its_notes_and_its_payments) {
  Exigir(decisions::comanda,
         {{{"dyy", "dyn", "dny", "dnn", "ddy", "ddn"}, "Error: Hi ha factures marcades amb pagaments i altres no!"},
          {{"yyy", "yny", "ydy", "nyy"}, "Error: La comanda té pagaments i no en pot tenir!"},
          {{"yyn", "ynn", "ydn", "nyn"}, "off"},
          {{"ndy", "ndn"}, "Error: Hi ha albarans marcats amb pagaments i altres no!"},
          {{"nny", "nnn"}, "on"}});
}

TEST_F(Decisions, of_a_note_go_by_its_invoice_its_orders_and_its_own_flag) {
  Exigir(decisions::albara, {{{"yyy", "yny", "ydy", "nyy"}, "Error: l'albarà té pagaments i no en pot tenir!"},
                             {{"yyn", "ynn", "ydn", "nyn"}, "off"},
                             {{"nny", "nnn"}, "on"},
                             {{"ndy", "ndn"}, "Error: hi ha comandes amb pagaments i altres no!"}});
}

TEST_F(Decisions, of_an_invoice_go_by_its_own_flag_its_notes_and_their_orders) {
  Exigir(decisions::factura,
         {{{"yyy", "yyn", "yyd"}, "Error: hi ha albarans amb pagaments!"},
          {{"ydy", "ydn", "ydd", "ndy", "ndn", "ndd"}, "Error: hi ha albarans amb pagaments i altres no!"},
          {{"yny", "nyy"}, "Error: hi ha comandes amb pagaments!"},
          {{"ynd", "nyd", "nnd"}, "Error: hi ha comandes amb pagaments i altres no!"},
          {{"ynn", "nnn"}, "on"},
          {{"nyn", "nny"}, "off"}});
}
