// The return of a chosen row into the field that asked for it.
#include "core/formularis/Crides.h"

#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QTest>

#include "core/controls/Controls.h"
#include "core/controls/Focus_Camps.h"
#include "core/formularis/Pares.h"
#include "shell/F_Cerca.h"
#include "tests/pantalles/Formularis_De_Prova.h"

namespace {

QString Nom(const char16_t* nom) {
  return QString::fromUtf16(nom);
}

// The table behind each list.
const std::map<QString, std::string>& Taules() {
  static const std::map<QString, std::string> taules = {{QStringLiteral("F_FAMILIESM"), "FAMILIES"},
                                                        {QStringLiteral("F_SUBFAMILIESM"), "SUBFAMILIES"},
                                                        {QStringLiteral("F_MARQUESM"), "MARQUES"},
                                                        {QStringLiteral("F_IVASM"), "IVAS"},
                                                        {QStringLiteral("F_PROVEIDORSM"), "PROVEIDORS"},
                                                        {QStringLiteral("F_MAGATZEMSM"), "ALMACENES"},
                                                        {QStringLiteral("F_CPM"), "CP"},
                                                        {QStringLiteral("F_VENCIMENTSM"), "VENCIMENTS"},
                                                        {QStringLiteral("F_CLIENTSM"), "CLIENTS"},
                                                        {QStringLiteral("F_ARTICLESMCS"), "ARTICLES"}};
  return taules;
}

}  // namespace

TEST(Taula_De_Crides, Every_tag_stands_once_between_forms_of_the_system) {
  QSet<QString> etiquetes;
  for (const Crida& crida : Taula_De_Crides()) {
    const QString etiqueta = QString::fromLatin1(crida.etiqueta);
    EXPECT_FALSE(etiquetes.contains(etiqueta)) << crida.etiqueta;
    etiquetes << etiqueta;
    EXPECT_TRUE(Es_Del_Sistema(Nom(crida.llista))) << crida.etiqueta;
    EXPECT_EQ(etiqueta.section(u';', 0, 0), Nom(crida.formulari)) << crida.etiqueta;
    EXPECT_EQ(crida.destins.empty(), crida.mena == Mena_Crida::Sense_Retorn) << crida.etiqueta;
  }
  EXPECT_EQ(etiquetes.size(), 33);
}

class Crides : public Amb_Principal {
 protected:
  // A caller with the targets of a call, and a button for it.
  Formulari_De_Prova* Obrir_Qui_Crida(const Crida& crida) {
    Registrar(qUtf8Printable(Nom(crida.formulari)));
    auto* formulari = Obrir_I_Tenir<Formulari_De_Prova>(qUtf8Printable(Nom(crida.formulari)));
    for (const auto& desti : crida.destins) {
      const QByteArray nom = Nom(desti.control).toUtf8();
      if (nom.startsWith("CMB_")) {
        formulari->Posar<Combo_Codi>(nom);
      } else {
        formulari->Posar<QLineEdit>(nom);
      }
    }
    Assentar();
    return formulari;
  }
  // Its list with one row, A in every column that goes back.
  Llista_De_Prova* Obrir_Llista(const Crida& crida) {
    std::string columnes;
    std::string valors;
    for (const auto& desti : crida.destins) {
      for (const std::string columna : {desti.columna, desti.columna_nom}) {
        if (columna.empty()) continue;
        columnes += (columnes.empty() ? "" : ", ") + columna;
        valors += (valors.empty() ? "'" : ", '") + columna + " A'";
      }
    }
    const std::string& taula = Taules().at(Nom(crida.llista));
    Executar("DELETE * FROM " + taula);
    Executar("INSERT INTO " + taula + " (" + columnes + ") VALUES (" + valors + ")");
    Registrar_Llista(qUtf8Printable(Nom(crida.llista)), "SELECT " + columnes + " FROM " + taula,
                     {{crida.destins[0].columna, 1500, "Codi"}});
    Cridar(crida);
    auto* llista = Obert<Llista_De_Prova>(qUtf8Printable(Nom(crida.llista)));
    llista->Graella_Llista()->Anar_A_Fila(0);
    return llista;
  }
  static const Crida& De_Etiqueta(const char* etiqueta) {
    const auto taula = Taula_De_Crides();
    return *std::find_if(taula.begin(), taula.end(),
                         [&](const Crida& crida) { return std::string_view(crida.etiqueta) == etiqueta; });
  }
  static void Doble_Clic(Llista_De_Prova* llista) {
    Q_EMIT llista->Graella_Llista()->Doble_Clic(0);
    Assentar();
  }
  static QString Text(Formulari* formulari, const char* camp) {
    return qobject_cast<QLineEdit*>(formulari->Cercar_Control(QString::fromUtf8(camp)))->text();
  }
};

