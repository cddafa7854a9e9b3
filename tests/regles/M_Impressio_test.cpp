// What a document shows on paper, before there is any paper.
#include "output/M_Impressio.h"

#include <algorithm>

#include "masters/M_Venciments_Factura.h"
#include "sales/M_Tipus_Venda.h"
#include "stock/M_Tipus_Estoc.h"
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
  static const Descripcio_Impressio& Albara() { return Informe_De(tipus_albara); }
  static void Omplir() { Omplir_Taula_Impressio(Albara(), numero, empresa_prova); }
  static Ompliment_Informe Ompliment(const Tipus_Document& tipus = tipus_albara, bool valorat = true) {
    return Omplir_Informe(Informe_De(tipus), tipus.numero_es_text ? Valor("7") : Valor(numero), empresa_prova, valorat);
  }
  static std::string Text_Impres(const Ompliment_Informe& ompliment, const std::string& control) {
    const std::string* text = ompliment.Text_De(control);
    return text == nullptr ? "(none)" : *text;
  }
  static bool Amagat(const Ompliment_Informe& ompliment, const std::string& control) {
    return std::count(ompliment.amagats.begin(), ompliment.amagats.end(), control) > 0;
  }
  // A head of any kind, for a customer (or a supplier) of code B1.
  static void Posar_Cap(const Tipus_Document& tipus) {
    const bool compra = &tipus == &tipus_albcompra;
    Executar("INSERT INTO " + std::string(tipus.cap.nom) + " (" + tipus.cap.Columna("NUMALB") + ", " +
             tipus.cap.Columna("EMPRESA") + ", " + tipus.cap.Columna("DATA") + ", " +
             tipus.cap.Columna(compra ? "PROVEIDOR" : "CLIENT") + ", " + tipus.cap.Columna("OBSR") + ") VALUES(" +
             (compra ? "'7'" : "7") + ", '" + empresa_prova + "', #3/5/2026#, 'B1', 'Matins')");
  }
  static void Posar_Client() {
    Executar(
        "INSERT INTO VENCIMENTS (CODI_VEN, DESCRIPCIO_VEN, DIES_VEN, TERMINIS_VEN) VALUES('T2', 'Dos terminis', 30, "
        "2)");
    Executar(
        "INSERT INTO CLIENTS (NIF_CLI, RAO_SOCIAL_CLI, NOM_COMERCIAL_CLI, ADREÇA_CLI, CP_CLI, LOCALITAT_CLI, "
        "CODI_CLIENT_CLI, VENCIMENT_CLI, COMPTE_CLI) VALUES('B1', 'Puig, S.L.', 'Obres', 'Riu, 45', '08500', 'Vic', "
        "'C-77', 'T2', 'ES12')");
    Executar("INSERT INTO PROVEIDORS (NIF_PRO, RAO_SOCIAL_PRO, ADREÇA_PRO) VALUES('B1', 'Metalls, S.A.', 'Polígon 4')");
  }
  static std::int64_t Files_Impressio() {
    return Recordset(SQL_Impressio(Albara()), sessio.Connexio_Local).RecordCount();
  }
  static std::string Descripcio_Impresa(const std::string& descripcio) {
    Posar_Albara(numero);
    Posar_Linia(1, descripcio, 1, 1, 0, 1);
    Omplir();
    return Recordset(SQL_Impressio(Albara()), sessio.Connexio_Local)["DESCRIPCIO_AL"].Text();
  }
};

}  // namespace

TEST_F(M_Impressio, TheWorkTableTakesTheLinesInTheirOrder) {
  Posar_Albara(numero);
  Posar_Linia(2, "segona", 3, 5, 10, 13.5);
  Posar_Linia(1, "primera", 1, 2.5, 0, 2.5);
  Omplir();
  Recordset rs(SQL_Impressio(Albara()), sessio.Connexio_Local);
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
  for (const auto& informe : Informes_De_Documents()) {
    EXPECT_NE(sessio.Connexio_Local.Taules().Cercar(informe.taula.nom), nullptr) << informe.informe;
    EXPECT_EQ(sessio.Connexio_Comuna.Taules().Cercar(informe.taula.nom), nullptr) << informe.informe;
  }
}

