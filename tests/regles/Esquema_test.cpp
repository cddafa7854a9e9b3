// The two databases as they are created: which tables stand where, and what the database itself refuses or carries on.
#include <algorithm>

#include "core/dades/Cataleg.h"
#include "tests/regles/Base.h"

namespace {

const std::vector<std::string> taules_comunes = {"ALBALMCAP",     "ALBALMLIN",       "ALBARACAP",     "ALBARALIN",
                                                 "ALBARAPEU",     "ALBCOMPRACAP",    "ALBCOMPRALIN",  "ALBCOMPRAPEU",
                                                 "ALMACENES",     "ARTICLES",        "CLIENTS",       "CLIENTS_DADES",
                                                 "COMANDACAP",    "COMANDALIN",      "COMANDAPEU",    "CP",
                                                 "EMPRESES",      "FACTURACAP",      "FACTURALIN",    "FACTURAPEU",
                                                 "FAMILIES",      "FORMES_PAGAMENT", "IVAS",          "LANGUAGES",
                                                 "LOCKS",         "MARQUES",         "MOVIMIENTOS",   "PAGAMENTS",
                                                 "PRESSUPOSTCAP", "PRESSUPOSTLIN",   "PRESSUPOSTPEU", "PROVEIDORS",
                                                 "REBUTS",        "STOCK",           "SUBFAMILIES",   "USUARIS",
                                                 "VENCIMENTS",    "VERSIO"};
const std::vector<std::string> taules_locals = {"ALBARALIN_VALORAT_IMPR",
                                                "CHECK_FLAG_PAGAMENTS_TEMP",
                                                "COMANDALIN_VALORAT_IMPR",
                                                "CONFIGURACIO",
                                                "FACTURALIN_VALORAT_IMPR",
                                                "FLAG_PAGAMENTS_TEMP",
                                                "PAGAMENTS_CLIENT",
                                                "PRESSUPOSTLIN_VALORAT_IMPR",
                                                "TEXTS",
                                                "VERSIO"};

std::vector<std::string> Noms(const Connexio& connexio) {
  std::vector<std::string> noms;
  for (const auto& [clau, taula] : connexio.Taules().Taules()) noms.push_back(taula.nom);
  std::sort(noms.begin(), noms.end());
  return noms;
}

std::string Columnes(const Connexio& connexio, const std::string& nom) {
  std::string columnes;
  for (const Columna& columna : connexio.Taules().Cercar(nom)->columnes) columnes += columna.nom + " ";
  return columnes;
}

// A kind of document whose lines go with the head, and one whose lines hold it.
struct Taules_De_Document {
  std::string cap, sufix_cap, lin, sufix_lin, peu, sufix_peu;
};
const Taules_De_Document vendes[] = {
    {"PRESSUPOSTCAP", "PC", "PRESSUPOSTLIN", "PL", "PRESSUPOSTPEU", "PP"},
    {"COMANDACAP", "CC", "COMANDALIN", "CL", "COMANDAPEU", "CP"},
    {"ALBARACAP", "AC", "ALBARALIN", "AL", "ALBARAPEU", "AP"},
    {"FACTURACAP", "FC", "FACTURALIN", "FL", "FACTURAPEU", "FP"},
};
const Taules_De_Document compres = {"ALBCOMPRACAP", "ACC", "ALBCOMPRALIN", "ACL", "ALBCOMPRAPEU", "ACP"};
const Taules_De_Document traspassos = {"ALBALMCAP", "AAC", "ALBALMLIN", "AAL", "", ""};

}  // namespace

