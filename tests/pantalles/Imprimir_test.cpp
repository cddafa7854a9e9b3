// The printed delivery note, read back from its PDF file.
#include "output/Imprimir.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QProcess>
#include <QRegularExpression>
#include <QTimer>

#include "core/dades/Numeros.h"
#include "core/formularis/Pantalla_Qt.h"
#include "output/DR_Valorat.h"
#include "output/M_Impressio.h"
#include "output/informe/Sortida.h"
#include "output/informe/Treballs.h"
#include "sales/M_Tipus_Venda.h"
#include "schema/Textos.h"
#include "stock/M_Tipus_Estoc.h"
#include "tests/pantalles/Base_Pantalles.h"

namespace {

constexpr const char* empresa = "B00000000";

class Imprimir : public Base_Pantalles {
 protected:
  Imprimir() {
    sessio.Dir_Temp = installacio.Dir_Dades() + "/Temp/";
    sessio.Crida_Document = "F_ALBARA;VALORAT";
    Executar(
        "UPDATE EMPRESES SET RAO_SOCIAL_EMP = 'Ferreteria Montseny, S.L.', ADREÇA_EMP = 'Carrer Major, 1', "
        "TELEFON_EMP = '93 845 12 34', CP_EMP = '08470', LOCALITAT_EMP = 'Sant Celoni'");
    Executar(
        "INSERT INTO CLIENTS (NIF_CLI, RAO_SOCIAL_CLI, NOM_COMERCIAL_CLI, ADREÇA_CLI, CP_CLI, LOCALITAT_CLI) VALUES("
        "'B61234567', 'Construccions Puig, S.L.', 'Obres Puig', 'Passeig del Riu, 45', '08500', 'Vic')");
    Executar(
        "INSERT INTO ALBARACAP (NUMALB_AC, EMPRESA_AC, DATA_AC, CLIENT_AC, OBSR_AC) VALUES(12, 'B00000000', "
        "#3/5/2026#, 'B61234567', 'Portar al matí')");
  }
  ~Imprimir() override { Fixar_Carpeta_Treballs({}); }

  void Posar_Linia(const std::string& descripcio, double unitats, double preu, double dte = 0) {
    Recordset rs("SELECT * FROM ALBARALIN", sessio.Connexio_Comuna, Bloqueig::Optimista);
    rs.AddNew();
    rs.Set("NUMALB_AL", 12);
    rs.Set("EMPRESA_AL", empresa);
    rs.Set("LIN_AL", ++linia_);
    rs.Set("DESCRIPCIO_AL", descripcio);
    rs.Set("UNITATS_AL", unitats);
    rs.Set("PREU_UNITARI_AL", preu);
    rs.Set("DTE_AL", dte);
    rs.Set("IMPORT_NET_AL", unitats * preu * (1 - dte / 100));
    rs.Update();
  }
  void Posar_Peu(int porc_iva, double base) {
    Executar(
        "INSERT INTO ALBARAPEU (NUMALB_AP, EMPRESA_AP, TIPUS_IVA_AP, PORC_IVA_AP, BASE_AP, IVA_AP, IMPORT_AP) "
        "VALUES(12, 'B00000000', 'T" +
        std::to_string(porc_iva) + "', " + std::to_string(porc_iva) + ", " + Numero_SQL(base) + ", " +
        Numero_SQL(base * porc_iva / 100) + ", " + Numero_SQL(base * (100 + porc_iva) / 100) + ")");
  }

  static QString Fitxer() { return Fitxer_PDF(tipus_albara, 12); }
  static std::int64_t Files_Pendents() {
    return Recordset(SQL_Impressio(Informe_De(tipus_albara)), sessio.Connexio_Local).RecordCount();
  }
  static QString Sortida_De(const QString& programa, const QStringList& arguments) {
    QProcess proces;
    proces.start(programa, arguments);
    EXPECT_TRUE(proces.waitForFinished()) << programa.toStdString();
    return QString::fromUtf8(proces.readAllStandardOutput());
  }
  // The text of the note as a reader sees it, runs of blanks as one.
  static QString Imprimir_I_Llegir() {
    Imprimir_Document(tipus_albara, 12, empresa, impressio::pdf);
    return Sortida_De(u"pdftotext"_qs, {u"-layout"_qs, Fitxer(), u"-"_qs})
        .replace(QRegularExpression(u"[ \u00A0]+"_qs), u" "_qs);
  }

 private:
  int linia_ = 0;
};

using Pagina_Valorada = Base_Pantalles;

}  // namespace

