#include "core/dades/Dialecte.h"

#include <algorithm>
#include <initializer_list>

#include "core/dades/Mots_SQL.h"
#include "core/dades/Text.h"

using namespace mots_sql;

namespace {

class Traductor {
 public:
  Traductor(const std::string& forma, const Cataleg& taules, const Trets_Motor& trets, std::string_view editable)
      : mots_(Partir(forma)), taules_(taules), trets_(trets), editable_(editable) {}

  Sentencia_Traduida Executar() {
    if (mots_.empty()) Sentencia_Erronia("");
    const Tram tot{0, mots_.size()};
    if (Es(mots_[0], "SELECT")) {
      sortida_.text = Seleccio(tot, true);
    } else if (Es(mots_[0], "DELETE") && mots_.size() > 1 && Es(mots_[1], "*")) {
      sortida_.text = "DELETE" + Expressio({2, mots_.size()});
    } else {
      sortida_.text = Expressio(tot);
    }
    return std::move(sortida_);
  }

 private:
  struct Parts {
    bool distint = false;
    int top = -1;
    Tram llista, de, on, grup, tenint, ordre;
  };

  std::size_t Tancament(std::size_t obert, std::size_t fi) const {
    int fondaria = 0;
    for (std::size_t i = obert; i < fi; ++i) {
      if (Es(mots_[i], "(")) ++fondaria;
      if (Es(mots_[i], ")") && --fondaria == 0) return i;
    }
    Sentencia_Erronia("(");
  }

  // The first place at this level where one of the words stands, or the end.
  std::size_t Buscar(Tram tram, std::initializer_list<std::string_view> paraules) const {
    for (std::size_t i = tram.primer; i < tram.ultim; ++i) {
      if (Es(mots_[i], "(")) {
        i = Tancament(i, tram.ultim);
        continue;
      }
      for (const auto paraula : paraules) {
        if (Es(mots_[i], paraula)) return i;
      }
    }
    return tram.ultim;
  }

  Parts Separar(Tram tram) const {
    Parts p;
    std::size_t i = tram.primer + 1;
    if (i < tram.ultim && Es(mots_[i], "DISTINCT")) p.distint = true, ++i;
    if (i + 1 < tram.ultim && Es(mots_[i], "TOP") && mots_[i + 1].mena == Mena::Parametre) {
      p.top = mots_[i + 1].parametre;
      i += 2;
    }
    const auto fins_a = [&](std::initializer_list<std::string_view> paraules) {
      const std::size_t fi = Buscar({i, tram.ultim}, paraules);
      const Tram tros{i, fi};
      i = fi;
      return tros;
    };
    const auto salta = [&](std::string_view paraula, std::size_t quants) {
      if (i >= tram.ultim || !Es(mots_[i], paraula)) return false;
      i += quants;
      return true;
    };
    p.llista = fins_a({"FROM"});
    if (salta("FROM", 1)) p.de = fins_a({"WHERE", "GROUP", "HAVING", "ORDER"});
    if (salta("WHERE", 1)) p.on = fins_a({"GROUP", "HAVING", "ORDER"});
    if (salta("GROUP", 2)) p.grup = fins_a({"HAVING", "ORDER"});
    if (salta("HAVING", 1)) p.tenint = fins_a({"ORDER"});
    if (salta("ORDER", 2)) p.ordre = {i, tram.ultim};
    if (p.llista.Buit()) Sentencia_Erronia("SELECT");
    return p;
  }

  std::vector<Tram> Per_Comes(Tram tram) const {
    std::vector<Tram> trossos;
    for (std::size_t i = tram.primer; i < tram.ultim;) {
      const std::size_t coma = Buscar({i, tram.ultim}, {","});
      trossos.push_back({i, coma});
      i = coma + 1;
    }
    return trossos;
  }

  std::string Seleccio(Tram tram, bool principal) {
    const Parts p = Separar(tram);
    std::string text = p.distint ? "SELECT DISTINCT" : "SELECT";
    text += Llista(p.llista, principal);
    if (principal) text += Clau_Oculta(p);
    if (!p.de.Buit()) text += " FROM" + Origen(p.de);
    if (!p.on.Buit()) text += " WHERE" + Expressio(p.on);
    if (!p.grup.Buit()) text += " GROUP BY" + Expressio(p.grup);
    if (!p.tenint.Buit()) text += " HAVING" + Expressio(p.tenint);
    const Tram ordre = p.ordre.Buit() ? p.grup : p.ordre;
    if (!ordre.Buit()) text += " ORDER BY" + Ordre(ordre);
    if (p.top >= 0) text += " LIMIT " + Marcador(p.top);
    return text;
  }

