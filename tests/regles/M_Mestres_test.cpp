// What the master tables share, over all of them: the question of a deletion in its words, the guard over every table
// that may name the code, the silence when it does.
#include "core/M_Mestres.h"

#include <algorithm>
#include <array>

#include "core/M_Funcions_Comuns.h"
#include "masters/M_Articles.h"
#include "masters/M_CP.h"
#include "masters/M_Clients.h"
#include "masters/M_Families.h"
#include "masters/M_IVAs.h"
#include "masters/M_Marques.h"
#include "masters/M_Mestre_Magatzems.h"
#include "masters/M_Proveidors.h"
#include "masters/M_Subfamilies.h"
#include "masters/M_Venciments.h"
#include "session/M_Empresa.h"
#include "stock/M_Magatzems.h"
#include "tests/regles/Base.h"

namespace {

// A master table: how its rows are made and deleted, and every column that may name its code.
struct Mestre {
  const char* taula;
  const char* alta;  // a row of code 'X'
  void (*esborrar)();
  bool (*en_us)(const std::string&);
  std::array<const char*, 3> preguntes;
  std::vector<Lloc> us;
};

void PrintTo(const Mestre& mestre, std::ostream* sortida) {
  *sortida << mestre.taula;
}

const std::vector<Mestre>& Mestres() {
  static const std::vector<Mestre> mestres = {
      {"FAMILIES",
       "INSERT INTO FAMILIES (CODI_FAM) VALUES ('X')",
       [] { Esborrar_Familia("X"); },
       Familia_En_Us,
       {"Segur d'esborrar la família X ?", "¿Seguro de eliminar la familia X ?",
        "Are you sure to delete the family X ?"},
       {{"ARTICLES", "FAMILIA_ART"}}},
      {"SUBFAMILIES",
       "INSERT INTO SUBFAMILIES (CODI_SUBF) VALUES ('X')",
       [] { Esborrar_Subfamilia("X"); },
       Subfamilia_En_Us,
       {"Segur d'esborrar la subfamília X ?", "¿Seguro de eliminar la subfamilia X ?",
        "Are you sure to delete the subfamily X ?"},
       {{"ARTICLES", "SUBFAMILIA_ART"}}},
      {"MARQUES",
       "INSERT INTO MARQUES (CODI_MAR) VALUES ('X')",
       [] { Esborrar_Marca("X"); },
       Marca_En_Us,
       {"Segur d'esborrar la marca X ?", "¿Seguro de eliminar la marca X ?", "Are you sure to delete the brand X ?"},
       {{"ARTICLES", "MARCA_ART"}}},
      {"IVAS",
       "INSERT INTO IVAS (CODI_IVA) VALUES ('X')",
       [] { Esborrar_Iva("X"); },
       Iva_En_Us,
       {"Segur d'esborrar el tipus d'IVA X ?", "¿Seguro de eliminar el tipo de IVA X ?",
        "Are you sure to delete VAT type X ?"},
       {{"ALBARAPEU", "TIPUS_IVA_AP"},
        {"ALBCOMPRAPEU", "TIPUS_IVA_ACP"},
        {"ARTICLES", "IVA_ART"},
        {"COMANDAPEU", "TIPUS_IVA_CP"},
        {"FACTURAPEU", "TIPUS_IVA_FP"},
        {"PRESSUPOSTPEU", "TIPUS_IVA_PP"}}},
      {"CP",
       "INSERT INTO CP (CP_CP, LOCALITAT_CP) VALUES ('X', 'Lloc')",
       [] { Esborrar_CP("X", "Lloc"); },
       CP_En_Us,
       {"Segur d'esborrar el Codi Postal X ?", "¿Seguro de eliminar el Código Postal X ?",
        "Are you sure to delete Postal Code X ?"},
       {{"CLIENTS", "CP_CLI"},
        {"CLIENTS", "CP_ENV_CLI"},
        {"EMPRESES", "CP_EMP"},
        {"PROVEIDORS", "CP_PRO"},
        {"PROVEIDORS", "CP_ENV_PRO"}}},
      {"VENCIMENTS",
       "INSERT INTO VENCIMENTS (CODI_VEN) VALUES ('X')",
       [] { Esborrar_Venciment("X"); },
       Venciment_En_Us,
       {"Segur d'esborrar el Venciment X ?", "¿Seguro de eliminar el Vencimiento X ?",
        "Are you sure to delete Terms Net X ?"},
       {{"CLIENTS", "VENCIMENT_CLI"}, {"PROVEIDORS", "VENCIMENT_PRO"}}},
      {"FORMES_PAGAMENT",
       "INSERT INTO FORMES_PAGAMENT (ID_FP) VALUES ('X')",
       [] { Esborrar_Forma_Pagament("X"); },
       Forma_Pagament_En_Us,
       {"Segur d'esborrar la forma de pagament X ?", "¿Seguro de eliminar la forma de pago X ?",
        "Are you sure to delete method of payment X ?"},
       {{"PAGAMENTS", "PAGAMENT_PAG"}, {"VENCIMENTS", "FP_VEN"}}},
      {"ALMACENES",
       "INSERT INTO ALMACENES (CODI_ALM) VALUES ('X')",
       [] { Esborrar_Magatzem("X"); },
       Magatzem_En_Us,
       {"Segur d'esborrar el magatzem X ?", "¿Seguro de eliminar el almacén X ?",
        "Are you sure to delete the store X ?"},
       {{"ALBALMCAP", "ORI_AAC"},
        {"ALBALMCAP", "DEST_AAC"},
        {"ARTICLES", "MAGATZEM_ART"},
        {"MOVIMIENTOS", "ALMACEN_MOV"},
        {"STOCK", "ALMACEN_ST"}}},
      {"CLIENTS",
       "INSERT INTO CLIENTS (NIF_CLI) VALUES ('X')",
       [] { Esborrar_Client("X", "Nom"); },
       Client_En_Us,
       {"Segur d'esborrar el Client Nom ?", "¿Seguro de eliminar el Cliente Nom ?",
        "Are you sure to delete Customer Nom ?"},
       {{"ALBARACAP", "CLIENT_AC"},
        {"COMANDACAP", "CLIENT_CC"},
        {"FACTURACAP", "CLIENT_FC"},
        {"PRESSUPOSTCAP", "CLIENT_PC"},
        {"REBUTS", "CLIENT_RE"}}},
      {"PROVEIDORS",
       "INSERT INTO PROVEIDORS (NIF_PRO) VALUES ('X')",
       [] { Esborrar_Proveidor("X", "Nom"); },
       Proveidor_En_Us,
       {"Segur d'esborrar el Proveïdor Nom ?", "¿Seguro de eliminar el Proveedor Nom ?",
        "Are you sure to delete Provider Nom ?"},
       {{"ALBCOMPRACAP", "PROVEIDOR_ACC"}, {"ARTICLES", "PROVEIDOR_ART"}}},
      {"ARTICLES",
       "INSERT INTO ARTICLES (CODI_ART) VALUES ('X')",
       [] { Esborrar_Article("X", "Nom"); },
       Article_En_Us,
       {"Segur d'esborrar l'article Nom ?", "¿Seguro de eliminar el artículo Nom ?",
        "Are you sure to delete item Nom ?"},
       {{"ALBALMLIN", "ARTICLE_AAL"},
        {"ALBARALIN", "ARTICLE_AL"},
        {"ALBCOMPRALIN", "ARTICLE_ACL"},
        {"COMANDALIN", "ARTICLE_CL"},
        {"FACTURALIN", "ARTICLE_FL"},
        {"MOVIMIENTOS", "ARTICULO_MOV"},
        {"PRESSUPOSTLIN", "ARTICLE_PL"},
        {"STOCK", "CODI_ART_ST"}}},
      {"EMPRESES",
       "INSERT INTO EMPRESES (NIF_EMP) VALUES ('X')",
       [] { Esborrar_Empresa("X", "Nom"); },
       Empresa_En_Us,
       {"Segur d'esborrar l'empresa Nom ?", "¿Seguro de eliminar la empresa Nom ?",
        "Are you sure to delete the company Nom ?"},
       {{"ALBALMCAP", "EMPRESA_AAC"},
        {"ALBARACAP", "EMPRESA_AC"},
        {"ALBCOMPRACAP", "EMPRESA_ACC"},
        {"COMANDACAP", "EMPRESA_CC"},
        {"FACTURACAP", "EMPRESA_FC"},
        {"MOVIMIENTOS", "EMPRESA_MOV"},
        {"PAGAMENTS", "EMPRESA_PAG"},
        {"PRESSUPOSTCAP", "EMPRESA_PC"},
        {"REBUTS", "EMPRESA_RE"},
        {"STOCK", "EMPRESA_ST"}}},
  };
  return mestres;
}

class Cada_Mestre : public Base_Dades, public testing::WithParamInterface<Mestre> {
 protected:
  std::int64_t Files_Ara() const { return Files(std::string("SELECT * FROM ") + GetParam().taula); }

