// A delivery note as the form keeps it open, for measures of its lines; and the articles that its lines sell.
#pragma once

#include "core/Sessio.h"
#include "sales/M_Albarans.h"

constexpr const char* empresa_mesura = "B00000000";
constexpr int articles_mesura = 600;

std::string Codi_Article(int n);
// Every article, with plenty of it in the warehouse.
void Sembrar_Articles(Connexio& connexio);
Linia_Entrada Linia_Mesura(int n);

// The two sets that the form of a note keeps open, and what it does when a rule speaks to it.
class Nota_Oberta : public Document_Obert {
 public:
  explicit Nota_Oberta(std::int64_t numero);
  void Afegir(const Linia_Entrada& linia);  // in a transaction of its own; raises what the rules raise

  Valor Numero_Document() const override { return cap_.numero; }
  bool Re_Marcat() const override { return false; }
  void Posar_Import(double euros) override { import_ = euros; }
  void Posar_Estat(bool) override {}
  void Posar_Pagament(bool) override {}
  void Desar_Capcalera() override {}
  void Refrescar_Peu() override { peu_.Requery(); }

 private:
  Capcalera_Oberta cap_;
  Recordset linies_;
  Recordset peu_;
  double import_ = 0;
};
