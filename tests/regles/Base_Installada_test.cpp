// What an installation starts from.
#include "schema/Definicions.h"
#include "schema/Textos.h"
#include "session/M_Usuaris.h"
#include "tests/regles/Base_Installador.h"

class Base_Installada : public Base_Dades {
 protected:
  static std::string Comuna(const std::string& sentencia) { return Files_En_Text(sessio.Connexio_Comuna, sentencia); }
};

TEST_F(Base_Installada, has_one_company_that_charges_vat) {
  EXPECT_EQ(Comuna("SELECT NIF_EMP, RAO_SOCIAL_EMP, IVA_EMP, RE_EMP, ACTIU_EMP FROM EMPRESES"),
            "B00000000 | Empresa de prova | -1 | 0 | -1\n");
}

TEST_F(Base_Installada, has_an_administrator_who_may_everything) {
  EXPECT_EQ(Comuna("SELECT CODI_USU, DESCRIPCIO_USU, CLAU_USU, ACTIU_USU, IDIOMA_USU, EMPRESA_USU FROM USUARIS"),
            "ADMIN | Administrador |  | S | 0 | B00000000\n");
  EXPECT_EQ(Comuna("SELECT P_Clients, P_Proveidors, P_Articles, P_Usuaris, P_CP, P_Venciments, P_Pressupostos, "
                   "P_Comandes, P_Albarans, P_Factures FROM USUARIS"),
            "M | M | M | M | M | M | M | M | M | M\n");
}

TEST_F(Base_Installada, has_three_languages) {
  EXPECT_EQ(Comuna("SELECT ID, DESCRIPTION FROM LANGUAGES ORDER BY ID"), "0 | Català\n1 | Castellà\n2 | English\n");
}

TEST_F(Base_Installada, has_the_rates_also_the_one_of_nought) {
  EXPECT_EQ(Comuna("SELECT CODI_IVA, DESC_IVA, PORC_IVA, RE_IVA FROM IVAS ORDER BY PORC_IVA"),
            "EX | Exempt | 0 | 0\nSR | Superreduït | 4 | 0,5\nRD | Reduït | 10 | 1,4\nGN | General | 21 | 5,2\n");
}

TEST_F(Base_Installada, has_payment_terms_and_methods) {
  EXPECT_EQ(Comuna("SELECT CODI_VEN, DESCRIPCIO_VEN, DIES_VEN, TERMINIS_VEN FROM VENCIMENTS ORDER BY CODI_VEN"),
            "30 | 30 dies | 30 | 1\n3060 | 30 i 60 dies | 30 | 2\nNO | NO | 0 | 0\n");
  EXPECT_EQ(Comuna("SELECT ID_FP, DESCRIPCIO_FP FROM FORMES_PAGAMENT ORDER BY ID_FP"),
            "EF | Efectiu\nRE | Rebut domiciliat\nTR | Transferència\n");
}

TEST_F(Base_Installada, has_two_warehouses_and_three_towns) {
  EXPECT_EQ(Comuna("SELECT CODI_ALM, DESC_ALM, STOCK_NEG_ALM FROM ALMACENES ORDER BY CODI_ALM"),
            "1 | Magatzem central | 0\n2 | Botiga | -1\n");
  EXPECT_EQ(Comuna("SELECT CP_CP, LOCALITAT_CP, PROVINCIA_CP, PAIS_CP FROM CP ORDER BY CP_CP"),
            "08001 | Barcelona | Barcelona | Espanya\n"
            "08720 | Vilafranca del Penedès | Barcelona | Espanya\n"
            "17001 | Girona | Girona | Espanya\n");
}

TEST_F(Base_Installada, has_no_row_in_any_other_table) {
  const std::set<std::string> amb_files = {"EMPRESES",        "USUARIS",   "LANGUAGES", "IVAS",  "VENCIMENTS",
                                           "FORMES_PAGAMENT", "ALMACENES", "CP",        "TEXTS", "VERSIO"};
  for (Connexio* connexio : {&sessio.Connexio_Comuna, &sessio.Connexio_Local}) {
    for (const auto& [clau, taula] : connexio->Taules().Taules()) {
      const std::int64_t files = Recordset("SELECT * FROM " + taula.nom, *connexio).RecordCount();
      EXPECT_EQ(files > 0, amb_files.contains(taula.nom)) << taula.nom << " has " << files << " rows";
    }
  }
}

TEST_F(Base_Installada, has_every_text_in_the_three_languages) {
  const auto textos = std::ssize(Textos_De_Pantalles());
  EXPECT_GT(textos, 100);
  for (const int idioma : {0, 1, 2}) {
    EXPECT_EQ(Recordset("SELECT * FROM TEXTS WHERE F_LANGUAGE = " + std::to_string(idioma), sessio.Connexio_Local)
                  .RecordCount(),
              textos);
  }
}

TEST_F(Base_Installada, has_its_folders_and_the_address_between_quotes) {
  NOMES_AMB_FITXER();
  EXPECT_TRUE(fs::is_directory(sessio.Dir_Dades + "/copia"));
  EXPECT_TRUE(fs::is_directory(sessio.Dir_Dades + "/Temp"));
  EXPECT_EQ(Contingut(sessio.Fitxer_Ini), "\"" + sessio.Dir_Dades + "/comuna.db\"\n");
}
