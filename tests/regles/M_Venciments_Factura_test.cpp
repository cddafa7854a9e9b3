#include "masters/M_Venciments_Factura.h"

#include "tests/regles/Base.h"

class Venciments : public Base_Dades {
 protected:
  static std::array<std::string, 3> De(const std::string& dies, const std::string& terminis, int dia, double import,
                                       Data_Hora data = {2011, 1, 31}, const std::string& descripcio = "Tal") {
    Executar("DELETE * FROM CLIENTS");
    Executar("DELETE * FROM VENCIMENTS WHERE CODI_VEN = 'T'");
    Executar("INSERT INTO VENCIMENTS (CODI_VEN, DESCRIPCIO_VEN, DIES_VEN, TERMINIS_VEN) VALUES ('T', " +
             Text_SQL(descripcio) + ", " + dies + ", " + terminis + ")");
    Executar("INSERT INTO CLIENTS (NIF_CLI, VENCIMENT_CLI, DIA_PAG_CLI) VALUES ('B1', 'T', " + std::to_string(dia) +
             ")");
    return Venciments_Factura("B1", data, import);
  }
};

TEST_F(Venciments, step_from_the_last_one_and_not_from_the_invoice) {
  EXPECT_EQ(De("30", "2", 0, 100)[2], "28/02/2011 50 ; 28/03/2011 50 ; ");
}
TEST_F(Venciments, come_on_the_day_of_payment) {
  EXPECT_EQ(De("30", "1", 25, 100, {2011, 3, 15})[2], "25/04/2011 100 ; ");
  EXPECT_EQ(De("30", "1", 31, 100)[2], "31/03/2011 100 ; ");
}
TEST_F(Venciments, leave_the_lost_cents_to_the_last_one) {
  EXPECT_EQ(De("0", "3", 0, 100)[2], "31/01/2011 33,33 ; 31/01/2011 33,33 ; 31/01/2011 33,34 ; ");
}
TEST_F(Venciments, are_none_for_nothing_but_the_description_stays) {
  EXPECT_EQ(De("30", "2", 0, 0), (std::array<std::string, 3>{"", "Tal", ""}));
  EXPECT_EQ(De("30", "0", 0, 100), (std::array<std::string, 3>{"", "Tal", ""}));
  EXPECT_EQ(De("30", "2", 0, -5)[2], "");
}
TEST_F(Venciments, called_NO_in_any_case_have_no_description) {
  EXPECT_EQ(De("0", "0", 0, 100, {2011, 1, 1}, "no")[1], "");
  EXPECT_EQ(De("0", "0", 0, 100, {2011, 1, 1}, "Nou")[1], "Nou");
}
TEST_F(Venciments, of_45_days_count_days) {
  EXPECT_EQ(De("45", "1", 0, 10)[2], "17/03/2011 10 ; ");
}
TEST_F(Venciments, do_not_look_for_ever_for_a_day_that_no_month_has) {
  EXPECT_EQ(De("30", "1", 40, 10)[2], "28/02/2011 10 ; ");
}
TEST_F(Venciments, of_nobody_are_those_of_the_code_0) {
  EXPECT_EQ(Venciments_Factura("?", {2011, 1, 1}, 10), (std::array<std::string, 3>{"", "", ""}));
}
