// What a delivery note shows on paper, before there is any paper.
#include "output/M_Impressio.h"

#include "tests/regles/Base.h"

namespace {

class M_Impressio : public Base_Dades {
 protected:
  static constexpr int numero = 7;

  static void Posar_Linia(int linia, const std::string& descripcio, double unitats, double preu, double dte,
                          double net) {
    Recordset rs("SELECT * FROM ALBARALIN", sessio.Connexio_Comuna, Bloqueig::Optimista);
    rs.AddNew();
    rs.Set("NUMALB_AL", numero);
    rs.Set("EMPRESA_AL", empresa_prova);
    rs.Set("LIN_AL", linia);
    rs.Set("ARTICLE_AL", "A1");
    rs.Set("DESCRIPCIO_AL", descripcio);
    rs.Set("UNITATS_AL", unitats);
    rs.Set("PREU_UNITARI_AL", preu);
    rs.Set("DTE_AL", dte);
    rs.Set("IMPORT_NET_AL", net);
    rs.Update();
  }
  static void Posar_Peu(const std::string& tipus, double porc_iva, double base, double iva, double porc_re, double re) {
    Executar(
        "INSERT INTO ALBARAPEU (NUMALB_AP, EMPRESA_AP, TIPUS_IVA_AP, PORC_IVA_AP, BASE_AP, IVA_AP, PORC_RE_AP, RE_AP, "
        "IMPORT_AP) VALUES(7, '" +
        empresa_prova + "', " + Text_SQL(tipus) + ", " + Numero_SQL(porc_iva) + ", " + Numero_SQL(base) + ", " +
        Numero_SQL(iva) + ", " + Numero_SQL(porc_re) + ", " + Numero_SQL(re) + ", " + Numero_SQL(base + iva + re) +
        ")");
  }
  static void Omplir() { Omplir_Taula_Impressio(tipus_albara, numero, empresa_prova); }
  static std::int64_t Files_Impressio() {
    return Recordset(SQL_Impressio(tipus_albara), sessio.Connexio_Local).RecordCount();
  }
  static std::string Descripcio_Impresa(const std::string& descripcio) {
    Posar_Albara(numero);
    Posar_Linia(1, descripcio, 1, 1, 0, 1);
    Omplir();
    return Recordset(SQL_Impressio(tipus_albara), sessio.Connexio_Local)["DESCRIPCIO_AL"].Text();
  }
};

}  // namespace

TEST_F(M_Impressio, TheWorkTableTakesTheLinesInTheirOrder) {
  Posar_Albara(numero);
  Posar_Linia(2, "segona", 3, 5, 10, 13.5);
  Posar_Linia(1, "primera", 1, 2.5, 0, 2.5);
  Omplir();
  Recordset rs(SQL_Impressio(tipus_albara), sessio.Connexio_Local);
  ASSERT_EQ(rs.RecordCount(), 2);
  EXPECT_EQ(rs["DESCRIPCIO_AL"].Text(), "primera");
  rs.MoveNext();
  EXPECT_EQ(rs["LIN_AL"].Enter(), 2);
  EXPECT_EQ(rs["ARTICLE_AL"].Text(), "A1");
  EXPECT_EQ(rs["DESCRIPCIO_AL"].Text(), "segona");
  EXPECT_EQ(rs["UNITATS_AL"].Doble(), 3);
  EXPECT_EQ(rs["PREU_UNITARI_AL"].Doble(), 5);
  EXPECT_EQ(rs["DTE_AL"].Doble(), 10);
  EXPECT_EQ(rs["TOTAL_IMPORT_AL"].Doble(), 13.5);
}

TEST_F(M_Impressio, TheWorkTableIsTheTerminalsOwn) {
  EXPECT_EQ(Taula_Impressio(tipus_albara), "ALBARALIN_VALORAT_IMPR");
  EXPECT_NE(sessio.Connexio_Local.Taules().Cercar("ALBARALIN_VALORAT_IMPR"), nullptr);
  EXPECT_EQ(sessio.Connexio_Comuna.Taules().Cercar("ALBARALIN_VALORAT_IMPR"), nullptr);
}

