// The texts of screens and reports against the screens themselves: every caption in every language.
#include "schema/Textos.h"

#include <QAbstractButton>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QRegularExpression>
#include <QSet>
#include <QTextStream>
#include <filesystem>

#include "tests/pantalles/Base_Pantalles.h"

namespace {

const QString arrel = QStringLiteral(CARPETA_PROVES "/..");

QString Llegir(const QString& fitxer) {
  QFile obert(fitxer);
  if (!obert.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(obert.readAll());
}

// Names of the controls of a .ui file whose caption a person reads.
QStringList Controls_Amb_Titol(const QString& ui) {
  static const QRegularExpression control(
      QStringLiteral("<widget class=\"(QLabel|QPushButton|QCheckBox|QGroupBox)\" name=\"([^\"]+)\">"));
  QStringList noms;
  for (auto it = control.globalMatch(ui); it.hasNext();) noms << it.next().captured(2);
  return noms;
}

// Three dots in any language, a picture, what the code writes.
bool Sense_Paraules(const QString& nom) {
  static const QStringList noms = {QStringLiteral("B_CLIENT"), QStringLiteral("B_ARTICLESM"),
                                   QStringLiteral("B_COMANDES"), QStringLiteral("P_Logo"), QStringLiteral("L_EQUIP")};
  return noms.contains(nom);
}

QSet<QString> Controls_Amb_Text(const QString& objecte) {
  QSet<QString> noms;
  for (const auto& text : Textos_De_Pantalles()) {
    if (objecte.toStdString() == text.objecte)
      noms << QString::fromStdString(text.control).section(u'.', 0, 0).toUpper();
  }
  return noms;
}

}  // namespace

TEST(Textos, Every_line_has_its_three_languages) {
  EXPECT_GT(Textos_De_Pantalles().size(), 100U);
  for (const auto& text : Textos_De_Pantalles()) {
    const std::string quin = text.objecte + " " + text.control;
    EXPECT_FALSE(text.control.empty()) << quin;
    EXPECT_TRUE(text.propietat == "CAPTION" || text.propietat == "TEXT" || text.propietat == "TABCAPTION" ||
                text.propietat == "TOOLTIPTEXT")
        << quin << ": " << text.propietat;
    for (const auto& paraules : text.text) EXPECT_FALSE(paraules.empty()) << quin;
  }
}

TEST(Textos, Every_caption_of_every_screen_has_its_line) {
  int pantalles = 0;
  for (const auto& fitxer : std::filesystem::recursive_directory_iterator(arrel.toStdString())) {
    const QString cami = QString::fromStdString(fitxer.path().string());
    if (!cami.endsWith(u".ui") || cami.contains(u"/build/")) continue;
    ++pantalles;
    const QString objecte = QString::fromStdString(fitxer.path().stem().string()).toUpper();
    const QSet<QString> amb_text = Controls_Amb_Text(objecte);
    EXPECT_TRUE(amb_text.contains(objecte)) << objecte.toStdString() << " has no caption of its own";
    for (const QString& nom : Controls_Amb_Titol(Llegir(cami))) {
      if (Sense_Paraules(nom)) continue;
      EXPECT_TRUE(amb_text.contains(nom.toUpper())) << objecte.toStdString() << " " << nom.toStdString();
    }
  }
  EXPECT_GE(pantalles, 4);
}

TEST(Textos, No_two_captions_of_a_screen_share_a_shortcut) {
  static const QRegularExpression drecera(QStringLiteral("&([^&])"));
  for (std::size_t idioma = 0; idioma < 3; ++idioma) {
    QSet<QString> vistes;
    for (const auto& text : Textos_De_Pantalles()) {
      const auto trobada = drecera.match(QString::fromStdString(text.text[idioma]));
      if (text.propietat != "CAPTION" || !trobada.hasMatch()) continue;
      const QString clau = QString::fromStdString(text.objecte) + u' ' + trobada.captured(1).toUpper();
      EXPECT_FALSE(vistes.contains(clau))
          << clau.toStdString() << " again at " << text.control << ": " << text.text[idioma];
      vistes << clau;
    }
  }
}
