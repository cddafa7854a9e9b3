// The prices of a line in their fields: the one that is left steers the others (Calcular_Linia). For the entry frame
// and for the detail of a line.
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
extern const std::vector<Camp_De_Preu> preus_de_detall;  // the same of sales, in the detail of a line

class Preus_Linia {
 public:
  struct Lloc {
    QWidget* marc;  // that holds the fields
    const char* sufix;
  };
  // `canviat` runs under the guard of events when another price than before is left in a field.
  Preus_Linia(const Lloc& lloc, const std::vector<Camp_De_Preu>& descripcio,
              std::function<void(const Camp_De_Preu& quin)> canviat);

  void Llegir(Linia_Entrada& linia) const;
  Camp_Numeric* Camp(double Linia_Entrada::*escrit) const;
  // All of them but `menys`.
  void Mostrar(const Resultat_Linia& linia, const Camp_De_Preu* menys = nullptr);
  void Habilitar(bool habilitats);
  void Buidar() { Mostrar({}); }

 private:
  void Deixar(std::size_t quin);

  const std::vector<Camp_De_Preu>& descripcio_;
  std::vector<Camp_Numeric*> camps_;
  std::function<void(const Camp_De_Preu& quin)> canviat_;
  double recordat_ = 0;  // of the field that was entered last
};