TEST_F(M_Impressio, OnlyTheLinesOfThatDocumentAndCompanyAreCopied) {
  Posar_Albara(numero);
  Posar_Albara(8);
  Posar_Linia(1, "seva", 1, 1, 0, 1);
  Posar_Linia_Albara(8, 1, 21, 5, 6.05);
  Omplir();
  EXPECT_EQ(Files_Impressio(), 1);
  Omplir_Taula_Impressio(tipus_albara, numero, "B11111111");
  EXPECT_EQ(Files_Impressio(), 0);
}

TEST_F(M_Impressio, FillingStartsFromAnEmptyTable) {
  Posar_Albara(numero);
  Posar_Linia(1, "una", 1, 1, 0, 1);
  Omplir();
  Omplir();
  EXPECT_EQ(Files_Impressio(), 1);
  Buidar_Taula_Impressio(tipus_albara);
  EXPECT_EQ(Files_Impressio(), 0);
}

TEST_F(M_Impressio, EachLineBreakOfADescriptionBecomesOneNoBreakSpace) {
  EXPECT_EQ(Descripcio_Impresa("dalt\r\nmig\r\n\r\nbaix"), "dalt\u00A0mig\u00A0\u00A0baix");
}

TEST_F(M_Impressio, ADescriptionWithoutLineBreaksIsCopiedAsItStands) {
  EXPECT_EQ(Descripcio_Impresa("una  sola\nratlla"), "una  sola\nratlla");
}

TEST_F(M_Impressio, TheNetIsTheSumOfTheWorkTable) {
  Posar_Albara(numero);
  Posar_Linia(1, "una", 1, 10, 0, 10);
  Posar_Linia(2, "abonament", -1, 2.5, 0, -2.5);
  Omplir();
  EXPECT_DOUBLE_EQ(Net_Impres(tipus_albara), 7.5);
}

TEST_F(M_Impressio, TheNetOfNothingIsZero) {
  EXPECT_EQ(Net_Impres(tipus_albara), 0);
}

TEST_F(M_Impressio, FootRowsComeByTaxCodeUnderTheirMaskAndAddUp) {
  Posar_Albara(numero);
  Posar_Peu("RD", 10, 50, 5, 1.4, 0.7);
  Posar_Peu("GN", 21, 1234.5, 259.25, 0, 0);
  const Peu_Impres peu = Dades_Peu(tipus_albara, numero, empresa_prova);
  ASSERT_EQ(peu.files.size(), 2U);
  EXPECT_EQ(peu.files[0], (Fila_Peu_Impres{"1.234,50", "21,00", "259,25", "0,00", "0,00", "1.493,75"}));
  EXPECT_EQ(peu.files[1], (Fila_Peu_Impres{"50,00", "10,00", "5,00", "1,40", "0,70", "55,70"}));
  EXPECT_DOUBLE_EQ(peu.total, 1549.45);
}

TEST_F(M_Impressio, TheHeadGivesDateCustomerAndRemarks) {
  Executar("INSERT INTO ALBARACAP (NUMALB_AC, EMPRESA_AC, DATA_AC, CLIENT_AC, OBSR_AC) VALUES(7, '" + empresa_prova +
           "', #3/5/2026#, 'B1', 'Matins')");
  const Capcalera_Impressa cap = Dades_Capcalera(tipus_albara, numero, empresa_prova);
  EXPECT_EQ(cap.data, "05/03/2026");
  EXPECT_EQ(cap.client, "B1");
  EXPECT_EQ(cap.observacions, "Matins");
}

TEST_F(M_Impressio, AHeadThatIsNotThereGivesEmptyTexts) {
  const Capcalera_Impressa cap = Dades_Capcalera(tipus_albara, numero, empresa_prova);
  EXPECT_EQ(cap.data + cap.client + cap.observacions, "");
}
