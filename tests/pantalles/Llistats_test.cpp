// The pages of the listings: what they repeat, what they add up, and where everything stands.
#include "output/DR_Llistat.h"
#include "sales/M_Consultes_Venda.h"
#include "tests/pantalles/Base_Informe.h"

namespace {

class Llistats : public Base_Pantalles {
 protected:
  // Invoices of a base of `base` euros, all of one customer, with a foot each.
  static void Posar_Factures(int quantes, double base) {
    Transaccio transaccio(sessio.Connexio_Comuna);
    for (int i = 1; i <= quantes; ++i) {
      sessio.Connexio_Comuna.Afegir_Fila("FACTURACAP", {{"NUMALB_FC", i},
                                                        {"EMPRESA_FC", "B00000000"},
                                                        {"DATA_FC", Data_Hora{2011, 3, 1 + i % 28}},
                                                        {"CLIENT_DESC_FC", "Serralleria Puig i Fills"}});
      sessio.Connexio_Comuna.Afegir_Fila("FACTURAPEU", {{"NUMALB_FP", i},
                                                        {"EMPRESA_FP", "B00000000"},
                                                        {"PORC_IVA_FP", 21.0},
                                                        {"BASE_FP", base},
                                                        {"IVA_FP", base * 0.21},
                                                        {"IMPORT_FP", base * 1.21}});
    }
    transaccio.Confirmar();
  }
  static Pagines Llibre(const Valors_Cerca& valors = {}) {
    return Pagines_De_Llistat(llistat_factures, Consulta_Llistat_Factures(valors), valors);
  }
};

const Valors_Cerca criteris = {
    {"TXT_FACTURA", {.text = "1", .text_y = "5000"}},
    {"DT_DATA", {.data = Data_Hora{2011, 3, 1}, .data_y = {}}},
    {"TXT_IMPORT", {.text = "0,00", .text_y = "0,00"}},
};

}  // namespace

TEST_F(Llistats, Every_page_repeats_the_head_with_the_criteria_and_the_titles) {
  Posar_Factures(200, 100);
  const Pagines fetes = Llibre(criteris);
  ASSERT_GT(fetes.pagines.size(), 3U);
  EXPECT_EQ(fetes.titol, u"Llibre de factures"_qs);
  int files = 0;
  for (std::size_t i = 0; i < fetes.pagines.size(); ++i) {
    const QStringList paraules = Paraules(fetes.pagines[i]);
    for (const char16_t* text : {u"Empresa de prova", u"Llibre de factures", u"Factura entre", u"1", u"5000",
                                 u"Data entre", u"01/03/2011", u"Client", u"Import entre", u"Factura", u"Base", u"RE"})
      EXPECT_TRUE(paraules.contains(QString::fromUtf16(text))) << QString::fromUtf16(text).toStdString();
    EXPECT_TRUE(paraules.contains(u"%1/%2"_qs.arg(i + 1).arg(fetes.pagines.size())));
    files += static_cast<int>(paraules.count(u"Serralleria Puig i Fills"_qs));
    EXPECT_EQ(paraules.contains(u"Totals"_qs), i + 1 == fetes.pagines.size());
  }
  EXPECT_EQ(files, 200);
}

TEST_F(Llistats, The_totals_are_exact_to_the_cent_and_stand_under_their_columns) {
  Posar_Factures(1000, 0.1);
  const Pagines fetes = Llibre();
  const Pagina& ultima = fetes.pagines.back();
  const auto dreta = [](const Text_Posat& text) { return text.base.x() + Amplada_De(text); };
  EXPECT_NEAR(dreta(Text_De(ultima, u"100,00"_qs)), dreta(Text_De(ultima, u"Base"_qs)), 2);
  EXPECT_NEAR(dreta(Text_De(ultima, u"121,00"_qs)), dreta(Text_De(ultima, u"Total"_qs)), 2);
  EXPECT_NEAR(dreta(Text_De(ultima, u"21,00"_qs)), dreta(Text_De(ultima, u"IVA"_qs)), 2);
}

TEST_F(Llistats, Zeros_are_blank_and_nothing_found_prints_nothing) {
  Posar_Factures(1, 10);
  EXPECT_FALSE(Paraules(Llibre().pagines.front()).contains(u"0,00"_qs)) << "no surcharge";
  EXPECT_TRUE(Llibre({{"TXT_FACTURA", {.text = "7", .text_y = "9"}}}).pagines.empty());
}

TEST_F(Llistats, A_name_that_is_too_long_stays_in_its_column) {
  Posar_Factures(1, 10);
  sessio.Connexio_Comuna.Execute("UPDATE FACTURACAP SET CLIENT_DESC_FC = '" + std::string(200, 'M') + "'");
  const Pagina pagina = Llibre().pagines.front();
  for (const auto& text : Textos_De_Pagina(pagina)) {
    if (text.text.startsWith(u"MMM")) {
      EXPECT_LT(text.base.x() + Amplada_De(text), Text_De(pagina, u"10,00"_qs).base.x());
    }
  }
}
