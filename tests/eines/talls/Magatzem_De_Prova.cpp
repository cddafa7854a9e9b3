#include "tests/eines/talls/Magatzem_De_Prova.h"

#include "core/dades/Numeros.h"
#include "schema/Installador.h"

namespace talls {

namespace {

void Crear_Articles(Connexio& comuna) {
  for (const Article_Prova& article : Articles()) {
    const std::string codi = Text_SQL(article.codi);
    comuna.Execute(
        "INSERT INTO ARTICLES (CODI_ART, DESCRIPCIO_ART, IVA_ART, COST_ART, PVP_NET_ART, STOCK_ART, "
        "MAGATZEM_ART, ACTIU_ART) VALUES (" +
        codi + ", 'Article de prova', " + Text_SQL(article.iva) + ", 1, " + Numero_SQL(article.preu) + ", " +
        (article.porta_stock ? "-1" : "0") + ", '1', -1)");
    if (!article.porta_stock) continue;
    const std::string unitats = Numero_SQL(estoc_inicial);
    comuna.Execute("INSERT INTO STOCK (EMPRESA_ST, CODI_ART_ST, ALMACEN_ST, UNIDADES_ST) VALUES ('B00000000', " + codi +
                   ", '1', " + unitats + ")");
    comuna.Execute(
        "INSERT INTO MOVIMIENTOS (EMPRESA_MOV, ARTICULO_MOV, FECHA_MOV, TIPO_MOV, ALMACEN_MOV, "
        "DOCUMENTO_MOV, UNIDADES_MOV) VALUES ('B00000000', " +
        codi + ", #1/2/2011#, 'C', '1', 'INICI', " + unitats + ")");
  }
}

void Crear_Documents(Connexio& comuna) {
  for (int nota = 1; nota <= notes; ++nota)
    comuna.Execute(
        "INSERT INTO ALBARACAP (NUMALB_AC, EMPRESA_AC, DATA_AC, CLIENT_AC, CLIENT_DESC_AC, IVA_AC, RE_AC, NUMFAC_AC) "
        "VALUES (" +
        std::to_string(nota) + ", 'B00000000', #3/1/2011#, 'C1', 'Client de prova', -1, " +
        (nota % 2 == 0 ? "-1" : "0") + ", '')");
  for (int comanda = 1; comanda <= comandes; ++comanda) {
    comuna.Execute("INSERT INTO COMANDACAP (NUMALB_CC, EMPRESA_CC, DATA_CC, CLIENT_CC, IVA_CC, PAGAMENT_CC) VALUES (" +
                   std::to_string(comanda) + ", 'B00000000', #3/1/2011#, 'C1', -1, -1)");
    for (std::size_t linia = 1; linia <= Articles().size(); ++linia)
      comuna.Execute(
          "INSERT INTO COMANDALIN (NUMALB_CL, EMPRESA_CL, LIN_CL, ARTICLE_CL, UNITATS_CL, SERVIDES_CL) "
          "VALUES (" +
          std::to_string(comanda) + ", 'B00000000', " + std::to_string(linia) + ", " +
          Text_SQL(Articles()[linia - 1].codi) + ", 1000, 0)");
  }
}

void Crear_Pressupost(Connexio& comuna) {
  const std::string numero = std::to_string(pressupost);
  comuna.Execute("INSERT INTO CLIENTS (NIF_CLI, RAO_SOCIAL_CLI, IVA_CLI) VALUES ('C2', 'Qui demana preus', -1)");
  comuna.Execute("INSERT INTO PRESSUPOSTCAP (NUMALB_PC, EMPRESA_PC, DATA_PC, CLIENT_PC, IVA_PC) VALUES (" + numero +
                 ", 'B00000000', #3/1/2011#, 'C2', -1)");
  for (std::size_t linia = 1; linia <= Articles().size(); ++linia)
    comuna.Execute(
        "INSERT INTO PRESSUPOSTLIN (NUMALB_PL, EMPRESA_PL, LIN_PL, ARTICLE_PL, UNITATS_PL, PREU_UNITARI_PL, "
        "PORC_IVA_PL, IMPORT_NET_PL, IMPORT_BRUT_PL) VALUES (" +
        numero + ", 'B00000000', " + std::to_string(linia) + ", " + Text_SQL(Articles()[linia - 1].codi) +
        ", 2, 50, 21, 100, 121)");
}

// Lines of no article, which move no stock.
void Crear_Notes_Per_Facturar(Connexio& comuna) {
  for (int nota = primera_per_facturar; nota <= ultima_per_facturar; ++nota) {
    const std::string numero = std::to_string(nota);
    comuna.Execute(
        "INSERT INTO ALBARACAP (NUMALB_AC, EMPRESA_AC, DATA_AC, CLIENT_AC, CLIENT_DESC_AC, IVA_AC, NUMFAC_AC, "
        "PAGAMENT_AC) VALUES (" +
        numero + ", 'B00000000', #3/1/2011#, 'C1', 'Client de prova', -1, '', -1)");
    for (int linia = 1; linia <= linies_per_facturar; ++linia)
      comuna.Execute(
          "INSERT INTO ALBARALIN (NUMALB_AL, EMPRESA_AL, LIN_AL, ARTICLE_AL, PORC_IVA_AL, IMPORT_NET_AL, "
          "IMPORT_BRUT_AL) VALUES (" +
          numero + ", 'B00000000', " + std::to_string(linia) + ", 'VAR', 21, 100, 121)");
  }
}

}  // namespace

const std::vector<Article_Prova>& Articles() {
  static const std::vector<Article_Prova> articles = {
      {"A1", "GN", 10.05, true}, {"A2", "RD", 3.33, true}, {"A3", "SR", 99.99, true},
      {"A4", "GN", 0.77, true},  {"S1", "EX", 25, false},
  };
  return articles;
}

void Crear_Magatzem(const Lloc& lloc) {
  Crear_Base(lloc.carpeta, lloc.comuna);
  Connexio comuna;
  comuna.Open(lloc.comuna);
  Transaccio transaccio(comuna);
  comuna.Execute("INSERT INTO CLIENTS (NIF_CLI, RAO_SOCIAL_CLI, IVA_CLI) VALUES ('C1', 'Client de prova', -1)");
  Crear_Articles(comuna);
  Crear_Documents(comuna);
  Crear_Notes_Per_Facturar(comuna);
  Crear_Pressupost(comuna);
  transaccio.Confirmar();
}

Resposta Pantalla_Muda::Obrir_Caixa(const std::string& text, int, const std::string&) {
  caixes.push_back(text);
  return Resposta::Ok;
}

void Obrir_Sessio(const Lloc& lloc, Pantalla& pantalla) {
  sessio.pantalla = &pantalla;
  sessio.Equip_Actual = "prova/talls";
  sessio.Usuari_Actual = "ADMIN";
  sessio.Empresa_Actual = empresa;
  sessio.Nom_Empresa = "Empresa de prova";
  sessio.P_Comandes = sessio.P_Albarans = "M";
  sessio.Connexio_Comuna.Open(lloc.comuna);
  sessio.Connexio_Local.Open(lloc.carpeta + "/dadeslocals.db");
}

}  // namespace talls
