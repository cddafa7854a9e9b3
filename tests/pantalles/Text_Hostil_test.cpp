// Hostile text into every field of every screen: it is stored as it stands or refused in a clear box, and nothing else
// happens. The fields are found by walking the screens; a screen that nobody tells how to open fails the test.
#include <QComboBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>
#include <filesystem>

#include "core/controls/Focus_Camps.h"
#include "core/controls/Graella.h"
#include "core/formularis/Drets.h"
#include "tests/pantalles/Cada_Pantalla.h"

namespace {

const QStringList& Textos_Hostils() {
  static const QStringList textos = {
      QStringLiteral("'"),
      QStringLiteral("L'Hospitalet"),
      QStringLiteral("' OR 'a' = 'a"),
      QStringLiteral("'; DELETE * FROM CLIENTS; --"),
      QStringLiteral("\"cometes\""),
      QStringLiteral("100%"),
      QStringLiteral("_[a-z]*]#?!"),
      QStringLiteral("\\' \\n \\"),
      QStringLiteral("{d '2011-01-01'} #1/1/2011# /* x */"),
      QStringLiteral("%s%n ${HOME} <b>x</b> &amp; &x"),
      QString(10000, u'x'),
      QString(10000, u'\''),
      QStringLiteral("\x01\x02\x1b[31m\x7f"),
      QStringLiteral("una\tdues\nlínies\r\ni més"),
      QStringLiteral("a") + QChar(u'\0') + u'b',
      QStringLiteral("e\u0301n\u0303 \u200f\u202e"),
      QStringLiteral("مرحبا 你好"),
      QStringLiteral("😀👩‍👩‍👧"),
      QString(QChar(0xD83D)),  // half a character
      QStringLiteral("1E400"),
      QStringLiteral("-0"),
      QStringLiteral("99999999999999999999"),
      QStringLiteral("-1"),
      QStringLiteral(","),
      QStringLiteral("1.2.3,4,5"),
      QStringLiteral("NaN"),
      QStringLiteral("31/02/2011"),
      QStringLiteral("0/0/0"),
      QStringLiteral("NULL"),
      QStringLiteral("   "),
      QString(),
  };
  return textos;
}

// What no user should ever read.
const QStringList& Paraules_De_Motor() {
  static const QStringList paraules = {
      QStringLiteral("syntax error"), QStringLiteral("unrecognized token"), QStringLiteral("unterminated"),
      QStringLiteral("near \""),      QStringLiteral("no such column"),     QStringLiteral("does not exist"),
      QStringLiteral("invalid byte"), QStringLiteral("invalid input"),      QStringLiteral("out of range"),
      QStringLiteral("std::"),        QStringLiteral("incomplete input")};
  return paraules;
}

// The user's name for a field: its own, or that of the control around it.
QString Nom_De(const QWidget* camp) {
  while (camp->objectName().isEmpty() || camp->objectName().startsWith(u"qt_")) camp = camp->parentWidget();
  return camp->objectName();
}

class Text_Hostil : public Cada_Pantalla {
 protected:
  // False when the row could not be named any more, and was given its code back.
  bool Obrir_De_Nou() {
    Tancar_I_Obrir();
    if (Obert() != nullptr || *GetParam().repara == '\0') return true;
    EXPECT_FALSE(caixes_.empty());
    Comprovar_Caixes();
    sessio.Connexio_Comuna.Execute(GetParam().repara);
    for (auto codi : {&Sessio::Nif_Client, &Sessio::Nif_Proveidor, &Sessio::Nif_Empresa, &Sessio::Codi_Article,
                      &Sessio::Codi_Usuari})
      (sessio.*codi).clear();
    Tancar_I_Obrir();
    return false;
  }
  // Names of what can be typed into, as the screen stands now.
  QStringList Camps() const {
    QStringList noms;
    for (auto* control : Obert()->findChildren<QWidget*>()) {
      if (Es_Editable(control) && !noms.contains(Nom_De(control))) noms << Nom_De(control);
    }
    return noms;
  }
  static bool Es_Editable(const QWidget* control) {
    const auto* camp = qobject_cast<const QLineEdit*>(control);
    const auto* notes = qobject_cast<const QPlainTextEdit*>(control);
    const bool text = (camp != nullptr && !camp->isReadOnly()) || (notes != nullptr && !notes->isReadOnly());
    return text && control->isEnabled() && (control->isVisible() || control->isVisibleTo(Pagina_De(control)));
  }
  // The page of tabs that a control stands on; null when it stands on none.
  static QWidget* Pagina_De(const QWidget* control) {
    QWidget* pagina = control->parentWidget();
    while (pagina != nullptr && qobject_cast<QStackedWidget*>(pagina->parentWidget()) == nullptr)
      pagina = pagina->parentWidget();
    return pagina;
  }
  QWidget* Camp(const QString& nom) const {
    for (auto* control : Obert()->findChildren<QWidget*>()) {
      if (Es_Editable(control) && Nom_De(control) == nom) return control;
    }
    return nullptr;
  }
  static QString Text(const QWidget* camp) {
    const auto* linia = qobject_cast<const QLineEdit*>(camp);
    return linia != nullptr ? linia->text() : qobject_cast<const QPlainTextEdit*>(camp)->toPlainText();
  }

