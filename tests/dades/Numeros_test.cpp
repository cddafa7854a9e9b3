#include "core/dades/Numeros.h"

#include <gtest/gtest.h>

TEST(Text_Numero, Has_a_decimal_comma_and_at_most_fifteen_digits) {
  EXPECT_EQ(Text_Numero(0.5), "0,5");
  EXPECT_EQ(Text_Numero(-1234.25), "-1234,25");
  EXPECT_EQ(Text_Numero(100.99999999999999), "101");
  EXPECT_EQ(Text_Numero(1.0 / 3), "0,333333333333333");
  EXPECT_EQ(Text_Numero(0), "0");
  EXPECT_EQ(Text_Numero(-0.0), "0");
}

TEST(Text_Numero, Takes_an_exponent_from_a_thousand_billions_on) {
  EXPECT_EQ(Text_Numero(999999999999999.0), "999999999999999");
  EXPECT_EQ(Text_Numero(1e15), "1E+15");
  EXPECT_EQ(Text_Numero(1.5e20), "1,5E+20");
}

TEST(Numero_De_Text, Reads_what_the_screen_shows) {
  EXPECT_EQ(Numero_De_Text("12,5"), 12.5);
  EXPECT_EQ(Numero_De_Text(" -1.234.567,89 "), -1234567.89);
  EXPECT_EQ(Numero_De_Text(",5"), 0.5);
  EXPECT_EQ(Numero_De_Text("1E3"), 1000);
}

TEST(Numero_De_Text, Refuses_what_is_no_number) {
  for (const char* text : {"", "-", "12a", "12.5", "1.23.456", "1,2,3", "1e", "0x10", "INF", ".5"}) {
    EXPECT_FALSE(Numero_De_Text(text)) << text;
  }
}

TEST(Numero_SQL, Has_a_point_and_gives_the_same_double_back) {
  EXPECT_EQ(Numero_SQL(2.5), "2.5");
  EXPECT_EQ(Numero_SQL(0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(Numero_SQL(-0.0), "0");
}

TEST(Format_Numero, Follows_its_mask_in_the_continental_way) {
  EXPECT_EQ(Format_Numero(1234567.891, "#,##0.00"), "1.234.567,89");
  EXPECT_EQ(Format_Numero(1234.5, "0.00"), "1234,50");
  EXPECT_EQ(Format_Numero(12.3456789, "#,##0.00000"), "12,34568");
  EXPECT_EQ(Format_Numero(-0.004, "#,##0.00"), "0,00");
  EXPECT_EQ(Format_Numero(1.005, "#,##0.00"), "1,01");
  EXPECT_EQ(Format_Numero(999.995, "#,##0.00"), "1.000,00");
}

TEST(Format_Numero, Prints_zero_as_a_blank_where_the_mask_says_so) {
  EXPECT_EQ(Format_Numero(0, "#,##0.00;; "), " ");
  EXPECT_EQ(Format_Numero(3, "#,##0.00;; "), "3,00");
  EXPECT_EQ(Format_Numero(-3, "#,##0.00;; "), "-3,00");
}

TEST(Arrodonir_Parell, Sends_halves_to_the_even_digit_of_the_decimal_form) {
  EXPECT_EQ(Arrodonir_Parell(0.125, 2), 0.12);
  EXPECT_EQ(Arrodonir_Parell(2.675, 2), 2.68);
  EXPECT_EQ(Arrodonir_Parell(1.005, 2), 1.0);
  EXPECT_EQ(Arrodonir_Parell(-0.135, 2), -0.14);
  EXPECT_EQ(Arrodonir_Parell(0.5, 0), 0);
  EXPECT_EQ(Arrodonir_Parell(1.5, 0), 2);
}

TEST(Data_De_Text, Reads_days_of_the_calendar_only) {
  EXPECT_EQ(Data_De_Text("5/3/2011"), (Data_Hora{.any = 2011, .mes = 3, .dia = 5}));
  EXPECT_FALSE(Data_De_Text("29/02/2011"));
  EXPECT_FALSE(Data_De_Text("5-3-2011"));
  EXPECT_FALSE(Data_De_Text(""));
}

TEST(Text_Data, Shows_the_time_only_when_there_is_one) {
  EXPECT_EQ(Text_Data({.any = 2011, .mes = 3, .dia = 5}), "05/03/2011");
  EXPECT_EQ(Text_Data({.any = 2011, .mes = 3, .dia = 5, .hora = 9, .minut = 5, .segon = 1}), "05/03/2011 09:05:01");
}
