#include "core/dades/Dialecte.h"

#include <algorithm>
#include <initializer_list>

#include "core/dades/Comparacions.h"
#include "core/dades/Mots_SQL.h"
#include "core/dades/Text.h"

using namespace mots_sql;

namespace {

// Functions of the dialect that no engine has as it means them.
constexpr std::string_view funcions_propies[] = {"NOW", "DATESERIAL", "DATEPART", "DAY", "ISNUMERIC", "ROUND"};

class Traductor {
 public:
  Traductor(const std::string& forma, const Cataleg& taules, const Trets_Motor& trets, std::string_view editable)
      : mots_(Partir(forma)), taules_(taules), trets_(trets), editable_(editable) {
    if (Plega()) comparats_ = Marcar_Comparats(mots_, taules_);
  }

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
  // What one SELECT says, and how its items are written.
  struct Parts {
    bool distint = false;
    int top = -1;
    Tram llista, de, on, grup, tenint, ordre;
    // Items that are grouped by their folded text: one of the texts of each group is shown.
    bool Agrupa_Textos() const { return distint || !grup.Buit(); }
  };

  bool Plega() const { return !trets_.plegar.empty(); }

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
    const bool distint_plegat = Plega() && p.distint && p.grup.Buit();
    std::string text = p.distint && !distint_plegat ? "SELECT DISTINCT" : "SELECT";
    text += Llista(p, principal);
    const std::string clau = principal ? Clau_Oculta(p) : std::string();
    text += clau.empty() ? clau : "," + clau + " AS CLAU_OCULTA";
    if (!p.de.Buit()) text += " FROM" + Origen(p.de);
    if (!p.on.Buit()) text += " WHERE" + Expressio(p.on);
    if (!p.grup.Buit()) text += " GROUP BY" + Grups(p.grup);
    if (distint_plegat) text += " GROUP BY" + Grups(p.llista) + (clau.empty() ? clau : "," + clau);
    if (!p.tenint.Buit()) text += " HAVING" + Expressio(p.tenint);
    const bool resum = p.grup.Buit() && Es_Resum(p.llista);
    if (resum) Exigir_Resum_Sencer(p.llista);
    Tram ordre = p.ordre.Buit() ? p.grup : p.ordre;
    if (ordre.Buit() && distint_plegat) ordre = p.llista;
    if (principal && ordre.Buit() && trets_.clau_en_la_taula && !resum) text += Ordre_D_Arribada(p.de);
    if (!ordre.Buit()) text += " ORDER BY" + Ordre(ordre, p.Agrupa_Textos());
    if (p.top >= 0) text += " LIMIT " + Marcador(p.top);
    if (p.Agrupa_Textos()) sortida_.retencio.clear();
    return text;
  }

  Tram Sense_Alies(Tram item) const { return {item.primer, Buscar(item, {"AS"})}; }

  // A column alone that is a text: what is grouped or ordered by its folded form.
  bool Es_Columna_De_Text(Tram item) const {
    return !item.Buit() && Mida_Operand(mots_, item.primer) == item.ultim - item.primer &&
           Es_Text(Columna_Operand(mots_, item.primer, taules_));
  }

  std::string Plegat(const std::string& expressio) const {
    return " " + std::string(trets_.plegar) + "(" + expressio + " )";
  }

  std::string Grups(Tram tram) {
    std::string text;
    for (const Tram item : Per_Comes(tram)) {
      const Tram expressio = Sense_Alies(item);
      if (!text.empty()) text += ",";
      text += Plega() && Es_Columna_De_Text(expressio) ? Plegat(Expressio(expressio)) : Expressio(expressio);
    }
    return text;
  }

  std::string Llista(const Parts& p, bool principal) {
    const auto alies_de_fora = alies_;
    std::string text;
    for (const Tram item : Per_Comes(p.llista)) {
      if (!text.empty()) text += ",";
      if (trets_.clau_en_la_taula && Es(mots_[item.ultim - 1], "*") && Estrella(item, p.de, text)) continue;
      text += Item(item, p, principal);
    }
    alies_ = alies_de_fora;
    return text;
  }