TEST_F(Crides, Every_call_sets_the_targets_of_its_caller_and_closes_the_list) {
  for (const Crida& crida : Taula_De_Crides()) {
    if (crida.mena != Mena_Crida::Camp && crida.mena != Mena_Crida::Combo) continue;
    auto* formulari = Obrir_Qui_Crida(crida);
    auto* primer = formulari->Cercar_Control(Nom(crida.destins[0].control));
    int validacions = 0;
    En_Sortir(primer, [&] { ++validacions; });
    if (auto* combo = qobject_cast<Combo_Codi*>(primer)) {
      QObject::connect(combo, &Combo_Codi::Triat, formulari, [&] { ++validacions; });
    }
    auto* llista = Obrir_Llista(crida);
    ASSERT_NE(Crida_Pendent(Nom(crida.llista)), nullptr) << crida.etiqueta;
    Doble_Clic(llista);
    EXPECT_EQ(Obert(qUtf8Printable(Nom(crida.llista))), nullptr) << crida.etiqueta;
    EXPECT_GE(validacions, 1) << crida.etiqueta;
    for (const auto& desti : crida.destins) {
      QWidget* control = formulari->Cercar_Control(Nom(desti.control));
      if (const auto* combo = qobject_cast<Combo_Codi*>(control)) {
        EXPECT_EQ(combo->Codi(), std::string(desti.columna) + " A") << crida.etiqueta;
        EXPECT_EQ(combo->Nom(), std::string(desti.columna_nom) + " A") << crida.etiqueta;
      } else {
        EXPECT_EQ(qobject_cast<QLineEdit*>(control)->text(), QString::fromUtf8(desti.columna) + u" A"_qs);
      }
    }
    EXPECT_EQ(principal.Del_Davant(), formulari) << crida.etiqueta;
    EXPECT_EQ(sessio.*crida.variable, "") << crida.etiqueta;
    Tancar(qUtf8Printable(Nom(crida.formulari)));
  }
  EXPECT_TRUE(installacio.pantalla.caixes.empty());
}

TEST_F(Crides, The_field_takes_the_focus_with_its_text_selected) {
  const Crida& crida = De_Etiqueta("F_ARTICLE;FAMILIA_ART");
  auto* formulari = Obrir_Qui_Crida(crida);
  Doble_Clic(Obrir_Llista(crida));
  auto* camp = qobject_cast<QLineEdit*>(formulari->Cercar_Control(QStringLiteral("TXT_FAMILIA_ART")));
  EXPECT_EQ(formulari->focusWidget(), camp);
  EXPECT_EQ(camp->selectedText(), QStringLiteral("CODI_FAM A"));
}

TEST_F(Crides, The_field_is_entered_with_its_old_text_and_left_with_the_new_one) {
  const Crida& crida = De_Etiqueta("F_ALBMAG;ORI_AAC");
  auto* formulari = Obrir_Qui_Crida(crida);
  auto* camp = qobject_cast<QLineEdit*>(formulari->Cercar_Control(QStringLiteral("TXT_ORI_AAC")));
  camp->setText(QStringLiteral("vell"));
  QStringList vist;
  En_Entrar(camp, [&] { vist << QStringLiteral("entra ") + camp->text(); });
  En_Sortir(camp, [&] { vist << QStringLiteral("surt ") + camp->text(); });
  auto* llista = Obrir_Llista(crida);
  vist.clear();
  Tornar_Fila(*llista);
  EXPECT_EQ(vist.mid(0, 2), (QStringList{QStringLiteral("entra vell"), QStringLiteral("surt CODI_ALM A")}));
  Descarregar_Formulari(formulari->Nom());  // its fields look at what ends here
}

TEST_F(Crides, The_place_that_was_picked_stands_over_the_one_that_the_code_alone_would_give) {
  const Crida& crida = De_Etiqueta("F_CLIENT;CP_CLI");
  auto* formulari = Obrir_Qui_Crida(crida);
  auto* codi = qobject_cast<QLineEdit*>(formulari->Cercar_Control(QStringLiteral("TXT_CP_CLI")));
  auto* localitat = qobject_cast<QLineEdit*>(formulari->Cercar_Control(QStringLiteral("TXT_LOCALITAT_CLI")));
  QString guardat;
  QString desada;
  En_Entrar(codi, [&] { guardat = codi->text(); });
  En_Sortir(codi, [&] {
    if (codi->text() != guardat) localitat->setText(QStringLiteral("La primera"));
    desada = localitat->text();
  });
  Doble_Clic(Obrir_Llista(crida));
  EXPECT_EQ(desada, QStringLiteral("LOCALITAT_CP A"));
  Descarregar_Formulari(formulari->Nom());  // its fields look at what ends here
}