TEST_F(M_Impressio, OnlyTheLinesOfThatDocumentAndCompanyAreCopied) {
  Posar_Albara(numero);
  Posar_Albara(8);
  Posar_Linia(1, "seva", 1, 1, 0, 1);
  Posar_Linia_Albara(8, 1, 21, 5, 6.05);
  Omplir();
  EXPECT_EQ(Files_Impressio(), 1);
  Omplir_Taula_Impressio(Albara(), numero, "B11111111");
  EXPECT_EQ(Files_Impressio(), 0);
}

TEST_F(M_Impressio, FillingStartsFromAnEmptyTable) {
  Posar_Albara(numero);
  Posar_Linia(1, "una", 1, 1, 0, 1);
  Omplir();
  Omplir();
  EXPECT_EQ(Files_Impressio(), 1);
  Buidar_Taula_Impressio(Albara());
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
  EXPECT_EQ(Text_Impres(Ompliment(), "L_NETO_IMP"), "7,50");
}

TEST_F(M_Impressio, TheNetOfNothingIsZero) {
  EXPECT_EQ(Text_Impres(Ompliment(), "L_NETO_IMP"), "0,00");
}

TEST_F(M_Impressio, FootRowsComeByTaxCodeUnderTheirMaskAndAddUp) {
  Posar_Albara(numero);
  Posar_Peu("RD", 10, 50, 5, 1.4, 0.7);
  Posar_Peu("GN", 21, 1234.5, 259.25, 0, 0);
  const auto ompliment = Ompliment();
  const auto fila = [&](const std::string& n) {
    std::string textos;
    for (const char* nom : {"L_BASE_", "L_IVA_PORC_", "L_IVA_IMP_", "L_RE_PORC_", "L_RE_IMP_", "L_IMPORT_BRUT_"}) {
      textos += Text_Impres(ompliment, nom + n) + "|";
    }
    return textos;
  };
  EXPECT_EQ(fila("1"), "1.234,50|21,00|259,25|0,00|0,00|1.493,75|");
  EXPECT_EQ(fila("2"), "50,00|10,00|5,00|1,40|0,70|55,70|");
  EXPECT_EQ(fila("3"), "||||||");
  EXPECT_EQ(fila("4"), "||||||");
  EXPECT_EQ(fila("5"), "(none)|(none)|(none)|(none)|(none)|(none)|");
  EXPECT_EQ(Text_Impres(ompliment, "L_IMPORT_TOTAL_IMP"), "1.549,45");
}

TEST_F(M_Impressio, AFifthFootRowAsksForALabelThatNoPageHas) {
  Posar_Albara(numero);
  for (const int porc : {0, 4, 5, 10, 21}) Posar_Peu("T" + std::to_string(porc), porc, 100, 0, 0, 0);
  EXPECT_EQ(Text_Impres(Ompliment(), "L_BASE_5"), "100,00");
}

TEST_F(M_Impressio, TheHeadAndWhoItIsForInEveryKind) {
  Posar_Client();
  for (const auto& informe : Informes_De_Documents()) {
    Posar_Cap(informe.Tipus());
    const auto ompliment = Ompliment(informe.Tipus());
    const bool compra = informe.destinatari == Destinatari::Proveidor;
    EXPECT_EQ(Text_Impres(ompliment, "L_TXT_ALBARA"), "7") << informe.informe;
    EXPECT_EQ(Text_Impres(ompliment, "L_TXT_DATA"), "05/03/2026") << informe.informe;
    EXPECT_EQ(Text_Impres(ompliment, "L_TXT_OBSR"), "Matins") << informe.informe;
    EXPECT_EQ(Text_Impres(ompliment, "L_TXT_NIF"), "B1") << informe.informe;
    EXPECT_EQ(Text_Impres(ompliment, "L_NOM_FISCAL"), compra ? "Metalls, S.A." : "Puig, S.L.") << informe.informe;
    EXPECT_EQ(Text_Impres(ompliment, "L_DIRECCIO"), compra ? "Polígon 4" : "Riu, 45") << informe.informe;
  }
}

TEST_F(M_Impressio, AHeadThatIsNotThereGivesEmptyTexts) {
  const auto ompliment = Ompliment();
  for (const char* control : {"L_TXT_DATA", "L_TXT_OBSR", "L_NOM_FISCAL"})
    EXPECT_EQ(Text_Impres(ompliment, control), "");
}

