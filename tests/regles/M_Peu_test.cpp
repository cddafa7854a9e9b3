#include "documents/M_Peu.h"

#include "sales/M_Tipus_Venda.h"
#include "stock/M_Tipus_Estoc.h"
#include "tests/regles/Base.h"

class M_Peu : public Base_Dades {
 protected:
  void SetUp() override { Posar_Albara(7); }
  void Refer() { Calcular_Peu(tipus_albara, 7, empresa_prova, obert); }
  static double Camp(const std::string& camp, double porc_iva) {
    return Numero("SELECT " + camp + " FROM ALBARAPEU WHERE PORC_IVA_AP = " + Numero_SQL(porc_iva));
  }
  static std::int64_t Files_Peu() { return Files(SQL_Peu(tipus_albara, 7, empresa_prova)); }
  Document_Fals obert;
};

TEST_F(M_Peu, the_tax_is_on_the_base_so_that_the_total_may_differ_from_the_lines) {
  Posar_Linia_Albara(7, 1, 21, 100.03, 121.04);
  Posar_Linia_Albara(7, 2, 21, 100.03, 121.04);
  Refer();
  EXPECT_DOUBLE_EQ(Camp("BASE_AP", 21), 200.06);
  EXPECT_EQ(Camp("IVA_AP", 21), 42.01);
  EXPECT_EQ(obert.import, 242.07);
  EXPECT_EQ(Numero("SELECT SUM(IMPORT_BRUT_AL) AS S FROM ALBARALIN"), 242.08);
}

TEST_F(M_Peu, a_row_a_rate_with_the_code_and_words_of_its_type) {
  Posar_Linia_Albara(7, 1, 21, 100, 121);
  Posar_Linia_Albara(7, 2, 10, 100, 110);
  Refer();
  EXPECT_EQ(Files_Peu(), 2);
  EXPECT_EQ(Text("SELECT TIPUS_IVA_AP FROM ALBARAPEU WHERE PORC_IVA_AP = 10"), "RD");
  EXPECT_EQ(Text("SELECT DESC_IVA_AP FROM ALBARAPEU WHERE PORC_IVA_AP = 10"), "Reduït");
  EXPECT_EQ(obert.import, 231);
  EXPECT_EQ(obert.peus_refrescats, 2);
  EXPECT_EQ(pantalla.events, 2);
}

TEST_F(M_Peu, a_document_without_IVA_has_one_row_of_the_type_at_0) {
  Posar_Linia_Albara(7, 1, 0, 55.5, 55.5);
  Refer();
  EXPECT_EQ(Text("SELECT TIPUS_IVA_AP FROM ALBARAPEU"), "EX");
  EXPECT_EQ(Camp("BASE_AP", 0), 55.5);
  EXPECT_EQ(Camp("IMPORT_AP", 0), 55.5);
}

TEST_F(M_Peu, without_lines_no_row_is_touched_and_the_total_is_what_the_foot_says) {
  Posar_Linia_Albara(7, 1, 21, 100, 121);
  Refer();
  Executar("DELETE * FROM ALBARALIN");
  Refer();
  EXPECT_EQ(obert.import, 121);
  Buidar_Peu(tipus_albara, 7, empresa_prova);
  Refer();
  EXPECT_EQ(obert.import, 0);
}

TEST_F(M_Peu, cents_that_cancel_out_come_to_0) {
  Posar_Linia_Albara(7, 1, 21, 0.10, 0.12);
  Refer();
  Posar_Linia_Albara(7, 2, 21, 0.20, 0.24);
  Refer();
  EXPECT_EQ(Camp("BASE_AP", 21), 0.3);
  EXPECT_EQ(Camp("IMPORT_AP", 21), 0.36);
  Posar_Linia_Albara(7, 3, 21, -0.30, -0.36);
  Refer();
  EXPECT_EQ(Files_Peu(), 0);
  EXPECT_EQ(obert.import, 0);
}

TEST_F(M_Peu, a_row_that_comes_to_0_goes_and_a_new_one_with_0_stays) {
  Posar_Linia_Albara(7, 1, 21, 100, 121);
  Refer();
  Executar("UPDATE ALBARALIN SET IMPORT_NET_AL = 0, IMPORT_BRUT_AL = 0");
  Refer();
  EXPECT_EQ(Files_Peu(), 0);
  Refer();
  EXPECT_EQ(Files_Peu(), 1);
  EXPECT_EQ(Camp("IMPORT_AP", 21), 0);
}

TEST_F(M_Peu, a_new_row_takes_the_surcharge_of_its_type_by_the_box_and_not_by_the_lines) {
  Posar_Linia_Albara(7, 1, 21, 100, 121, 0);
  obert.re = true;
  Refer();
  EXPECT_EQ(Camp("PORC_RE_AP", 21), 5.2);
  EXPECT_EQ(Camp("RE_AP", 21), 5.2);
}

TEST_F(M_Peu, a_row_keeps_its_own_surcharge_whatever_the_box_says_later) {
  Posar_Linia_Albara(7, 1, 21, 100, 121, 5.2);
  Refer();
  obert.re = true;
  Refer();
  EXPECT_EQ(Camp("PORC_RE_AP", 21), 0);
}

TEST_F(M_Peu, of_two_surcharges_at_one_rate_the_second_overwrites_the_first) {
  Posar_Linia_Albara(7, 1, 21, 100, 126.2, 5.2);
  Posar_Linia_Albara(7, 2, 21, 40, 48.4, 0);
  Refer();
  EXPECT_EQ(Files_Peu(), 1);
  EXPECT_EQ(Camp("BASE_AP", 21), 100);
}