class Esquema : public Base_Dades {
 protected:
  // `numero` as the statement writes it: '7' for a purchase note, whose number is text.
  static void Posar(const std::string& taula, const std::string& sufix, const std::string& numero,
                    const std::string& altra = {}, const std::string& valor = {}) {
    const std::string columnes = "NUMALB_" + sufix + ", EMPRESA_" + sufix + (altra.empty() ? "" : ", " + altra);
    const std::string valors = numero + ", 'E'" + (altra.empty() ? "" : ", " + valor);
    Executar("INSERT INTO " + taula + " (" + columnes + ") VALUES (" + valors + ")");
  }
  static void Posar_Document(const Taules_De_Document& document, const std::string& numero, bool amb_linia = true) {
    Posar(document.cap, document.sufix_cap, numero);
    if (amb_linia) Posar(document.lin, document.sufix_lin, numero, "LIN_" + document.sufix_lin, "1");
    if (!document.peu.empty()) Posar(document.peu, document.sufix_peu, numero, "PORC_IVA_" + document.sufix_peu, "21");
  }
  static std::string Condicio(const std::string& sufix, const std::string& numero) {
    return " WHERE EMPRESA_" + sufix + " = 'E' AND NUMALB_" + sufix + " = " + numero;
  }
  static std::int64_t Linies(const Taules_De_Document& document, const std::string& numero) {
    return Files("SELECT * FROM " + document.lin + Condicio(document.sufix_lin, numero));
  }
  static std::int64_t Peus(const Taules_De_Document& document, const std::string& numero) {
    return Files("SELECT * FROM " + document.peu + Condicio(document.sufix_peu, numero));
  }
  static void Esborrar(const Taules_De_Document& document, const std::string& numero) {
    Executar("DELETE * FROM " + document.cap + Condicio(document.sufix_cap, numero));
  }
  static void Renumerar(const Taules_De_Document& document, const std::string& numero, const std::string& nou) {
    Executar("UPDATE " + document.cap + " SET NUMALB_" + document.sufix_cap + " = " + nou +
             Condicio(document.sufix_cap, numero));
  }
};

TEST_F(Esquema, the_shared_database_holds_the_business) {
  EXPECT_EQ(Noms(sessio.Connexio_Comuna), taules_comunes);
}

TEST_F(Esquema, the_local_database_holds_parameters_texts_and_work_tables) {
  EXPECT_EQ(Noms(sessio.Connexio_Local), taules_locals);
}

TEST_F(Esquema, tables_that_statements_fill_by_position_keep_their_order) {
  EXPECT_EQ(Columnes(sessio.Connexio_Local, "FLAG_PAGAMENTS_TEMP"), "DOCUMENT NUMALB FLAG ");
  EXPECT_EQ(Columnes(sessio.Connexio_Comuna, "LOCKS"), "DOCUMENT_LCK EMPRESA_LCK NUMERO_LCK EQUIP_LCK ");
}

TEST_F(Esquema, suppliers_are_customers_without_free_code_and_surcharge) {
  std::string clients = Columnes(sessio.Connexio_Comuna, "CLIENTS");
  for (const char* sense : {"CODI_CLIENT_CLI ", "RE_CLI "})
    clients.erase(clients.find(sense), std::string(sense).size());
  std::string proveidors = Columnes(sessio.Connexio_Comuna, "PROVEIDORS");
  for (std::size_t on = 0; (on = proveidors.find("_PRO ", on)) != std::string::npos;)
    proveidors.replace(on, 5, "_CLI ");
  EXPECT_EQ(proveidors, clients);
}

TEST_F(Esquema, a_customer_and_a_supplier_may_carry_the_same_tax_code) {
  Executar("INSERT INTO CLIENTS (NIF_CLI) VALUES ('B1')");
  Executar("INSERT INTO PROVEIDORS (NIF_PRO) VALUES ('B1')");
  EXPECT_EQ(Files("SELECT NIF_CLI FROM CLIENTS, PROVEIDORS WHERE NIF_CLI = NIF_PRO"), 1);
}

TEST_F(Esquema, a_code_is_taken_whatever_its_case) {
  Executar("INSERT INTO FAMILIES (CODI_FAM) VALUES ('abç')");
  EXPECT_EQ(Error_De([] { Executar("INSERT INTO FAMILIES (CODI_FAM) VALUES ('ABÇ')"); }).Numero(), errors::general);
}

TEST_F(Esquema, two_localities_share_a_postal_code) {
  Executar("INSERT INTO CP (CP_CP, LOCALITAT_CP) VALUES ('08720', 'Moja')");
  EXPECT_EQ(Files("SELECT * FROM CP WHERE CP_CP = '08720'"), 2);
}

