// Parents of forms: who is disabled, who is requeried, who is created.
#include "core/formularis/Pares.h"

#include <QSet>

#include "tests/pantalles/Formularis_De_Prova.h"

namespace {

const std::vector<Columna_Graella> columnes = {{"CODI_VEN", 1500, "Codi"}};
constexpr const char* venciments = "SELECT CODI_VEN FROM VENCIMENTS ORDER BY CODI_VEN";

QString Nom(const char16_t* nom) {
  return QString::fromUtf16(nom);
}

}  // namespace

TEST(Taula_De_Pares, Holds_the_fifty_one_forms_that_the_services_know) {
  QSet<QString> formularis;
  for (const Pare& pare : Taula_De_Pares()) formularis << Nom(pare.formulari);
  EXPECT_EQ(formularis.size(), 24);
  for (const char16_t* nom : Formularis_Sense_Pares()) {
    EXPECT_FALSE(formularis.contains(Nom(nom))) << Nom(nom).toStdString();
    formularis << Nom(nom);
  }
  EXPECT_EQ(formularis.size(), 51);
  for (const QString& nom : formularis) EXPECT_TRUE(Es_Del_Sistema(nom)) << nom.toStdString();
  for (const char16_t* nom : {u"F_PRINCIPAL", u"F_SUBINICI", u"F_STATUS", u""}) EXPECT_FALSE(Es_Del_Sistema(Nom(nom)));
}

TEST(Taula_De_Pares, Every_parent_is_a_form_and_none_stands_twice) {
  QSet<QString> vistes;
  for (const Pare& pare : Taula_De_Pares()) {
    const QString parella = Nom(pare.formulari) + u'/' + Nom(pare.pare);
    EXPECT_TRUE(Es_Del_Sistema(Nom(pare.pare))) << parella.toStdString();
    EXPECT_FALSE(vistes.contains(parella)) << parella.toStdString();
    vistes << parella;
  }
}

TEST(Taula_De_Pares, An_editor_requeries_its_list_and_a_list_requeries_nothing) {
  for (const Pare& pare : Taula_De_Pares()) {
    const bool pare_es_llista = Nom(pare.pare).endsWith(u'M') || Nom(pare.pare) == u"F_ARTICLESMC";
    EXPECT_EQ(pare.requerir, pare_es_llista) << Nom(pare.formulari).toStdString();
  }
}

class Pares : public Amb_Principal {};

TEST_F(Pares, Every_loaded_parent_of_the_table_is_disabled_and_enabled_again) {
  for (const Pare& pare : Taula_De_Pares()) {
    sessio.Crida_Document = sessio.Pag_Document = pare.clau;
    const std::string formulari = Nom(pare.formulari).toStdString();
    const std::string darrere = Nom(pare.pare).toStdString();
    Registrar(formulari.c_str());
    Registrar(darrere.c_str());
    Obrir_I_Tenir(darrere.c_str());
    ASSERT_TRUE(Habilitat(darrere.c_str()));
    Obrir_I_Tenir(formulari.c_str());
    EXPECT_FALSE(Habilitat(darrere.c_str())) << formulari << " " << darrere;
    EXPECT_TRUE(Habilitat(formulari.c_str()));
    Tancar(formulari.c_str());
    EXPECT_TRUE(Habilitat(darrere.c_str())) << formulari << " " << darrere;
    Tancar(darrere.c_str());
  }
  EXPECT_TRUE(installacio.pantalla.caixes.empty());
}

TEST_F(Pares, An_editor_requeries_every_list_of_its_own_and_the_outstanding_one_is_filled_first) {
  for (const char* llista : {"F_ALBARANSM", "F_PAGAMENTSM", "F_PAGPENDM"}) {
    Registrar_Llista(llista, venciments, columnes);
    Obrir_I_Tenir<Llista_De_Prova>(llista)->Recordset_Llista()->AbsolutePosition(2);
  }
  Registrar("F_ALBARA");
  Obrir_I_Tenir("F_ALBARA");
  Executar("INSERT INTO VENCIMENTS (CODI_VEN) VALUES ('90')");
  Tancar("F_ALBARA");
  for (const char* llista : {"F_ALBARANSM", "F_PAGAMENTSM", "F_PAGPENDM"}) {
    auto* oberta = Obert<Llista_De_Prova>(llista);
    EXPECT_EQ(oberta->Graella_Llista()->Files(), 4) << llista;
    EXPECT_EQ(oberta->Recordset_Llista()->AbsolutePosition(), 2) << llista;
    EXPECT_EQ(oberta->preparacions, 1) << llista;
  }
}