TEST_F(Imprimir, APdfIsNamedAfterTheNoteInTheFolderOfTemporaryFiles) {
  Posar_Linia("Cargol", 1, 1);
  QFile::remove(Fitxer());
  Imprimir_Document(tipus_albara, 12, empresa, impressio::pdf);
  EXPECT_TRUE(Fitxer().endsWith(u"/Temp/A-12.pdf"));
  EXPECT_TRUE(QFile::exists(Fitxer()));
}

TEST_F(Imprimir, TheFolderOfTemporaryFilesIsMadeWhenItIsMissing) {
  sessio.Dir_Temp = installacio.Dir_Dades() + "/un/altre/";
  Posar_Linia("Cargol", 1, 1);
  Imprimir_Document(tipus_albara, 12, empresa, impressio::pdf);
  EXPECT_TRUE(QFile::exists(Fitxer()));
}

TEST_F(Imprimir, ANoteShowsCompanyCustomerHeadLinesAndFoot) {
  Posar_Linia("Tub de coure", 2, 1234.5);
  Posar_Peu(21, 2469);
  const QString text = Imprimir_I_Llegir();
  for (const char* part :
       {"Ferreteria Montseny, S.L.", "NIF: B00000000", "Carrer Major, 1 - Tel. 93 845 12 34", "08470 Sant Celoni",
        "Albarà 12", "Data 05/03/2026", "NIF B61234567", "Observacions Portar al matí", "Construccions Puig, S.L.",
        "Obres Puig", "Passeig del Riu, 45", "08500 Vic", "Tub de coure 2,00 1.234,50 2.469,00", "Net 2.469,00",
        "2.469,00 21,00 518,49 0,00 0,00 2.987,49", "Total € 2.987,49", "1/1"}) {
    EXPECT_TRUE(text.contains(QString::fromUtf8(part))) << part << "\n" << text.toStdString();
  }
}

TEST_F(Imprimir, PagesAreCounted) {
  for (int i = 0; i < 90; ++i) Posar_Linia("Línia " + std::to_string(i), 1, 1);
  const QString text = Imprimir_I_Llegir();
  EXPECT_TRUE(text.contains(u"1/3"_qs) && text.contains(u"2/3"_qs) && text.contains(u"3/3"_qs));
  EXPECT_EQ(text.count(u"Descripció"_qs), 3);
  EXPECT_EQ(text.count(u"Total €"_qs), 1);
  EXPECT_EQ(text.count(u"Línia "_qs), 90);
}

TEST_F(Imprimir, ALineBreakOfADescriptionPrintsOnOneLine) {
  Posar_Linia("dalt\r\nbaix", 1, 1);
  EXPECT_TRUE(Imprimir_I_Llegir().contains(u"dalt baix 1,00"_qs));
}

TEST_F(Imprimir, WithoutDiscountsTheirTitleIsBlank) {
  Posar_Linia("Cargol", 1, 10);
  EXPECT_FALSE(Imprimir_I_Llegir().contains(u"Dte"_qs));
  Posar_Linia("Femella", 1, 10, 5);
  const QString text = Imprimir_I_Llegir();
  EXPECT_TRUE(text.contains(u"Dte"_qs));
  EXPECT_TRUE(text.contains(u"Cargol 1,00 10,00 10,00"_qs)) << "a discount of zero is a blank";
  EXPECT_TRUE(text.contains(u"Femella 1,00 10,00 5,00 9,50"_qs));
}

TEST_F(Imprimir, ANoteWithoutPricesPrintsItsFootAllTheSame) {
  Posar_Linia("Cargol", 3, 10, 5);
  Posar_Peu(21, 28.5);
  sessio.Crida_Document = "F_ALBARA;NO_VALORAT";
  const QString text = Imprimir_I_Llegir();
  EXPECT_TRUE(text.contains(QRegularExpression(u"Cargol 3,00\\s*\n"_qs))) << text.toStdString();
  EXPECT_FALSE(text.contains(u"Preu"_qs) || text.contains(u"Dte"_qs));
  EXPECT_TRUE(text.contains(u"Net 28,50"_qs));
  EXPECT_TRUE(text.contains(u"21,00"_qs));
}

TEST_F(Imprimir, FourFootRowsArePrinted) {
  Posar_Linia("Cargol", 1, 10);
  for (const int porc : {0, 4, 10, 21}) Posar_Peu(porc, 100 + porc);
  const QString text = Imprimir_I_Llegir();
  EXPECT_TRUE(text.contains(u"100,00 0,00"_qs) && text.contains(u"104,00 4,00"_qs) &&
              text.contains(u"110,00 10,00"_qs) && text.contains(u"121,00 21,00"_qs));
}