TEST_F(M_Impressio, WhatTellsTheReportsApart) {
  Executar(
      "UPDATE EMPRESES SET ADREÇA_EMP = 'Major, 1', TELEFON_EMP = '93', IMATGE_EMP = '/logo.png', COMENTARI_EMP = "
      "'Hola', "
      "PRESS_PEU1_EMP = 'p1', PRESS_PEU2_EMP = 'p2', FACT_PEU1_EMP = 'f1'");
  struct Esperat {
    const Tipus_Document& tipus;
    const char* adreca;
    bool logo;
    const char* peu1;
    const char* peu2;
    const char* factura;
    bool venciments;
  };
  const char* cap = "(none)";
  Posar_Client();
  for (const auto& e : {Esperat{tipus_pressupost, "Major, 1 - Tel. 93", true, "p1", "p2", cap, false},
                        Esperat{tipus_comanda, "Major, 1 - Tel. 93", false, cap, cap, cap, false},
                        Esperat{tipus_albara, "Major, 1 - Tel. 93", false, cap, cap, cap, false},
                        Esperat{tipus_factura, "Major, 1 - 93", true, cap, cap, "f1", true},
                        Esperat{tipus_albcompra, "Major, 1 - Tel. 93", false, cap, cap, cap, false}}) {
    Posar_Cap(e.tipus);
    Executar("INSERT INTO " + std::string(e.tipus.peu.nom) + " (" + e.tipus.peu.Columna("NUMALB") + ", " +
             e.tipus.peu.Columna("EMPRESA") + ", " + e.tipus.peu.Columna("IMPORT") + ") VALUES(" +
             (e.tipus.numero_es_text ? "'7'" : "7") + ", '" + empresa_prova + "', 121)");
    const auto ompliment = Ompliment(e.tipus);
    SCOPED_TRACE(e.tipus.formulari);
    EXPECT_EQ(Text_Impres(ompliment, "L_ADREÇA_EMP"), e.adreca);
    EXPECT_EQ(ompliment.imatge, e.logo ? "/logo.png" : "");
    EXPECT_EQ(Text_Impres(ompliment, "L_COMENTARI_EMP"), e.logo ? "Hola" : cap);
    EXPECT_EQ(Text_Impres(ompliment, "L_PRESS_PEU1_EMP"), e.peu1);
    EXPECT_EQ(Text_Impres(ompliment, "L_PRESS_PEU2_EMP"), e.peu2);
    EXPECT_EQ(Text_Impres(ompliment, "L_FACT_PEU1_EMP"), e.factura);
    EXPECT_EQ(Text_Impres(ompliment, "L_TXT_PAGAMENT"), e.venciments ? "Dos terminis (ES12)" : cap);
    EXPECT_EQ(Text_Impres(ompliment, "L_TXT_VENCIMENTS"),
              e.venciments ? Venciments_Factura("B1", {2026, 3, 5}, 121)[2] : cap);
  }
}

TEST_F(M_Impressio, WithoutATermTheDueDatesAreHidden) {
  Posar_Client();
  Posar_Cap(tipus_factura);
  Executar("UPDATE CLIENTS SET VENCIMENT_CLI = ''");
  const auto ompliment = Ompliment(tipus_factura);
  for (const char* control : {"L_VENCIMENTS", "L_TXT_PAGAMENT", "L_TXT_VENCIMENTS"})
    EXPECT_TRUE(Amagat(ompliment, control));
}

TEST_F(M_Impressio, TheCustomersCodeIsShownWhenTheParameterIsExactlyTrue) {
  Posar_Client();
  Posar_Cap(tipus_factura);
  sessio.Parametres["P_Codi_Client_Visible"] = "True";
  EXPECT_EQ(Text_Impres(Ompliment(tipus_factura), "L_TXT_CODI_CLIENT"), "C-77");
  EXPECT_FALSE(Amagat(Ompliment(tipus_factura), "L_CODI_CLIENT"));
  for (const char* valor : {"true", "TRUE", "-1", ""}) {
    sessio.Parametres["P_Codi_Client_Visible"] = valor;
    EXPECT_EQ(Text_Impres(Ompliment(tipus_factura), "L_TXT_CODI_CLIENT"), "") << valor;
    EXPECT_TRUE(Amagat(Ompliment(tipus_factura), "L_CODI_CLIENT")) << valor;
  }
}

