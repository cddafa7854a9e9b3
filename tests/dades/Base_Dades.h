// A small database of its own in a temporary folder, and a second connection to play the other terminal.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

#include "core/dades/Connexio.h"
#include "core/dades/Error_Brollador.h"
#include "core/dades/Recordset.h"
#include "core/dades/Transaccio.h"
#include "tests/servidor/Base_Servidor.h"

// How a failing test shows a value.
inline void PrintTo(const Valor& valor, std::ostream* sortida) {
  *sortida << (valor.Es_Nul() ? "null" : valor.Text());
}

// The number of the error that a piece of work raises; 0 when it ends well.
template <class Feina>
int Numero_Error(Feina feina) {
  try {
    feina();
  } catch (const Error_Brollador& error) {
    return error.Numero();
  }
  return 0;
}

// What lay behind it; Cap when it ends well.
template <class Feina>
Falla Motiu_Error(Feina feina) {
  try {
    feina();
  } catch (const Error_Brollador& error) {
    EXPECT_EQ(error.Numero(), errors::general);
    EXPECT_EQ(error.Descripcio().substr(0, error.Descripcio().find(": ")), Descripcio_Falla(error.Motiu()));
    return error.Motiu();
  }
  return Falla::Cap;
}

class Base_Dades : public testing::Test {
 protected:
  Base_Dades() {
    std::string plantilla = (std::filesystem::temp_directory_path() / "brollador-prova-XXXXXX").string();
    carpeta = mkdtemp(plantilla.data());
    cami = carpeta + "/base.db";
    if (Proves_Al_Servidor()) cami = servidor.emplace().Adreca();
    Crear_Base_Dades(cami);
    connexio.Open(cami);
    connexio.Execute(
        "CREATE TABLE CLIENTS (NIF_CLI CODI NOT NULL, RAO_SOCIAL_CLI TEXT, ADREÇA_CLI TEXT, IVA_CLI BOOLEA "
        "DEFAULT 0, DIA_PAG_CLI CURT, SALDO_CLI DOBLE DEFAULT 0, ALTA_CLI DATA, PRIMARY KEY (NIF_CLI))");
    connexio.Execute(
        "CREATE TABLE CAP (EMPRESA_C CODI NOT NULL, NUM_C LLARG NOT NULL, CLIENT_C CODI, DATA_C DATA, "
        "HORA_C DATA_HORA, IMPORT_C DOBLE DEFAULT 0, PRIMARY KEY (EMPRESA_C, NUM_C))");
    connexio.Execute(
        "CREATE TABLE LIN (EMPRESA_L CODI NOT NULL, NUM_L LLARG NOT NULL, LIN_L CURT NOT NULL, ARTICLE_L CODI, "
        "UNITATS_L DOBLE, PRIMARY KEY (EMPRESA_L, NUM_L, LIN_L), FOREIGN KEY (EMPRESA_L, NUM_L) REFERENCES "
        "CAP (EMPRESA_C, NUM_C) ON DELETE CASCADE ON UPDATE CASCADE)");
    connexio.Execute("CREATE TABLE PAGS (ID_P AUTONUMERIC, TEXT_P TEXT, PRIMARY KEY (ID_P))");
    connexio.Execute("CREATE TABLE DIARI (ARTICLE_D CODI, UNITATS_D DOBLE)");
    altra.Open(cami);
  }
  ~Base_Dades() override {
    connexio.Close();
    altra.Close();
    std::filesystem::remove_all(carpeta);
  }

  void Client(const std::string& nif, const std::string& nom) {
    connexio.Execute("INSERT INTO CLIENTS (NIF_CLI, RAO_SOCIAL_CLI) VALUES (" + Text_SQL(nif) + ", " + Text_SQL(nom) +
                     ")");
  }
  void Document(int numero, std::initializer_list<const char*> articles) {
    const std::string n = std::to_string(numero);
    connexio.Execute("INSERT INTO CAP (EMPRESA_C, NUM_C, DATA_C) VALUES ('E', " + n + ", #3/5/2011#)");
    int linia = 0;
    for (const char* article : articles) {
      connexio.Execute("INSERT INTO LIN (EMPRESA_L, NUM_L, LIN_L, ARTICLE_L, UNITATS_L) VALUES ('E', " + n + ", " +
                       std::to_string(++linia) + ", '" + article + "', 1)");
    }
  }
  // First value of the first row.
  Valor Un_Valor(const std::string& sentencia) {
    const Recordset rs(sentencia, connexio);
    return rs.RecordCount() == 0 ? Valor() : rs[0];
  }
  // First column of all rows, in one text.
  std::string Columna_Sencera(const std::string& sentencia) {
    const Recordset rs(sentencia, connexio);
    std::string tot;
    for (std::int64_t i = 0; i < rs.RecordCount(); ++i) tot += (i == 0 ? "" : " ") + rs.Valor_De_Fila(i, 0).Text();
    return tot;
  }

  std::string carpeta;
  std::string cami;  // or the address at the server
  Connexio connexio;
  Connexio altra;
  std::optional<Base_Servidor> servidor;  // when the tests run there
};
