#include "core/dades/Nombre_Escrit.h"

#include <gtest/gtest.h>

#include "core/dades/Numeros.h"

namespace {

struct Cas {
  const char* text;
  double valor;
};

constexpr Cas casos[] = {
    // signs
    {"3", 3},
    {"+3", 3},
    {"-3", -3},
    {"- 3", -3},
    {"\u22123,5", -3.5},
    {"\u20133,5", -3.5},
    {"-0", 0},
    // decimals
    {"12,5", 12.5},
    {"12.5", 12.5},
    {",5", 0.5},
    {".5", 0.5},
    {"12,", 12},
    {"0,125", 0.125},
    {"0.125", 0.125},
    {"-0.125", -0.125},
    {"1234.567", 1234.567},
    {"12.50", 12.5},
    {"12.5000", 12.5},
    {"1E3", 1000},
    {"-1,5e-2", -0.015},
    // thousands
    {"1.234", 1234},
    {"-1.234", -1234},
    {"1,234", 1.234},
    {"1.234,50", 1234.5},
    {"1,234.50", 1234.5},
    {"1.234.567", 1234567},
    {"1,234,567", 1234567},
    {"1.234.567,89", 1234567.89},
    {"1,234,567.89", 1234567.89},
    {"1 234,50", 1234.5},
    {"1 234 567", 1234567},
    {"1\u00A0234,50", 1234.5},
    {"1\u202F234.50", 1234.5},
    {"1'234.50", 1234.5},
    // what stands around it
    {"1.234,50 €", 1234.5},
    {"1.234,50€", 1234.5},
    {"1.234,50\u00A0€", 1234.5},
    {"€1,234.50", 1234.5},
    {"€ -3", -3},
    {"-€3", -3},
    {"-3 €", -3},
    {"12,5 EUR", 12.5},
    {"1,5%", 1.5},
    {"1,5 %", 1.5},
    {" 7\t", 7},
    {"7\r\n", 7},
};

constexpr const char* dolents[] = {
    "",          " ",         "-",   "+",     "--3",      "+-3",       "3-",          "€",         "%",       "12a",
    "a12",       "dotze",     ",",   ".",     "1,2,3",    "1.2.3",     "1.23.45",     "12.34,5",   "1.2.3,4", "1,5,3",
    "1.234,5,6", "1,234.5.6", "1 2", "12 34", "1 234 56", "1.234 567", "1 234.567,8", "0.123.456", "1e",      "1e400",
    "0x10",      "INF",       "NAN", "1/2",   "5 € 3",    "1,5%%",     "€ €",         "٣",
};

}  // namespace

TEST(Nombre_Escrit, Reads_what_people_type_and_paste) {
  for (const Cas& cas : casos) {
    const auto llegit = Nombre_Escrit(cas.text);
    ASSERT_TRUE(llegit) << cas.text;
    EXPECT_EQ(*llegit, cas.valor) << cas.text;
  }
}

TEST(Nombre_Escrit, Refuses_what_is_no_number) {
  for (const char* text : dolents) EXPECT_FALSE(Nombre_Escrit(text)) << text;
}

TEST(Nombre_Escrit, Reads_back_what_a_field_shows) {
  for (const double valor : {0.0, 0.05, -0.5, 1.0, 999.99, 1000.0, -1234.5, 1234567.89, 99999999.12345}) {
    for (const char* mascara : {"#,##0.00", "#,##0.000", "#,##0.00000", "0.00", "#,##0", ""}) {
      const std::string text = Format_Numero(valor, mascara);
      EXPECT_EQ(Nombre_Escrit(text), Numero_De_Text(text)) << text;
    }
  }
}
