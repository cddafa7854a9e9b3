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
