// The printer that the terminal remembers, and what is sent to it.
#include "output/informe/Impressora.h"

#include <QApplication>
#include <QFile>
#include <QPageRanges>
#include <QPrintDialog>
#include <QPrinter>
#include <QTimer>

#include "tests/pantalles/Base_Informe.h"

namespace {

class Impressora_Terminal : public Base_Pantalles {};

}  // namespace

TEST_F(Impressora_Terminal, The_last_one_is_proposed_while_the_computer_has_it) {
  const QStringList disponibles{u"HP a"_qs, u"Canon/b"_qs};
  EXPECT_EQ(Impressora_Proposada(disponibles, u"HP a"_qs).nom, u"HP a"_qs);
  EXPECT_EQ(Impressora_Proposada(disponibles, u"HP a"_qs).copies, 1);
  Recordar_Impressora({.nom = u"Canon/b"_qs, .copies = 3});
  EXPECT_EQ(Impressora_Proposada(disponibles, u"HP a"_qs).nom, u"Canon/b"_qs);
  EXPECT_EQ(Impressora_Proposada(disponibles, u"HP a"_qs).copies, 3);
  EXPECT_EQ(Impressora_Proposada({u"HP a"_qs}, u"HP a"_qs).nom, u"HP a"_qs) << "the remembered one is gone";
  EXPECT_EQ(Impressora_Proposada({}, {}).nom, QString());
}

TEST_F(Impressora_Terminal, It_prints_the_ranges_and_the_order_that_were_asked_for) {
  const Pagines pagines = Fer_Pagines(6);
  QPrinter impressora;
  impressora.setOutputFormat(QPrinter::PdfFormat);
  EXPECT_EQ(Pagines_Demanades(pagines, impressora), (std::vector<int>{1, 2, 3, 4, 5, 6}));
  impressora.setPrintRange(QPrinter::PageRange);
  impressora.setFromTo(2, 4);
  EXPECT_EQ(Pagines_Demanades(pagines, impressora), (std::vector<int>{2, 3, 4}));
  impressora.setPageRanges(QPageRanges::fromString(u"1,5-9"_qs));
  EXPECT_EQ(Pagines_Demanades(pagines, impressora), (std::vector<int>{1, 5, 6}));
  impressora.setPageOrder(QPrinter::LastPageFirst);
  EXPECT_EQ(Pagines_Demanades(pagines, impressora), (std::vector<int>{6, 5, 1}));
  impressora.setPrintRange(QPrinter::AllPages);
  EXPECT_EQ(Pagines_Demanades(pagines, impressora), (std::vector<int>{6, 5, 4, 3, 2, 1}));
}

TEST_F(Impressora_Terminal, It_is_the_terminals_whoever_works_there) {
  Recordar_Impressora({.nom = u"HP"_qs, .copies = 2});
  sessio.Usuari_Actual = "UN ALTRE";
  EXPECT_EQ(Darrera_Impressora().nom, u"HP"_qs);
  EXPECT_EQ(Darrera_Impressora().copies, 2);
  EXPECT_TRUE(QFile::exists(QString::fromStdString(sessio.Dir_Dades) + u"/pantalles.ini"_qs));
}

TEST_F(Impressora_Terminal, Copies_that_are_none_count_as_one) {
  for (const char* copies : {"0", "-2", "moltes", "100000", ""}) {
    QFile fitxer(QString::fromStdString(sessio.Dir_Dades) + u"/pantalles.ini"_qs);
    ASSERT_TRUE(fitxer.open(QIODevice::WriteOnly));
    fitxer.write(QByteArray("[*]\ncopies=") + copies + "\n");
    fitxer.close();
    EXPECT_EQ(Darrera_Impressora().copies, 1) << copies;
  }
}

TEST_F(Impressora_Terminal, The_dialog_begins_with_what_is_remembered_and_remembers_what_it_is_left_with) {
  const QString fitxer = QString::fromStdString(installacio.Dir_Dades()) + u"/paper.pdf"_qs;
  Recordar_Impressora({.nom = u"ja no hi és"_qs, .copies = 3});
  const auto contestar = [&](int copies, bool acceptar) {
    QTimer::singleShot(0, qApp, [&, copies, acceptar] {
      auto* dialeg = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialeg, nullptr);
      EXPECT_EQ(dialeg->printer()->copyCount(), 3);
      EXPECT_NE(dialeg->printer()->printerName(), u"ja no hi és"_qs);
      if (!acceptar) return dialeg->reject();
      dialeg->printer()->setOutputFileName(fitxer);
      dialeg->printer()->setCopyCount(copies);
      dialeg->done(QDialog::Accepted);
    });
  };
  const Pagines pagines = Fer_Pagines(2);
  contestar(5, false);
  EXPECT_FALSE(Demanar_Impressora(pagines, nullptr));
  EXPECT_EQ(Darrera_Impressora().copies, 3);
  contestar(5, true);
  EXPECT_TRUE(Demanar_Impressora(pagines, nullptr));
  EXPECT_EQ(Darrera_Impressora().copies, 5);
  EXPECT_TRUE(QFile::exists(fitxer));
}
