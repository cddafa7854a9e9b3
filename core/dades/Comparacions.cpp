#include "core/dades/Comparacions.h"

#include <algorithm>

namespace mots_sql {

namespace {

constexpr std::size_t cap = static_cast<std::size_t>(-1);

class Marcador {
 public:
  Marcador(const Mots& mots, const Cataleg& taules) : mots_(mots), taules_(taules), marques_(mots.size()) {}

  std::vector<Comparat> Executar() {
    bool assigna = false;  // between SET and WHERE of an UPDATE, where = gives a value
    int fondaria = 0;
    for (std::size_t i = 0; i < mots_.size(); ++i) {
      if (Es(mots_[i], "(")) ++fondaria;
      if (Es(mots_[i], ")")) --fondaria;
      if (fondaria == 0 && Es(mots_[i], "SET")) assigna = true;
      if (fondaria == 0 && Es(mots_[i], "WHERE")) assigna = false;
      if (!assigna || fondaria > 0) Comparacio(i);
    }
    return std::move(marques_);
  }

 private:
  bool Hi_Ha(std::size_t i, std::string_view paraula) const { return i < mots_.size() && Es(mots_[i], paraula); }

  bool Es_Operador(std::size_t i) const {
    constexpr std::string_view operadors[] = {"=", "<>", "!=", "<", ">", "<=", ">="};
    return mots_[i].mena == Mena::Simbol &&
           std::any_of(std::begin(operadors), std::end(operadors), [&](auto o) { return mots_[i].text == o; });
  }

  void Comparacio(std::size_t i) {
    if (Es_Operador(i)) return Marcar(Esquerra(i), {Dreta(i + 1)});
    if (Hi_Ha(i, "LIKE")) return Marcar_Like(Esquerra(i), Dreta(i + 1));
    if (Hi_Ha(i, "IN") && Hi_Ha(i + 1, "(")) return Marcar(Esquerra(i), Llista(i + 1));
    if (Hi_Ha(i, "BETWEEN")) {
      const std::size_t primer = Dreta(i + 1);
      if (primer == cap) return;
      const std::size_t segon = primer + Mida_Operand(mots_, primer);
      Marcar(Esquerra(i), {primer, Hi_Ha(segon, "AND") ? Dreta(segon + 1) : cap});
    }
  }

  // The operand that ends before the operator.
  std::size_t Esquerra(std::size_t i) const {
    if (i > 0 && Es(mots_[i - 1], "NOT")) --i;
    if (i == 0 || mots_[i - 1].mena == Mena::Simbol) return cap;
    return i >= 3 && Es(mots_[i - 2], ".") ? i - 3 : i - 1;
  }

  // The operand that begins here; of a subquery, its column.
  std::size_t Dreta(std::size_t i) const {
    if (Hi_Ha(i, "(") && Hi_Ha(i + 1, "SELECT")) return Dreta(i + (Hi_Ha(i + 2, "DISTINCT") ? 3 : 2));
    if (i >= mots_.size() || mots_[i].mena == Mena::Simbol) return cap;
    const bool funcio = mots_[i].mena == Mena::Nom && Hi_Ha(i + 1, "(");
    return funcio ? cap : i;
  }

  std::vector<std::size_t> Llista(std::size_t obert) const {
    if (Hi_Ha(obert + 1, "SELECT")) return {Dreta(obert)};
    std::vector<std::size_t> operands;
    for (std::size_t i = obert + 1; i < mots_.size() && !Es(mots_[i], ")"); ++i) {
      if (mots_[i].mena != Mena::Simbol) operands.push_back(i);
    }
    return operands;
  }

  bool De_Text(std::size_t operand) const {
    return operand != cap && Es_Text(Columna_Operand(mots_, operand, taules_));
  }

  // When one of them is a text, all of them are compared as texts.
  void Marcar(std::size_t esquerra, std::vector<std::size_t> operands) {
    operands.push_back(esquerra);
    if (std::none_of(operands.begin(), operands.end(), [&](auto o) { return De_Text(o); })) return;
    for (const std::size_t operand : operands) {
      if (operand != cap) marques_[operand] = Comparat::Plegat;
    }
  }

  void Marcar_Like(std::size_t esquerra, std::size_t dreta) {
    if (esquerra != cap) marques_[esquerra] = De_Text(esquerra) ? Comparat::Plegat : Comparat::A_Text;
    if (dreta != cap) marques_[dreta] = Comparat::Plegat;
  }

  const Mots& mots_;
  const Cataleg& taules_;
  std::vector<Comparat> marques_;
};

}  // namespace

std::vector<Comparat> Marcar_Comparats(const Mots& mots, const Cataleg& taules) {
  return Marcador(mots, taules).Executar();
}

bool Es_Text(const Columna* columna) {
  return columna != nullptr && (columna->tipus == Tipus_Columna::Codi || columna->tipus == Tipus_Columna::Text);
}

std::size_t Mida_Operand(const Mots& mots, std::size_t i) {
  return mots[i].mena == Mena::Nom && i + 2 < mots.size() && Es(mots[i + 1], ".") ? 3 : 1;
}

const Columna* Columna_Operand(const Mots& mots, std::size_t i, const Cataleg& taules) {
  const Mot& mot = mots[i + Mida_Operand(mots, i) - 1];
  return mot.mena == Mena::Nom ? taules.Cercar_Columna(mot.text) : nullptr;
}

}  // namespace mots_sql
