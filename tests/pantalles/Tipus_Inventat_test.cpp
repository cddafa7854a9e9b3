// A kind of document that the program has not, driven through its search form, its list and its editor from
// descriptions alone: its number is a text, it is for a supplier, it has no foot, no payments and no boxes of tax, its
// frame has a field of its own, and its line columns are few.
#include <QGroupBox>
#include <QPushButton>

#include "core/controls/Focus_Camps.h"
#include "core/formularis/Amb_Ui.h"
#include "core/formularis/Pares.h"
#include "documents/F_Cerca_Document.h"
#include "documents/F_Editor_Document.h"
#include "documents/F_Llista_Documents.h"
#include "documents/F_Obrir_Document.h"
#include "masters/M_Proveidors.h"
#include "tests/pantalles/Formularis_De_Prova.h"

namespace {

void Columnes_De_Diposit(const Capcalera_Oberta& /*cap*/, const Linia_Entrada& linia, Recordset& fila) {
  fila.Set("LOT_DL", linia.altres.at("LOT"));
}

constexpr Passos_Document passos = {.columnes = Columnes_De_Diposit};

const Tipus_Document tipus_diposit = {
    .formulari = "F_DIPOSIT",
    .llista = "F_DIPOSITSM",
    .cap = {"DIPOSITCAP", "DC"},
    .lin = {"DIPOSITLIN", "DL"},
    .lletra_bloqueig = "DP",
    .numero_es_text = true,
    .taxes_de_l_article = true,
    .columnes_linies = "NUMALB EMPRESA LIN ARTICLE DESCRIPCIO UNITATS PVP IMPORT_BRUT LOT",
    .numero_a_obrir = &Sessio::Numero_AlbCompra,
    .crida = &Sessio::Crida_Document,
    .pregunta_esborrar = {"Segur d'esborrar el Dipòsit ", "¿Seguro de eliminar el Depósito ",
                          "Are you sure to delete Deposit "},
    .passos = &passos};

const Descripcio_Consulta consulta = {
    .tipus = tipus_diposit,
    .cerca = "F_DIPOSITSS",
    .criteris = {{Mena_Criteri::Textos, "TXT_DIPOSIT", "NUMALB_DC"},
                 {Mena_Criteri::Dates, "DT_DATA", "DATA_DC"},
                 {Mena_Criteri::Codi, "CMB_PROVEIDOR", "PROVEIDOR_DC", false, &noms_proveidors}},
    .camps = "NUMALB_DC, DATA_DC, PROVEIDOR_DESC_DC",
    .ordre = "NUMALB_DC"};

const Descripcio_Cerca cerca = {
    .criteris = consulta.criteris, .primer_camp = "TXT_DIPOSIT_ENTRE", .botons = {{"B_Diposits", u"F_DIPOSITSM"}}};

const Descripcio_Llista_Documents llista = {
    .consulta = consulta,
    .graella = "G_Diposits",
    .columnes = {{"NUMALB_DC", 1200, "Dipòsit"}, {"PROVEIDOR_DESC_DC", 3000, "Proveïdor"}},
    .boto_nou = "B_Nou",
    .boto_esborrar = "B_Esborrar"};

const Descripcio_Editor editor = {.tipus = tipus_diposit,
                                  .dret = &Sessio::P_Albarans,
                                  .qui = &per_a_un_proveidor,
                                  .graella_linies = "G_Linies",
                                  .entrada = {.sufix = "AL", .preus = preus_de_compra},
                                  .demanats = {"TXT_PROVEIDOR", "TXT_LLOC"},
                                  .fixats = {"TXT_NUMALB", "CMB_PROVEIDOR", "TXT_LLOC"},
                                  .desen = {"DT_DATA", "TXT_LLOC"}};

constexpr Pare pares[] = {{u"F_DIPOSIT", u"F_DIPOSITSM", true}, {u"F_DIPOSITSM", u"F_DIPOSITSS"}};
constexpr const char16_t* sense_pares[] = {u"F_DIPOSITSS"};

template <class Control>
void Posar(QWidget* on, std::initializer_list<const char*> noms) {
  for (const char* nom : noms) {
    auto* control = new Control(on);
    control->setObjectName(QString::fromUtf8(nom));
    on->layout()->addWidget(control);
  }
}

void Comencar(QWidget* formulari, const char* nom) {
  formulari->setObjectName(QString::fromUtf8(nom));
  new QVBoxLayout(formulari);
}

struct Ui_Cerca {
  void setupUi(QWidget* formulari) {
    Comencar(formulari, "F_DipositsS");
    Posar<QLineEdit>(formulari, {"TXT_DIPOSIT_ENTRE", "TXT_DIPOSIT_Y"});
    Posar<Selector_Data>(formulari, {"DT_DATA_ENTRE", "DT_DATA_Y"});
    Posar<Combo_Codi>(formulari, {"CMB_PROVEIDOR"});
    Posar<QPushButton>(formulari, {"B_NETEJAR", "B_Diposits", "B_Exit"});
  }
};

struct Ui_Llista {
  void setupUi(QWidget* formulari) {
    Comencar(formulari, "F_DipositsM");
    Posar<Graella>(formulari, {"G_Diposits"});
    Posar<QPushButton>(formulari, {"B_Nou", "B_Esborrar", "B_Exit"});
  }
};

struct Ui_Editor {
  void setupUi(QWidget* formulari) {
    Comencar(formulari, "F_Diposit");
    Posar<QLineEdit>(formulari, {"TXT_NUMALB_DC", "TXT_PROVEIDOR_DC", "TXT_LLOC_DC"});
    Posar<Selector_Data>(formulari, {"DT_DATA_DC"});
    Posar<Combo_Codi>(formulari, {"CMB_PROVEIDOR_DC"});
    Posar<Camp_Numeric>(formulari, {"TXT_IMPORT_DC"});
    Posar<Graella>(formulari, {"G_Linies"});
    Posar<QPushButton>(formulari, {"B_EsborrarLinia", "B_VALORAR", "B_PROVEIDOR", "B_Exit"});
    auto* marc = new QGroupBox(formulari);
    marc->setObjectName(QStringLiteral("FR_NOVA"));
    new QVBoxLayout(marc);
    formulari->layout()->addWidget(marc);
    Posar<QLineEdit>(marc, {"TXT_ARTICLE_AL", "TXT_DESCRIPCIO_AL", "TXT_IVA_ART", "TXT_LOT_AL"});
    Posar<Camp_Numeric>(marc, {"TXT_COST_AL", "TXT_PREU_UNITARI_AL", "TXT_PVP_AL", "TXT_PORC_MARGE_AL",
                               "TXT_DESCOMPTE_AL", "TXT_DTE_ART", "TXT_UNITATS_AL"});
  }
};

}  // namespace

