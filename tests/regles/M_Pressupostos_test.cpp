#include "sales/M_Pressupostos.h"

#include "documents/M_Linies_Document.h"
#include "sales/M_Tipus_Venda.h"
#include "tests/regles/Base.h"

class M_Pressupostos : public Base_Dades {
 protected:
  void SetUp() override {
    Executar("INSERT INTO PRESSUPOSTCAP (NUMALB_PC, EMPRESA_PC) VALUES(5, '" + empresa_prova + "')");
    Posar_Article({.codi = "A1"});
    pantalla.documents["F_PRESSUPOST"] = &formulari;
  }
  static void Posar_Linia(int linia, bool acceptada) {
    Executar("INSERT INTO PRESSUPOSTLIN (NUMALB_PL, EMPRESA_PL, LIN_PL, ARTICLE_PL, ESTAT_PL, COMANDA_PL) VALUES(5, '" +
             empresa_prova + "', " + std::to_string(linia) + ", 'A1', " + (acceptada ? "-1, 3" : "0, 0") + ")");
  }
  bool Esborrar(std::int16_t linia) {
    pantalla.respostes.push_back(Resposta::Ok);
    Transaccio transaccio(sessio.Connexio_Comuna);
    const bool esborrada = Esborrar_Linia_Pressupost(5, empresa_prova, linia, "A1");
    transaccio.Confirmar();
    return esborrada;
  }
  Document_Fals formulari;
};

TEST_F(M_Pressupostos, the_form_alone_takes_the_state) {
  Actualitzar_Estat_Pressupost(5, empresa_prova);
  EXPECT_EQ(formulari.estat, false) << "without lines";
  Posar_Linia(1, true);
  Actualitzar_Estat_Pressupost(5, empresa_prova);
  EXPECT_EQ(formulari.estat, true);
  Posar_Linia(2, false);
  Actualitzar_Estat_Pressupost(5, empresa_prova);
  EXPECT_EQ(formulari.estat, false);
  EXPECT_EQ(Llegir("SELECT ESTAT_PC FROM PRESSUPOSTCAP").Enter(), 0);
}

TEST_F(M_Pressupostos, is_locked_by_its_state_or_by_an_accepted_line) {
  Posar_Linia(1, false);
  EXPECT_EQ(Estat_Bloqueig_Pressupost(5, empresa_prova), 0);
  Posar_Linia(2, true);
  EXPECT_EQ(Estat_Bloqueig_Pressupost(5, empresa_prova), 1);
  Executar("UPDATE PRESSUPOSTCAP SET ESTAT_PC = -1");
  EXPECT_EQ(Estat_Bloqueig_Pressupost(5, empresa_prova), 2);
  EXPECT_EQ(Estat_Bloqueig_Pressupost(6, empresa_prova), 0);
}

TEST_F(M_Pressupostos, an_accepted_line_stays_in_silence_and_an_open_one_goes) {
  Posar_Linia(1, false);
  Posar_Linia(2, true);
  EXPECT_TRUE(Esborrar(2));
  EXPECT_EQ(pantalla.caixes.size(), 1U);
  EXPECT_EQ(Comptar_Linies(tipus_pressupost, 5, empresa_prova), 2);
  EXPECT_TRUE(Esborrar(1));
  EXPECT_EQ(Comptar_Linies(tipus_pressupost, 5, empresa_prova), 1);
}

TEST_F(M_Pressupostos, the_state_of_a_line_is_that_of_its_row) {
  Posar_Linia(1, false);
  Posar_Linia(2, true);
  EXPECT_FALSE(Estat_Linia_Pressupost(5, empresa_prova, 1));
  EXPECT_TRUE(Estat_Linia_Pressupost(5, empresa_prova, 2));
  EXPECT_FALSE(Estat_Linia_Pressupost(5, empresa_prova, 9));
}

TEST_F(M_Pressupostos, a_new_line_is_open_and_opens_the_proposal_on_the_form) {
  Recordset linies(SQL_Linies(tipus_pressupost, 5, empresa_prova), sessio.Connexio_Comuna, Bloqueig::Optimista);
  Linia_Entrada linia;
  linia.article = "A1";
  linia.iva_article = "GN";
  linia.unitats = 2;
  linia.preu_unitari = 10;
  Transaccio transaccio(sessio.Connexio_Comuna);
  Afegir_Linia(tipus_pressupost, {.numero = 5, .empresa = empresa_prova, .iva = true, .re = false}, linia, linies,
               formulari);
  transaccio.Confirmar();
  EXPECT_EQ(formulari.estat, false);
  EXPECT_EQ(formulari.import, 24.2);
  EXPECT_EQ(Numero("SELECT IMPORT_NET_PL FROM PRESSUPOSTLIN WHERE ESTAT_PL = 0 AND COMANDA_PL = 0"), 20);
  EXPECT_EQ(Moviments(), 0);
}
