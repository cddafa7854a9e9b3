// The prices of a line in their fields: the one that is left steers the others (Calcular_Linia). For the entry frame
// and for whatever else shows a line in fields.
#pragma once

#include <functional>
#include <vector>

#include "documents/Documents.h"
#include "documents/M_Linies.h"

class Camp_Numeric;
class QWidget;

// A field of price: its control without suffix, its mask, and what it is to the calculation.
struct Camp_De_Preu {
  const char* control;
  const char* mascara;
  Mode_Calcul mode;
  double Linia_Entrada::*escrit;
  double Resultat_Linia::*resultat;
};
extern const std::vector<Camp_De_Preu> preus_de_venda;
extern const std::vector<Camp_De_Preu> preus_de_compra;  // the cost with three decimals

class Preus_Linia {
 public:
  struct Lloc {
    QWidget* marc;  // that holds the fields
    const char* sufix;
  };
  // `linia` gives the line as all its fields hold it, `taxes` its rates.
  Preus_Linia(const Lloc& lloc, const std::vector<Camp_De_Preu>& descripcio, std::function<Linia_Entrada()> linia,
              std::function<Taxes_Linia()> taxes);

  void Llegir(Linia_Entrada& linia) const;
  Camp_Numeric* Camp(double Linia_Entrada::*escrit) const;
  void Buidar();

 private:
  void Deixar(std::size_t quin);
  void Recalcular(std::size_t quin);

  const std::vector<Camp_De_Preu>& descripcio_;
  std::vector<Camp_Numeric*> camps_;
  std::function<Linia_Entrada()> linia_;
  std::function<Taxes_Linia()> taxes_;
  double recordat_ = 0;  // of the field that was entered last
};
