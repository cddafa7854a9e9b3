// The five valued documents on paper, read back from their PDF files.
#include <QImageReader>
#include <QImageWriter>
#include <QProcess>
#include <QRegularExpression>

#include "output/DR_Valorat.h"
#include "output/M_Impressio.h"
#include "sales/M_Tipus_Venda.h"
#include "stock/M_Tipus_Estoc.h"
#include "tests/pantalles/Documents_De_Paper.h"

namespace {

class Informes_Document : public Documents_De_Paper {
 protected:
  static QString Imprimir_I_Llegir(const Tipus_Document& tipus) {
    sessio.Crida_Document = std::string(tipus.formulari) + ";VALORAT";
    Imprimir_Document(tipus, Numero_De(tipus), empresa, impressio::pdf);
    const QString fitxer = Fitxer_PDF(tipus, 12);
    QProcess proces;
    proces.start(u"pdftotext"_qs, {u"-layout"_qs, fitxer, u"-"_qs});
    EXPECT_TRUE(proces.waitForFinished());
    return QString::fromUtf8(proces.readAllStandardOutput()).replace(QRegularExpression(u"[ \u00A0]+"_qs), u" "_qs);
  }
  static std::vector<Imatge_Posada> Logos_De(const Tipus_Document& tipus) {
    std::vector<Imatge_Posada> logos;
    const Pagines fetes = Pagines_De(tipus);
    for (const auto& element : fetes.pagines.front()) {
      if (const auto* imatge = std::get_if<Imatge_Posada>(&element)) logos.push_back(*imatge);
    }
    return logos;
  }
  QString Document_Complet(const Tipus_Document& tipus, int linies = 1) {
    Posar_Document(tipus);
    for (int i = 0; i < linies; ++i) {
      Posar_Linia(tipus,
                  i % 7 == 3
                      ? "Escala plegable d'alumini de sis graons amb plataforma, goma antilliscant i ganxo de seguretat"
                      : "Tub de coure",
                  i % 7 == 5 ? 12.5 : 2, 1234.5);
    }
    Posar_Peu(tipus, 2469);
    return Imprimir_I_Llegir(tipus);
  }
  static void Conte(const QString& text, const std::vector<const char*>& parts) {
    for (const char* part : parts) {
      EXPECT_TRUE(text.contains(QString::fromUtf8(part))) << part << "\n" << text.toStdString();
    }
  }
  static void No_Conte(const QString& text, const std::vector<const char*>& parts) {
    for (const char* part : parts) EXPECT_FALSE(text.contains(QString::fromUtf8(part))) << part;
  }
};

}  // namespace

TEST_F(Informes_Document, EachKindHasItsFrame) {
  for (const auto& informe : Informes_De_Documents()) {
    const QString text = Document_Complet(informe.Tipus());
    SCOPED_TRACE(informe.informe);
    Conte(text, {"Ferreteria Montseny, S.L.", "NIF: B00000000", "08470 Sant Celoni", "Data 05/03/2026", "NIF B61234567",
                 "Observacions Portar al matí", "Tub de coure 2,00 1.234,50 2.469,00", "Net 2.469,00",
                 "2.469,00 21,00 518,49 0,00 0,00 2.987,49", "Total € 2.987,49", "1/1"});
    EXPECT_TRUE(text.contains(QString::fromUtf8(informe.titol) + u" 12"_qs)) << text.toStdString();
    EXPECT_EQ(Recordset(SQL_Impressio(informe), sessio.Connexio_Local).RecordCount(), 0);
  }
}

TEST_F(Informes_Document, AProposalHasCommentFooterLinesAndPlacesToSign) {
  const QString text = Document_Complet(tipus_pressupost);
  Conte(text, {"Des de 1975", "Carrer Major, 1 - Tel. 93 845 12 34", "Vàlid trenta dies", "Ports a part",
               "Firma del client", "Firma de l'instal·lador"});
  No_Conte(text, {"Venciments", "Codi client", "Registre"});
}

