#include "stock/M_Magatzems.h"

#include "core/M_Mestres.h"

#include <initializer_list>

#include "core/M_Funcions_Comuns.h"
#include "masters/M_Articles.h"

namespace {

// "", "0" and "False" are false, any other number and "True" are true.
bool Text_Cert(const std::string& text) {
  return Nul_A_Defecte(text).Boolea();
}

std::string SQL_Estoc(const std::string& article, const std::string& magatzem) {
  return "SELECT * FROM STOCK WHERE EMPRESA_ST = " + Text_SQL(sessio.Empresa_Actual) +
         " AND CODI_ART_ST = " + Text_SQL(article) + " AND ALMACEN_ST = " + Text_SQL(magatzem);
}

std::string SQL_Magatzem(const std::string& magatzem) {
  return "SELECT * FROM ALMACENES WHERE CODI_ALM = " + Text_SQL(magatzem);
}

// A guess of what will be read next, never an answer.
std::string& Ultim_Magatzem() {
  static std::string magatzem;
  return magatzem;
}

// What a change leaves of a balance. Fractions of a unit add up as they are typed, not as doubles hold them.
double Saldo_Nou(const Recordset& rs, double delta) {
  const double unitats = rs.RecordCount() > 0 ? Nul_A_Defecte(rs["UNIDADES_ST"]).Doble() : 0;
  return Arrodonir(delta + unitats, decimals_unitats);
}

void Exigir_Estoc(double unitats, bool stock_neg) {
  if (unitats >= 0 || stock_neg) return;
  throw Error_Brollador(errors::sense_estoc, "Actualitzar_Stock", "Operació fallida. No hi ha prou STOCK!");
}

// Runs a step of a posting again, from its start, for as long as another terminal gets in between.
void Fer_Pas(const std::function<void()>& pas) {
  for (;;) {
    try {
      return pas();
    } catch (const Error_Brollador& error) {
      if (error.Numero() != errors::concurrencia) throw;
    }
  }
}

// The steps of a posting, and what the user sees of their failure: one box, and 1010 for the caller. The work is undone
// before the box is shown, so that no other terminal waits for somebody to read it. Of two terminals that wait for each
// other one is given up: its error goes up as it is, to whoever can do the whole of the work again.
void Fer_Passos(std::initializer_list<std::function<void()>> passos) {
  try {
    for (const auto& pas : passos) Fer_Pas(pas);
  } catch (const Error_Brollador& error) {
    if (error.Motiu() == Falla::Interbloqueig) throw;
    Transaccio::Desfer_Oberta(sessio.Connexio_Comuna);
    Alliberar_Entrada();
    Mostrar_Error(error);
    throw Error_Brollador(errors::refusat, "M_Magatzems", "Error en los Movimientos...", error.Motiu());
  }
}

void Moviment(const Article_Estoc& art, double delta, const char* tipus, const std::string& document) {
  Fer_Passos({[&] { Actualitzar_Stock(art.article, art.magatzem, delta, art.stock_neg, art.porta_stock); },
              [&] { Afegir_Moviment(art.article, art.magatzem, delta, tipus, document, art.porta_stock); }});
}

}  // namespace

Article_Estoc Preparar_Article_Estoc(const std::string& codi, double canvi) {
  const auto dades = Dades_Article(codi);
  const std::string& magatzem = dades[article::magatzem];
  const bool porta_stock = Text_Cert(dades[article::porta_stock]);
  Article_Estoc article = {.article = codi,
                           .magatzem = magatzem,
                           .minim = Text_Cert(dades[article::stock_minim]) ? -1.0 : 0.0,
                           .stock_neg = porta_stock && Stock_Negatiu_Permes(magatzem),
                           .porta_stock = porta_stock};
  Avisar_Sota_Minims(article, canvi);
  return article;
}

void Avisar_Sota_Minims(const Article_Estoc& art, double canvi) {
  // What may not go below zero never gets below a minimum: it is refused.
  if (art.minim == 0 || !art.stock_neg || !art.porta_stock) return;
  const Recordset rs(SQL_Estoc(art.article, art.magatzem), sessio.Connexio_Comuna);
  if (Saldo_Nou(rs, canvi) >= art.minim || art.magatzem != Magatzem_Article(art.article)) return;
  const bool bloquejada = sessio.Entrada_Bloquejada;
  sessio.pantalla->Caixa(art.article + ": Article sota mínims.", estil::critic);
  if (bloquejada) Bloquejar_Entrada();
}

void Demanar_Estoc(const Article_Estoc& article) {
  if (article.porta_stock)
    sessio.Connexio_Comuna.Demanar(SQL_Estoc(article.article, article.magatzem), Bloqueig::Optimista);
}

