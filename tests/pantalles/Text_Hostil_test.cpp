// Hostile text into every field of every screen: it is stored as it stands or refused in a clear box, and nothing else
// happens. The fields are found by walking the screens; a screen that nobody tells how to open fails the test.
#include <QComboBox>
#include <QFile>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <filesystem>

#include "core/M_Funcions_Comuns.h"
#include "core/pantalla/Aplicacio.h"
#include "core/pantalla/Camps.h"
#include "core/pantalla/Graella.h"
#include "core/pantalla/Pantalla_Qt.h"
#include "tests/pantalles/Formularis_De_Prova.h"

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

// How a person comes to a screen that has something to show.
struct Cami {
  const char* formulari;
  void (*obrir)();
  bool prem_botons;          // its fields are read by its buttons
  const char* prepara = "";  // leaves the one row that is edited
  const char* repara = "";   // gives its code back to a row that no statement can name any more
};

void Doble_Clic(const char* llista, std::int64_t fila) {
  Graella* graella = Formulari_De_Nom(QString::fromLatin1(llista))->Graella_Llista();
  graella->Anar_A_Fila(fila);
  Q_EMIT graella->Doble_Clic(fila);
}

template <const char* nom>
void Obrir_Sol() {
  Obrir(QString::fromLatin1(nom));
}
constexpr char subinici[] = "F_SUBINICI";
constexpr char ajuda[] = "F_HELP";
constexpr char albarans_s[] = "F_ALBARANSS";
constexpr char albarans_m[] = "F_ALBARANSM";
constexpr char usuaris_m[] = "F_USUARISM";
constexpr char clients_m[] = "F_CLIENTSM";
constexpr char proveidors_m[] = "F_PROVEIDORSM";
constexpr char empreses_m[] = "F_EMPRESESM";
constexpr char articles_selc[] = "F_ARTICLESSELC";
constexpr char articles_mc[] = "F_ARTICLESMC";
constexpr char articles_mcs[] = "F_ARTICLESMCS";
constexpr char marques_m[] = "F_MARQUESM";
constexpr char families_m[] = "F_FAMILIESM";
constexpr char subfamilies_m[] = "F_SUBFAMILIESM";
constexpr char ivas_m[] = "F_IVASM";
constexpr char cp_m[] = "F_CPM";
constexpr char venciments_m[] = "F_VENCIMENTSM";
constexpr char formes_pagament_m[] = "F_FORMESPAGAMENTM";
constexpr char magatzems_m[] = "F_MAGATZEMSM";

// The editor of the row of that code, or of the code that it was given since.
template <const char* formulari, std::string Sessio::*per_obrir, const char* codi>
void Obrir_Editor() {
  if ((sessio.*per_obrir).empty()) sessio.*per_obrir = codi;
  Obrir(QString::fromLatin1(formulari));
}
constexpr char client[] = "F_CLIENT";
constexpr char proveidor[] = "F_PROVEIDOR";
constexpr char empresa[] = "F_EMPRESA";
constexpr char un_article[] = "F_ARTICLE";
constexpr char usuari[] = "F_USUARI";
constexpr char codi_client[] = "B1";
constexpr char codi_proveidor[] = "P1";
constexpr char codi_empresa[] = "B11111111";
constexpr char codi_article[] = "AAA";
constexpr char codi_usuari[] = "ANNA";

const Cami camins[] = {
    {clients_m, Obrir_Sol<clients_m>, true},
    {client, Obrir_Editor<client, &Sessio::Nif_Client, codi_client>, false,
     "DELETE * FROM CLIENTS WHERE NIF_CLI <> 'B1'", "UPDATE CLIENTS SET NIF_CLI = 'B1'"},
    {proveidors_m, Obrir_Sol<proveidors_m>, true},
    {proveidor, Obrir_Editor<proveidor, &Sessio::Nif_Proveidor, codi_proveidor>, false, "",
     "UPDATE PROVEIDORS SET NIF_PRO = 'P1'"},
    {empreses_m, Obrir_Sol<empreses_m>, true},
    {empresa, Obrir_Editor<empresa, &Sessio::Nif_Empresa, codi_empresa>, false,
     "DELETE * FROM EMPRESES WHERE NIF_EMP <> 'B11111111'", "UPDATE EMPRESES SET NIF_EMP = 'B11111111'"},
    {articles_selc, Obrir_Sol<articles_selc>, true},
    {articles_mc, Obrir_Sol<articles_mc>, true},
    {articles_mcs, Obrir_Sol<articles_mcs>, true},
    {un_article, Obrir_Editor<un_article, &Sessio::Codi_Article, codi_article>, false,
     "DELETE * FROM ARTICLES WHERE CODI_ART <> 'AAA'", "UPDATE ARTICLES SET CODI_ART = 'AAA'"},
    {marques_m, Obrir_Sol<marques_m>, false},
    {families_m, Obrir_Sol<families_m>, false},
    {subfamilies_m, Obrir_Sol<subfamilies_m>, false},
    {ivas_m, Obrir_Sol<ivas_m>, false},
    {cp_m, Obrir_Sol<cp_m>, false},
    {venciments_m, Obrir_Sol<venciments_m>, false},
    {formes_pagament_m, Obrir_Sol<formes_pagament_m>, false},
    {magatzems_m, Obrir_Sol<magatzems_m>, false},
    {subinici, Obrir_Sol<subinici>, true},
    {ajuda, Obrir_Sol<ajuda>, false},
    {"F_CERCA",
     [] {
       Obrir(QStringLiteral("F_USUARISM"));
       F_Principal::Unica()->Accio(QStringLiteral("M_Search"))->trigger();
     },
     true},
    {albarans_s, Obrir_Sol<albarans_s>, true},
    {albarans_m, Obrir_Sol<albarans_m>, false},
    {"F_ALBARA",
     [] {
       Obrir(QStringLiteral("F_ALBARANSM"));
       Doble_Clic("F_ALBARANSM", 0);
     },
     false},
    {usuaris_m, Obrir_Sol<usuaris_m>, false},
    {usuari, Obrir_Editor<usuari, &Sessio::Codi_Usuari, codi_usuari>, false,
     "DELETE * FROM USUARIS WHERE CODI_USU = 'PERE'", "UPDATE USUARIS SET CODI_USU = 'ANNA' WHERE CODI_USU <> 'ADMIN'"},
};

