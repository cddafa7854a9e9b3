// What the tests of the rules stand on: a base installation each, and short ways to put rows in and to look at them.
#pragma once

#include <gtest/gtest.h>

#include "core/dades/Numeros.h"
#include "tests/regles/Installacio_Prova.h"

inline const std::string empresa_prova = "B00000000";

// The error that a piece of work must raise, to look at it.
inline Error_Brollador Error_De(const std::function<void()>& feina) {
  try {
    feina();
  } catch (const Error_Brollador& error) {
    return error;
  }
  ADD_FAILURE() << "no error was raised";
  return Error_Brollador(0, "", "");
}

struct Article_Prova {
  std::string codi = "A1";
  std::string iva = "GN";
  double cost = 10;
  double dte = 0;
  bool stock = true;
  double minim = 0;
  std::string magatzem = "1";
};

class Base_Dades : public testing::Test {
 protected:
  Installacio_Prova installacio;
  Pantalla_Falsa& pantalla = installacio.pantalla;

  static int Executar(const std::string& sentencia) { return sessio.Connexio_Comuna.Execute(sentencia); }
  static std::int64_t Files(const std::string& sentencia) {
    return Recordset(sentencia, sessio.Connexio_Comuna).RecordCount();
  }
  // First column of the first row; null when there is none.
  static Valor Llegir(const std::string& sentencia) {
    const Recordset rs(sentencia, sessio.Connexio_Comuna);
    return rs.RecordCount() > 0 ? rs[0] : Valor();
  }
  static double Numero(const std::string& sentencia) { return Llegir(sentencia).Doble(); }
  static std::string Text(const std::string& sentencia) { return Llegir(sentencia).Text(); }

  static void Posar_Article(const Article_Prova& article) {
    Executar(
        "INSERT INTO ARTICLES (CODI_ART, DESCRIPCIO_ART, IVA_ART, COST_ART, DESCOMPTE_ART, STOCK_ART, STOCK_MINIM_ART, "
        "MAGATZEM_ART, ACTIU_ART) VALUES(" +
        Text_SQL(article.codi) + ", 'Article de prova', " + Text_SQL(article.iva) + ", " + Numero_SQL(article.cost) +
        ", " + Numero_SQL(article.dte) + ", " + (article.stock ? "-1" : "0") + ", " + Numero_SQL(article.minim) + ", " +
        Text_SQL(article.magatzem) + ", -1)");
  }
  static void Posar_Estoc(const std::string& article, const std::string& magatzem, double unitats) {
    Executar("INSERT INTO STOCK (EMPRESA_ST, CODI_ART_ST, ALMACEN_ST, UNIDADES_ST) VALUES('" + empresa_prova + "', " +
             Text_SQL(article) + ", " + Text_SQL(magatzem) + ", " + Numero_SQL(unitats) + ")");
  }
  // Null: no row.
  static Valor Estoc(const std::string& article, const std::string& magatzem) {
    return Llegir("SELECT UNIDADES_ST FROM STOCK WHERE EMPRESA_ST = '" + empresa_prova +
                  "' AND CODI_ART_ST = " + Text_SQL(article) + " AND ALMACEN_ST = " + Text_SQL(magatzem));
  }
  static std::int64_t Moviments() { return Files("SELECT * FROM MOVIMIENTOS"); }

  static void Posar_Albara(std::int64_t numero) {
    Executar("INSERT INTO ALBARACAP (NUMALB_AC, EMPRESA_AC) VALUES(" + std::to_string(numero) + ", '" + empresa_prova +
             "')");
  }
  static void Posar_Comanda(std::int64_t numero) {
    Executar("INSERT INTO COMANDACAP (NUMALB_CC, EMPRESA_CC) VALUES(" + std::to_string(numero) + ", '" + empresa_prova +
             "')");
  }
  static void Posar_Linia_Comanda(std::int64_t numero, int linia, double unitats, double servides = 0) {
    Executar("INSERT INTO COMANDALIN (NUMALB_CL, EMPRESA_CL, LIN_CL, ARTICLE_CL, UNITATS_CL, SERVIDES_CL) VALUES(" +
             std::to_string(numero) + ", '" + empresa_prova + "', " + std::to_string(linia) + ", 'A1', " +
             Numero_SQL(unitats) + ", " + Numero_SQL(servides) + ")");
  }
  static double Servides(std::int64_t numero, int linia) {
    return Numero("SELECT SERVIDES_CL FROM COMANDALIN WHERE NUMALB_CL = " + std::to_string(numero) +
                  " AND LIN_CL = " + std::to_string(linia));
  }
  static std::int64_t Estat_Comanda(std::int64_t numero) {
    return Llegir("SELECT ESTAT_CC FROM COMANDACAP WHERE NUMALB_CC = " + std::to_string(numero)).Enter();
  }
  static void Posar_Linia_Albara(std::int64_t numero, int linia, double porc_iva, double net, double brut,
                                 double porc_re = 0) {
    Executar(
        "INSERT INTO ALBARALIN (NUMALB_AL, EMPRESA_AL, LIN_AL, ARTICLE_AL, UNITATS_AL, PORC_IVA_AL, PORC_RE_AL, "
        "IMPORT_NET_AL, IMPORT_BRUT_AL) VALUES(" +
        std::to_string(numero) + ", '" + empresa_prova + "', " + std::to_string(linia) + ", 'A1', 1, " +
        Numero_SQL(porc_iva) + ", " + Numero_SQL(porc_re) + ", " + Numero_SQL(net) + ", " + Numero_SQL(brut) + ")");
  }
  static void Posar_Pagament(const std::string& document, std::int64_t numero) {
    Executar("INSERT INTO PAGAMENTS (DOCUMENT_PAG, NUMALB_PAG, EMPRESA_PAG, IMPORT_PAG) VALUES(" + Text_SQL(document) +
             ", " + std::to_string(numero) + ", '" + empresa_prova + "', 10)");
  }
};
