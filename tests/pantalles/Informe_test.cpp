// The report engine: pages, rows that grow, feet that follow them.
#include <QRegularExpression>

#include "core/dades/Error_Brollador.h"
#include "tests/pantalles/Base_Informe.h"

TEST_F(Informe_Prova, NoRowsGiveNoPages) {
  EXPECT_TRUE(Maquetar().empty());
}

TEST_F(Informe_Prova, RowsFillAPageAndGoOnOnTheNext) {
  Posar_Files(files_per_pagina + 2);
  const auto pagines = Maquetar();
  ASSERT_EQ(pagines.size(), 2U);
  EXPECT_TRUE(Paraules(pagines[0]).contains(u"fila 15"_qs));
  EXPECT_FALSE(Paraules(pagines[0]).contains(u"fila 16"_qs));
  EXPECT_TRUE(Paraules(pagines[1]).contains(u"fila 16"_qs));
}

TEST_F(Informe_Prova, HeaderAndCounterStandOnEveryPage) {
  Posar_Files(2 * files_per_pagina + 1);
  const auto pagines = Maquetar();
  ASSERT_EQ(pagines.size(), 3U);
  for (std::size_t i = 0; i < pagines.size(); ++i) {
    EXPECT_TRUE(Paraules(pagines[i]).contains(u"Títol"_qs));
    EXPECT_TRUE(Paraules(pagines[i]).contains(QString::number(i + 1) + u"/3"_qs));
  }
}

TEST_F(Informe_Prova, TheReportFooterStandsOnceAtTheBottomOfTheLastPage) {
  Posar_Files(files_per_pagina + 1);
  const auto pagines = Maquetar();
  EXPECT_FALSE(Paraules(pagines[0]).contains(u"Peu"_qs));
  const double dalt = paper::alcada - paper::marge - 400 - 3 * alcada_fila;
  EXPECT_NEAR(Text_De(pagines[1], u"Peu"_qs).base.y(), dalt + Base_De_Linia({}), 1);
}

TEST_F(Informe_Prova, AFooterThatDoesNotFitTakesTheLastRowAlong) {
  Posar_Files(files_per_pagina - 2);
  const auto pagines = Maquetar();
  ASSERT_EQ(pagines.size(), 2U);
  EXPECT_TRUE(Paraules(pagines[0]).contains(u"fila 12"_qs));
  EXPECT_FALSE(Paraules(pagines[0]).contains(u"fila 13"_qs));
  EXPECT_TRUE(Paraules(pagines[1]).contains(u"fila 13"_qs));
  EXPECT_TRUE(Paraules(pagines[1]).contains(u"Peu"_qs));
}

TEST_F(Informe_Prova, AFooterThatJustFitsStaysOnThePage) {
  Posar_Files(files_per_pagina - 3);
  EXPECT_EQ(Maquetar().size(), 1U);
}

TEST_F(Informe_Prova, ALongDescriptionWrapsAndPushesTheNextRowDown) {
  Posar_Fila("curta");
  Posar_Fila(descripcio_llarga.toStdString());
  Posar_Fila("darrera");
  const auto pagina = Maquetar().at(0);
  std::vector<Text_Posat> linies;
  for (const auto& text : Textos_De_Pagina(pagina)) {
    if (text.text.startsWith(u"paraula")) linies.push_back(text);
  }
  ASSERT_GT(linies.size(), 3U);
  int paraules = 0;
  for (const auto& linia : linies) {
    EXPECT_LE(Amplada_De(linia), 4000);
    paraules += static_cast<int>(linia.text.count(u"paraula"));
  }
  EXPECT_EQ(paraules, 60);
  EXPECT_GE(Text_De(pagina, u"darrera"_qs).base.y() - linies.back().base.y(), 200);
}

TEST_F(Informe_Prova, ARowThatDoesNotFitGoesWholeToTheNextPage) {
  Posar_Files(files_per_pagina - 1);
  Posar_Fila(descripcio_llarga.toStdString());
  const auto pagines = Maquetar();
  ASSERT_EQ(pagines.size(), 2U);
  EXPECT_EQ(Paraules(pagines[0]).filter(u"paraula"_qs).size(), 0);
}

TEST_F(Informe_Prova, ARowTallerThanAPageIsDividedAndLosesNothing) {
  Posar_Fila(descripcio_llarga.repeated(20).toStdString());
  const auto pagines = Maquetar();
  ASSERT_GT(pagines.size(), 1U);
  int paraules = 0;
  for (const auto& pagina : pagines) {
    for (const auto& text : Textos_De_Pagina(pagina)) {
      paraules += static_cast<int>(text.text.count(u"paraula"));
      EXPECT_LT(text.base.y(), paper::alcada - paper::marge);
    }
  }
  EXPECT_EQ(paraules, 20 * 60);
}

