// A form on paper: what stands on its pages.
#include "shell/Imprimir_Formulari.h"

#include "output/informe/Informe.h"
#include "output/informe/Treballs.h"
#include "tests/pantalles/Formularis_De_Prova.h"

namespace {

const std::vector<Columna_Graella> columnes = {{"CODI_VEN", 1500, "Codi"},
                                               {"DESCRIPCIO_VEN", 4000, "Descripció"},
                                               {"DIES_VEN", 1000, "Dies", true, "0.00"},
                                               {"FP_VEN", 0, "Amagada"}};

QStringList Textos(const Pagina& pagina) {
  QStringList textos;
  for (const auto& element : pagina) {
    if (const auto* text = std::get_if<Text_Posat>(&element)) textos << text->text;
  }
  return textos;
}

}  // namespace

class Imprimir_Un_Formulari : public Amb_Principal {
 protected:
  Imprimir_Un_Formulari() {
    Registrar_Llista("F_VENCIMENTSM", "SELECT * FROM VENCIMENTS ORDER BY CODI_VEN", columnes);
    Fixar_Carpeta_Treballs(QString::fromStdString(installacio.Dir_Dades()));
  }
  ~Imprimir_Un_Formulari() override { Fixar_Carpeta_Treballs({}); }
  void Posar_Venciments(int quants) {
    for (int i = 0; i < quants; ++i) {
      Executar("INSERT INTO VENCIMENTS (CODI_VEN, DESCRIPCIO_VEN, DIES_VEN) VALUES ('V" + std::to_string(1000 + i) +
               "', 'Venciment " + std::to_string(i) + "', " + std::to_string(i) + ")");
    }
  }
};

TEST_F(Imprimir_Un_Formulari, All_the_rows_on_as_many_pages_as_they_take_each_with_its_titles) {
  Posar_Venciments(150);
  const Pagines pagines = Pagines_De_Formulari(*Obrir_I_Tenir("F_VENCIMENTSM"));
  ASSERT_GT(pagines.pagines.size(), 2U);
  EXPECT_EQ(pagines.titol, QStringLiteral("F_VENCIMENTSM"));
  QStringList tots;
  for (std::size_t i = 0; i < pagines.pagines.size(); ++i) {
    const QStringList textos = Textos(pagines.pagines[i]);
    for (const char* titol : {"F_VENCIMENTSM", "Codi", "Descripció", "Dies"}) {
      EXPECT_EQ(textos.count(QString::fromUtf8(titol)), 1) << titol;
    }
    EXPECT_TRUE(textos.contains(QStringLiteral("%1/%2").arg(i + 1).arg(pagines.pagines.size())));
    tots << textos;
  }
  EXPECT_EQ(tots.filter(QStringLiteral("Venciment ")).size(), 150);
  EXPECT_TRUE(tots.contains(QStringLiteral("149,00")));
  EXPECT_FALSE(tots.contains(QStringLiteral("Amagada")));
}

TEST_F(Imprimir_Un_Formulari, Black_on_white_and_inside_the_paper) {
  const Pagines pagines = Pagines_De_Formulari(*Obrir_I_Tenir("F_VENCIMENTSM"));
  EXPECT_FALSE(pagines.apaisades);
  for (const auto& element : pagines.pagines.at(0)) {
    if (const auto* text = std::get_if<Text_Posat>(&element)) {
      EXPECT_EQ(text->tinta, QColor(Qt::black));
      EXPECT_LE(text->base.x() + Amplada(text->text, text->lletra), paper::amplada - paper::marge + 1);
    } else if (const auto* ratlla = std::get_if<Ratlla_Posada>(&element)) {
      EXPECT_EQ(ratlla->tinta, QColor(Qt::black));
    }
  }
}