TEST_F(Crides, A_customer_reaches_a_note_whose_combo_is_disabled) {
  const Crida& crida = De_Etiqueta("F_ALBARA;CMB_CLIENT_DESC_AC");
  auto* formulari = Obrir_Qui_Crida(crida);
  auto* combo = qobject_cast<Combo_Codi*>(formulari->Cercar_Control(QStringLiteral("CMB_CLIENT_DESC_AC")));
  combo->setEnabled(false);
  int triats = 0;
  QObject::connect(combo, &Combo_Codi::Triat, formulari, [&] { ++triats; });
  Doble_Clic(Obrir_Llista(crida));
  EXPECT_EQ(triats, 1);
  EXPECT_EQ(combo->Codi(), "NIF_CLI A");
  EXPECT_TRUE(installacio.pantalla.caixes.empty());
}

TEST_F(Crides, The_line_of_an_order_is_written_as_it_is_and_nothing_is_left) {
  const Crida& crida = De_Etiqueta("F_ALBARA;COMANDA_AL");
  auto* formulari = Obrir_Qui_Crida(crida);
  int validacions = 0;
  for (const auto& desti : crida.destins) {
    En_Sortir(formulari->Cercar_Control(Nom(desti.control)), [&] { ++validacions; });
  }
  Registrar_Llista("F_COMANDESMCS",
                   "SELECT 7 AS NUMALB_CC, 2 AS LIN_CL, 'CLAU' AS ARTICLE_CL, 'Clau anglesa' AS DESCRIPCIO_CL, 1.5 AS "
                   "COST_CL, 3 AS PENDENTS, 20 AS PORC_MARGE_CL, 1.8 AS PREU_UNITARI_CL, 21 AS PORC_IVA_CL, 2.18 AS "
                   "PVP_CL, 0 AS DTE_CL FROM IVAS WHERE CODI_IVA = 'GN'",
                   {{"NUMALB_CC", 1000, "Comanda"}});
  Cridar(crida);
  auto* llista = Obert<Llista_De_Prova>("F_COMANDESMCS");
  llista->Graella_Llista()->Anar_A_Fila(0);
  validacions = 0;
  ASSERT_TRUE(Tornar_Fila(*llista));
  EXPECT_EQ(validacions, 0);
  EXPECT_EQ(Text(formulari, "TXT_ARTICLE_AL"), QStringLiteral("CLAU"));
  EXPECT_EQ(Text(formulari, "TXT_IVA_ART"), QStringLiteral("GN"));
  EXPECT_EQ(Text(formulari, "TXT_COMANDA_AL"), QStringLiteral("7"));
  EXPECT_EQ(Text(formulari, "TXT_COMANDA_LIN_AL"), QStringLiteral("2"));
  EXPECT_EQ(formulari->focusWidget(), formulari->Cercar_Control(QStringLiteral("TXT_UNITATS_AL")));
  Descarregar_Formulari(formulari->Nom());  // its fields look at what ends here
}

TEST_F(Crides, The_caller_has_gone_and_nothing_is_done) {
  const Crida& crida = De_Etiqueta("F_CLIENT;CP_CLI");
  Obrir_Qui_Crida(crida);
  auto* llista = Obrir_Llista(crida);
  Tancar("F_CLIENT");
  EXPECT_FALSE(Tornar_Fila(*llista));
  EXPECT_NE(Obert("F_CPM"), nullptr);
}

TEST_F(Crides, A_reference_list_from_the_menu_does_nothing_and_any_other_opens_its_editor) {
  for (const char* nom : {"F_CPM", "F_FAMILIESM", "F_SUBFAMILIESM", "F_MARQUESM", "F_IVASM", "F_VENCIMENTSM",
                          "F_FORMESPAGAMENTM", "F_MAGATZEMSM", "F_CLIENTSM", "F_PROVEIDORSM"}) {
    Registrar_Llista(nom, "SELECT CODI_IVA FROM IVAS", {{"CODI_IVA", 1000, "Codi"}});
    auto* llista = Obrir_I_Tenir<Llista_De_Prova>(nom);
    llista->Graella_Llista()->Anar_A_Fila(0);
    Doble_Clic(llista);
    ASSERT_EQ(Obert(nom), llista);
    EXPECT_EQ(llista->obertes, std::string(nom) == "F_CLIENTSM" || std::string(nom) == "F_PROVEIDORSM" ? 1 : 0) << nom;
  }
}