TEST_F(Informe_Prova, AWordLongerThanTheColumnIsBrokenInsideIt) {
  Posar_Fila(std::string(200, 'x'));
  const auto trossos = Paraules(Maquetar().at(0)).filter(u"xx"_qs);
  ASSERT_GT(trossos.size(), 1);
  EXPECT_EQ(trossos.join(QString()).size(), 200);
  for (const auto& tros : trossos) EXPECT_LE(Amplada(tros, Lletra({})), 4000);
}

TEST_F(Informe_Prova, ALabelTooLongGrowsSmallerAndThenIsCut) {
  Posar_Files(1);
  informe.Caption(u"L_TITOL"_qs, u"Construccions i Reformes del Vallès, S.L.U."_qs);
  const auto petit = Text_De(Maquetar().at(0), u"Construccions i Reformes del Vallès, S.L.U."_qs);
  EXPECT_LT(petit.lletra.pixelSize(), Lletra({}).pixelSize());
  EXPECT_LE(Amplada_De(petit), 3000);

  informe.Caption(u"L_TITOL"_qs, descripcio_llarga);
  const auto tallat = Paraules(Maquetar().at(0)).filter(u"…"_qs);
  ASSERT_EQ(tallat.size(), 1);
}

TEST_F(Informe_Prova, ALabelThatGrowsPushesWhatIsBelowAndTheRowsDown) {
  Definicio_Informe definicio = Informe_De_Prova();
  definicio.alcades[0] = 1000;
  Informe estret(definicio);
  Posar_Fila("fila");
  const auto pagina_amb = [&](const QString& nota) {
    estret.Caption(u"L_NOTA"_qs, nota);
    Recordset rs("SELECT * FROM ALBARALIN_VALORAT_IMPR", sessio.Connexio_Local);
    return estret.Maquetar(rs).at(0);
  };
  const auto abans = pagina_amb(u"una"_qs);
  const auto despres = pagina_amb(descripcio_llarga);
  const auto linies = Paraules(despres).filter(u"paraula"_qs);
  ASSERT_GT(linies.size(), 5);
  EXPECT_EQ(linies.join(u' ').count(u"paraula"_qs), 60);
  const double baixat = static_cast<double>(linies.size()) * Pas_De_Linia({}) - 230;
  for (const auto& sota : {u"Sota"_qs, u"fila"_qs}) {
    EXPECT_NEAR(Text_De(despres, sota).base.y() - Text_De(abans, sota).base.y(), baixat, 1) << sota.toStdString();
  }
  EXPECT_EQ(Text_De(despres, u"Peu"_qs).base.y(), Text_De(abans, u"Peu"_qs).base.y()) << "the foot stays at the bottom";
}

TEST_F(Informe_Prova, AnEmptyLabelThatMayGrowGivesItsPlaceBack) {
  Posar_Fila("fila");
  informe.Caption(u"L_NOTA"_qs, u"una"_qs);
  const double amb = Text_De(Maquetar().at(0), u"fila"_qs).base.y();
  informe.Caption(u"L_NOTA"_qs, QString());
  EXPECT_NEAR(amb - Text_De(Maquetar().at(0), u"fila"_qs).base.y(), 680 - 400, 1);
}

TEST_F(Informe_Prova, AHeaderNeverTakesTheWholePage) {
  Posar_Files(3);
  informe.Caption(u"L_NOTA"_qs, descripcio_llarga.repeated(100));
  const auto pagines = Maquetar();
  EXPECT_LE(pagines.size(), 3U);
  EXPECT_EQ(Paraules(pagines[0]).filter(u"…"_qs).size(), 1);
  EXPECT_TRUE(Paraules(pagines.back()).contains(u"Peu"_qs));
}

TEST_F(Informe_Prova, RowsEndAlsoOnPagesWithoutRoomForThem) {
  Definicio_Informe definicio = Informe_De_Prova();
  definicio.alcades[0] = paper::alcada;
  Posar_Files(3);
  Recordset rs("SELECT * FROM ALBARALIN_VALORAT_IMPR ORDER BY LIN_AL", sessio.Connexio_Local);
  const auto pagines = Informe(definicio).Maquetar(rs);
  ASSERT_GE(pagines.size(), 3U);
  EXPECT_TRUE(Paraules(pagines[0]).contains(u"fila 1"_qs));
  EXPECT_TRUE(Paraules(pagines[2]).contains(u"fila 3"_qs));
}

