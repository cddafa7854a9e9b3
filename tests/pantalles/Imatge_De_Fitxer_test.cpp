// Pictures that rows name: what is read, and what is left alone.
#include "core/controls/Imatge_De_Fitxer.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>
#include <QImageReader>
#include <QTemporaryDir>

namespace {

class Imatge_Anomenada : public testing::Test {
 protected:
  QString Cami(const QString& nom) const { return carpeta_.filePath(nom); }
  QString Desar(const QString& nom, QSize mida) const {
    QImage imatge(mida, QImage::Format_RGB32);
    imatge.fill(Qt::red);
    EXPECT_TRUE(imatge.save(Cami(nom))) << nom.toStdString();
    return Cami(nom);
  }
  QString Escriure(const QString& nom, const QByteArray& contingut) const {
    QFile fitxer(Cami(nom));
    EXPECT_TRUE(fitxer.open(QIODevice::WriteOnly));
    fitxer.write(contingut);
    return Cami(nom);
  }
  static QImage Llegir(const QString& fitxer) { return Imatge_De_Fitxer(fitxer, {400, 200}); }

 private:
  QTemporaryDir carpeta_;
};

}  // namespace

TEST_F(Imatge_Anomenada, ASmallOneIsReadAsItIs) {
  for (const auto& nom : {u"a.png"_qs, u"a.jpg"_qs, u"a.bmp"_qs, u"a.ppm"_qs}) {
    EXPECT_EQ(Llegir(Desar(nom, {60, 30})).size(), QSize(60, 30)) << nom.toStdString();
  }
}

TEST_F(Imatge_Anomenada, ALargeOneIsMadeSmallerInProportion) {
  EXPECT_EQ(Llegir(Desar(u"gran.png"_qs, {4000, 1000})).size(), QSize(400, 100));
  EXPECT_EQ(Llegir(Desar(u"alta.png"_qs, {100, 2000})).size(), QSize(10, 200));
}

TEST_F(Imatge_Anomenada, TheContentsTellTheFormatAndNotTheName) {
  const QString fitxer = Desar(u"a.png"_qs, {60, 30});
  ASSERT_TRUE(QFile::rename(fitxer, Cami(u"logo.txt"_qs)));
  EXPECT_FALSE(Llegir(Cami(u"logo.txt"_qs)).isNull());
}

TEST_F(Imatge_Anomenada, WhatIsNoPictureIsNone) {
  EXPECT_TRUE(Llegir({}).isNull());
  EXPECT_TRUE(Llegir(u"/no/hi/es.png"_qs).isNull());
  EXPECT_TRUE(Llegir(u"/tmp"_qs).isNull());
  EXPECT_TRUE(Llegir(Escriure(u"text.png"_qs, "no picture")).isNull());
  EXPECT_TRUE(Llegir(Escriure(u"buit.png"_qs, {})).isNull());
}

// Opening the pipe would wait for ever.
TEST_F(Imatge_Anomenada, OnlyRegularFilesAreOpened) {
  ASSERT_EQ(mkfifo(Cami(u"cua.png"_qs).toUtf8().constData(), 0600), 0);
  EXPECT_TRUE(Llegir(Cami(u"cua.png"_qs)).isNull());
  EXPECT_TRUE(Llegir(u"/dev/zero"_qs).isNull());
}

TEST_F(Imatge_Anomenada, AFileBeyondTheSizeIsNotRead) {
  QFile fitxer(Desar(u"a.bmp"_qs, {60, 30}));
  ASSERT_FALSE(Llegir(fitxer.fileName()).isNull());
  ASSERT_TRUE(fitxer.resize((16LL << 20) + 1));
  EXPECT_TRUE(Llegir(fitxer.fileName()).isNull());
}

TEST_F(Imatge_Anomenada, ADrawingIsAsLargeAsItMayBeAndNamesNoOtherFile) {
  if (!QImageReader::supportedImageFormats().contains("svg")) GTEST_SKIP() << "no drawings here";
  const QByteArray inici =
      "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' width='20' height='10'>";
  EXPECT_EQ(Llegir(Escriure(u"d.svg"_qs, inici + "<rect width='20' height='10' fill='red'/></svg>")).size(),
            QSize(400, 200));
  EXPECT_TRUE(
      Llegir(Escriure(u"e.svg"_qs, inici + "<image xlink:href='/dev/zero' width='9' height='9'/></svg>")).isNull());
}