  // A row of that table whose column names 'X'; every other column holds something.
  static void Anomenar(const Lloc& lloc) {
    const Taula& taula = *sessio.Connexio_Comuna.Taules().Cercar(lloc.taula);
    std::vector<std::pair<std::string_view, Valor>> valors;
    for (const Columna& columna : taula.columnes) {
      const bool data = columna.tipus == Tipus_Columna::Data || columna.tipus == Tipus_Columna::Data_Hora;
      if (columna.nom == lloc.columna) {
        valors.emplace_back(columna.nom, "X");
      } else if (columna.nom.starts_with("EMPRESA_")) {
        valors.emplace_back(columna.nom, empresa_prova);
      } else if (columna.tipus != Tipus_Columna::Autonumeric) {
        valors.emplace_back(columna.nom, data ? Valor(Data_Hora{2011, 1, 1}) : Valor("1"));
      }
    }
    Crear_Fila(lloc.taula, valors);
  }

  // The head that a line or a foot hangs from.
  static void Posar_Cap(const std::string& taula) {
    for (const char* peca : {"LIN", "PEU"}) {
      if (!taula.ends_with(peca)) continue;
      const std::string cap = taula.substr(0, taula.size() - 3) + "CAP";
      if (sessio.Connexio_Comuna.Taules().Cercar(cap) != nullptr) Anomenar({cap.c_str(), ""});
    }
  }