  // As somebody who pastes over what is there and goes on with the Tab key.
  void Escriure_I_Deixar(QWidget* camp, const QString& text) {
    if (QWidget* pagina = Pagina_De(camp))
      qobject_cast<QTabWidget*>(pagina->parentWidget()->parentWidget())->setCurrentWidget(pagina);
    Posar_Focus(camp);
    if (auto* linia = qobject_cast<QLineEdit*>(camp)) {
      linia->selectAll();
      linia->insert(text);
      Q_EMIT linia->textEdited(linia->text());
    } else if (auto* notes = qobject_cast<QPlainTextEdit*>(camp)) {
      notes->setPlainText(text);
    }
    QTest::keyClick(camp, Qt::Key_Tab);
    Assentar();
  }

  void Provar(const QString& nom, const QString& text) {
    if (Obert() == nullptr || Camp(nom) == nullptr) Obrir_De_Nou();
    QWidget* camp = Camp(nom);
    ASSERT_NE(camp, nullptr) << "gone from its screen";
    caixes_.clear();
    escrit_ = text.left(text.indexOf(QChar(u'\0')));
    Escriure_I_Deixar(camp, text);
    if (GetParam().prem_botons) Premer_Botons();
    Comprovar_Caixes();
    EXPECT_FALSE(sessio.Transaccio_Oberta());
    EXPECT_FALSE(sessio.Entrada_Bloquejada);
    EXPECT_FALSE(Focus_Retingut());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  }

  void Premer_Botons() {
    for (auto* boto : Obert()->findChildren<QPushButton*>()) {
      const bool se_n_va = boto->objectName() == u"B_Exit" || boto->objectName() == u"Endarrera";
      if (se_n_va || !boto->isEnabled() || !boto->isVisible()) continue;
      boto->click();
      Assentar();
      for (auto* altre : Formularis_Carregats()) {
        if (altre->Recordset_Llista() != nullptr && altre->Nom().toUpper() != Nom() && Nom() != u"F_CERCA")
          Descarregar_Formulari(altre->Nom());
      }
      Assentar();
      if (Obert() == nullptr) return;
    }
  }

  void Comprovar_Caixes() const {
    for (const Caixa_Vista& caixa : caixes_) {
      const QString text = QString::fromStdString(caixa.text);
      EXPECT_TRUE(!text.trimmed().isEmpty() || caixa.estil == estil::informacio);  // no addresses to copy
      EXPECT_LT(text.size(), 600) << text.left(200).toStdString();
      EXPECT_TRUE(caixa.titol == "Brollador" || caixa.titol == "Usuari") << caixa.titol;
      // A text that no statement can hold is named in the box; a statement that was broken would name something else.
      EXPECT_TRUE(!text.startsWith(u"-2147217900") || text.contains(escrit_.left(20))) << text.toStdString();
      for (const QString& paraula : Paraules_De_Motor())
        EXPECT_FALSE(text.contains(paraula, Qt::CaseInsensitive)) << text.left(300).toStdString();
    }
  }

  // Rows of every shared table.
  static std::map<std::string, std::int64_t> Files() {
    std::map<std::string, std::int64_t> files;
    for (const char* taula : {"CLIENTS", "ARTICLES", "USUARIS", "FAMILIES", "SUBFAMILIES", "MARQUES", "FORMES_PAGAMENT",
                              "PROVEIDORS", "EMPRESES", "ALBARACAP", "ALBARALIN", "STOCK", "IVAS", "CP", "VENCIMENTS",
                              "ALMACENES", "LANGUAGES", "COMANDALIN"}) {
      files[taula] = Recordset(std::string("SELECT * FROM ") + taula, sessio.Connexio_Comuna).RecordCount();
    }
    return files;
  }