TEST_F(M_Impressio, TheTopOfTheCompanysBlockIsAParameterOfTheReportsWithALogo) {
  Posar_Cap(tipus_factura);
  EXPECT_EQ(Ompliment(tipus_factura).posicio_top, 0);
  sessio.Parametres["P_Posicio_Top"] = "1200";
  EXPECT_EQ(Ompliment(tipus_factura).posicio_top, 1200);
  sessio.Parametres["P_Posicio_Top"] = "alt";
  EXPECT_EQ(Error_De([] { Ompliment(tipus_factura); }).Numero(), errors::tipus);
  sessio.Parametres["P_Posicio_Top"] = "1e30";
  EXPECT_EQ(Ompliment(tipus_factura).posicio_top, 1000000) << "as far as anything needs";
  for (const auto& informe : Informes_De_Documents()) {
    const int top = Ompliment(informe.Tipus()).posicio_top;
    EXPECT_TRUE(informe.logo || top == 0) << informe.informe << " does not read it";
  }
}

TEST_F(M_Impressio, WithoutPricesTheirFieldsAndTitlesGoAndTheFootStays) {
  Posar_Albara(numero);
  Posar_Peu("GN", 21, 100, 21, 0, 0);
  const auto ompliment = Ompliment(tipus_albara, false);
  for (const char* paper : {"PREU_UNITARI_AL", "DTE_AL", "TOTAL_IMPORT_AL"}) {
    EXPECT_TRUE(Amagat(ompliment, std::string("TXT_") + paper)) << paper;
    EXPECT_EQ(Text_Impres(ompliment, std::string("L_") + paper), " ") << paper;
  }
  EXPECT_FALSE(Amagat(ompliment, "TXT_UNITATS_AL"));
  EXPECT_EQ(Text_Impres(ompliment, "L_IMPORT_TOTAL_IMP"), "121,00");
}

TEST_F(M_Impressio, TheTitleOfTheDiscountsStandsWhenALineHasOne) {
  Posar_Albara(numero);
  Posar_Linia(1, "una", 1, 10, 0, 10);
  EXPECT_EQ(Text_Impres(Ompliment(), "L_DTE_AL"), " ");
  Posar_Linia(2, "dues", 1, 10, 5, 9.5);
  EXPECT_EQ(Text_Impres(Ompliment(), "L_DTE_AL"), "(none)");
}

TEST_F(M_Impressio, APurchaseNoteGoesThroughTheWorkTableOfTheNotesWithItsCosts) {
  Posar_Cap(tipus_albcompra);
  Executar(
      "INSERT INTO ALBCOMPRALIN (NUMALB_ACL, EMPRESA_ACL, LIN_ACL, ARTICLE_ACL, DESCRIPCIO_ACL, UNITATS_ACL, COST_ACL, "
      "PREU_UNITARI_ACL, DTE_ACL, IMPORT_NET_ACL) VALUES('7', '" +
      empresa_prova + "', 1, 'A1', 'Cargol', 3, 10, 99, 50, 15)");
  Omplir_Taula_Impressio(Informe_De(tipus_albcompra), "7", empresa_prova);
  Recordset rs("SELECT * FROM ALBARALIN_VALORAT_IMPR", sessio.Connexio_Local);
  ASSERT_EQ(rs.RecordCount(), 1);
  EXPECT_EQ(rs["ARTICLE_AL"].Text(), "A1");
  EXPECT_EQ(rs["UNITATS_AL"].Doble(), 3);
  EXPECT_EQ(rs["PREU_UNITARI_AL"].Doble(), 10);
  EXPECT_TRUE(rs["DTE_AL"].Es_Nul());
  EXPECT_EQ(rs["TOTAL_IMPORT_AL"].Doble(), 15);
  const auto ompliment = Ompliment(tipus_albcompra);
  EXPECT_EQ(ompliment.formats.size(), 3U) << "units, cost, amount";
  EXPECT_EQ(Text_Impres(ompliment, "L_NETO_IMP"), "15,00");
}