  std::string Llista(Tram tram, bool principal) {
    const auto alies_de_fora = alies_;
    std::string text;
    for (const Tram item : Per_Comes(tram)) {
      const std::size_t com = Buscar(item, {"AS"});
      const Tram expressio{item.primer, com};
      const std::string traduida = Expressio(expressio);
      text += text.empty() ? traduida : "," + traduida;
      if (principal) sortida_.tipus_expressions.push_back(Tipus_Expressio(expressio));
      if (com + 1 >= item.ultim) continue;
      const std::string& alies = mots_[com + 1].text;
      text += " AS " + Nom(alies);
      if (taules_.Cercar_Columna(alies) == nullptr) alies_.emplace_back(Plegar(alies), "(" + traduida + " )");
    }
    alies_ = alies_de_fora;
    return text;
  }

  // The type of what has no column behind it, where the words tell it.
  std::optional<Tipus_Columna> Tipus_Expressio(Tram tram) const {
    const Mot& primer = mots_[tram.primer];
    if (tram.ultim - tram.primer < 2 || !Es(mots_[tram.primer + 1], "(")) return std::nullopt;
    if (Es(primer, "NOW") || Es(primer, "DATESERIAL")) return Tipus_Columna::Data_Hora;
    const bool extrem = Es(primer, "MAX") || Es(primer, "MIN");
    if (!extrem || tram.ultim - tram.primer != 4) return std::nullopt;
    const Columna* columna = taules_.Cercar_Columna(mots_[tram.primer + 2].text);
    return columna == nullptr ? std::nullopt : std::optional(columna->tipus);
  }

  // Tables, joins and derived tables; one without a name is given one.
  std::string Origen(Tram tram) {
    std::string text;
    for (std::size_t i = tram.primer; i < tram.ultim; ++i) {
      const bool derivada = Es(mots_[i], "(") && i + 1 < tram.ultim && Es(mots_[i + 1], "SELECT");
      if (!derivada) {
        const std::size_t fi = Seguent_Derivada({i, tram.ultim});
        text += Expressio({i, fi});
        i = fi - 1;
        continue;
      }
      const std::size_t tanca = Tancament(i, tram.ultim);
      text += " (" + Seleccio({i + 1, tanca}, false) + ")";
      const bool te_nom = tanca + 1 < tram.ultim && mots_[tanca + 1].mena == Mena::Nom;
      if (!te_nom) text += " AS DERIVADA_" + std::to_string(++derivades_);
      i = tanca;
    }
    return text;
  }

  std::size_t Seguent_Derivada(Tram tram) const {
    for (std::size_t i = tram.primer; i + 1 < tram.ultim; ++i) {
      if (Es(mots_[i], "(") && Es(mots_[i + 1], "SELECT")) return i;
    }
    return tram.ultim;
  }

  std::string Ordre(Tram tram) {
    std::string text;
    for (Tram item : Per_Comes(tram)) {
      if (item.Buit()) Sentencia_Erronia("ORDER BY");
      std::string sentit;
      const Mot& ultim = mots_[item.ultim - 1];
      if (Es(ultim, "DESC") || Es(ultim, "ASC")) {
        sentit = " " + ultim.text;
        --item.ultim;
      }
      const bool nom_sol =
          item.ultim - item.primer == 1 || (item.ultim - item.primer == 3 && Es(mots_[item.primer + 1], "."));
      const Columna* columna = nom_sol ? taules_.Cercar_Columna(mots_[item.ultim - 1].text) : nullptr;
      if (!text.empty()) text += ",";
      text += Expressio(item);
      if (columna != nullptr && columna->tipus == Tipus_Columna::Text) text += trets_.ordre_catala;
      text += sentit;
    }
    return text;
  }

  // The key of the table that is to be written, behind the other columns.
  std::string Clau_Oculta(const Parts& p) {
    if (editable_.empty() || !p.grup.Buit() || Seguent_Derivada(p.de) != p.de.ultim) return {};
    const auto taules = Taules_De(p.de);
    if (editable_ == "*" && (taules.size() != 1 || p.distint)) return {};
    for (const auto& [nom, alies] : taules) {
      if (editable_ != "*" && !Iguals_Plegats(nom, editable_)) continue;
      const Taula* taula = taules_.Cercar(nom);
      if (taula == nullptr) return {};
      sortida_.taula_editable = taula->nom;
      return ", " + Nom(alies) + "." + std::string(trets_.clau_oculta) + " AS CLAU_OCULTA";
    }
    return {};
  }

