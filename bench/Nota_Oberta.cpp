#include "bench/Nota_Oberta.h"

#include "core/M_Funcions_Comuns.h"
#include "sales/M_Tipus_Venda.h"

std::string Codi_Article(int n) {
  return "ART" + std::to_string(1000 + n % articles_mesura);
}

void Sembrar_Articles(Connexio& connexio) {
  Transaccio transaccio(connexio);
  for (int i = 0; i < articles_mesura; ++i) {
    const std::string codi = Codi_Article(i);
    connexio.Afegir_Fila("ARTICLES", {{"CODI_ART", codi},
                                      {"DESCRIPCIO_ART", "Article de la mesura " + std::to_string(i)},
                                      {"IVA_ART", "GN"},
                                      {"COST_ART", 10},
                                      {"STOCK_ART", true},
                                      {"STOCK_MINIM_ART", 0},
                                      {"MAGATZEM_ART", "1"},
                                      {"ACTIU_ART", true}});
    connexio.Afegir_Fila(
        "STOCK", {{"EMPRESA_ST", empresa_mesura}, {"CODI_ART_ST", codi}, {"ALMACEN_ST", "1"}, {"UNIDADES_ST", 100000}});
  }
  transaccio.Confirmar();
}

Linia_Entrada Linia_Mesura(int n) {
  return {.article = Codi_Article(n),
          .descripcio = "Article de la mesura " + std::to_string(n % articles_mesura),
          .iva_article = "GN",
          .cost = 10,
          .unitats = 2,
          .porc_marge = 30,
          .preu_unitari = 13,
          .pvp = 15.73};
}

Nota_Oberta::Nota_Oberta(std::int64_t numero)
    : cap_{.numero = numero, .empresa = empresa_mesura, .iva = true, .re = false} {
  linies_.Open(SQL_Linies(tipus_albara, numero, empresa_mesura), sessio.Connexio_Comuna, Bloqueig::Optimista);
  peu_.Open(SQL_Peu(tipus_albara, numero, empresa_mesura), sessio.Connexio_Comuna);
}

void Nota_Oberta::Afegir(const Linia_Entrada& linia) {
  linies_.CancelUpdate();  // of one that failed
  Transaccio transaccio(sessio.Connexio_Comuna);
  Afegir_Linia_Albara(cap_, linia, linies_, *this);
  transaccio.Confirmar();
}
