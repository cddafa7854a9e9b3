// A delivery note, 7, and the line that is typed into it: four units of A1, of which there are fifty.
#pragma once

#include "documents/M_Peu.h"
#include "sales/M_Albarans.h"
#include "sales/M_Tipus_Venda.h"
#include "tests/regles/Base.h"

class M_Albarans : public Base_Dades {
 protected:
  void SetUp() override {
    Posar_Albara(7);
    Posar_Article({.codi = "A1", .dte = 20});
    Posar_Estoc("A1", "1", 50);
    linies.Open(SQL_Linies(tipus_albara, 7, empresa_prova), sessio.Connexio_Comuna, Bloqueig::Optimista);
    linia.article = "A1";
    linia.descripcio = "Article de prova";
    linia.iva_article = "GN";
    linia.cost = 10;
    linia.unitats = 4;
    linia.preu_unitari = 12.5;
  }
  // As the event of the quantity field does it.
  void Afegir() {
    Transaccio transaccio(sessio.Connexio_Comuna);
    Afegir_Linia_Albara(cap, linia, linies, obert);
    transaccio.Confirmar();
  }
  bool Esborrar(std::int16_t numero_linia, double unitats) {
    pantalla.respostes.push_back(Resposta::Ok);
    Transaccio transaccio(sessio.Connexio_Comuna);
    const bool esborrada = Esborrar_Linia_Albara(7, empresa_prova, numero_linia, "A1", unitats);
    transaccio.Confirmar();
    return esborrada;
  }
  static std::int64_t Linies() { return Comptar_Linies_Albara(7, empresa_prova); }
  static double Camp(const std::string& camp) { return Numero("SELECT " + camp + " FROM ALBARALIN"); }

  Capcalera_Oberta cap{.numero = 7, .empresa = empresa_prova, .iva = true, .re = false};
  Linia_Entrada linia;
  Recordset linies;
  Document_Fals obert;
};