class Tipus_Inventat : public Amb_Principal {
 protected:
  Tipus_Inventat() {
    Fixar_Pares(pares, sense_pares);
    Registrar_Tipus(tipus_diposit);
    Registrar_Formulari(QStringLiteral("F_DIPOSITSS"), Fabrica_De<Cerca_Document, Ui_Cerca>(cerca));
    Registrar_Formulari(QStringLiteral("F_DIPOSITSM"), Fabrica_De<Llista_Documents, Ui_Llista>(llista));
    Registrar_Formulari(QStringLiteral("F_DIPOSIT"), Fabrica_De<Editor_Document, Ui_Editor>(editor));
    Executar(
        "CREATE TABLE DIPOSITCAP (NUMALB_DC CODI NOT NULL, EMPRESA_DC CODI NOT NULL, EMP_DESC_DC TEXT, DATA_DC DATA, "
        "PROVEIDOR_DC CODI, PROVEIDOR_DESC_DC TEXT, LLOC_DC TEXT, IMPORT_DC DOBLE DEFAULT 0, PRIMARY KEY (EMPRESA_DC, "
        "NUMALB_DC))");
    Executar(
        "CREATE TABLE DIPOSITLIN (NUMALB_DL CODI NOT NULL, EMPRESA_DL CODI NOT NULL, LIN_DL CURT NOT NULL, ARTICLE_DL "
        "CODI, DESCRIPCIO_DL TEXT, UNITATS_DL DOBLE DEFAULT 0, PVP_DL DOBLE DEFAULT 0, IMPORT_BRUT_DL DOBLE DEFAULT 0, "
        "LOT_DL TEXT, PRIMARY KEY (EMPRESA_DL, NUMALB_DL, LIN_DL), FOREIGN KEY (EMPRESA_DL, NUMALB_DL) REFERENCES "
        "DIPOSITCAP (EMPRESA_DC, NUMALB_DC) ON DELETE CASCADE ON UPDATE CASCADE)");
    Executar("INSERT INTO PROVEIDORS (NIF_PRO, RAO_SOCIAL_PRO) VALUES('P1', 'Acers Vallès')");
    Executar("INSERT INTO ARTICLES (CODI_ART, DESCRIPCIO_ART, IVA_ART, COST_ART) VALUES('A1', 'Barra', 'EX', 0)");
  }
  ~Tipus_Inventat() override {
    Descarregar_Tots();
    Assentar();
    for (const char* nom : {"F_DIPOSITSS", "F_DIPOSITSM", "F_DIPOSIT"})
      Registrar_Formulari(QString::fromLatin1(nom), nullptr);
    Fixar_Pares(pares_d_abans, sense_d_abans);
  }