TEST_F(M_Peu, a_rate_that_no_type_has_is_a_type_error) {
  Posar_Linia_Albara(7, 1, 33, 100, 133);
  EXPECT_EQ(Error_De([&] { Refer(); }).Numero(), errors::tipus);
  EXPECT_EQ(Files_Peu(), 0);
}

TEST_F(M_Peu, a_rate_with_decimals_is_a_faulty_statement) {
  Executar("INSERT INTO IVAS (CODI_IVA, PORC_IVA, RE_IVA) VALUES('D', 7.5, 0)");
  Posar_Linia_Albara(7, 1, 7.5, 100, 107.5);
  EXPECT_EQ(Error_De([&] { Refer(); }).Numero(), errors::sentencia);
}

TEST_F(M_Peu, the_head_of_an_open_document_is_not_written) {
  Posar_Linia_Albara(7, 1, 21, 100, 121);
  Refer();
  EXPECT_EQ(Numero("SELECT IMPORT_AC FROM ALBARACAP"), 0);
}

TEST_F(M_Peu, the_head_of_a_document_that_no_form_shows_takes_the_total) {
  Posar_Linia_Albara(7, 1, 21, 100, 126.2, 5.2);
  Calcular_Peu_Document(tipus_albara, 7, empresa_prova, 5.2);
  EXPECT_EQ(Camp("RE_AP", 21), 5.2);
  EXPECT_EQ(Numero("SELECT IMPORT_AC FROM ALBARACAP"), 126.2);
  EXPECT_EQ(pantalla.events, 0);
}

TEST_F(M_Peu, without_surcharge_new_rows_take_none) {
  Posar_Linia_Albara(7, 1, 21, 100, 121);
  Calcular_Peu_Document(tipus_albara, 7, empresa_prova, 0);
  EXPECT_EQ(Camp("PORC_RE_AP", 21), 0);
}

// The same steps on the tables of every kind that has a foot; proposals and purchase notes are never closed documents.
TEST_F(M_Peu, every_kind_has_its_own_foot_and_head) {
  for (const Tipus_Document* tipus : Tipus_Registrats()) {
    if (tipus->peu.nom.empty()) continue;
    SCOPED_TRACE(tipus->formulari);
    const std::string claus = tipus->numero_es_text ? "'3', 'B00000000'" : "3, 'B00000000'";
    const auto posar = [&](const Taula_Document& taula, const std::string& columnes, const std::string& valors) {
      Executar("INSERT INTO " + std::string(taula.nom) + " (" + taula.Columna("NUMALB") + ", " +
               taula.Columna("EMPRESA") + columnes + ") VALUES(" + claus + valors + ")");
    };
    const auto linia = [&](int numero, int porc_iva) {
      posar(tipus->lin,
            ", " + tipus->lin.Columna("LIN") + ", " + tipus->lin.Columna("PORC_IVA") + ", " +
                tipus->lin.Columna("PORC_RE") + ", " + tipus->lin.Columna("IMPORT_NET"),
            ", " + std::to_string(numero) + ", " + std::to_string(porc_iva) + ", 0, 100");
    };
    posar(tipus->cap, "", "");
    linia(1, 21);
    linia(2, 10);
    const Valor numero = tipus->numero_es_text ? Valor("3") : Valor(3);
    obert.re = true;
    Calcular_Peu(*tipus, numero, empresa_prova, obert);
    EXPECT_EQ(obert.import, 237.6);
    EXPECT_EQ(Total_Peu(*tipus, numero, empresa_prova), 237.6);
    EXPECT_EQ(Files(SQL_Peu(*tipus, numero, empresa_prova)), 2);
    const std::string total = "SELECT " + tipus->cap.Columna("IMPORT") + " FROM " + std::string(tipus->cap.nom);
    EXPECT_EQ(Numero(total + Condicio_Document(*tipus, tipus->cap, numero, empresa_prova)), 0);
    Buidar_Peu(*tipus, numero, empresa_prova);
    Calcular_Peu_Document(*tipus, numero, empresa_prova, 0);
    EXPECT_EQ(Numero(total + Condicio_Document(*tipus, tipus->cap, numero, empresa_prova)), 231);
  }
}

TEST_F(M_Peu, a_missing_head_is_nothing_but_for_an_invoice) {
  EXPECT_NO_THROW(Calcular_Peu_Document(tipus_albara, 99, empresa_prova, 0));
  EXPECT_EQ(Error_De([] { Calcular_Peu_Document(tipus_factura, 99, empresa_prova, 0); }).Numero(), errors::general);
}

TEST_F(M_Peu, a_purchase_note_is_found_by_its_text) {
  Executar("INSERT INTO ALBCOMPRACAP (NUMALB_ACC, EMPRESA_ACC) VALUES('12/A', '" + empresa_prova + "')");
  Executar(
      "INSERT INTO ALBCOMPRALIN (NUMALB_ACL, EMPRESA_ACL, LIN_ACL, PORC_IVA_ACL, PORC_RE_ACL, IMPORT_NET_ACL, "
      "IMPORT_BRUT_ACL) VALUES('12/A', '" +
      empresa_prova + "', 1, 21, 0, 10, 12.1)");
  Calcular_Peu(tipus_albcompra, "12/A", empresa_prova, obert);
  EXPECT_EQ(obert.import, 12.1);
}

TEST_F(M_Peu, the_total_is_rounded_to_cents_and_0_without_rows) {
  EXPECT_EQ(Total_Peu(tipus_albara, 7, empresa_prova), 0);
  Executar("INSERT INTO ALBARAPEU (NUMALB_AP, EMPRESA_AP, PORC_IVA_AP, IMPORT_AP) VALUES(7, '" + empresa_prova +
           "', 21, 1.005)");
  EXPECT_EQ(Total_Peu(tipus_albara, 7, empresa_prova), 1.01);
}