  // Tables of a FROM with the name that the statement calls them by.
  std::vector<std::pair<std::string, std::string>> Taules_De(Tram tram) const {
    std::vector<std::pair<std::string, std::string>> taules;
    bool espera = true;
    for (std::size_t i = tram.primer; i < tram.ultim; ++i) {
      if (Es(mots_[i], "ON")) espera = false;
      if (Es(mots_[i], ",") || Es(mots_[i], "JOIN")) espera = true;
      if (!espera || mots_[i].mena != Mena::Nom || taules_.Cercar(mots_[i].text) == nullptr) continue;
      std::string alies = mots_[i].text;
      if (i + 2 < tram.ultim && Es(mots_[i + 1], "AS")) alies = mots_[i + 2].text;
      taules.emplace_back(mots_[i].text, alies);
      espera = false;
    }
    return taules;
  }

  std::string Expressio(Tram tram) {
    std::string text;
    for (std::size_t i = tram.primer; i < tram.ultim; ++i) {
      const Mot& mot = mots_[i];
      if (Es(mot, "(") && i + 1 < tram.ultim && Es(mots_[i + 1], "SELECT")) {
        const std::size_t tanca = Tancament(i, tram.ultim);
        text += " (" + Seleccio({i + 1, tanca}, false) + ")";
        i = tanca;
      } else if (Es(mot, "BETWEEN")) {
        i = Entre({i + 1, tram.ultim}, text) - 1;
      } else if (mot.mena == Mena::Parametre) {
        text += " " + Marcador(mot.parametre);
      } else if (Es(mot, ".")) {
        text += ".";
      } else {
        const bool enganxat = i > tram.primer && Es(mots_[i - 1], ".");
        text += (enganxat ? "" : " ") + (mot.mena == Mena::Nom ? Nom_O_Alies(i, tram.ultim) : mot.text);
      }
    }
    return text;
  }

  // x BETWEEN a AND b, where a may be above b. Returns the place behind b.
  std::size_t Entre(Tram tram, std::string& text) {
    const std::size_t i = Buscar(tram, {"AND"});
    const std::size_t fi = Buscar({std::min(i + 1, tram.ultim), tram.ultim}, {"AND", "OR", ")", ","});
    if (i + 1 >= tram.ultim || fi == i + 1) Sentencia_Erronia("BETWEEN");
    const Tram a{tram.primer, i};
    const Tram b{i + 1, fi};
    const bool literals = a.ultim - a.primer == 1 && b.ultim - b.primer == 1 &&
                          mots_[a.primer].mena == Mena::Parametre && mots_[b.primer].mena == Mena::Parametre;
    if (literals) {
      sortida_.entre.emplace_back(mots_[a.primer].parametre, mots_[b.primer].parametre);
      text += " BETWEEN" + Expressio(a) + " AND" + Expressio(b);
    } else {
      const std::string parella = "(" + Expressio(a) + "," + Expressio(b) + ")";
      text += " BETWEEN " + std::string(trets_.menor) + parella + " AND " + std::string(trets_.major) + parella;
    }
    return fi;
  }

  std::string Nom_O_Alies(std::size_t i, std::size_t fi) const {
    const std::string& text = mots_[i].text;
    const bool qualificat = (i + 1 < fi && Es(mots_[i + 1], ".")) || (i > 0 && Es(mots_[i - 1], "."));
    const bool funcio = i + 1 < fi && Es(mots_[i + 1], "(");
    if (!qualificat && !funcio && !alies_.empty()) {
      const std::string plegat = Plegar(text);
      for (const auto& [alies, expressio] : alies_) {
        if (alies == plegat) return expressio;
      }
    }
    return funcio ? text : Nom(text);
  }

  // A name as the catalogue spells it, quoted; words of the language as they stand.
  std::string Nom(const std::string& text) const {
    if (const Columna* columna = taules_.Cercar_Columna(text)) return "\"" + columna->nom + "\"";
    if (const Taula* taula = taules_.Cercar(text)) return "\"" + taula->nom + "\"";
    return text;
  }

  std::string Marcador(int parametre) const { return trets_.marcador + std::to_string(parametre + 1); }

  const Mots mots_;
  const Cataleg& taules_;
  const Trets_Motor& trets_;
  const std::string_view editable_;
  std::vector<std::pair<std::string, std::string>> alies_;
  int derivades_ = 0;
  Sentencia_Traduida sortida_;
};

}  // namespace

Sentencia_Traduida Traduir(const std::string& forma, const Cataleg& taules, const Trets_Motor& trets,
                           std::string_view taula_editable) {
  return Traductor(forma, taules, trets, taula_editable).Executar();
}