// The rows that the scripts use too: a line a statement, after the word of its database.
void Carregar_Dades(const QString& fitxer) {
  QFile dades(QStringLiteral(CARPETA_PROVES "/guions/dades/") + fitxer);
  ASSERT_TRUE(dades.open(QIODevice::ReadOnly)) << fitxer.toStdString();
  for (const QString& linia : QString::fromUtf8(dades.readAll()).split(u'\n')) {
    if (linia.startsWith(u"shared ")) sessio.Connexio_Comuna.Execute(linia.mid(7).toStdString());
  }
}

// The user's name for a field: its own, or that of the control around it.
QString Nom_De(const QWidget* camp) {
  while (camp->objectName().isEmpty() || camp->objectName().startsWith(u"qt_")) camp = camp->parentWidget();
  return camp->objectName();
}

class Text_Hostil : public Base_Pantalles, public testing::WithParamInterface<Cami> {
 protected:
  Text_Hostil() {
    for (const char* dades : {"botiga.txt", "albarans.txt", "usuaris.txt"}) Carregar_Dades(QString::fromLatin1(dades));
    sessio.Connexio_Comuna.Execute("INSERT INTO PROVEIDORS (NIF_PRO, RAO_SOCIAL_PRO) VALUES ('P1', 'Ferros')");
    sessio.Connexio_Comuna.Execute("INSERT INTO ARTICLES (CODI_ART, DESCRIPCIO_ART) VALUES ('AAA', 'Hostil')");
    sessio.Parametres["Fitxa_Client_Dades_Visible"] = "True";
    if (*GetParam().prepara != '\0') sessio.Connexio_Comuna.Execute(GetParam().prepara);
    sessio.pantalla = &pantalla_;
    Fixar_Avui({2011, 3, 15});
    Pantalla_Qt::Contestador = [this](const QString& text, int estil, const QString& titol) {
      return Contestar(text, estil, titol);
    };
    Pantalla_Qt::Triador_Empresa = [](const std::string&, int) { return "B00000000"; };
    Registrar_Formularis();
    principal_.show();
    Donar_Drets();
    QApplication::setActiveWindow(&principal_);
  }
  ~Text_Hostil() override {
    Descarregar_Tots();
    Assentar();
    Pantalla_Qt::Contestador = nullptr;
    Pantalla_Qt::Triador_Empresa = nullptr;
  }

  static void Assentar() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  static void Donar_Drets() {
    for (auto lletra : {&Sessio::P_Clients, &Sessio::P_Proveidors, &Sessio::P_Articles, &Sessio::P_Usuaris,
                        &Sessio::P_CP, &Sessio::P_Venciments, &Sessio::P_Pressupostos, &Sessio::P_Comandes,
                        &Sessio::P_Albarans, &Sessio::P_Factures})
      sessio.*lletra = "M";
  }

  QString Nom() const { return QString::fromLatin1(GetParam().formulari); }
  Formulari* Obert() const { return Formulari_De_Nom(Nom()); }

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
  void Tancar_I_Obrir() const {
    Descarregar_Tots();
    Assentar();
    GetParam().obrir();
    Assentar();
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
    return text && control->isVisible() && control->isEnabled();
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
    EXPECT_FALSE(sessio.Transaccio_Oberta);
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
    for (const char* taula : {"CLIENTS", "ARTICLES", "USUARIS", "EMPRESES", "ALBARACAP", "ALBARALIN", "STOCK", "IVAS",
                              "CP", "VENCIMENTS", "ALMACENES", "LANGUAGES", "COMANDALIN"}) {
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

  std::vector<Caixa_Vista> caixes_;
  QString escrit_;  // the text under way

 private:
  Resposta Contestar(const QString& text, int estil, const QString& titol) {
    caixes_.push_back({text.toStdString(), estil, titol.toStdString()});
    if ((estil & 0x0F) == estil::simple) return Resposta::Ok;
    return (estil & 0x0F) == estil::si_no ? Resposta::No : Resposta::Cancel;
  }

  Pantalla_Qt pantalla_;
  F_Principal principal_;
};

std::string Nom_De_Prova(const testing::TestParamInfo<Cami>& info) {
  return info.param.formulari;
}

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

INSTANTIATE_TEST_SUITE_P(Cada_Pantalla, Text_Hostil, testing::ValuesIn(camins), Nom_De_Prova);

TEST(Pantalles_Amb_Text_Hostil, Are_all_of_them) {
  QStringList amb_cami;
  for (const Cami& cami : camins) amb_cami << QString::fromLatin1(cami.formulari);
  for (const auto& fitxer : std::filesystem::recursive_directory_iterator(CARPETA_PROVES "/..")) {
    const QString nom = QString::fromStdString(fitxer.path().stem().string()).toUpper();
    if (fitxer.path().extension() != ".ui" || !nom.startsWith(u"F_")) continue;
    EXPECT_TRUE(amb_cami.contains(nom)) << nom.toStdString() << " is nobody's";
  }
}
