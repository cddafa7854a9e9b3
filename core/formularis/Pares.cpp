#include "core/formularis/Pares.h"

#include <algorithm>

#include "core/Sessio.h"

namespace {

std::span<const Pare> pares;
std::span<const char16_t* const> sense_pares;

bool Val_Ara(const Pare& pare) {
  if (pare.mena == Mena_Pare::Per_Crida) return sessio.Crida_Document == pare.clau;
  if (pare.mena == Mena_Pare::Per_Tipus_Pagament) return sessio.Pag_Document == pare.clau;
  return true;
}

}  // namespace

void Fixar_Pares(std::span<const Pare> taula, std::span<const char16_t* const> sense) {
  pares = taula;
  sense_pares = sense;
}

std::span<const Pare> Taula_De_Pares() {
  return pares;
}

std::span<const char16_t* const> Formularis_Sense_Pares() {
  return sense_pares;
}

bool Es_Del_Sistema(const QString& majuscules) {
  const auto es = [&](const char16_t* nom) { return majuscules == QStringView(nom); };
  return std::any_of(pares.begin(), pares.end(), [&](const Pare& pare) { return es(pare.formulari); }) ||
         std::any_of(sense_pares.begin(), sense_pares.end(), es);
}

std::vector<const Pare*> Pares_De(const QString& majuscules) {
  std::vector<const Pare*> seus;
  for (const Pare& pare : pares) {
    if (majuscules == QStringView(pare.formulari) && Val_Ara(pare)) seus.push_back(&pare);
  }
  return seus;
}