TEST_F(Imprimir, AFifthFootRowIsAnErrorAndLeavesNoPrintBehind) {
  Posar_Linia("Cargol", 1, 10);
  for (const int porc : {0, 4, 5, 10, 21}) Posar_Peu(porc, 100);
  try {
    Imprimir_Document(tipus_albara, 12, empresa, impressio::pdf);
    FAIL() << "no error was raised";
  } catch (const Error_Brollador& error) {
    EXPECT_EQ(error.Numero(), errors::camp_no_trobat);
    EXPECT_NE(error.Descripcio().find("L_BASE_5"), std::string::npos);
  }
  EXPECT_FALSE(QFile::exists(Fitxer()));
  EXPECT_EQ(Files_Pendents(), 0);
}

TEST_F(Imprimir, AnEmptyNotePrintsNothingAndSaysNothing) {
  Fixar_Carpeta_Treballs(QString::fromStdString(installacio.Dir_Dades()));
  const int abans = Treballs_Impresos();
  Imprimir_Document(tipus_albara, 12, empresa, impressio::dialeg);
  Imprimir_Document(tipus_albara, 12, empresa, impressio::pdf);
  EXPECT_EQ(Treballs_Impresos(), abans);
  EXPECT_FALSE(QFile::exists(Fitxer()));
  EXPECT_TRUE(installacio.pantalla.caixes.empty());
}

TEST_F(Imprimir, TheWorkTableIsEmptyAfterAPrint) {
  Posar_Linia("Cargol", 1, 10);
  Imprimir_Document(tipus_albara, 12, empresa, impressio::pdf);
  EXPECT_EQ(Files_Pendents(), 0);
}

TEST_F(Imprimir, AScriptGetsThePrintAsAFileInsteadOfTheDialog) {
  Fixar_Carpeta_Treballs(QString::fromStdString(installacio.Dir_Dades()));
  Posar_Linia("Cargol", 1, 10);
  const int abans = Treballs_Impresos();
  Imprimir_Document(tipus_albara, 12, empresa, impressio::dialeg);
  EXPECT_EQ(Treballs_Impresos(), abans + 1);
  EXPECT_TRUE(Sortida_De(u"pdftotext"_qs, {Darrer_Treball(), u"-"_qs}).contains(u"Cargol"_qs));
}

TEST_F(Imprimir, TheDialogLeftWithoutPrintingPrintsNothing) {
  Posar_Linia("Cargol", 1, 10);
  bool vist = false;
  QTimer::singleShot(0, [&] {
    auto* dialeg = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialeg, nullptr);
    vist = dialeg->objectName() == u"F_Imprimir";
    dialeg->reject();
  });
  Imprimir_Document(tipus_albara, 12, empresa, impressio::dialeg);
  EXPECT_TRUE(vist);
  EXPECT_EQ(Files_Pendents(), 0);
}

TEST_F(Imprimir, ThePreviewIsReachedFromTheDialogAndEscLeavesIt) {
  Posar_Linia("Cargol", 1, 10);
  bool previsualitzat = false;
  QTimer::singleShot(0, [&] {
    auto* dialeg = QApplication::activeModalWidget();
    ASSERT_NE(dialeg, nullptr);
    QTimer::singleShot(0, [&] {
      auto* vista = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(vista, nullptr);
      previsualitzat = vista->objectName() == u"F_Previsualitzar" && vista->windowTitle() == u"Albarà 12";
      vista->reject();
    });
    dialeg->findChild<QAbstractButton*>(u"B_Previsualitzar"_qs)->click();
    EXPECT_TRUE(dialeg->isVisible()) << "nothing has come of it yet";
    dialeg->findChild<QAbstractButton*>(u"B_Exit"_qs)->click();
  });
  Imprimir_Document(tipus_albara, 12, empresa, impressio::dialeg);
  EXPECT_TRUE(previsualitzat);
}

TEST_F(Imprimir, ThePageSpeaksTheLanguageOfTheSession) {
  Posar_Linia("Cargol", 1, 10);
  sessio.Idioma_Actual = 2;
  const QString text = Imprimir_I_Llegir();
  EXPECT_TRUE(text.contains(u"Delivery note 12"_qs) && text.contains(u"Amount"_qs)) << text.toStdString();
}

