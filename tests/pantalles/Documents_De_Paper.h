// Documents of the five kinds that are printed, written row by row, so that a report is proved whether or not its kind
// has an editor.
#pragma once

#include "output/Imprimir.h"
#include "tests/pantalles/Base_Pantalles.h"

class Documents_De_Paper : public Base_Pantalles {
 protected:
  static constexpr const char* empresa = "B00000000";

  Documents_De_Paper();  // a company, a customer and a supplier of the same code

  static Valor Numero_De(const Tipus_Document& tipus) { return tipus.numero_es_text ? Valor("12") : Valor(12); }
  void Posar_Document(const Tipus_Document& tipus, const std::string& observacions = "Portar al matí");
  void Posar_Linia(const Tipus_Document& tipus, const std::string& descripcio, double unitats, double preu,
                   double dte = 0);
  void Posar_Peu(const Tipus_Document& tipus, double base, double porc_iva = 21, double porc_re = 0);
  // Lines of every sort: short, of several rows, with discount, a return, a heading without figures.
  void Posar_Linies_Variades(const Tipus_Document& tipus, int quantes);

  static Pagines Pagines_De(const Tipus_Document& tipus, bool valorat = true);
  // Pages to be looked at stay in the folder that BROLLADOR_PAGINES names.
  static void Deixar_Per_Mirar(const Pagines& pagines, const QString& nom);

  // Everything that a page may have to hold at its worst.
  void Allargar_Noms();

 private:
  int linia_ = 0;
};