TEST_F(Pares, A_list_that_cannot_be_requeried_is_enabled_all_the_same) {
  Registrar_Llista("F_CLIENTSM", venciments, columnes);
  Registrar("F_CLIENT");
  auto* llista = Obrir_I_Tenir<Llista_De_Prova>("F_CLIENTSM");
  Obrir_I_Tenir("F_CLIENT");
  llista->Recordset_Llista()->Close();
  Tancar("F_CLIENT");
  EXPECT_TRUE(Habilitat("F_CLIENTSM"));
  EXPECT_EQ(installacio.pantalla.caixes.size(), 1U);
}

TEST_F(Pares, Two_lists_create_the_search_form_that_they_read) {
  for (const char* llista : {"F_ALBMAGM", "F_COMANDESM"}) {
    const std::string cerca = std::string(llista).replace(std::string(llista).size() - 1, 1, "S");
    Registrar(llista);
    Registrar(cerca.c_str());
    Obrir_I_Tenir(llista);
    ASSERT_NE(Obert(cerca.c_str()), nullptr) << cerca;
    EXPECT_FALSE(Obert(cerca.c_str())->isVisible());
    // Shown while the list is open, it is disabled as any other parent.
    Obrir(QString::fromStdString(cerca));
    EXPECT_TRUE(Obert(cerca.c_str())->isVisible());
    EXPECT_FALSE(Habilitat(cerca.c_str()));
    Tancar(llista);
    EXPECT_TRUE(Habilitat(cerca.c_str()));
  }
}

TEST_F(Pares, The_line_form_gives_back_the_document_that_it_was_opened_from) {
  Registrar("F_COMANDA");
  Registrar("F_FACTURA");
  Registrar("F_DETALL_LINIA");
  Obrir_I_Tenir("F_COMANDA");
  Obrir_I_Tenir("F_FACTURA");
  sessio.Crida_Document = "F_COMANDA";
  Obrir_I_Tenir("F_DETALL_LINIA");
  EXPECT_FALSE(Habilitat("F_COMANDA"));
  EXPECT_TRUE(Habilitat("F_FACTURA"));
  sessio.Crida_Document.clear();  // another list was opened and closed meanwhile
  Tancar("F_DETALL_LINIA");
  EXPECT_TRUE(Habilitat("F_COMANDA"));
}

TEST_F(Pares, A_name_outside_the_system_is_opened_without_any_service) {
  Executar("UPDATE USUARIS SET IDIOMA_USU = 0");
  sessio.Connexio_Local.Execute(
      "INSERT INTO TEXTS (F_OBJECT, F_LANGUAGE, F_CONTROL, F_PROPERTY, F_TEXT) VALUES ('F_FORA', 0, 'F_FORA', "
      "'CAPTION', 'Traduit')");
  Registrar("F_FORA");
  EXPECT_EQ(Obrir_I_Tenir("F_FORA")->windowTitle(), QStringLiteral("F_FORA"));
  EXPECT_NO_THROW(Obrir_Formulari(QStringLiteral("F_QUE_NO_HI_ES")));
}

TEST_F(Pares, Forms_are_unloaded_from_the_front_to_the_back) {
  std::vector<std::string> tancats;
  struct Formulari_Que_Ho_Diu : Formulari_De_Prova {
    Formulari_Que_Ho_Diu(const QString& nom, std::vector<std::string>& on) : Formulari_De_Prova(nom), on_(on) {}
    void Descarregar() override { on_.push_back(Nom().toStdString()); }
    std::vector<std::string>& on_;
  };
  for (const char* nom : {"F_CLIENTSM", "F_ALBARA", "F_MARQUESM"}) {
    const QString text = QString::fromLatin1(nom);
    Registrar_Formulari(text, [&tancats, text] { return new Formulari_Que_Ho_Diu(text, tancats); });
    Obrir(text);
  }
  Registrar_Formulari(QStringLiteral("F_ALBMAGS"),
                      [&tancats] { return new Formulari_Que_Ho_Diu(QStringLiteral("F_ALBMAGS"), tancats); });
  Carregar_Amagat(QStringLiteral("F_ALBMAGS"));
  Descarregar_Tots();
  EXPECT_EQ(tancats, (std::vector<std::string>{"F_MARQUESM", "F_ALBARA", "F_CLIENTSM", "F_ALBMAGS"}));
}