  template <class Control>
  static Control* Del(const char* formulari, const char* nom) {
    return dynamic_cast<Control*>(Obert(formulari)->Cercar_Control(QString::fromLatin1(nom)));
  }
  static void Premer(const char* formulari, const char* boto) {
    Del<QPushButton>(formulari, boto)->click();
    Assentar();
  }
  // As typed by hand and left.
  static void Escriure(const char* nom, const char* text) {
    auto* camp = Del<QLineEdit>("F_DIPOSIT", nom);
    Entrar_Al_Camp(camp);
    camp->setText(QString::fromUtf8(text));
    Deixar_Camp(camp);
  }
  static std::string Text(const char* nom) { return Del<QLineEdit>("F_DIPOSIT", nom)->text().toStdString(); }
  static std::string Llegir(const std::string& sentencia) {
    const Recordset rs(sentencia, sessio.Connexio_Comuna);
    std::string fila;
    for (std::size_t i = 0; rs.RecordCount() > 0 && i < rs.Fields().size(); ++i)
      fila += (i == 0 ? "" : " | ") + rs[static_cast<int>(i)].Text();
    return fila;
  }
  static std::int64_t Files(const std::string& sentencia) {
    return Recordset(sentencia, sessio.Connexio_Comuna).RecordCount();
  }

  static void Obrir_La_Llista() {
    Obrir(QStringLiteral("F_DIPOSITSS"));
    Premer("F_DIPOSITSS", "B_Diposits");
  }
  static void Fer_Un_Diposit() {
    Obrir_La_Llista();
    Premer("F_DIPOSITSM", "B_Nou");
    Escriure("TXT_NUMALB_DC", "A/12-b");
    Del<Combo_Codi>("F_DIPOSIT", "CMB_PROVEIDOR_DC")->Triar("P1", "Acers Vallès");
    Escriure("TXT_LLOC_DC", "Moll 3");
    Escriure("TXT_ARTICLE_AL", "A1");
    Escriure("TXT_PREU_UNITARI_AL", "2,5");
    Escriure("TXT_LOT_AL", "L7");
    Escriure("TXT_UNITATS_AL", "4");
  }

  const std::span<const Pare> pares_d_abans = Taula_De_Pares();
  const std::span<const char16_t* const> sense_d_abans = Formularis_Sense_Pares();
};