TEST_F(Informes_Document, AnOrderAndANoteHaveNeither) {
  for (const auto* tipus : {&tipus_comanda, &tipus_albara}) {
    const QString text = Document_Complet(*tipus);
    Conte(text, {"Carrer Major, 1 - Tel. 93 845 12 34"});
    No_Conte(text, {"Des de 1975", "Firma", "Venciments", "Codi client", "Vàlid", "Registre", "Nota"});
  }
}

TEST_F(Informes_Document, AnInvoiceHasCommentFooterLineAndDueDates) {
  const QString text = Document_Complet(tipus_factura);
  Conte(text, {"Des de 1975", "Carrer Major, 1 - 93 845 12 34", "Nota Registre, full 7",
               "Venciments Dos terminis (ES12 3456)", "05/04/2026"});
  No_Conte(text, {"Codi client", "C-77", "Tel.", "Firma", "Vàlid"});
}

TEST_F(Informes_Document, TheCodeOfTheCustomerIsShownByItsParameterAlone) {
  sessio.Parametres["P_Codi_Client_Visible"] = "True";
  Conte(Document_Complet(tipus_factura), {"Codi client C-77"});
  sessio.Parametres["P_Codi_Client_Visible"] = "true";
  No_Conte(Imprimir_I_Llegir(tipus_factura), {"Codi client", "C-77"});
}

TEST_F(Informes_Document, WithoutTermsThereAreNoDueDates) {
  Executar("UPDATE CLIENTS SET VENCIMENT_CLI = ''");
  No_Conte(Document_Complet(tipus_factura), {"Venciments", "ES12"});
}

TEST_F(Informes_Document, HeadingLinesOfAnInvoicePrintWithEmptyFigures) {
  Posar_Document(tipus_factura);
  Posar_Linia(tipus_factura, "Albarà 7 del 01/03/2026", 0, 0);
  Posar_Linia(tipus_factura, "Cargol", 1, 10);
  EXPECT_TRUE(Imprimir_I_Llegir(tipus_factura).contains(QRegularExpression(u"Albarà 7 del 01/03/2026 *\n"_qs)));
}

TEST_F(Informes_Document, AReturnPrintsWithItsSignInEveryKind) {
  for (const auto& informe : Informes_De_Documents()) {
    Posar_Document(informe.Tipus());
    Posar_Linia(informe.Tipus(), "Devolució de tub", -3, 1234.5);
    Conte(Imprimir_I_Llegir(informe.Tipus()), {"Devolució de tub -3,00 1.234,50 -3.703,50"});
  }
}

TEST_F(Informes_Document, APurchaseNoteShowsCostsTheSupplierAndNoDiscounts) {
  Posar_Document(tipus_albcompra);
  Posar_Linia(tipus_albcompra, "Cargol", 3, 10, 50);
  Posar_Peu(tipus_albcompra, 15);
  const QString text = Imprimir_I_Llegir(tipus_albcompra);
  Conte(text, {"Metalls del Segre, S.A.", "25001 Lleida", "Descripció Unitats Cost Import", "Cargol 3,00 10,00 15,00"});
  No_Conte(text, {"Dte", "Construccions"});
}

TEST_F(Informes_Document, AFifthFootRowFailsInEveryKind) {
  for (const auto& informe : Informes_De_Documents()) {
    Document_Complet(informe.Tipus());
    for (const double porc : {0.0, 4.0, 5.0, 10.0}) Posar_Peu(informe.Tipus(), 1, porc);
    EXPECT_THROW(Imprimir_I_Llegir(informe.Tipus()), Error_Brollador) << informe.informe;
  }
}

