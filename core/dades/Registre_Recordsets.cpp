#include <algorithm>
#include <map>
#include <utility>

#include "core/dades/Recordset.h"

namespace {

// By source text; sets with the same text share an entry.
std::map<std::string, std::vector<Recordset*>, std::less<>>& Registre() {
  static std::map<std::string, std::vector<Recordset*>, std::less<>> registre;
  return registre;
}

}  // namespace

void Registrar_Recordset(Recordset& rs) {
  auto& oberts = Registre()[rs.Source()];
  if (std::find(oberts.begin(), oberts.end(), &rs) == oberts.end()) oberts.push_back(&rs);
}

void Desregistrar_Recordset(Recordset& rs) {
  const auto it = Registre().find(rs.Source());
  if (it == Registre().end()) return;
  std::erase(it->second, &rs);
  if (it->second.empty()) Registre().erase(it);
}

void Tancar_Recordsets() {
  for (const auto& [font, oberts] : std::exchange(Registre(), {})) {
    for (Recordset* rs : oberts) rs->Close();
  }
}

std::size_t Comptar_Recordsets_Oberts() {
  return Registre().size();
}
bool Recordset_Registrat(std::string_view font) {
  return Registre().find(font) != Registre().end();
}
