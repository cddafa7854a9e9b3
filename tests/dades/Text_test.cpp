#include "core/dades/Text.h"

#include <gtest/gtest.h>

TEST(Plegar, Folds_the_letters_of_every_alphabet) {
  EXPECT_EQ(Plegar("ADREÇA_CLI"), "adreça_cli");
  EXPECT_EQ(Plegar("ÀÉÏÖÑ ŠŽ ΩΣ ЖЯ"), "àéïöñ šž ωσ жя");
}

TEST(Iguals_Plegats, Ignores_case_but_not_accents) {
  EXPECT_TRUE(Iguals_Plegats("Façana", "FAÇANA"));
  EXPECT_FALSE(Iguals_Plegats("Façana", "Facana"));
  EXPECT_FALSE(Iguals_Plegats("à", "a"));
}

TEST(Comparar_Plegats, Survives_bytes_that_are_no_text) {
  EXPECT_NE(Comparar_Plegats("\xFF", "\xC3"), 0);
  EXPECT_EQ(Plegar("a\xFFZ"), "a\xFFz");
}

TEST(Coincideix, Takes_percent_and_underscore_without_case) {
  EXPECT_TRUE(Coincideix("%ÀVI%", "Casa l'àvia"));
  EXPECT_TRUE(Coincideix("a_c", "aÇc"));
  EXPECT_TRUE(Coincideix("%ab%ab", "abXabYab"));
  EXPECT_FALSE(Coincideix("a%", "ba"));
  EXPECT_TRUE(Coincideix("%", ""));
  EXPECT_FALSE(Coincideix("_", ""));
}

TEST(Coincideix, Takes_every_other_character_as_itself) {
  EXPECT_TRUE(Coincideix("%[a-c]%", "x[A-C]y"));
  EXPECT_FALSE(Coincideix("%[a-c]%", "xby"));
  EXPECT_FALSE(Coincideix("a*", "abc"));
  EXPECT_TRUE(Coincideix("n#1%", "N#1 bis"));
}

TEST(Comparar_Catala, Puts_accents_beside_their_letter) {
  EXPECT_LT(Comparar_Catala("Àlvarez", "Alzina"), 0);
  EXPECT_GT(Comparar_Catala("Àlvarez", "Alvarez"), 0);
  EXPECT_LT(Comparar_Catala("coça", "coda"), 0);
}
