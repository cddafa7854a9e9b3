// Two warehouses, and sales that take from them.
#pragma once

#include "stock/M_Magatzems.h"
#include "tests/regles/Base.h"

class M_Magatzems : public Base_Dades {
 protected:
  // Warehouse 1 refuses to go below zero, warehouse 2 does not.
  static void Vendre(const std::string& article, double unitats) {
    Moviment_Albara(+1, Preparar_Article_Estoc(article, -unitats), unitats, 7);
  }
  static void Tornar(const std::string& article, double unitats) {
    Moviment_Albara(-1, Preparar_Article_Estoc(article, unitats), unitats, 7);
  }
  static std::string Ultim_Moviment(const std::string& camp) {
    Recordset rs("SELECT * FROM MOVIMIENTOS", sessio.Connexio_Comuna);
    rs.MoveLast();
    return rs[camp].Text();
  }
  const Caixa_Vista caixa_sense_estoc = {"1001 - Operació fallida. No hi ha prou STOCK!", 16, "Brollador"};
};
