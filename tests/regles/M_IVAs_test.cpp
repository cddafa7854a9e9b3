#include "masters/M_IVAs.h"

#include "tests/regles/Base.h"

using M_IVAs = Base_Dades;

TEST_F(M_IVAs, a_type_is_found_by_its_code) {
  const Tipus_IVA tipus = Dades_IVA("RD");
  EXPECT_EQ(tipus.codi, Valor("RD"));
  EXPECT_EQ(tipus.descripcio, Valor("Reduït"));
  EXPECT_EQ(tipus.porc_iva.Doble(), 10);
  EXPECT_EQ(tipus.porc_re.Doble(), 1.4);
}

TEST_F(M_IVAs, a_type_is_found_by_its_percentage) {
  EXPECT_EQ(Dades_IVA_Percentatge(21).codi, Valor("GN"));
  EXPECT_EQ(Codi_IVA_Percentatge(0), "EX");
}

TEST_F(M_IVAs, what_does_not_exist_is_empty) {
  EXPECT_TRUE(Dades_IVA("ZZ").porc_iva.Es_Nul());
  EXPECT_TRUE(Dades_IVA_Percentatge(33).codi.Es_Nul());
  EXPECT_EQ(Codi_IVA_Percentatge(33), "");
}

TEST_F(M_IVAs, of_two_types_at_one_percentage_the_first_code_counts) {
  Executar("INSERT INTO IVAS (CODI_IVA, DESC_IVA, PORC_IVA, RE_IVA) VALUES('AA', 'Un altre', 21, 0)");
  EXPECT_EQ(Codi_IVA_Percentatge(21), "AA");
  EXPECT_EQ(Dades_IVA_Percentatge(21).codi, Valor("AA"));
}

TEST_F(M_IVAs, a_percentage_with_decimals_is_a_faulty_statement) {
  EXPECT_EQ(Error_De([] { Dades_IVA_Percentatge(7.5); }).Numero(), errors::sentencia);
  EXPECT_EQ(Error_De([] { Codi_IVA_Percentatge(7.5); }).Numero(), errors::sentencia);
}