  static void Treure(const Lloc& lloc) {
    const std::string taula = lloc.taula;
    Executar("DELETE * FROM " + taula + " WHERE " + lloc.columna + " = 'X'");
    for (const char* peca : {"LIN", "PEU"}) {
      if (!taula.ends_with(peca)) continue;
      const std::string cap = taula.substr(0, taula.size() - 3) + "CAP";
      if (sessio.Connexio_Comuna.Taules().Cercar(cap) != nullptr) Executar("DELETE * FROM " + cap);
    }
  }
};

}  // namespace

TEST_P(Cada_Mestre, Is_asked_for_in_the_three_languages_and_goes_on_OK_alone) {
  Executar(GetParam().alta);
  const std::int64_t abans = Files_Ara();
  for (std::int16_t idioma = 0; idioma < 3; ++idioma) {
    sessio.Idioma_Actual = idioma;
    pantalla.caixes.clear();
    pantalla.respostes = {Resposta::Cancel};
    GetParam().esborrar();
    EXPECT_EQ(pantalla.caixes,
              (std::vector<Caixa_Vista>{{GetParam().preguntes.at(static_cast<std::size_t>(idioma)), 1, "Brollador"}}));
    EXPECT_EQ(Files_Ara(), abans);
  }
  pantalla.respostes = {Resposta::Ok};
  GetParam().esborrar();
  EXPECT_EQ(Files_Ara(), abans - 1);
}

TEST_P(Cada_Mestre, Stays_while_any_row_anywhere_names_it) {
  Executar(GetParam().alta);
  EXPECT_FALSE(GetParam().en_us("X"));
  for (const Lloc& lloc : GetParam().us) {
    SCOPED_TRACE(std::string(lloc.taula) + " " + lloc.columna);
    const std::int64_t abans = Files_Ara();
    Posar_Cap(lloc.taula);
    Anomenar(lloc);
    EXPECT_TRUE(GetParam().en_us("X"));
    EXPECT_TRUE(GetParam().en_us("x"));
    EXPECT_FALSE(GetParam().en_us("Z"));
    const std::int64_t amb_fila = Files_Ara();
    pantalla.caixes.clear();
    pantalla.respostes = {Resposta::Ok};
    GetParam().esborrar();
    EXPECT_EQ(Files_Ara(), amb_fila);
    EXPECT_EQ(pantalla.caixes.size(), std::string(GetParam().taula) == "EMPRESES" ? 2U : 1U);
    EXPECT_GE(amb_fila, abans);
    Treure(lloc);
  }
  EXPECT_FALSE(GetParam().en_us("X"));
}

INSTANTIATE_TEST_SUITE_P(Mestres, Cada_Mestre, testing::ValuesIn(Mestres()),
                         [](const auto& cas) { return std::string(cas.param.taula); });

class M_Mestres : public Base_Dades {};

TEST_F(M_Mestres, descriptions_are_empty_for_a_code_without_a_row) {
  Executar("INSERT INTO FAMILIES (CODI_FAM, DESCRIPCIO_FAM) VALUES ('F', 'Ferros')");
  Executar("INSERT INTO SUBFAMILIES (CODI_SUBF, DESCRIPCIO_SUBF) VALUES ('S', 'Petits')");
  Executar("INSERT INTO MARQUES (CODI_MAR, DESCRIPCIO_MAR) VALUES ('M', 'Bona')");
  EXPECT_EQ(Descripcio_Familia("f"), "Ferros");
  EXPECT_EQ(Descripcio_Subfamilia("S"), "Petits");
  EXPECT_EQ(Descripcio_Marca("M"), "Bona");
  EXPECT_EQ(Descripcio_Iva("GN"), "General");
  EXPECT_EQ(Descripcio_Venciment("30"), "30 dies");
  EXPECT_EQ(Localitat_CP("08001"), "Barcelona");
  for (const auto& descripcio : {Descripcio_Familia("?"), Descripcio_Subfamilia("?"), Descripcio_Marca("?"),
                                 Descripcio_Iva("?"), Descripcio_Venciment("?"), Localitat_CP("?")})
    EXPECT_EQ(descripcio, "");
}