// As large as its place allows, never out of shape; the file may hold more dots than a page has.
TEST_F(Informes_Document, ALogoOfAnySizeAndFormatKeepsItsShape) {
  const QString fitxer = QString::fromStdString(installacio.Dir_Dades()) + u"/logo"_qs;
  Executar("UPDATE EMPRESES SET IMATGE_EMP = " + Text_SQL(fitxer.toStdString()));
  int llegits = 0;
  for (const auto* tipus : {&tipus_factura, &tipus_pressupost}) {
    Posar_Document(*tipus);
    Posar_Linia(*tipus, "Cargol", 1, 10);
    for (const QByteArray& format : QImageWriter::supportedImageFormats()) {
      if (!QImageReader::supportedImageFormats().contains(format)) continue;
      for (const QSize mida : {QSize(1, 1), QSize(40, 30), QSize(250, 10), QSize(10, 250), QSize(3000, 1000)}) {
        QImage imatge(mida, QImage::Format_RGB32);
        imatge.fill(QColor(20, 90, 160));
        if (!QImageWriter(fitxer, format).write(imatge)) continue;  // an icon has its largest size
        SCOPED_TRACE(format.toStdString() + " " + std::to_string(mida.width()) + "x" + std::to_string(mida.height()));
        const auto logos = Logos_De(*tipus);
        ASSERT_EQ(logos.size(), 1U);
        const QSizeF posada = logos[0].lloc.size();
        const QSizeF esperada = QSizeF(mida).scaled(QSizeF(70, 25) * 1440 / 25.4, Qt::KeepAspectRatio);
        EXPECT_NEAR(posada.width(), esperada.width(), esperada.width() * 0.06 + 12);
        EXPECT_NEAR(posada.height(), esperada.height(), esperada.height() * 0.06 + 12);
        EXPECT_LE(logos[0].imatge.width(), 1700);
        EXPECT_LE(logos[0].imatge.height(), 600);
        ++llegits;
      }
    }
  }
  EXPECT_GT(llegits, 20);
}

TEST_F(Informes_Document, WithoutItsFileThereIsNoLogoAndNothingIsSaid) {
  const QString no_es_imatge = QString::fromStdString(sessio.Fitxer_Ini);
  for (const auto& informe : Informes_De_Documents()) {
    Posar_Document(informe.Tipus());
    Posar_Linia(informe.Tipus(), "Cargol", 1, 10);
    for (const QString& fitxer : {QString(), u"/no/hi/es/logo.png"_qs, u"/tmp"_qs, no_es_imatge}) {
      Executar("UPDATE EMPRESES SET IMATGE_EMP = " + Text_SQL(fitxer.toStdString()));
      EXPECT_TRUE(Logos_De(informe.Tipus()).empty()) << informe.informe << fitxer.toStdString();
    }
  }
  EXPECT_TRUE(installacio.pantalla.caixes.empty());
}

TEST_F(Informes_Document, ReportsWithoutALogoPrintNoneAlthoughTheCompanyHasOne) {
  Allargar_Noms();
  for (const auto& informe : Informes_De_Documents()) {
    Posar_Document(informe.Tipus());
    Posar_Linia(informe.Tipus(), "Cargol", 1, 10);
    EXPECT_EQ(Logos_De(informe.Tipus()).size(), informe.logo ? 1U : 0U) << informe.informe;
  }
}

// Wherever a parameter sends the block, the lines and the foot are printed.
TEST_F(Informes_Document, NoPositionOfTheBlockTakesTheRoomOfTheLines) {
  Allargar_Noms();
  for (const auto* tipus : {&tipus_factura, &tipus_pressupost}) {
    Document_Complet(*tipus, 60);
    for (const char* top : {"-500", "0", "1417", "3000", "5000", "12000", "999999999999"}) {
      sessio.Parametres["P_Posicio_Top"] = top;
      const Pagines fetes = Pagines_De(*tipus);
      EXPECT_LE(fetes.pagines.size(), 6U) << top;
      QStringList paraules;
      for (const auto& pagina : fetes.pagines) {
        for (const auto& element : pagina) {
          const auto* text = std::get_if<Text_Posat>(&element);
          if (text == nullptr) continue;
          paraules << text->text;
          EXPECT_LT(text->base.y(), paper::alcada - paper::marge + 1) << top << " " << text->text.toStdString();
        }
      }
      EXPECT_EQ(paraules.count(u"Tub de coure"_qs), 51) << top;
      EXPECT_EQ(paraules.count(u"Total €"_qs), 1) << top;
      Deixar_Per_Mirar(
          fetes, u"top-%1-%2"_qs.arg(QString::fromLatin1(top), QString::fromStdString(std::string(tipus->formulari))));
    }
  }
}

