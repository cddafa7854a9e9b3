// Definitions that come to a database after its first day.
#include "core/dades/Motor.h"
#include "tests/dades/Base_Dades.h"

namespace {

class Definicions_Noves : public Base_Dades {
 protected:
  void SetUp() override {
    connexio.Execute("CREATE TABLE PRIMERA (CODI_P CODI NOT NULL, PRIMARY KEY (CODI_P));");
    connexio.Execute("CREATE TABLE SEGONA (CODI_S CODI NOT NULL, NOM_S TEXT, PRIMARY KEY (CODI_S));");
    connexio.Execute("INSERT INTO PRIMERA (CODI_P) VALUES ('A')");
  }
  std::string Columnes(Connexio& d_on) const {
    std::string noms;
    for (const Columna& columna : d_on.Taules().Cercar("PRIMERA")->columnes) noms += columna.nom + " ";
    return noms;
  }
};

}  // namespace

TEST_F(Definicions_Noves, A_column_is_added_and_old_rows_have_its_default) {
  connexio.Execute("ALTER TABLE PRIMERA ADD COLUMN IMPORT_P DOBLE DEFAULT 0;");
  connexio.Execute("ALTER TABLE PRIMERA ADD COLUMN ADREÇA_P TEXT;");
  Connexio tercera;
  tercera.Open(cami);
  for (Connexio* connectada : {&connexio, &tercera}) {
    EXPECT_EQ(Columnes(*connectada), "CODI_P IMPORT_P ADREÇA_P ");
    EXPECT_EQ(connectada->Taules().Cercar("PRIMERA")->clau.size(), 1U);
    Recordset rs("SELECT * FROM PRIMERA WHERE IMPORT_P = 0 AND ADREÇA_P = ''", *connectada);
    EXPECT_EQ(rs.RecordCount(), 0);  // a text that nobody wrote is null
  }
  Recordset rs("SELECT * FROM PRIMERA", tercera, Bloqueig::Optimista);
  EXPECT_EQ(rs["IMPORT_P"], Valor(0.0));
  EXPECT_TRUE(rs["ADREÇA_P"].Es_Nul());
  rs.Set("ADREÇA_P", "Carrer Major");
  rs.Update();
  EXPECT_EQ(tercera.Execute("UPDATE PRIMERA SET IMPORT_P = 2 WHERE ADREÇA_P = 'CARRER MAJOR'"), 1);
}

TEST_F(Definicions_Noves, A_column_that_is_undone_is_in_nobodys_tables) {
  {
    const Transaccio transaccio(connexio);
    connexio.Execute("ALTER TABLE PRIMERA ADD COLUMN IMPORT_P DOBLE DEFAULT 0;");
  }
  Connexio tercera;
  tercera.Open(cami);
  EXPECT_EQ(Columnes(tercera), "CODI_P ");
}

TEST_F(Definicions_Noves, What_is_no_new_column_is_a_faulty_statement) {
  for (const char* sentencia : {"ALTER TABLE PRIMERA", "ALTER TABLE PRIMERA DROP COLUMN CODI_P",
                                "ALTER TABLE PRIMERA ADD COLUMN X INTEGER", "ALTER DATABASE X ADD COLUMN A TEXT"}) {
    EXPECT_EQ(Numero_Error([&] { connexio.Execute(sentencia); }), errors::sentencia) << sentencia;
  }
}