Apunt_Estoc Preparar_Apunts(
    const std::string& article, const std::vector<Unitats_Mogudes>& mogudes, double sentit,
    const std::function<void(double signe, const Article_Estoc& estoc, double unitats)>& moviment) {
  const Article_Estoc estoc = Preparar_Article_Estoc(article, sentit * Total_Mogut(mogudes));
  return {.demanar = [estoc] { Demanar_Estoc(estoc); },
          .fer =
              [estoc, mogudes, moviment] {
                for (const auto& [signe, unitats] : mogudes) moviment(signe, estoc, unitats);
              }};
}

void Moviment_Albara(double signe, const Article_Estoc& article, double unitats, std::int64_t numalb) {
  Moviment(article, -signe * unitats, "AC", std::to_string(numalb));
}

void Moviment_Factura(double signe, const Article_Estoc& article, double unitats, std::int64_t numalb) {
  Moviment(article, -signe * unitats, "F", std::to_string(numalb));
}

void Moviment_Compra(double signe, const Article_Estoc& article, double unitats, const std::string& numalb) {
  Moviment(article, signe * unitats, "C", numalb);
}

void Moviment_Traspas(double signe, const std::string& article, bool porta_stock, const std::string& origen,
                      const std::string& desti, double unitats, std::int64_t numalb) {
  const bool neg_origen = Stock_Negatiu_Permes(origen);
  const bool neg_desti = Stock_Negatiu_Permes(desti);
  const double delta = signe * unitats;
  const std::string document = std::to_string(numalb);
  const auto treure = [&] { Actualitzar_Stock(article, origen, -delta, neg_origen, porta_stock); };
  const auto posar = [&] { Actualitzar_Stock(article, desti, delta, neg_desti, porta_stock); };
  // Balances are taken in the order of their warehouses, whichever way the goods go: two terminals that transfer in
  // opposite directions then wait for one another in turn.
  const bool origen_primer = origen <= desti;
  En_Transaccio(sessio.Connexio_Comuna, [&] {
    Fer_Passos({[&] { origen_primer ? treure() : posar(); }, [&] { origen_primer ? posar() : treure(); },
                [&] { Afegir_Moviment(article, origen, -delta, "AM", document, porta_stock); },
                [&] { Afegir_Moviment(article, desti, delta, "AM", document, porta_stock); }});
  });
  Transaccio::Confirmar_Oberta(sessio.Connexio_Comuna);  // also when a caller began it
}

void Actualitzar_Stock(const std::string& article, const std::string& magatzem, double delta, bool stock_neg,
                       bool porta_stock) {
  if (!porta_stock) return;
  Recordset rs(SQL_Estoc(article, magatzem), sessio.Connexio_Comuna, Bloqueig::Optimista);
  const double saldo = Saldo_Nou(rs, delta);
  Exigir_Estoc(saldo, stock_neg);
  if (rs.RecordCount() == 0) {
    rs.AddNew();
    rs.Set("EMPRESA_ST", sessio.Empresa_Actual);
    rs.Set("CODI_ART_ST", article);
    rs.Set("ALMACEN_ST", magatzem);
  }
  rs.Set("UNIDADES_ST", saldo);
  rs.Update();
  if (saldo == 0) rs.Delete();
}

void Afegir_Moviment(const std::string& article, const std::string& magatzem, double unitats, const std::string& tipus,
                     const std::string& document, bool porta_stock) {
  if (!porta_stock) return;
  const Data_Hora data = Data_Hora_Servidor();
  sessio.Connexio_Comuna.Afegir_Fila("MOVIMIENTOS", {{"EMPRESA_MOV", sessio.Empresa_Actual},
                                                     {"ARTICULO_MOV", article},
                                                     {"FECHA_MOV", data},
                                                     {"TIPO_MOV", tipus},
                                                     {"ALMACEN_MOV", magatzem},
                                                     {"DOCUMENTO_MOV", document},
                                                     {"UNIDADES_MOV", unitats}});
}

bool Stock_Negatiu_Permes(const std::string& magatzem) {
  const Recordset rs(SQL_Magatzem(magatzem), sessio.Connexio_Comuna);
  Ultim_Magatzem() = magatzem;
  return rs.RecordCount() > 0 && Nul_A_Defecte(rs["STOCK_NEG_ALM"]).Boolea();
}

void Demanar_Magatzem_Probable() {
  if (!Ultim_Magatzem().empty()) sessio.Connexio_Comuna.Demanar(SQL_Magatzem(Ultim_Magatzem()));
}