TEST_F(Esquema, a_number_belongs_to_a_company) {
  Executar("INSERT INTO ALBARACAP (NUMALB_AC, EMPRESA_AC) VALUES (1, 'E')");
  Executar("INSERT INTO ALBARACAP (NUMALB_AC, EMPRESA_AC) VALUES (1, 'F')");
  const auto repetir = [] { Executar("INSERT INTO ALBARACAP (NUMALB_AC, EMPRESA_AC) VALUES (1, 'E')"); };
  EXPECT_EQ(Error_De(repetir).Numero(), errors::general);
}

TEST_F(Esquema, an_article_has_one_balance_a_warehouse) {
  Posar_Estoc("A1", "1", 5);
  Posar_Estoc("A1", "2", 5);
  EXPECT_EQ(Error_De([] { Posar_Estoc("A1", "1", 3); }).Numero(), errors::general);
}

TEST_F(Esquema, a_busy_document_refuses_a_second_lock) {
  const auto bloquejar = [] { Executar("INSERT INTO LOCKS VALUES ('AC', 'E', '1', 'equip')"); };
  bloquejar();
  EXPECT_EQ(Error_De(bloquejar).Numero(), errors::general);
}

TEST_F(Esquema, a_document_enters_the_work_list_of_flags_once) {
  const auto afegir = [] { sessio.Connexio_Local.Execute("INSERT INTO FLAG_PAGAMENTS_TEMP VALUES('P',7,0)"); };
  afegir();
  EXPECT_EQ(Error_De(afegir).Numero(), errors::general);
  EXPECT_EQ(Recordset("SELECT * FROM FLAG_PAGAMENTS_TEMP", sessio.Connexio_Local).RecordCount(), 1);
}

TEST_F(Esquema, a_parameter_may_stand_twice) {
  for (const char* valor : {"C", "X"}) {
    sessio.Connexio_Local.Execute("INSERT INTO CONFIGURACIO (Parametre, Valor) VALUES ('P_Comandes', " +
                                  Text_SQL(valor) + ")");
  }
  EXPECT_EQ(Recordset("SELECT * FROM CONFIGURACIO", sessio.Connexio_Local).RecordCount(), 2);
}

TEST_F(Esquema, a_payment_gets_its_code_from_the_database) {
  Recordset rs("PAGAMENTS", sessio.Connexio_Comuna, Bloqueig::Optimista);
  for (const std::int64_t codi : {1, 2}) {
    rs.AddNew();
    rs.Set("IMPORT_PAG", 10.0);
    rs.Update();
    EXPECT_EQ(rs["ID_PAG"].Enter(), codi);
  }
}

TEST_F(Esquema, the_journal_takes_the_same_row_twice) {
  for (int i = 0; i < 2; ++i) {
    Executar(
        "INSERT INTO MOVIMIENTOS (EMPRESA_MOV, ARTICULO_MOV, FECHA_MOV, UNIDADES_MOV) VALUES ('E', 'A1', #3/5/2011#, "
        "1)");
  }
  EXPECT_EQ(Numero("SELECT SUM(UNIDADES_MOV) AS S FROM MOVIMIENTOS"), 2);
}

TEST_F(Esquema, a_sales_document_goes_whole) {
  for (const auto& document : vendes) {
    Posar_Document(document, "7");
    Esborrar(document, "7");
    EXPECT_EQ(Linies(document, "7"), 0) << document.lin;
    EXPECT_EQ(Peus(document, "7"), 0) << document.peu;
  }
}

TEST_F(Esquema, the_other_company_keeps_its_document_of_the_same_number) {
  Posar_Document(vendes[2], "7");
  Executar("INSERT INTO ALBARACAP (NUMALB_AC, EMPRESA_AC) VALUES (7, 'F')");
  Executar("DELETE * FROM ALBARACAP WHERE EMPRESA_AC = 'F' AND NUMALB_AC = 7");
  EXPECT_EQ(Linies(vendes[2], "7"), 1);
}

TEST_F(Esquema, lines_and_foot_follow_the_number_of_a_sales_document) {
  for (const auto& document : vendes) {
    Posar_Document(document, "7");
    Renumerar(document, "7", "9");
    EXPECT_EQ(Linies(document, "9"), 1) << document.lin;
    EXPECT_EQ(Peus(document, "9"), 1) << document.peu;
  }
}

