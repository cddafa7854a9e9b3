#include "payments/M_Pagaments.h"

#include "tests/regles/Base.h"

using M_Pagaments = Base_Dades;

TEST_F(M_Pagaments, a_document_holds_those_of_its_kind_number_and_company) {
  Posar_Pagament("A", 7);
  EXPECT_TRUE(Tenir_Pagaments("A", 7));
  EXPECT_FALSE(Tenir_Pagaments("P", 7));
  EXPECT_FALSE(Tenir_Pagaments("A", 8));
  sessio.Empresa_Actual = "C1";
  EXPECT_FALSE(Tenir_Pagaments("A", 7));
}

TEST_F(M_Pagaments, the_total_of_a_document_is_the_sum_of_its_payments_refunds_taken_off) {
  EXPECT_EQ(Total_Pagaments_Document("A", 7), 0);
  Posar_Pagament("A", 7);
  Posar_Pagament("A", 7);
  Posar_Pagament("A", 8);
  Executar("INSERT INTO PAGAMENTS (DOCUMENT_PAG, NUMALB_PAG, EMPRESA_PAG, IMPORT_PAG) VALUES('A', 7, '" +
           empresa_prova + "', -2.5)");
  EXPECT_EQ(Total_Pagaments_Document("A", 7), 17.5);
}

TEST_F(M_Pagaments, are_asked_for_by_company_document_and_number) {
  const std::string d = " FROM PAGAMENTS WHERE EMPRESA_PAG = 'B00000000' AND DOCUMENT_PAG = 'A' AND NUMALB_PAG = 7";
  EXPECT_EQ(SQL_Pagaments_Document("A", 7),
            "SELECT ID_PAG, DOCUMENT_PAG, NUMALB_PAG, EMPRESA_PAG, CLIENT_PAG, PAGAMENT_PAG, DATA_PAG, IMPORT_PAG" + d +
                " ORDER BY DATA_PAG, ID_PAG");
  EXPECT_EQ(SQL_Total_Pagaments("A", 7), "SELECT SUM(IMPORT_PAG) AS IMPORT" + d);
}

TEST_F(M_Pagaments, they_are_shown_by_date_and_within_a_date_by_code) {
  for (const char* data : {"#3/2/2026#", "#3/1/2026#", "#3/1/2026#"})
    Executar("INSERT INTO PAGAMENTS (DOCUMENT_PAG, NUMALB_PAG, EMPRESA_PAG, DATA_PAG) VALUES('A', 7, '" +
             empresa_prova + "', " + data + ")");
  std::vector<std::int64_t> codis;
  for (Recordset rs(SQL_Pagaments_Document("A", 7), sessio.Connexio_Comuna); !rs.Eof(); rs.MoveNext())
    codis.push_back(rs["ID_PAG"].Enter());
  ASSERT_EQ(codis.size(), 3U);
  EXPECT_LT(codis[0], codis[1]);  // the same day
  EXPECT_LT(codis[2], codis[0]);  // written first, paid last
}

TEST_F(M_Pagaments, the_total_exactly_is_no_excess_and_one_cent_more_is) {
  EXPECT_FALSE(Supera_El_Total(0.1, 0.2, 0.3));
  EXPECT_TRUE(Supera_El_Total(0.11, 0.2, 0.3));
  EXPECT_FALSE(Supera_El_Total(-5, 0.3, 0.3));
}

TEST_F(M_Pagaments, one_is_deleted_when_the_user_says_so) {
  Posar_Pagament("A", 7);
  const std::int64_t id = Llegir("SELECT ID_PAG FROM PAGAMENTS").Enter();
  pantalla.respostes = {Resposta::Cancel, Resposta::Ok};
  EXPECT_FALSE(Esborrar_Pagament(id));
  EXPECT_TRUE(Tenir_Pagaments("A", 7));
  EXPECT_TRUE(Esborrar_Pagament(id));
  EXPECT_FALSE(Tenir_Pagaments("A", 7));
  EXPECT_EQ(pantalla.caixes[0], (Caixa_Vista{"Segur d'esborrar el pagament " + std::to_string(id) + " ?",
                                             estil::ok_cancel + estil::pregunta, "Brollador"}));
}