TEST_F(Crides, A_list_of_birthdays_opens_the_customer) {
  for (const char* etiqueta : {"F_SUBINICI;ANIVERSARIS", "F_CLIENTSM;ANIVERSARIS"}) {
    Registrar_Llista("F_CLIENTSM", "SELECT CODI_IVA FROM IVAS", {{"CODI_IVA", 1000, "Codi"}});
    Cridar(De_Etiqueta(etiqueta));
    auto* llista = Obert<Llista_De_Prova>("F_CLIENTSM");
    llista->Graella_Llista()->Anar_A_Fila(0);
    Doble_Clic(llista);
    EXPECT_EQ(llista->obertes, 1) << etiqueta;
    EXPECT_EQ(sessio.Crida_Document, etiqueta);
    Tancar("F_CLIENTSM");
    EXPECT_EQ(sessio.Crida_Document, "");
  }
}

TEST_F(Crides, A_list_closed_without_choosing_leaves_no_tag_for_the_next_opening) {
  const Crida& crida = De_Etiqueta("F_ARTICLE;MARCA_ART");
  Obrir_Qui_Crida(crida);
  Obrir_Llista(crida);
  Tancar("F_MARQUESM");
  EXPECT_EQ(sessio.Crida_Mestre, "");
  sessio.Crida_Mestre = "F_ALBARANSM;EDIT";
  auto* llista = Obrir_I_Tenir<Llista_De_Prova>("F_MARQUESM");
  EXPECT_EQ(Crida_Pendent(llista->Nom()), nullptr);
  Tancar("F_MARQUESM");
  EXPECT_EQ(sessio.Crida_Mestre, "F_ALBARANSM;EDIT");
}

TEST_F(Crides, The_search_form_goes_with_the_list_that_it_filters) {
  Registrar_Formulari(QStringLiteral("F_CERCA"), [] { return new F_Cerca; });
  const Crida& crida = De_Etiqueta("F_ARTICLE;MARCA_ART");
  auto* formulari = Obrir_Qui_Crida(crida);
  auto* llista = Obrir_Llista(crida);
  Obrir_Cerca(llista);
  Doble_Clic(llista);
  EXPECT_EQ(Obert("F_CERCA"), nullptr);
  EXPECT_EQ(Text(formulari, "TXT_MARCA_ART"), QStringLiteral("CODI_MAR A"));
}

TEST_F(Crides, A_list_may_refuse_its_row_and_stays) {
  struct Llista_Que_Refusa : Llista_De_Prova {
    using Llista_De_Prova::Llista_De_Prova;
    bool Admet_Retorn() override { return false; }
  };
  const Crida& crida = De_Etiqueta("F_ALBARA;COMANDA_AL");
  auto* formulari = Obrir_Qui_Crida(crida);
  Registrar_Formulari(QStringLiteral("F_COMANDESMCS"), [] {
    return new Llista_Que_Refusa(QStringLiteral("F_COMANDESMCS"), "SELECT CODI_IVA FROM IVAS",
                                 std::vector<Columna_Graella>{{"CODI_IVA", 1000, "Codi"}});
  });
  Cridar(crida);
  auto* llista = Obert<Llista_De_Prova>("F_COMANDESMCS");
  llista->Graella_Llista()->Anar_A_Fila(0);
  Doble_Clic(llista);
  EXPECT_EQ(Obert("F_COMANDESMCS"), llista);
  EXPECT_EQ(llista->obertes, 0);
  EXPECT_EQ(Text(formulari, "TXT_ARTICLE_AL"), QString());
}

TEST_F(Crides, The_button_of_a_field_opens_its_list) {
  struct Amb_Boto : Formulari_De_Prova {
    explicit Amb_Boto(const QString& nom) : Formulari_De_Prova(nom) { Posar<QPushButton>("B_MARCA"); }
  };
  const auto boto = [] { return qobject_cast<QPushButton*>(Obert("F_ARTICLE")->Cercar_Control(u"B_MARCA"_qs)); };
  Registrar_Formulari(QStringLiteral("F_ARTICLE"), [] { return new Amb_Boto(QStringLiteral("F_ARTICLE")); });
  Registrar_Formulari(QStringLiteral("F_MARQUESM"), {});
  sessio.P_Articles = "M";
  Obrir_I_Tenir("F_ARTICLE");
  EXPECT_FALSE(boto()->isEnabled());
  Tancar("F_ARTICLE");
  Registrar("F_MARQUESM");
  Obrir_I_Tenir("F_ARTICLE");
  boto()->click();
  EXPECT_NE(Obert("F_MARQUESM"), nullptr);
  EXPECT_EQ(sessio.Crida_Mestre, "F_ARTICLE;MARCA_ART");
}