TEST_F(Imprimir, TheFileCarriesItsLettersTitleAndAuthor) {
  Posar_Linia("Cargol", 1, 10);
  Imprimir_Document(tipus_albara, 12, empresa, impressio::pdf);
  EXPECT_TRUE(Sortida_De(u"pdfinfo"_qs, {Fitxer()}).contains(QRegularExpression(u"Title: +Albarà 12"_qs)));
  EXPECT_TRUE(Sortida_De(u"pdfinfo"_qs, {u"-meta"_qs, Fitxer()}).contains(u"<rdf:li>Ferreteria Montseny, S.L."_qs));
  const QStringList lletres = Sortida_De(u"pdffonts"_qs, {Fitxer()}).trimmed().split(u'\n').mid(2);
  ASSERT_FALSE(lletres.isEmpty());
  for (const auto& lletra : lletres) {
    EXPECT_TRUE(lletra.contains(QRegularExpression(u" yes +(yes|no) +yes "_qs))) << lletra.toStdString();
  }
}

TEST_F(Imprimir, Saved_as_PDF_it_gets_the_ending_that_was_not_typed_and_says_where_it_went) {
  Pantalla_Qt pantalla;
  sessio.pantalla = &pantalla;
  QString dit;
  Pantalla_Qt::Contestador = [&](const QString& text, int, const QString&) {
    dit = text;
    return Resposta::Ok;
  };
  const QString sencer = QString::fromStdString(installacio.Dir_Dades()) + QStringLiteral("/Albarà 1.2");
  QTimer::singleShot(0, qApp, [&] {
    auto* dialeg = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialeg, nullptr);
    dialeg->findChild<QLineEdit*>()->setText(sencer);
    static_cast<QDialog*>(dialeg)->accept();
  });
  EXPECT_TRUE(Demanar_PDF(Pagines{.titol = u"A-12"_qs, .autor = {}, .pagines = {{}}}, nullptr));
  Pantalla_Qt::Contestador = nullptr;
  EXPECT_TRUE(QFile::exists(sencer + u".pdf"_qs));
  EXPECT_FALSE(QFile::exists(sencer));
  EXPECT_EQ(dit, u"El document s'ha desat a:\n"_qs + sencer + u".pdf"_qs);
}

TEST_F(Imprimir, AFileThatCannotBeWrittenIsAnError) {
  EXPECT_THROW(Escriure_PDF(Pagines{.titol = {}, .autor = {}, .pagines = {{}}}, u"/proc/no/s-hi/escriu.pdf"_qs),
               Error_Brollador);
}

TEST_F(Imprimir, AKindWithoutAReportIsAnError) {
  EXPECT_THROW(Imprimir_Document(tipus_albmag, 1, empresa, impressio::pdf), Error_Brollador);
}

TEST_F(Imprimir, ANameOfAFileHoldsNoSlash) {
  EXPECT_TRUE(Fitxer_PDF(tipus_albcompra, "../2026/15").endsWith(u"/Temp/AC-..-2026-15.pdf"_qs));
  EXPECT_EQ(Nom_De_Fitxer(u".a\n/b"_qs), u"-.a--b"_qs);
}

// The design holds the Catalan captions, and each has its line in the three languages.
TEST_F(Pagina_Valorada, CaptionsAndTextsAgree) {
  for (const auto& descripcio : Informes_De_Documents()) {
    std::map<std::string, std::string> textos;
    for (const auto& text : Textos_De_Pantalles()) {
      if (text.objecte == descripcio.informe) textos[text.control] = text.text[0];
    }
    for (const auto& control : DR_Valorat(descripcio).controls) {
      if (control.mena != Mena_Control::Etiqueta || control.text.isEmpty()) continue;
      const std::string adreca = control.nom.toStdString() + "." + std::to_string(static_cast<int>(control.seccio));
      EXPECT_EQ(textos[adreca], control.text.toStdString()) << descripcio.informe << " " << adreca;
      textos.erase(adreca);
    }
    for (const auto& [adreca, text] : textos) ADD_FAILURE() << descripcio.informe << " has no such caption: " << adreca;
  }
}

// No two controls of a section share a place, and none leaves the margins.
TEST_F(Pagina_Valorada, ControlsKeepToTheirPlaces) {
  for (const auto& descripcio : Informes_De_Documents()) {
    const auto& definicio = DR_Valorat(descripcio);
    for (const auto& a : definicio.controls) {
      const std::string nom = std::string(descripcio.informe) + " " + a.nom.toStdString();
      EXPECT_LE(a.lloc.right(), paper::amplada - 2 * paper::marge) << nom;
      EXPECT_LE(a.lloc.bottom(), definicio.alcades[static_cast<std::size_t>(a.seccio)]) << nom;
      for (const auto& b : definicio.controls) {
        if (&a == &b || a.seccio != b.seccio) continue;
        EXPECT_FALSE(a.lloc.intersects(b.lloc)) << nom << " and " << b.nom.toStdString();
      }
    }
  }
}