// Where the company's block stands, and what it does to the rest of the head.
TEST_F(Informes_Document, TheBlockOfTheCompanyFollowsItsParameterAndNeverCoversTheLogo) {
  Document_Complet(tipus_pressupost);
  const Descripcio_Impressio& descripcio = Informe_De(tipus_pressupost);
  Omplir_Taula_Impressio(descripcio, 12, empresa);
  QImage logo(500, 250, QImage::Format_RGB32);
  logo.fill(Qt::blue);
  for (const int top : {0, 300, 1417, 2000}) {
    Informe informe(DR_Valorat(descripcio));
    informe.Picture(u"IMG_LOGO"_qs, logo);
    Posar_Bloc_Empresa(informe, top);
    const QStringList bloc = {u"comentari"_qs, u"nom"_qs, u"nif"_qs, u"adreça"_qs, u"població"_qs};
    const QStringList controls = {u"L_COMENTARI_EMP"_qs, u"L_RAO_SOCIAL_EMP"_qs, u"L_NIF_EMP"_qs, u"L_ADREÇA_EMP"_qs,
                                  u"L_CP_POBLACIO_EMP"_qs};
    for (int i = 0; i < 5; ++i) informe.Caption(controls[i], bloc[i]);
    informe.Caption(u"L_NOM_FISCAL"_qs, u"client"_qs);
    Recordset rs(SQL_Impressio(descripcio), sessio.Connexio_Local);
    QRectF imatge;
    std::map<QString, QPointF> bases;
    const auto pagines = informe.Maquetar(rs);
    for (const auto& element : pagines[0]) {
      if (const auto* text = std::get_if<Text_Posat>(&element)) bases[text->text] = text->base;
      if (const auto* posada = std::get_if<Imatge_Posada>(&element)) imatge = posada->lloc;
    }
    for (int i = 0; i < 5; ++i) {
      const double punts = i == 1 ? 10.4 : 9;
      EXPECT_NEAR(bases[bloc[i]].y(), paper::marge + top + 260 * i + Base_De_Linia({punts}), 1) << top << " " << i;
      EXPECT_FALSE(imatge.contains(bases[bloc[i]])) << top << " " << i;
    }
    EXPECT_NEAR(bases[u"client"_qs].y(), paper::marge + 37.9 * 1440 / 25.4 + Base_De_Linia({10}), 1)
        << "the customer stays in the window of the envelope";
  }
}

TEST_F(Informes_Document, LongNamesAndRemarksWrapAndNothingIsCut) {
  Executar(
      "UPDATE CLIENTS SET RAO_SOCIAL_CLI = 'Cooperativa de Serveis Integrals de Manteniment Industrial i Reformes del "
      "Vallès "
      "Oriental i el Montseny, S.C.C.L.'");
  Executar(
      "UPDATE EMPRESES SET RAO_SOCIAL_EMP = 'Instal·lacions i Subministraments Elèctrics, Hidràulics i de Calefacció "
      "del "
      "Baix Montseny i la Tordera, Societat Limitada Unipersonal'");
  std::string observacions;
  for (int i = 1; i <= 90; ++i) observacions += "mot" + std::to_string(i) + " ";
  for (const auto* tipus : {&tipus_albara, &tipus_factura}) {
    Posar_Document(*tipus, observacions);
    Posar_Linia(*tipus, "Cargol", 1, 10);
    const QString text = Imprimir_I_Llegir(*tipus);
    EXPECT_FALSE(text.contains(u"…"_qs)) << text.toStdString();
    Conte(text, {"S.C.C.L.", "Unipersonal", "mot1 ", "mot45 ", "mot90", "Cargol"});
  }
}
