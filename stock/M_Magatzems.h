// The stock ledger, the one place where stock changes: the balance in STOCK and the journal MOVIMIENTOS.
// Call the entry points inside the caller's transaction. A failure undoes it, shows its box once and raises 1010; only
// a deadlock with another terminal goes up as it is, for En_Transaccio to do the whole work again.
#pragma once

#include <cstdint>
#include <string>

#include "documents/Documents.h"
#include "documents/M_Linies.h"

// What every caller prepares before a posting.
struct Article_Estoc {
  std::string article;
  std::string magatzem;      // the article's own warehouse
  double minim = 0;          // -1 for any minimum that is not 0, else 0: a truth value, not a quantity
  bool stock_neg = false;    // the warehouse may go below zero
  bool porta_stock = false;  // the article keeps stock
};
// Call it before the first write of the work: it warns (Avisar_Sota_Minims) of what the posting will do to the balance
// when it adds `canvi` units; goods that leave count negative. Reads ARTICLES, ALMACENES and STOCK.
Article_Estoc Preparar_Article_Estoc(const std::string& article, double canvi);
// Below its minimum, in its own warehouse, an article is told of, and the posting goes on.
void Avisar_Sota_Minims(const Article_Estoc& article, double canvi);
// The balance will be posted soon, in this transaction, which has written already (Connexio::Demanar).
void Demanar_Estoc(const Article_Estoc& article);

// What a line of a document posts. `sentit` is +1 where its units come into the warehouse and -1 where they leave it;
// `moviment` posts some of them.
Apunt_Estoc Preparar_Apunts(
    const std::string& article, const std::vector<Unitats_Mogudes>& mogudes, double sentit,
    const std::function<void(double signe, const Article_Estoc& estoc, double unitats)>& moviment);

// signe +1 when a line comes into being, -1 when it goes away.
void Moviment_Albara(double signe, const Article_Estoc& article, double unitats, std::int64_t numalb);
void Moviment_Factura(double signe, const Article_Estoc& article, double unitats, std::int64_t numalb);
void Moviment_Compra(double signe, const Article_Estoc& article, double unitats, const std::string& numalb);
// Two balances and two journal rows, in a transaction of its own unless one is open. Commits the one that is open, also
// its caller's: what the caller does afterwards is outside any.
void Moviment_Traspas(double signe, const std::string& article, bool porta_stock, const std::string& origen,
                      const std::string& desti, double unitats, std::int64_t numalb);

// The balance. Raises 1001 when it would go below zero and may not.
void Actualitzar_Stock(const std::string& article, const std::string& magatzem, double delta, bool stock_neg,
                       bool porta_stock);
// The journal row.
void Afegir_Moviment(const std::string& article, const std::string& magatzem, double unitats, const std::string& tipus,
                     const std::string& document, bool porta_stock);
bool Stock_Negatiu_Permes(const std::string& magatzem);
// The warehouse that was asked for last will probably be wanted again, in this transaction (Connexio::Demanar).
void Demanar_Magatzem_Probable();