TEST_F(Informe_Prova, ASumIsWhatItsColumnComesToOverAllThePages) {
  for (int i = 0; i < 40; ++i) Posar_Fila("fila", 0.1);
  informe.Data_Format(u"SUMA_TOTAL_IMPORT_AL"_qs, "#,##0.00;; ");
  const auto pagines = Maquetar();
  EXPECT_TRUE(Paraules(pagines.back()).contains(u"4,00"_qs));
  EXPECT_FALSE(Paraules(pagines.front()).contains(u"4,00"_qs));
}

TEST_F(Informe_Prova, ASumOfNothingButRoundingIsZero) {
  for (const double import : {0.1, 0.2, -0.3}) Posar_Fila("fila", import);
  informe.Data_Format(u"TXT_TOTAL_IMPORT_AL"_qs, "0.0");
  informe.Data_Format(u"SUMA_TOTAL_IMPORT_AL"_qs, "#,##0.00;; ");
  EXPECT_TRUE(Paraules(Maquetar().at(0)).filter(u"0,00"_qs).isEmpty());
}

TEST_F(Informe_Prova, PaperAcrossIsWiderAndTheFootMayFollowTheRows) {
  Definicio_Informe definicio = Informe_De_Prova();
  definicio.alcades[0] = 1000;
  definicio.apaisat = true;
  definicio.peu_al_fons = false;
  Posar_Files(40);
  Recordset rs("SELECT * FROM ALBARALIN_VALORAT_IMPR ORDER BY LIN_AL", sessio.Connexio_Local);
  const auto pagines = Informe(definicio).Maquetar(rs);
  ASSERT_EQ(pagines.size(), 2U);
  for (const auto& pagina : pagines) {
    for (const auto& text : Textos_De_Pagina(pagina)) EXPECT_LT(text.base.y(), paper::amplada - paper::marge);
  }
  const double darrera = Text_De(pagines[1], u"fila 40"_qs).base.y();
  EXPECT_NEAR(Text_De(pagines[1], u"Peu"_qs).base.y() - darrera, alcada_fila, 1);
}

TEST_F(Informe_Prova, TitlesStandAboveTheRowsOfEveryPage) {
  Definicio_Informe definicio = Informe_De_Prova();
  definicio.alcades[static_cast<std::size_t>(Seccio::Titols)] = 300;
  definicio.controls.push_back(
      {u"L_COLUMNA"_qs, Seccio::Titols, Mena_Control::Etiqueta, {0, 0, 3000, 230}, {}, {}, {}, u"Columna"_qs});
  Posar_Files(2 * files_per_pagina);
  Recordset rs("SELECT * FROM ALBARALIN_VALORAT_IMPR ORDER BY LIN_AL", sessio.Connexio_Local);
  const auto pagines = Informe(definicio).Maquetar(rs);
  ASSERT_EQ(pagines.size(), 3U);
  for (const auto& pagina : pagines) EXPECT_EQ(Paraules(pagina).count(u"Columna"_qs), 1);
}

// Whatever the number of rows and the height of the last one: no row is lost, and the foot has lines above it.
TEST_F(Informe_Prova, TheFootIsNeverWithoutLinesOnItsPage) {
  for (int files = 1; files <= 2 * files_per_pagina + 1; ++files) {
    Posar_Fila(files % 5 == 0 ? descripcio_llarga.toStdString() : "fila");
    const auto pagines = Maquetar();
    const QStringList darrera = Paraules(pagines.back());
    EXPECT_TRUE(darrera.contains(u"Peu"_qs)) << files;
    EXPECT_FALSE(darrera.filter(QRegularExpression(u"^(fila|paraula)"_qs)).isEmpty()) << files;
    for (const auto& pagina : pagines) {
      for (const auto& text : Textos_De_Pagina(pagina)) EXPECT_LT(text.base.y(), paper::alcada - paper::marge) << files;
    }
  }
}

TEST_F(Informe_Prova, ALastRowTooTallForTheFootGoesOnBesideIt) {
  Posar_Fila(descripcio_llarga.repeated(2).toStdString());
  for (int trossos = 1; trossos < 12; ++trossos) {
    Posar_Fila(descripcio_llarga.repeated(trossos).toStdString());
    const auto pagines = Maquetar();
    EXPECT_TRUE(Paraules(pagines.back()).contains(u"Peu"_qs));
    EXPECT_FALSE(Paraules(pagines.back()).filter(u"paraula"_qs).isEmpty()) << trossos;
  }
}
