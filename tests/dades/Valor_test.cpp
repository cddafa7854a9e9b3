#include "core/dades/Valor.h"

#include "core/dades/Dates.h"
#include "tests/dades/Base_Dades.h"

TEST(Valors, A_boolean_is_minus_one_or_zero) {
  EXPECT_EQ(Valor(true), Valor(-1));
  EXPECT_EQ(Valor(false), Valor(0));
  EXPECT_TRUE(Valor("true").Boolea());
  EXPECT_FALSE(Valor("FALSE").Boolea());
  EXPECT_TRUE(Valor("0,5").Boolea());
  EXPECT_EQ(Numero_Error([] { (void)Valor("Cert").Boolea(); }), errors::tipus);
}

TEST(Valors, A_null_is_no_number_and_shows_as_nothing) {
  EXPECT_EQ(Valor().Text(), "");
  EXPECT_EQ(Numero_Error([] { (void)Valor().Doble(); }), errors::tipus);
}

TEST(Valors, A_double_becomes_a_whole_number_by_its_even_neighbour) {
  EXPECT_EQ(Valor(2.5).Enter(), 2);
  EXPECT_EQ(Valor(3.5).Enter(), 4);
  EXPECT_EQ(Numero_Error([] { (void)Valor(1e30).Enter(); }), errors::desbordament);
}

TEST(Dates, Days_out_of_range_roll_over) {
  EXPECT_EQ(Data_Serial(2011, 2, 29), (Data_Hora{.any = 2011, .mes = 3, .dia = 1}));
  EXPECT_EQ(Data_Serial(2011, 14, 0), (Data_Hora{.any = 2012, .mes = 1, .dia = 31}));
  EXPECT_EQ(Data_Serial(2011, 0, 1), (Data_Hora{.any = 2010, .mes = 12, .dia = 1}));
}

TEST(Dates, The_stored_form_is_read_back) {
  const Data_Hora amb_hora{.any = 2026, .mes = 11, .dia = 20, .hora = 7, .minut = 8, .segon = 9};
  EXPECT_EQ(Data_Desada(amb_hora), "2026-11-20 07:08:09");
  EXPECT_EQ(Llegir_Data_Desada("2026-11-20 07:08:09"), amb_hora);
  EXPECT_FALSE(Llegir_Data_Desada("2026-02-30"));
  EXPECT_FALSE(Llegir_Data_Desada("not a date"));
}

TEST(Errors, The_words_of_our_own_errors_are_in_the_language_of_the_session) {
  Posar_Idioma_Errors(2);
  EXPECT_EQ(Descripcio_Error(errors::divisio_per_zero), "Division by zero");
  Posar_Idioma_Errors(1);
  EXPECT_EQ(Descripcio_Error(errors::divisio_per_zero), "División por cero");
  Posar_Idioma_Errors(0);
  EXPECT_EQ(Descripcio_Error(errors::divisio_per_zero), "Divisió per zero");
}