TEST_F(Tipus_Inventat, Its_search_form_clears_to_all_numbers_and_opens_its_list) {
  Obrir(QStringLiteral("F_DIPOSITSS"));
  EXPECT_EQ(Del<QLineEdit>("F_DIPOSITSS", "TXT_DIPOSIT_Y")->text(), QStringLiteral("ZZZZZZZZZZZZZZZ"));
  Del<QLineEdit>("F_DIPOSITSS", "TXT_DIPOSIT_Y")->setText(QStringLiteral("B"));
  Premer("F_DIPOSITSS", "B_NETEJAR");
  EXPECT_EQ(Del<QLineEdit>("F_DIPOSITSS", "TXT_DIPOSIT_Y")->text(), QStringLiteral("ZZZZZZZZZZZZZZZ"));
  Premer("F_DIPOSITSS", "B_Diposits");
  EXPECT_TRUE(Habilitat("F_DIPOSITSM"));
  EXPECT_FALSE(Habilitat("F_DIPOSITSS"));
}

TEST_F(Tipus_Inventat, A_new_one_is_locked_under_its_letter_and_takes_a_text_as_its_number) {
  Obrir_La_Llista();
  Premer("F_DIPOSITSM", "B_Nou");
  EXPECT_EQ(Text("TXT_NUMALB_DC"), "1");
  Escriure("TXT_NUMALB_DC", "A/12-b");
  EXPECT_EQ(Llegir("SELECT NUMALB_DC, EMPRESA_DC FROM DIPOSITCAP"), "A/12-b | B00000000");
  EXPECT_EQ(Llegir("SELECT DOCUMENT_LCK, NUMERO_LCK FROM LOCKS"), "DP | A/12-b");
  Escriure("TXT_NUMALB_DC", "a/12-B");
  EXPECT_EQ(Text("TXT_NUMALB_DC"), "A/12-b");
}

TEST_F(Tipus_Inventat, No_line_before_its_supplier_and_its_place_are_there) {
  Obrir_La_Llista();
  Premer("F_DIPOSITSM", "B_Nou");
  auto* marc = Del<QGroupBox>("F_DIPOSIT", "FR_NOVA");
  Del<Combo_Codi>("F_DIPOSIT", "CMB_PROVEIDOR_DC")->Triar("P1", "Acers Vallès");
  EXPECT_EQ(Text("TXT_PROVEIDOR_DC"), "P1");
  EXPECT_EQ(Llegir("SELECT PROVEIDOR_DC, PROVEIDOR_DESC_DC FROM DIPOSITCAP"), "P1 | Acers Vallès");
  EXPECT_FALSE(marc->isVisible());
  Escriure("TXT_LLOC_DC", "Moll 3");
  EXPECT_TRUE(marc->isVisible());
  EXPECT_EQ(Llegir("SELECT LLOC_DC FROM DIPOSITCAP"), "Moll 3");
}

TEST_F(Tipus_Inventat, A_line_has_the_columns_of_its_kind_and_the_total_is_that_of_the_lines) {
  Fer_Un_Diposit();
  EXPECT_EQ(
      Llegir("SELECT NUMALB_DL, LIN_DL, ARTICLE_DL, DESCRIPCIO_DL, UNITATS_DL, PVP_DL, IMPORT_BRUT_DL, LOT_DL FROM "
             "DIPOSITLIN"),
      "A/12-b | 1 | A1 | Barra | 4 | 2,5 | 10 | L7");
  EXPECT_EQ(Text("TXT_IMPORT_DC"), "10,00");
  EXPECT_EQ(Text("TXT_LOT_AL"), "");
  EXPECT_FALSE(Del<QWidget>("F_DIPOSIT", "TXT_NUMALB_DC")->isEnabled());
  EXPECT_FALSE(Del<QWidget>("F_DIPOSIT", "TXT_LLOC_DC")->isEnabled());
}

TEST_F(Tipus_Inventat, Closing_saves_its_head_and_releases_it_and_the_list_shows_it) {
  Fer_Un_Diposit();
  Premer("F_DIPOSIT", "B_Exit");
  EXPECT_EQ(Llegir("SELECT NUMALB_DC, LLOC_DC, IMPORT_DC FROM DIPOSITCAP"), "A/12-b | Moll 3 | 10");
  EXPECT_EQ(Files("SELECT * FROM LOCKS"), 0);
  Graella* graella = Obert("F_DIPOSITSM")->Graella_Llista();
  EXPECT_EQ(graella->Files(), 1);
  EXPECT_EQ(graella->Text_Cella(0, QStringLiteral("PROVEIDOR_DESC_DC")).toStdString(), "Acers Vallès");
  EXPECT_TRUE(installacio.pantalla.caixes.empty());
}

