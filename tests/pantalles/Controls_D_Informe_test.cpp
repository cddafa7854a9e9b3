// The controls of a report: rules, figures, pictures, and what a program does to them by their names.
#include <QImage>
#include <QPainter>
#include <algorithm>

#include "core/dades/Error_Brollador.h"
#include "tests/pantalles/Base_Informe.h"

// As the preview draws them: smoothed, at any zoom, wherever the page begins.
TEST_F(Informe_Prova, EveryRuleIsSeenAtEveryZoom) {
  Pagina pagina;
  for (int fila = 0; fila < 40; ++fila) {
    pagina.emplace_back(Ratlla_Posada{QRectF(850, 900 + fila * 287.3, 9000, 4), Qt::black});
  }
  for (const double escala : {0.02, 0.031, 0.05, 0.067, 0.1, 0.2}) {
    QImage full(static_cast<int>(11906 * escala), static_cast<int>(16838 * escala), QImage::Format_RGB32);
    full.fill(Qt::white);
    {
      QPainter pintor(&full);
      pintor.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
      pintor.translate(0.3, 0.45);
      pintor.scale(escala, escala);
      Pintar_Pagina(pintor, pagina);
    }
    const int x = full.width() / 2;
    for (int fila = 0; fila < 40; ++fila) {
      const int y = static_cast<int>((902 + fila * 287.3) * escala + 0.45);
      int fosc = 255;
      for (int dy = -1; dy <= 1; ++dy)
        fosc = std::min(fosc, qGray(full.pixel(x, std::clamp(y + dy, 0, full.height() - 1))));
      EXPECT_LT(fosc, 160) << "row " << fila << " at " << escala;
    }
  }
}

TEST_F(Informe_Prova, FiguresStandAtTheRightEdgeUnderTheirFormat) {
  Posar_Fila("una", 1234.5);
  Posar_Fila("dues", 2);
  informe.Data_Format(u"TXT_TOTAL_IMPORT_AL"_qs, "#,##0.00;; ");
  const auto pagina = Maquetar().at(0);
  for (const auto& import : {u"1.234,50"_qs, u"2,00"_qs}) {
    const auto text = Text_De(pagina, import);
    EXPECT_NEAR(text.base.x() + Amplada_De(text), paper::marge + 6000, 1);
  }
}

TEST_F(Informe_Prova, AFigureTooWideIsDrawnSmallerAndNeverCut) {
  Posar_Fila("una", 123456789012.34);
  informe.Data_Format(u"TXT_TOTAL_IMPORT_AL"_qs, "#,##0.00;; ");
  const auto text = Text_De(Maquetar().at(0), u"123.456.789.012,34"_qs);
  EXPECT_LE(Amplada_De(text), 1000);
}

TEST_F(Informe_Prova, ZeroIsBlankUnderThePrintedFormat) {
  Posar_Fila("una", 0);
  informe.Data_Format(u"TXT_TOTAL_IMPORT_AL"_qs, "#,##0.00;; ");
  EXPECT_EQ(Paraules(Maquetar().at(0)),
            (QStringList{u"Títol"_qs, u"Sota"_qs, u"una"_qs, u"0"_qs, u"Peu"_qs, u"1/1"_qs}));
}

TEST_F(Informe_Prova, AHiddenControlIsNotDrawn) {
  Posar_Fila("una", 5);
  informe.Visible(u"TXT_TOTAL_IMPORT_AL"_qs, false);
  informe.Visible(u"L_TITOL"_qs, false);
  EXPECT_EQ(Paraules(Maquetar().at(0)), (QStringList{u"Sota"_qs, u"una"_qs, u"5"_qs, u"Peu"_qs, u"1/1"_qs}));
}

TEST_F(Informe_Prova, TopMovesAControlInsideItsSection) {
  Posar_Files(1);
  informe.Top(u"L_TITOL"_qs, 200);
  EXPECT_NEAR(Text_De(Maquetar().at(0), u"Títol"_qs).base.y(), paper::marge + 200 + Base_De_Linia({}), 1);
}

TEST_F(Informe_Prova, APictureKeepsItsShapeInItsPlaceAndAMissingOneLeavesItEmpty) {
  Posar_Files(1);
  const auto imatges = [&] {
    std::vector<Imatge_Posada> posades;
    const Pagina pagina = Maquetar().at(0);
    for (const auto& element : pagina) {
      if (const auto* imatge = std::get_if<Imatge_Posada>(&element)) posades.push_back(*imatge);
    }
    return posades;
  };
  informe.Picture(u"IMG_LOGO"_qs, QImage());
  EXPECT_TRUE(imatges().empty());
  EXPECT_EQ(informe.Mida_Imatge(u"IMG_LOGO"_qs), QSize(0, 0));

  QImage logo(40, 40, QImage::Format_RGB32);
  logo.fill(Qt::red);
  informe.Picture(u"IMG_LOGO"_qs, logo);
  ASSERT_EQ(imatges().size(), 1U);
  EXPECT_EQ(imatges()[0].lloc, QRectF(paper::marge + 5000, paper::marge, 1000, 1000));
}

TEST_F(Informe_Prova, ControlsAreFoundWhateverTheCaseOfTheirName) {
  informe.Caption(u"l_titol"_qs, u"Un altre"_qs);
  EXPECT_EQ(informe.Caption(u"L_TITOL"_qs), u"Un altre"_qs);
}

TEST_F(Informe_Prova, AnUnknownControlRaises) {
  const auto numero = [&](auto accio) {
    try {
      accio();
    } catch (const Error_Brollador& error) {
      return error.Numero();
    }
    return 0;
  };
  const QString cap = u"L_CAP"_qs;
  EXPECT_EQ(numero([&] { informe.Caption(cap, {}); }), errors::camp_no_trobat);
  EXPECT_EQ(numero([&] { informe.Visible(cap, true); }), errors::camp_no_trobat);
  EXPECT_EQ(numero([&] { informe.Top(cap, 0); }), errors::camp_no_trobat);
  EXPECT_EQ(numero([&] { informe.Data_Format(cap, ""); }), errors::camp_no_trobat);
  EXPECT_EQ(numero([&] { informe.Picture(cap, {}); }), errors::camp_no_trobat);
}

TEST_F(Informe_Prova, CaptionsComeFromTheTextsByControlAndSection) {
  const auto posar = [](const char* control, const char* text) {
    sessio.Connexio_Local.Execute(
        "INSERT INTO TEXTS (F_OBJECT, F_LANGUAGE, F_CONTROL, F_PROPERTY, F_TEXT) VALUES('DR_PROVA', 2, " +
        Text_SQL(control) + ", 'CAPTION', " + Text_SQL(text) + ")");
  };
  posar("L_TITOL.0", "Title");
  posar("L_PEU.0", "a control of another section");
  sessio.Idioma_Actual = 2;
  informe.Traduir();
  EXPECT_EQ(informe.Caption(u"L_TITOL"_qs), u"Title"_qs);
  EXPECT_EQ(informe.Caption(u"L_PEU"_qs), u"Peu"_qs);
}