TEST_F(M_Mestres, of_two_localities_the_first_of_the_code_counts_and_each_is_deleted_by_its_name) {
  Executar("INSERT INTO CP (CP_CP, LOCALITAT_CP) VALUES ('08500', 'Vic')");
  Executar("INSERT INTO CP (CP_CP, LOCALITAT_CP) VALUES ('08500', 'Gurb')");
  EXPECT_EQ(Localitat_CP("08500"), "Gurb");
  pantalla.respostes = {Resposta::Ok};
  Esborrar_CP("08500", "Gurb");
  EXPECT_EQ(Localitat_CP("08500"), "Vic");
}

TEST_F(M_Mestres, a_company_that_has_rows_says_so_in_the_three_languages) {
  Executar("INSERT INTO STOCK (EMPRESA_ST, CODI_ART_ST, ALMACEN_ST, UNIDADES_ST) VALUES ('B00000000', 'A', '1', 1)");
  const char* const paraules[] = {"Aquesta empresa no es pot esborrar perquè té registres.",
                                  "Esta empresa no se puede eliminar porque tiene registros.",
                                  "Unable to delete this company because it owns some rows."};
  for (std::int16_t idioma = 0; idioma < 3; ++idioma) {
    sessio.Idioma_Actual = idioma;
    pantalla.caixes.clear();
    pantalla.respostes = {Resposta::Ok};
    Esborrar_Empresa(empresa_prova, "Empresa de prova");
    ASSERT_EQ(pantalla.caixes.size(), 2U);
    EXPECT_EQ(pantalla.caixes[1], (Caixa_Vista{paraules[idioma], 0, "Brollador"}));
  }
  EXPECT_TRUE(Empresa_Existeix(empresa_prova));
}

TEST_F(M_Mestres, the_current_company_goes_when_it_has_only_masters) {
  Executar("INSERT INTO CLIENTS (NIF_CLI) VALUES ('B1')");
  pantalla.respostes = {Resposta::Ok};
  Esborrar_Empresa(empresa_prova, "Empresa de prova");
  EXPECT_FALSE(Empresa_Existeix(empresa_prova));
}

TEST_F(M_Mestres, a_new_supplier_pays_vat_and_is_named_after_its_code) {
  EXPECT_EQ(Nou_Proveidor(), "0000000001");
  EXPECT_EQ(Dades_Proveidor("0000000001"),
            (std::array<std::string, 6>{"0000000001", "Proveïdor0000000001", "Proveïdor0000000001", "", "", ""}));
  EXPECT_EQ(Nom_Proveidor("0000000001"), "Proveïdor0000000001");
  EXPECT_TRUE(Proveidor_Te_IVA("0000000001"));
  EXPECT_EQ(Dades_Proveidor("?"), (std::array<std::string, 6>{}));
  EXPECT_EQ(Nom_Proveidor("?"), "");
  EXPECT_FALSE(Proveidor_Te_IVA("?"));
}

TEST_F(M_Mestres, a_new_article_is_active_from_today_at_the_general_vat) {
  Fixar_Avui({2011, 3, 15});
  EXPECT_EQ(Nou_Article(), "0000000001");
  const Recordset rs(SQL_Article("0000000001"), sessio.Connexio_Comuna);
  EXPECT_EQ(rs["DESCRIPCIO_ART"].Text(), "Article 0000000001");
  EXPECT_EQ(rs["IVA_ART"].Text(), "GN");
  EXPECT_EQ(rs["ALTA_ART"].Text(), "15/03/2011");
  EXPECT_TRUE(rs["BAIXA_ART"].Es_Nul());
  EXPECT_TRUE(rs["ACTIU_ART"].Boolea());
  EXPECT_FALSE(rs["STOCK_ART"].Boolea());
}

TEST_F(M_Mestres, a_new_company_is_active_and_charges_vat_without_surcharge) {
  EXPECT_EQ(Nova_Empresa(), "0000000001");
  const Recordset rs(SQL_Empresa("0000000001"), sessio.Connexio_Comuna);
  EXPECT_EQ(rs["RAO_SOCIAL_EMP"].Text(), "Empresa 0000000001");
  EXPECT_TRUE(rs["IVA_EMP"].Boolea());
  EXPECT_FALSE(rs["RE_EMP"].Boolea());
  EXPECT_TRUE(rs["ACTIU_EMP"].Boolea());
}