TEST_F(Tipus_Inventat, Its_last_line_deleted_and_closed_nothing_of_it_remains) {
  Fer_Un_Diposit();
  Premer("F_DIPOSIT", "B_Exit");
  Q_EMIT Obert("F_DIPOSITSM")->Graella_Llista()->Doble_Clic(0);
  EXPECT_EQ(Text("TXT_LLOC_DC"), "Moll 3");
  installacio.pantalla.respostes.push_back(Resposta::Ok);
  Premer("F_DIPOSIT", "B_EsborrarLinia");
  EXPECT_EQ(installacio.pantalla.caixes.back().text, "Segur d'esborrar la línia 1 ?");
  EXPECT_EQ(Text("TXT_IMPORT_DC"), "0,00");
  Premer("F_DIPOSIT", "B_Exit");
  EXPECT_EQ(Files("SELECT * FROM DIPOSITCAP"), 0);
  EXPECT_EQ(Obert("F_DIPOSITSM")->Graella_Llista()->Files(), 0);
}

TEST_F(Tipus_Inventat, It_is_found_by_its_number_in_the_order_of_texts_and_by_its_supplier) {
  Fer_Un_Diposit();
  Premer("F_DIPOSIT", "B_Exit");
  Tancar("F_DIPOSITSM");
  Del<QLineEdit>("F_DIPOSITSS", "TXT_DIPOSIT_ENTRE")->setText(QStringLiteral("B"));
  Premer("F_DIPOSITSS", "B_Diposits");
  EXPECT_EQ(Obert("F_DIPOSITSM")->Graella_Llista()->Files(), 0);
  Tancar("F_DIPOSITSM");
  Del<QLineEdit>("F_DIPOSITSS", "TXT_DIPOSIT_ENTRE")->setText(QStringLiteral("a"));
  Del<Combo_Codi>("F_DIPOSITSS", "CMB_PROVEIDOR")->Triar("P1", "Acers Vallès");
  Premer("F_DIPOSITSS", "B_Diposits");
  EXPECT_EQ(Obert("F_DIPOSITSM")->Graella_Llista()->Files(), 1);
}

TEST_F(Tipus_Inventat, An_editor_that_is_open_shows_the_document_that_is_opened_now_and_what_was_typed_is_saved) {
  Fer_Un_Diposit();
  Executar("INSERT INTO DIPOSITCAP (NUMALB_DC, EMPRESA_DC) VALUES('Z9', 'B00000000')");
  Executar("INSERT INTO DIPOSITLIN (NUMALB_DL, EMPRESA_DL, LIN_DL) VALUES('Z9', 'B00000000', 1)");
  ASSERT_TRUE(Obrir_Document(tipus_diposit, "Z9", "F_PAGAMENTSM;EDIT"));
  Assentar();
  EXPECT_EQ(Text("TXT_NUMALB_DC"), "Z9");
  EXPECT_EQ(Llegir("SELECT IMPORT_DC FROM DIPOSITCAP WHERE NUMALB_DC = 'A/12-b'"), "10");
  EXPECT_EQ(Llegir("SELECT NUMERO_LCK FROM LOCKS"), "Z9");
  ASSERT_TRUE(Obrir_Document(tipus_diposit, "z9", "F_PAGAMENTSM;EDIT"));
  EXPECT_EQ(Files("SELECT * FROM LOCKS"), 1);
}

TEST_F(Tipus_Inventat, One_that_another_terminal_deleted_opens_nothing_and_says_so) {
  EXPECT_FALSE(Obrir_Document(tipus_diposit, "A/12-b", "F_PAGAMENTSM;EDIT"));
  EXPECT_EQ(installacio.pantalla.caixes,
            (std::vector<Caixa_Vista>{{"El document ja no existeix.", estil::critic, "Brollador"}}));
  EXPECT_EQ(Obert("F_DIPOSIT"), nullptr);
  EXPECT_EQ(Files("SELECT * FROM LOCKS"), 0);
}