TEST_F(Esquema, purchase_and_transfer_notes_with_lines_stay) {
  Posar_Document(compres, "'7-A'");
  Posar_Document(traspassos, "7");
  EXPECT_EQ(Error_De([] { Esborrar(compres, "'7-A'"); }).Numero(), errors::general);
  EXPECT_EQ(Error_De([] { Esborrar(traspassos, "7"); }).Numero(), errors::general);
  EXPECT_EQ(Linies(compres, "'7-A'") + Linies(traspassos, "7"), 2);
}

TEST_F(Esquema, a_purchase_note_without_lines_goes_with_its_foot) {
  Posar_Document(compres, "'7-A'", false);
  Esborrar(compres, "'7-A'");
  EXPECT_EQ(Peus(compres, "'7-A'"), 0);
}

TEST_F(Esquema, purchase_and_transfer_notes_follow_their_number) {
  Posar_Document(compres, "'7-A'");
  Posar_Document(traspassos, "7");
  Renumerar(compres, "'7-A'", "'8/2011'");
  Renumerar(traspassos, "7", "8");
  EXPECT_EQ(Linies(compres, "'8/2011'"), 1);
  EXPECT_EQ(Peus(compres, "'8/2011'"), 1);
  EXPECT_EQ(Linies(traspassos, "8"), 1);
}

TEST_F(Esquema, a_line_without_a_head_is_refused) {
  EXPECT_EQ(Error_De([] { Posar("ALBARALIN", "AL", "7", "LIN_AL", "1"); }).Numero(), errors::general);
}

TEST_F(Esquema, a_new_head_is_open_unpaid_and_not_invoiced) {
  Executar("INSERT INTO ALBARACAP (NUMALB_AC, EMPRESA_AC) VALUES (1, 'E')");
  EXPECT_EQ(Files("SELECT * FROM ALBARACAP WHERE IVA_AC = 0 AND RE_AC = 0 AND IMPORT_AC = 0 AND ESTAT_AC = 0 AND "
                  "NUMFAC_AC = '' AND PAGAMENT_AC = 0"),
            1);
  EXPECT_TRUE(Llegir("SELECT CLIENT_AC FROM ALBARACAP").Es_Nul());
}

TEST_F(Esquema, a_new_line_serves_no_order) {
  Posar_Document(vendes[2], "1");
  EXPECT_EQ(Files("SELECT * FROM ALBARALIN WHERE COMANDA_AL = 0 AND COMANDA_LIN_AL = 0"), 1);
}

TEST_F(Esquema, a_new_article_costs_nothing_and_is_not_active) {
  Executar("INSERT INTO ARTICLES (CODI_ART) VALUES ('A1')");
  EXPECT_EQ(
      Files("SELECT * FROM ARTICLES WHERE COST_ART = 0 AND ULTIM_COST_ART = 0 AND MARGE_ART = 0 AND PVP_NET_ART = "
            "0 AND DESCOMPTE_ART = 0 AND STOCK_MINIM_ART = 0 AND STOCK_ART = 0 AND ACTIU_ART = 0"),
      1);
}

TEST_F(Esquema, a_new_user_has_no_company_and_no_access) {
  Executar("INSERT INTO USUARIS (CODI_USU) VALUES ('NOU')");
  EXPECT_EQ(Text("SELECT EMPRESA_USU FROM USUARIS WHERE CODI_USU = 'NOU'"), "-");
  EXPECT_EQ(Text("SELECT P_Factures FROM USUARIS WHERE CODI_USU = 'NOU'"), "X");
}

TEST_F(Esquema, the_check_of_flags_starts_from_noughts) {
  sessio.Connexio_Local.Execute("INSERT INTO CHECK_FLAG_PAGAMENTS_TEMP (FACTURA) VALUES (3)");
  const Recordset rs(
      "SELECT * FROM CHECK_FLAG_PAGAMENTS_TEMP WHERE COMANDA = 0 AND CTEPAG = 0 AND ALBARA = 0 AND "
      "ATEPAG = 0 AND FTEPAG = 0",
      sessio.Connexio_Local);
  EXPECT_EQ(rs.RecordCount(), 1);
}