// The five kinds, whether or not they have an editor: lines in their order and of that document alone, breaks as one
// no-break space, a title over discounts only when there are some.
TEST_F(M_Impressio, EveryKindCopiesItsOwnLines) {
  for (const auto& informe : Informes_De_Documents()) {
    SCOPED_TRACE(informe.informe);
    const Tipus_Document& tipus = informe.Tipus();
    Posar_Cap(tipus);
    const auto posar = [&](int linia, const std::string& descripcio, double unitats, double dte) {
      const auto columna = [&](const char* paper) { return tipus.lin.Columna(paper); };
      Recordset rs("SELECT * FROM " + std::string(tipus.lin.nom), sessio.Connexio_Comuna, Bloqueig::Optimista);
      rs.AddNew();
      rs.Set(columna("NUMALB"), tipus.numero_es_text ? Valor("7") : Valor(numero));
      rs.Set(columna("EMPRESA"), empresa_prova);
      rs.Set(columna("LIN"), linia);
      rs.Set(columna("ARTICLE"), "A" + std::to_string(linia));
      rs.Set(columna("DESCRIPCIO"), descripcio);
      rs.Set(columna("UNITATS"), unitats);
      rs.Set(columna(std::string(informe.Linia_De("PREU_UNITARI")).c_str()), 4.5);
      rs.Set(columna("DTE"), dte);
      rs.Set(columna("IMPORT_NET"), unitats * 4.5);
      rs.Update();
    };
    const bool descompte = !informe.Linia_De("DTE").empty();
    const std::string titol = "L_" + tipus.lin.Columna("DTE");
    posar(2, "sota", -2, 0);
    posar(1, "dalt\r\nbaix", 3, 0);
    EXPECT_EQ(Text_Impres(Ompliment(tipus), titol), descompte ? " " : "(none)");
    posar(3, "Albarà 7", 0, 12.5);
    EXPECT_EQ(Text_Impres(Ompliment(tipus), titol), "(none)");
    Omplir_Taula_Impressio(informe, tipus.numero_es_text ? Valor("7") : Valor(numero), empresa_prova);
    Recordset rs(SQL_Impressio(informe), sessio.Connexio_Local);
    ASSERT_EQ(rs.RecordCount(), 3);
    const auto columna = [&](const char* paper) { return informe.taula.Columna(paper); };
    EXPECT_EQ(rs[columna("DESCRIPCIO")].Text(), "dalt\u00A0baix");
    EXPECT_EQ(rs[columna("ARTICLE")].Text(), "A1");
    EXPECT_EQ(rs[columna("TOTAL_IMPORT")].Doble(), 13.5);
    rs.MoveNext();
    EXPECT_EQ(rs[columna("LIN")].Enter(), 2);
    EXPECT_EQ(rs[columna("UNITATS")].Doble(), -2);
    EXPECT_EQ(rs[columna("PREU_UNITARI")].Doble(), 4.5);
    EXPECT_EQ(Text_Impres(Ompliment(tipus), "L_NETO_IMP"), "4,50");
    Omplir_Taula_Impressio(informe, tipus.numero_es_text ? Valor("8") : Valor(8), empresa_prova);
    EXPECT_EQ(Recordset(SQL_Impressio(informe), sessio.Connexio_Local).RecordCount(), 0);
  }
}

TEST_F(M_Impressio, WithoutPricesEveryKindKeepsUnitsNetAndFoot) {
  for (const auto& informe : Informes_De_Documents()) {
    SCOPED_TRACE(informe.informe);
    const Tipus_Document& tipus = informe.Tipus();
    Posar_Cap(tipus);
    const auto ompliment = Ompliment(tipus, false);
    for (const char* paper : {"PREU_UNITARI", "DTE", "TOTAL_IMPORT"}) {
      const bool hi_es = !informe.Linia_De(paper).empty();
      EXPECT_EQ(Amagat(ompliment, "TXT_" + informe.taula.Columna(paper)), hi_es) << paper;
    }
    EXPECT_FALSE(Amagat(ompliment, "TXT_" + informe.taula.Columna("UNITATS")));
    EXPECT_EQ(Text_Impres(ompliment, "L_NETO_IMP"), "0,00");
    EXPECT_EQ(Text_Impres(ompliment, "L_BASE_4"), "");
    EXPECT_EQ(Text_Impres(ompliment, "L_IMPORT_TOTAL_IMP"), "0,00");
  }
}

TEST_F(M_Impressio, AKindThatIsNotPrintedIsAnError) {
  EXPECT_EQ(Error_De([] { Informe_De(tipus_albmag); }).Numero(), errors::general);
}
