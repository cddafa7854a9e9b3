// The stock ledger, the one place where stock changes: the balance in STOCK and the journal MOVIMIENTOS.
// Call the entry points inside the caller's transaction. A failure undoes it, shows its box once and raises 1010.
#pragma once

#include <cstdint>
#include <string>

// What every caller prepares before a posting.
struct Article_Estoc {
  std::string article;
  std::string magatzem;      // the article's own warehouse
  double minim = 0;          // -1 for any minimum that is not 0, else 0: a truth value, not a quantity
  bool stock_neg = false;    // the warehouse may go below zero
  bool porta_stock = false;  // the article keeps stock
};
Article_Estoc Preparar_Article_Estoc(const std::string& article);

// signe +1 when a line comes into being, -1 when it goes away.
void Moviment_Albara(double signe, const Article_Estoc& article, double unitats, std::int64_t numalb);
void Moviment_Factura(double signe, const Article_Estoc& article, double unitats, std::int64_t numalb);
void Moviment_Compra(double signe, const Article_Estoc& article, double unitats, const std::string& numalb);
// Two balances and two journal rows; commits the transaction that is open, also its caller's.
void Moviment_Traspas(double signe, const std::string& article, bool porta_stock, const std::string& origen,
                      const std::string& desti, double unitats, std::int64_t numalb);

// The balance. Raises 1001 when it would go below zero and may not; warns below the minimum.
void Actualitzar_Stock(const std::string& article, double minim, const std::string& magatzem, double delta,
                       bool stock_neg, bool porta_stock);
// The journal row.
void Afegir_Moviment(const std::string& article, const std::string& magatzem, double unitats, const std::string& tipus,
                     const std::string& document, bool porta_stock);
bool Stock_Negatiu_Permes(const std::string& magatzem);
