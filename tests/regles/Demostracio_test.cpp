// The demonstration company: what it promises to whoever looks around in it. Made once for all the tests.
#include "schema/Demostracio.h"

#include <cmath>

#include "documents/M_Peu.h"
#include "session/M_Inici.h"
#include "tests/regles/Base.h"

class Demostracio : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    carpeta = std::make_unique<Carpeta_Temporal>();
    Fer(Cami());
  }
  static void TearDownTestSuite() { carpeta.reset(); }

  Demostracio() {
    sessio.Connexio_Comuna.Open(Cami() + "/comuna.db");
    sessio.Empresa_Actual = "B17000017";
  }

  static std::string Cami() { return carpeta->Cami() + "/demo"; }
  static void Fer(const std::string& on) {
    Fixar_Avui({.any = 2026, .mes = 7, .dia = 1});  // a Wednesday
    Crear_Demostracio({.carpeta = on, .compartida = ""});
  }
  static std::int64_t Files(const std::string& sentencia) {
    return Recordset(sentencia, sessio.Connexio_Comuna).RecordCount();
  }
  static Valor Llegir(const std::string& sentencia) { return Recordset(sentencia, sessio.Connexio_Comuna)[0]; }
  // Rows of two statements must be the same, numbers to a millionth.
  static void Esperar_Iguals(const std::string& una, const std::string& altra) {
    Recordset a(una, sessio.Connexio_Comuna);
    Recordset b(altra, sessio.Connexio_Comuna);
    ASSERT_GT(a.RecordCount(), 0) << una;
    ASSERT_EQ(a.RecordCount(), b.RecordCount()) << una << "\n" << altra;
    for (; !a.Eof(); a.MoveNext(), b.MoveNext()) {
      EXPECT_EQ(a[0].Text(), b[0].Text());
      EXPECT_NEAR(a[1].Doble(), b[1].Doble(), 1e-6) << una << ": " << a[0].Text();
    }
  }

  Sessio_Nova nova;
  inline static std::unique_ptr<Carpeta_Temporal> carpeta;
};

TEST_F(Demostracio, has_customers_suppliers_and_articles) {
  EXPECT_EQ(Files("SELECT * FROM CLIENTS"), 120);
  EXPECT_EQ(Files("SELECT * FROM PROVEIDORS"), 25);
  EXPECT_EQ(Files("SELECT * FROM ARTICLES"), 600);
  EXPECT_EQ(Files("SELECT * FROM ALMACENES"), 2);
  EXPECT_GT(Files("SELECT * FROM CLIENTS WHERE RE_CLI = -1"), 5);
  EXPECT_GT(Files("SELECT * FROM CLIENTS WHERE IVA_CLI = 0"), 1);
}

TEST_F(Demostracio, every_code_of_an_article_is_in_its_table) {
  EXPECT_EQ(Files("SELECT * FROM ARTICLES, FAMILIES, SUBFAMILIES, MARQUES, IVAS, PROVEIDORS, ALMACENES WHERE "
                  "FAMILIA_ART = CODI_FAM AND SUBFAMILIA_ART = CODI_SUBF AND MARCA_ART = CODI_MAR AND IVA_ART = "
                  "CODI_IVA AND PROVEIDOR_ART = NIF_PRO AND MAGATZEM_ART = CODI_ALM"),
            600);
}

TEST_F(Demostracio, every_article_has_a_price_above_its_cost) {
  EXPECT_EQ(Files("SELECT * FROM ARTICLES WHERE PVP_NET_ART <= COST_ART OR COST_ART <= 0"), 0);
}

TEST_F(Demostracio, has_notes_of_the_last_months_on_working_days_up_to_today) {
  EXPECT_GT(Files("SELECT * FROM ALBARACAP"), 200);
  EXPECT_EQ(Llegir("SELECT MAX(DATA_AC) AS D FROM ALBARACAP").Text(), "01/07/2026");
  EXPECT_EQ(Llegir("SELECT MIN(DATA_AC) AS D FROM ALBARACAP").Text(), "04/03/2026");
  EXPECT_EQ(Files("SELECT * FROM ALBARACAP WHERE DATA_AC = #6/27/2026# OR DATA_AC = #6/28/2026#"), 0);
  EXPECT_GT(Files("SELECT * FROM ALBARACAP WHERE DATA_AC = #6/29/2026#"), 0);
}

TEST_F(Demostracio, every_note_has_its_customer_and_its_lines) {
  EXPECT_EQ(Files("SELECT * FROM ALBARACAP, CLIENTS WHERE CLIENT_AC = NIF_CLI AND CLIENT_DESC_AC = RAO_SOCIAL_CLI AND "
                  "IVA_AC = IVA_CLI AND RE_AC = RE_CLI"),
            Files("SELECT * FROM ALBARACAP"));
  EXPECT_EQ(Files("SELECT NUMALB_AL FROM ALBARALIN GROUP BY NUMALB_AL"), Files("SELECT * FROM ALBARACAP"));
}

TEST_F(Demostracio, feet_agree_with_lines_and_heads_with_feet) {
  Esperar_Iguals("SELECT NUMALB_AP, SUM(BASE_AP) AS S FROM ALBARAPEU GROUP BY NUMALB_AP",
                 "SELECT NUMALB_AL, SUM(IMPORT_NET_AL) AS S FROM ALBARALIN GROUP BY NUMALB_AL");
  Esperar_Iguals("SELECT NUMALB_AP, SUM(IMPORT_AP) AS S FROM ALBARAPEU GROUP BY NUMALB_AP",
                 "SELECT NUMALB_AC, IMPORT_AC FROM ALBARACAP ORDER BY NUMALB_AC");
}

TEST_F(Demostracio, the_journal_tells_every_line) {
  Esperar_Iguals(
      "SELECT ARTICULO_MOV, SUM(UNIDADES_MOV) AS S FROM MOVIMIENTOS WHERE TIPO_MOV = 'AC' GROUP BY ARTICULO_MOV",
      "SELECT ARTICLE_AL, SUM(-UNITATS_AL) AS S FROM ALBARALIN GROUP BY ARTICLE_AL");
}

TEST_F(Demostracio, stock_is_the_sum_of_the_journal) {
  Esperar_Iguals("SELECT CODI_ART_ST, UNIDADES_ST FROM STOCK ORDER BY CODI_ART_ST",
                 "SELECT ARTICULO_MOV, SUM(UNIDADES_MOV) AS S FROM MOVIMIENTOS GROUP BY ARTICULO_MOV");
  for (const char* magatzem : {"1", "2"}) {
    EXPECT_GT(Files("SELECT * FROM STOCK WHERE ALMACEN_ST = " + Text_SQL(magatzem)), 100) << magatzem;
  }
}

TEST_F(Demostracio, is_the_same_every_time) {
  const std::string sumes = "SELECT SUM(IMPORT_AC) AS S, COUNT(*) AS N FROM ALBARACAP";
  const double import = Llegir(sumes).Doble();
  sessio.Connexio_Comuna.Close();
  Fer(carpeta->Cami() + "/un_altre_cop");
  sessio.Connexio_Comuna.Open(carpeta->Cami() + "/un_altre_cop/comuna.db");
  EXPECT_EQ(Llegir(sumes).Doble(), import);
}