  // The field keeps what is typed into it: it is there when the screen is opened again.
  bool Es_Desa(const QString& nom) {
    Obrir_De_Nou();
    const QString abans = Text(Camp(nom));
    for (const QString& prova : {QStringLiteral("7"), QStringLiteral("M"), QStringLiteral("S")}) {
      if (Camp(nom) == nullptr) return false;
      Escriure_I_Deixar(Camp(nom), prova);
      Obrir_De_Nou();
      if (Camp(nom) == nullptr) return false;
      if (prova != abans && Text(Camp(nom)) == prova) return true;
    }
    return false;
  }

  QString escrit_;  // the text under way
};

}  // namespace

TEST_P(Text_Hostil, Is_stored_or_refused_in_every_field) {
  Obrir_De_Nou();
  ASSERT_NE(Obert(), nullptr) << (caixes_.empty() ? "without a word" : caixes_.back().text);
  const QStringList camps = Camps();
  // A screen of many fields takes each text in some of them.
  const qsizetype salt = camps.size() > 12 ? 4 : 1;
  for (const QString& nom : camps) {
    SCOPED_TRACE(nom.toStdString());
    const bool es_desa = Es_Desa(nom);
    for (qsizetype i = camps.indexOf(nom) % salt; i < Textos_Hostils().size(); i += salt) {
      const QString& text = Textos_Hostils()[i];
      SCOPED_TRACE(text.left(60).toStdString());
      const auto abans = Files();
      Provar(nom, text);
      for (const auto& [taula, files] : Files()) EXPECT_GE(files, abans.at(taula)) << taula;
      if (HasFatalFailure()) return;
      if (!es_desa || !caixes_.empty() || Obert() == nullptr || Camp(nom) == nullptr) continue;
      const QString vist = Text(Camp(nom));
      const bool es_la_mateixa = Obrir_De_Nou();
      Comprovar_Caixes();
      if (!es_la_mateixa || !caixes_.empty() || Camp(nom) == nullptr) continue;
      EXPECT_EQ(Text(Camp(nom)).toStdString(), vist.toStdString());
    }
  }
}

TEST_P(Text_Hostil, Is_taken_or_refused_by_the_cells_of_a_grid) {
  if (!S_Edita_En_Lloc(Nom())) GTEST_SKIP() << "no grid to type in";
  Obrir_De_Nou();
  for (int columna = 0; columna < Obert()->Graella_Llista()->model()->columnCount(); ++columna) {
    for (const QString& text : Textos_Hostils()) {
      SCOPED_TRACE(std::to_string(columna) + " " + text.left(60).toStdString());
      Graella* graella = Obert()->Graella_Llista();
      const auto abans = Files();
      caixes_.clear();
      escrit_ = text.left(text.indexOf(QChar(u'\0')));
      // A new row, whose other cells are empty or what the last text has left there.
      const QModelIndex cella = graella->model()->index(graella->model()->rowCount() - 1, columna);
      if ((cella.flags() & Qt::ItemIsEditable) == 0) break;
      graella->setFocus();
      graella->setCurrentIndex(cella);
      static_cast<QTableView*>(graella)->edit(cella);
      auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
      if (editor == nullptr) break;  // a combo takes nothing but its entries
      editor->selectAll();
      editor->insert(text);
      QTest::keyClick(editor, Qt::Key_Return);
      Assentar();
      if (!graella->Desar_Fila()) graella->Descartar_Fila();
      Assentar();
      Comprovar_Caixes();
      EXPECT_FALSE(graella->En_Edicio());
      EXPECT_FALSE(sessio.Transaccio_Oberta());
      for (const auto& [taula, files] : Files()) EXPECT_GE(files, abans.at(taula)) << taula;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Cada_Pantalla, Text_Hostil, testing::ValuesIn(Camins().begin(), Camins().end()), Nom_De_Prova);

TEST(Pantalles_Amb_Text_Hostil, Are_all_of_them) {
  QStringList amb_cami;
  for (const Cami& cami : Camins()) amb_cami << QString::fromLatin1(cami.formulari);
  for (const auto& fitxer : std::filesystem::recursive_directory_iterator(CARPETA_PROVES "/..")) {
    const QString nom = QString::fromStdString(fitxer.path().stem().string()).toUpper();
    if (fitxer.path().extension() != ".ui" || !nom.startsWith(u"F_")) continue;
    EXPECT_TRUE(amb_cami.contains(nom)) << nom.toStdString() << " is nobody's";
  }
}
