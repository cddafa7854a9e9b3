// The texts of screens and reports against the screens themselves: every caption in every language.
#include "schema/Textos.h"

#include <QAbstractButton>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QRegularExpression>
#include <QSet>
#include <QTextStream>
#include <QXmlStreamReader>
#include <algorithm>
#include <filesystem>
#include <map>

#include "shell/Menu_Principal.h"
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
  for (auto it = control.globalMatch(ui); it.hasNext();) {
    const QString nom = it.next().captured(2);
    const bool el_diu_una_etiqueta =
        nom.startsWith(u"CHK_") && ui.contains(QStringLiteral("\"buddy\"><cstring>") + nom + u'<');
    if (!el_diu_una_etiqueta) noms << nom;
  }
  return noms;
}

// Three dots in any language, a picture, what the code writes.
bool Sense_Paraules(const QString& nom) {
  static const QStringList noms = {
      QStringLiteral("B_CLIENT"), QStringLiteral("B_ARTICLESM"), QStringLiteral("B_COMANDES"), QStringLiteral("P_Logo"),
      QStringLiteral("L_EQUIP"),  QStringLiteral("NO_ALBARANS"), QStringLiteral("NO_DESC_IVA")};
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

// The pages of tabs on which the controls of a .ui file stand.
std::map<QString, QString> Pagines_Dels_Controls(const QString& ui) {
  std::map<QString, QString> pagines;
  QXmlStreamReader xml(ui);
  QStringList oberts;  // the widgets around
  QStringList classes;
  QString pagina;
  qsizetype fondaria = 0;
  while (!xml.atEnd()) {
    xml.readNext();
    if (xml.name() != u"widget") continue;
    if (xml.isStartElement()) {
      const QString nom = xml.attributes().value(QStringLiteral("name")).toString().toUpper();
      if (pagina.isEmpty() && !classes.isEmpty() && classes.back() == u"QTabWidget") {
        pagina = nom;
        fondaria = oberts.size();
      }
      oberts << nom;
      classes << xml.attributes().value(QStringLiteral("class")).toString();
      pagines[nom] = pagina;
    } else if (xml.isEndElement()) {
      oberts.removeLast();
      classes.removeLast();
      if (!pagina.isEmpty() && oberts.size() == fondaria) pagina.clear();
    }
  }
  return pagines;
}

// Empty for a control that is always there.
QString Pagina_De(const QString& objecte, const QString& control) {
  static std::map<QString, std::map<QString, QString>> per_objecte;
  if (per_objecte.empty()) {
    for (const auto& fitxer : std::filesystem::recursive_directory_iterator(arrel.toStdString())) {
      const QString cami = QString::fromStdString(fitxer.path().string());
      if (!cami.endsWith(u".ui") || cami.contains(u"/build/")) continue;
      per_objecte[QString::fromStdString(fitxer.path().stem().string()).toUpper()] =
          Pagines_Dels_Controls(Llegir(cami));
    }
  }
  const auto& pagines = per_objecte[objecte];
  const auto pagina = pagines.find(control.toUpper());
  return pagina == pagines.end() ? QString() : pagina->second;
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

TEST(Textos, No_two_captions_that_are_seen_together_share_a_shortcut) {
  static const QRegularExpression drecera(QStringLiteral("&([^&])"));
  for (std::size_t idioma = 0; idioma < 3; ++idioma) {
    std::map<QString, QStringList> llocs;  // the pages on which a letter of a screen stands
    for (const auto& text : Textos_De_Pantalles()) {
      const auto trobada = drecera.match(QString::fromStdString(text.text[idioma]));
      if (text.objecte == "F_PRINCIPAL" || text.propietat != "CAPTION" || !trobada.hasMatch()) continue;
      const QString clau = QString::fromStdString(text.objecte) + u' ' + trobada.captured(1).toUpper();
      const QString pagina = Pagina_De(QString::fromStdString(text.objecte), QString::fromStdString(text.control));
      for (const QString& altra : llocs[clau]) {
        EXPECT_FALSE(pagina.isEmpty() || altra.isEmpty() || pagina == altra)
            << clau.toStdString() << " again at " << text.control << ": " << text.text[idioma];
      }
      llocs[clau] << pagina;
    }
  }
}

TEST(Textos, The_same_button_has_the_same_key_on_every_screen) {
  static const QRegularExpression drecera(QStringLiteral("&([^&])"));
  // A letter fewer than controls: these have Ctrl+Shift+Up and Down, or wait for what they do.
  static const QSet<QString> sense = {QStringLiteral("B_AMUNT"), QStringLiteral("B_AVALL"), QStringLiteral("B_EMAIL")};
  for (std::size_t idioma = 0; idioma < 3; ++idioma) {
    std::map<QString, QString> lletres;  // by the words of the button
    for (const auto& text : Textos_De_Pantalles()) {
      const QString control = QString::fromStdString(text.control).toUpper();
      if (!control.startsWith(u"B_") || text.propietat != "CAPTION" || sense.contains(control)) continue;
      const QString paraules = QString::fromStdString(text.text[idioma]);
      const QString lletra = drecera.match(paraules).captured(1).toUpper();
      EXPECT_FALSE(lletra.isEmpty()) << text.objecte << " " << text.control << ": " << text.text[idioma];
      const auto [vista, nova] = lletres.emplace(QString(paraules).remove(u'&'), lletra);
      EXPECT_EQ(vista->second.toStdString(), lletra.toStdString())
          << text.objecte << " " << text.control << ": " << text.text[idioma];
    }
    const char16_t* sortir[] = {u"Sortir", u"Salir", u"Exit"};
    EXPECT_EQ(lletres[QString::fromUtf16(sortir[idioma])], idioma == 2 ? QStringLiteral("X") : QStringLiteral("S"));
  }
}

TEST(Textos, Every_entry_of_the_menu_has_a_letter_that_no_other_of_its_menu_has) {
  static const QRegularExpression drecera(QStringLiteral("&([^&])"));
  for (std::size_t idioma = 0; idioma < 3; ++idioma) {
    QSet<QString> vistes;
    for (const auto& text : Textos_De_Pantalles()) {
      if (text.objecte != "F_PRINCIPAL" || text.control == text.objecte) continue;
      const auto entrades = Entrades_De_Menu();
      const auto entrada = std::find_if(entrades.begin(), entrades.end(), [&](const Entrada_Menu& que) {
        return QString::fromStdString(text.control) == QStringView(que.nom);
      });
      ASSERT_NE(entrada, entrades.end()) << text.control;
      const QString menu = entrada->menu == nullptr ? QString() : QString::fromUtf16(entrada->menu);
      const QString lletra = drecera.match(QString::fromStdString(text.text[idioma])).captured(1).toUpper();
      EXPECT_FALSE(lletra.isEmpty()) << text.control;
      EXPECT_FALSE(vistes.contains(menu + lletra)) << text.control << " " << text.text[idioma];
      vistes << menu + lletra;
    }
  }
}