  std::string Item(Tram item, const Parts& p, bool principal) {
    const Tram expressio = Sense_Alies(item);
    std::string traduida = Expressio(expressio);
    const bool d_un_grup = Plega() && p.Agrupa_Textos() && Es_Columna_De_Text(expressio);
    if (d_un_grup) traduida = " MIN(" + traduida + " )";
    const bool te_alies = expressio.ultim + 1 < item.ultim;
    const std::string alies = te_alies ? mots_[expressio.ultim + 1].text : std::string();
    if (principal) {
      sortida_.tipus_expressions.push_back(Tipus_Expressio(expressio));
      sortida_.alies.push_back(alies);
    }
    if (!te_alies) return d_un_grup ? traduida + " AS " + Nom(mots_[expressio.ultim - 1].text) : traduida;
    if (taules_.Cercar_Columna(alies) == nullptr) alies_.emplace_back(::Plegar(alies), "(" + traduida + " )");
    return traduida + " AS " + Nom(alies);
  }

  // * or T.* as the columns of the catalogue, without the hidden key. False when a derived table is among them.
  bool Estrella(Tram item, Tram de, std::string& text) {
    const bool d_una = item.ultim - item.primer == 3;
    if (Seguent_Derivada(de) != de.ultim) return false;
    std::string columnes;
    for (const auto& [nom, alies] : Taules_De(de)) {
      if (d_una && !Iguals_Plegats(alies, mots_[item.primer].text)) continue;
      for (const auto& columna : taules_.Cercar(nom)->columnes) {
        columnes += (columnes.empty() ? " " : ", ") + Nom(alies) + ".\"" + columna.nom + "\"";
        sortida_.tipus_expressions.emplace_back();
        sortida_.alies.emplace_back();
      }
    }
    text += columnes;
    return !columnes.empty();
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

  std::string Ordre(Tram tram, bool agrupa_textos) {
    std::string text;
    for (Tram item : Per_Comes(tram)) {
      if (item.Buit()) Sentencia_Erronia("ORDER BY");
      item = Sense_Alies(item);
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
      text += Clau_Ordre(item, columna, agrupa_textos) + sentit;
      if (trets_.nuls_al_final) text += Es(ultim, "DESC") ? " NULLS LAST" : " NULLS FIRST";
    }
    return text;
  }

  std::string Clau_Ordre(Tram item, const Columna* columna, bool agrupa_textos) {
    std::string expressio = Expressio(item);
    if (columna == nullptr || !Es_Text(columna)) return expressio;
    if (columna->tipus == Tipus_Columna::Codi) return Plega() ? Plegat(expressio) : expressio;
    const bool d_un_grup = Plega() && agrupa_textos;
    return (d_un_grup ? " MIN(" + expressio + " )" : expressio) + std::string(trets_.ordre_catala);
  }

  // The key of the table that is to be written, behind the other columns.
  std::string Clau_Oculta(const Parts& p) {
    if (editable_.empty() || !p.grup.Buit() || Seguent_Derivada(p.de) != p.de.ultim || Es_Resum(p.llista)) return {};
    const auto taules = Taules_De(p.de);
    if (editable_ == "*" && (taules.size() != 1 || p.distint)) return {};
    for (const auto& [nom, alies] : taules) {
      if (editable_ != "*" && !Iguals_Plegats(nom, editable_)) continue;
      const Taula* taula = taules_.Cercar(nom);
      if (taula == nullptr) return {};
      sortida_.taula_editable = taula->nom;
      sortida_.retencio = " FOR UPDATE OF " + Nom(alies);
      return " " + Nom(alies) + "." + std::string(trets_.clau_oculta);
    }
    return {};
  }

  // No order was asked: rows come as they were written, where the engine would give them in any order.
  std::string Ordre_D_Arribada(Tram de) const {
    if (Seguent_Derivada(de) != de.ultim) return {};
    std::string text;
    for (const auto& [nom, alies] : Taules_De(de)) {
      text += (text.empty() ? " ORDER BY " : ", ") + Nom(alies) + "." + std::string(trets_.clau_oculta);
    }
    return text;
  }

  // A sum over all rows has no single row whose plain columns it could show.
  void Exigir_Resum_Sencer(Tram llista) const {
    for (const Tram item : Per_Comes(llista)) {
      const Tram expressio = Sense_Alies(item);
      const bool columna = Mida_Operand(mots_, item.primer) == expressio.ultim - item.primer;
      if (columna && Columna_Operand(mots_, item.primer, taules_) != nullptr) Sentencia_Erronia("GROUP BY");
    }
  }

  // One row that sums up many.
  bool Es_Resum(Tram llista) const {
    constexpr std::string_view resums[] = {"COUNT", "SUM", "MAX", "MIN", "AVG"};
    for (std::size_t i = llista.primer; i + 1 < llista.ultim; ++i) {
      const bool funcio = Es(mots_[i + 1], "(");
      if (funcio && std::any_of(std::begin(resums), std::end(resums), [&](auto r) { return Es(mots_[i], r); }))
        return true;
    }
    return false;
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
      } else if (Plega() && Es(mot, "LIKE")) {
        if (i + 1 == tram.ultim) Sentencia_Erronia("LIKE");
        text += " LIKE";
        i = Operand_Comparat(i + 1, text) - 1;
        text += " ESCAPE ''";
      } else if (Plega() && Extrem_De_Textos({i, tram.ultim})) {
        i = Extrem(i, text) - 1;
      } else if (Plega() && comparats_[i] != Comparat::No) {
        i = Operand_Comparat(i, text) - 1;
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

  // An operand of a comparison, folded when it is compared as a text. Returns the place behind it.
  std::size_t Operand_Comparat(std::size_t i, std::string& text) {
    const Comparat comparat = comparats_[i];
    const std::size_t fi = i + Mida_Operand(mots_, i);
    comparats_[i] = Comparat::No;
    std::string operand = Expressio({i, fi});
    comparats_[i] = comparat;
    const bool es_columna = Es_Text(Columna_Operand(mots_, i, taules_));
    if (comparat != Comparat::No && !es_columna) operand = " CAST(" + operand + " AS text)";
    text += comparat == Comparat::Plegat ? Plegat(operand) : operand;
    return fi;
  }

  // MAX or MIN of a column of texts: the one whose folded form is the last or the first.
  bool Extrem_De_Textos(Tram tram) const {
    const Mot& mot = mots_[tram.primer];
    if (!Es(mot, "MAX") && !Es(mot, "MIN")) return false;
    if (tram.ultim - tram.primer < 4 || !Es(mots_[tram.primer + 1], "(")) return false;
    const std::size_t tanca = Tancament(tram.primer + 1, tram.ultim);
    return Es_Columna_De_Text({tram.primer + 2, tanca});
  }

  std::size_t Extrem(std::size_t i, std::string& text) {
    const std::size_t tanca = Tancament(i + 1, mots_.size());
    const std::string columna = Expressio({i + 2, tanca});
    const char* sentit = Es(mots_[i], "MAX") ? " DESC" : "";
    text += " (ARRAY_AGG(" + columna + " ORDER BY" + Plegat(columna) + sentit + " NULLS LAST))[1]";
    return tanca + 1;
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
    const bool taula = i > 0 && Es(mots_[i - 1], "INTO");
    const bool funcio = !taula && i + 1 < fi && Es(mots_[i + 1], "(");
    if (!qualificat && !funcio && !alies_.empty()) {
      const std::string plegat = Plegar(text);
      for (const auto& [alies, expressio] : alies_) {
        if (alies == plegat) return expressio;
      }
    }
    if (!funcio) return Nom(text);
    const bool propia = std::any_of(std::begin(funcions_propies), std::end(funcions_propies),
                                    [&](std::string_view nom) { return Es(mots_[i], nom); });
    return propia ? std::string(trets_.prefix_propi) + text : text;
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
  std::vector<Comparat> comparats_;  // empty for an engine that compares texts by itself
  std::vector<std::pair<std::string, std::string>> alies_;
  int derivades_ = 0;
  Sentencia_Traduida sortida_;
};

}  // namespace

Sentencia_Traduida Traduir(const std::string& forma, const Cataleg& taules, const Trets_Motor& trets,
                           std::string_view taula_editable) {
  return Traductor(forma, taules, trets, taula_editable).Executar();
}