TEST_F(Imprimir_Un_Formulari, A_wide_grid_lies_on_its_side_and_still_fits) {
  auto* llista = Obrir_I_Tenir<Llista_De_Prova>("F_VENCIMENTSM");
  llista->Graella_Llista()->setColumnWidth(1, 2000);
  const Pagines pagines = Pagines_De_Formulari(*llista);
  EXPECT_TRUE(pagines.apaisades);
  for (const auto& element : pagines.pagines.at(0)) {
    if (const auto* ratlla = std::get_if<Ratlla_Posada>(&element)) {
      EXPECT_LE(ratlla->lloc.right(), paper::alcada - paper::marge + 1);
    }
  }
}

TEST_F(Imprimir_Un_Formulari, Two_grids_come_one_after_the_other) {
  auto* formulari = Obrir_I_Tenir<Llista_De_Prova>("F_VENCIMENTSM");
  auto* segona = new Graella(formulari);
  segona->setObjectName(QStringLiteral("G_Segona"));
  segona->Columnes({{"CP_CP", 2000, "Codi postal"}});
  Recordset rs("SELECT CP_CP FROM CP ORDER BY CP_CP", sessio.Connexio_Comuna);
  segona->Lligar(&rs);
  const QStringList textos = Textos(Pagines_De_Formulari(*formulari).pagines.at(0));
  EXPECT_LT(textos.indexOf(QStringLiteral("30 i 60 dies")), textos.indexOf(QStringLiteral("Codi postal")));
  EXPECT_TRUE(textos.contains(QStringLiteral("17001")));
  segona->Lligar(nullptr);
}

TEST_F(Imprimir_Un_Formulari, Ticks_are_printed_whether_or_not_the_grid_may_be_changed) {
  Executar(
      "INSERT INTO FORMES_PAGAMENT (ID_FP, DESCRIPCIO_FP, REBUT_FP, COMPTE_CLI_FP) VALUES('ZZ', 'Amb rebut', -1, 0)");
  Registrar_Llista("F_FORMESPAGAMENTM", "SELECT * FROM FORMES_PAGAMENT WHERE ID_FP = 'ZZ'",
                   {{"DESCRIPCIO_FP", 2000, "Descripció"},
                    {.camp = "REBUT_FP", .amplada = 1200, .titol = "Rebut", .casella = true},
                    {.camp = "COMPTE_CLI_FP", .amplada = 1200, .titol = "Compte", .casella = true}});
  auto* llista = Obrir_I_Tenir<Llista_De_Prova>("F_FORMESPAGAMENTM");
  const auto marques = [&] { return Textos(Pagines_De_Formulari(*llista).pagines.at(0)).count(u"✓"_qs); };
  EXPECT_EQ(marques(), 1);
  llista->Graella_Llista()->Permetre_Canvis(true);
  EXPECT_EQ(marques(), 1);
}

TEST_F(Imprimir_Un_Formulari, Without_a_grid_its_image_is_printed) {
  Registrar("F_HELP");
  Obrir_I_Tenir<Formulari_De_Prova>("F_HELP")->Posar<QLineEdit>("TXT_EMAIL");
  const Pagina pagina = Pagines_De_Formulari(*Obert("F_HELP")).pagines.at(0);
  const auto imatges = std::count_if(pagina.begin(), pagina.end(),
                                     [](const Element& e) { return std::holds_alternative<Imatge_Posada>(e); });
  EXPECT_EQ(imatges, 1);
}

TEST_F(Imprimir_Un_Formulari, What_cannot_be_printed_says_so_in_the_systems_words) {
  Fixar_Carpeta_Treballs(QStringLiteral("/proc/no/hi/es"));
  Imprimir_Formulari(Obrir_I_Tenir("F_VENCIMENTSM"));
  Imprimir_Formulari(nullptr);
  const Caixa_Vista caixa{"No Puc !!!!!", estil::simple, "Brollador"};
  EXPECT_EQ(installacio.pantalla.caixes, (std::vector<Caixa_Vista>{caixa, caixa}));
}
