#include "core/dades/Filtre.h"

#include <array>

#include "core/dades/Dialecte.h"
#include "core/dades/Error_Brollador.h"
#include "core/dades/Parametres_Sentencia.h"
#include "core/dades/Text.h"

namespace {

constexpr std::array operadors = {"<>", "<=", ">=", "=", "<", ">", "LIKE"};

std::string_view Sense_Blancs(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

// "FIELD OP ?n"
Condicio_Filtre Llegir_Condicio(std::string_view text, const std::vector<Valor>& literals,
                                const std::function<int(std::string_view)>& index) {
  const std::size_t marca = text.rfind('?');
  if (marca == std::string_view::npos) Llancar_Error(errors::sentencia, "Filter", std::string(text));
  const std::string_view davant = Sense_Blancs(text.substr(0, marca));
  for (const std::string_view operador : operadors) {
    if (davant.size() <= operador.size()) continue;
    const std::string_view final = davant.substr(davant.size() - operador.size());
    if (!Iguals_Plegats(final, operador)) continue;
    std::string_view camp = Sense_Blancs(davant.substr(0, davant.size() - operador.size()));
    if (camp.size() > 2 && camp.front() == '"' && camp.back() == '"') camp = camp.substr(1, camp.size() - 2);
    const auto literal = static_cast<std::size_t>(std::stoi(std::string(text.substr(marca + 1)))) - 1;
    return {index(camp), std::string(operador), literals.at(literal)};
  }
  Llancar_Error(errors::sentencia, "Filter", std::string(text));
}

// Where the next AND stands, as a word of its own.
std::size_t Seguent_I(std::string_view text, std::size_t des_de) {
  for (std::size_t i = des_de; i + 5 <= text.size(); ++i) {
    if (Iguals_Plegats(text.substr(i, 5), " AND ")) return i;
  }
  return std::string_view::npos;
}

}  // namespace

std::vector<Condicio_Filtre> Llegir_Filtre(std::string_view text, const std::function<int(std::string_view)>& index) {
  const Sentencia_Escanejada escanejada = Escanejar(text);
  const std::string_view forma = escanejada.forma;
  std::vector<Condicio_Filtre> condicions;
  for (std::size_t inici = 0; inici < forma.size();) {
    const std::size_t fi = Seguent_I(forma, inici);
    condicions.push_back(Llegir_Condicio(forma.substr(inici, fi - inici), escanejada.literals, index));
    if (fi == std::string_view::npos) break;
    inici = fi + 5;
  }
  return condicions;
}

bool Compleix(const Condicio_Filtre& condicio, const Valor& valor) {
  if (valor.Es_Nul()) return false;
  if (condicio.operador == "LIKE") return Coincideix(condicio.literal.Text(), valor.Text());
  const int ordre = Comparar_Valors(valor, condicio.literal);
  if (condicio.operador == "=") return ordre == 0;
  if (condicio.operador == "<>") return ordre != 0;
  if (condicio.operador == "<") return ordre < 0;
  if (condicio.operador == "<=") return ordre <= 0;
  if (condicio.operador == ">") return ordre > 0;
  return ordre >= 0;
}
