#include "core/dades/Dialecte.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>

#include "core/dades/Dates.h"
#include "core/dades/Error_Brollador.h"
#include "core/dades/Text.h"

namespace {

[[noreturn]] void Sentencia_Erronia(std::string_view prop) {
  Llancar_Error(errors::sentencia, "Dialecte", std::string(prop));
}

bool Es_Digit(char c) {
  return c >= '0' && c <= '9';
}
bool Es_De_Nom(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

// ---- Literals -------------------------------------------------------------------------------------------------

class Escaner {
 public:
  explicit Escaner(std::string_view text) : text_(text) { sortida_.forma.reserve(text.size()); }

  Sentencia_Escanejada Executar() {
    while (i_ < text_.size()) Pas();
    while (!sortida_.forma.empty() && (sortida_.forma.back() == ';' || std::isspace(Ultim()) != 0)) {
      sortida_.forma.pop_back();
    }
    if (sortida_.forma.find(';') != std::string::npos) Sentencia_Erronia(";");
    return std::move(sortida_);
  }

 private:
  int Ultim() const { return static_cast<unsigned char>(sortida_.forma.back()); }

  void Pas() {
    const char c = text_[i_];
    if (c == '\'') return Llegir_Text();
    if (c == '#') return Llegir_Data();
    if (c == '"' || c == '[') return Copiar_Nom_Entre(c == '[' ? ']' : '"');
    if (c == '-' && i_ + 1 < text_.size() && text_[i_ + 1] == '-') Sentencia_Erronia("--");
    if (Comenca_Numero()) return Llegir_Numero();
    if (Es_De_Nom(c)) return Copiar_Nom();
    sortida_.forma.push_back(c);
    ++i_;
  }

  void Literal(Valor valor) {
    sortida_.literals.push_back(std::move(valor));
    sortida_.forma += '?' + std::to_string(sortida_.literals.size());
  }

  void Llegir_Text() {
    std::string valor;
    for (++i_; i_ < text_.size(); ++i_) {
      if (text_[i_] != '\'') {
        valor.push_back(text_[i_]);
      } else if (i_ + 1 < text_.size() && text_[i_ + 1] == '\'') {
        valor.push_back(text_[++i_]);
      } else {
        ++i_;
        if (i_ < text_.size() && Es_De_Nom(text_[i_])) Sentencia_Erronia(text_.substr(i_, 20));
        return Literal(std::move(valor));
      }
    }
    Sentencia_Erronia("'" + valor.substr(0, 20));
  }

  void Llegir_Data() {
    std::array<int, 3> parts{};  // month, day, year
    const std::size_t fi = text_.find('#', i_ + 1);
    const std::string_view dins = text_.substr(i_ + 1, fi == std::string_view::npos ? 0 : fi - i_ - 1);
    const char* p = dins.data();
    const char* final = p + dins.size();
    bool be = true;
    for (std::size_t k = 0; be && k < 3; ++k) {
      const auto [seguent, error] = std::from_chars(p, final, parts[k]);
      be = error == std::errc() && (k == 2 ? seguent == final : seguent != final && *seguent == '/');
      p = k == 2 || !be ? seguent : seguent + 1;
    }
    const Data_Hora data{.any = parts[2], .mes = parts[0], .dia = parts[1]};
    if (!be || !Es_Data(data)) Sentencia_Erronia("#" + std::string(dins));
    i_ = fi + 1;
    Literal(data);
  }

  // A digit that begins a number, or the sign of one where a value is expected.
  bool Comenca_Numero() const {
    const char c = text_[i_];
    const bool darrere_nom = !sortida_.forma.empty() && Es_De_Nom(sortida_.forma.back());
    if (Es_Digit(c)) return !darrere_nom;
    const bool digit_despres = i_ + 1 < text_.size() && Es_Digit(text_[i_ + 1]);
    if (c == '.') return digit_despres && !darrere_nom;
    if (c != '-' || !digit_despres) return false;
    std::size_t k = sortida_.forma.size();
    while (k > 0 && sortida_.forma[k - 1] == ' ') --k;
    return k == 0 || std::string_view("=<>(,").find(sortida_.forma[k - 1]) != std::string_view::npos;
  }

  void Llegir_Numero() {
    const std::size_t inici = i_;
    if (text_[i_] == '-') ++i_;
    const auto digits = [&] {
      while (i_ < text_.size() && Es_Digit(text_[i_])) ++i_;
    };
    digits();
    bool enter = true;
    if (i_ < text_.size() && text_[i_] == '.') {
      enter = false;
      ++i_;
      digits();
    }
    if (i_ + 1 < text_.size() && (text_[i_] == 'e' || text_[i_] == 'E')) {
      const std::size_t signe = text_[i_ + 1] == '+' || text_[i_ + 1] == '-' ? 1U : 0U;
      if (i_ + 1 + signe < text_.size() && Es_Digit(text_[i_ + 1 + signe])) {
        enter = false;
        i_ += 1 + signe;
        digits();
      }
    }
    const std::string_view escrit = text_.substr(inici, i_ - inici);
    if (i_ < text_.size() && Es_De_Nom(text_[i_])) Sentencia_Erronia(text_.substr(inici, 20));
    Literal(Valor_Numeric(escrit, enter));
  }

  static Valor Valor_Numeric(std::string_view escrit, bool enter) {
    std::int64_t valor_enter = 0;
    const char* fi = escrit.data() + escrit.size();
    if (enter && std::from_chars(escrit.data(), fi, valor_enter).ec == std::errc()) return valor_enter;
    double valor = 0;
    if (std::from_chars(escrit.data(), fi, valor).ec != std::errc()) Sentencia_Erronia(escrit);
    return valor;
  }

  void Copiar_Nom() {
    const std::size_t inici = i_;
    while (i_ < text_.size() && Es_De_Nom(text_[i_])) ++i_;
    sortida_.forma += text_.substr(inici, i_ - inici);
  }

  void Copiar_Nom_Entre(char tancament) {
    const std::size_t fi = text_.find(tancament, i_ + 1);
    if (fi == std::string_view::npos) Sentencia_Erronia(text_.substr(i_, 20));
    sortida_.forma += '"';
    sortida_.forma += text_.substr(i_ + 1, fi - i_ - 1);
    sortida_.forma += '"';
    i_ = fi + 1;
  }

  std::string_view text_;
  std::size_t i_ = 0;
  Sentencia_Escanejada sortida_;
};

// ---- Words ----------------------------------------------------------------------------------------------------

enum class Mena { Nom, Parametre, Simbol };

struct Mot {
  Mena mena;
  std::string text;    // a name without its quotes, ?n, a symbol
  int parametre = -1;  // from 0
};

using Mots = std::vector<Mot>;

Mots Partir(const std::string& forma) {
  Mots mots;
  std::size_t i = 0;
  while (i < forma.size()) {
    const char c = forma[i];
    const std::size_t inici = i;
    if (std::isspace(static_cast<unsigned char>(c)) != 0) {
      ++i;
    } else if (c == '?') {
      while (++i < forma.size() && Es_Digit(forma[i])) {
      }
      mots.push_back(
          {Mena::Parametre, forma.substr(inici, i - inici), std::stoi(forma.substr(inici + 1, i - inici - 1)) - 1});
    } else if (c == '"') {
      i = forma.find('"', i + 1) + 1;
      mots.push_back({Mena::Nom, forma.substr(inici + 1, i - inici - 2)});
    } else if (Es_De_Nom(c)) {
      while (i < forma.size() && Es_De_Nom(forma[i])) ++i;
      mots.push_back({Mena::Nom, forma.substr(inici, i - inici)});
    } else {
      const std::string_view dos = std::string_view(forma).substr(i, 2);
      i += dos == "<>" || dos == "<=" || dos == ">=" || dos == "!=" || dos == "||" ? 2 : 1;
      mots.push_back({Mena::Simbol, forma.substr(inici, i - inici)});
    }
  }
  return mots;
}

bool Es(const Mot& mot, std::string_view paraula) {
  return mot.mena != Mena::Parametre && mot.text.size() == paraula.size() &&
         std::equal(mot.text.begin(), mot.text.end(), paraula.begin(),
                    [](char a, char b) { return std::toupper(static_cast<unsigned char>(a)) == b; });
}

struct Tram {  // [primer, ultim)
  std::size_t primer = 0;
  std::size_t ultim = 0;
  bool Buit() const { return primer >= ultim; }
};

// ---- Translation ----------------------------------------------------------------------------------------------

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

// ---- Definitions ----------------------------------------------------------------------------------------------

struct Nom_Tipus {
  std::string_view nom;
  Tipus_Columna tipus;
};

constexpr Nom_Tipus noms_tipus[] = {
    {"CODI", Tipus_Columna::Codi}, {"TEXT", Tipus_Columna::Text},           {"LLARG", Tipus_Columna::Llarg},
    {"CURT", Tipus_Columna::Curt}, {"DOBLE", Tipus_Columna::Doble},         {"BOOLEA", Tipus_Columna::Boolea},
    {"DATA", Tipus_Columna::Data}, {"DATA_HORA", Tipus_Columna::Data_Hora}, {"AUTONUMERIC", Tipus_Columna::Autonumeric},
};

Tipus_Columna Tipus_De_Nom(const std::string& nom) {
  for (const auto& [text, tipus] : noms_tipus) {
    if (text == nom) return tipus;
  }
  Sentencia_Erronia(nom);
}

// Definitions come from the program's own schema: their literals are written back as they were.
std::string Unir(const Mots& mots, Tram tram, const std::vector<Valor>& literals) {
  std::string text;
  for (std::size_t i = tram.primer; i < tram.ultim; ++i) {
    const Mot& mot = mots[i];
    if (mot.mena != Mena::Parametre) {
      text += " " + mot.text;
      continue;
    }
    const Valor& literal = literals[static_cast<std::size_t>(mot.parametre)];
    text += " " + (literal.Es_Text() ? "'" + literal.Text() + "'" : literal.Text());
  }
  return text;
}

std::size_t Fi_Item(const Mots& mots, std::size_t i, std::size_t fi) {
  int fondaria = 0;
  for (; i < fi; ++i) {
    if (Es(mots[i], "(")) ++fondaria;
    if (Es(mots[i], ")")) --fondaria;
    if (fondaria == 0 && Es(mots[i], ",")) break;
  }
  return i;
}

void Llegir_Clau(const Mots& mots, Tram item, Taula& taula) {
  for (std::size_t i = item.primer; i < item.ultim; ++i) {
    if (mots[i].mena == Mena::Nom && !Es(mots[i], "PRIMARY") && !Es(mots[i], "KEY")) taula.clau.push_back(mots[i].text);
  }
}

}  // namespace

Sentencia_Escanejada Escanejar(std::string_view sentencia) {
  return Escaner(sentencia).Executar();
}

Sentencia_Traduida Traduir(const std::string& forma, const Cataleg& taules, const Trets_Motor& trets,
                           std::string_view taula_editable) {
  return Traductor(forma, taules, trets, taula_editable).Executar();
}

bool Es_Definicio(std::string_view sentencia) {
  const std::size_t inici = sentencia.find_first_not_of(" \t\r\n");
  return inici != std::string_view::npos && Iguals_Plegats(sentencia.substr(inici, 7), "CREATE ");
}

Definicio Llegir_Definicio(std::string_view sentencia) {
  const Sentencia_Escanejada escanejada = Escanejar(sentencia);
  const Mots mots = Partir(escanejada.forma);
  Definicio definicio;
  if (mots.size() < 5 || !Es(mots[1], "TABLE")) {
    definicio.text = Unir(mots, {0, mots.size()}, escanejada.literals);
    return definicio;
  }
  Taula taula{.nom = mots[2].text, .columnes = {}, .clau = {}};
  for (std::size_t i = 4; i + 1 < mots.size();) {
    const Tram item{i, Fi_Item(mots, i, mots.size() - 1)};
    if (item.ultim - item.primer < 2) Sentencia_Erronia(mots[i].text);
    i = item.ultim + 1;
    if (Es(mots[item.primer], "PRIMARY")) Llegir_Clau(mots, item, taula);
    if (Es(mots[item.primer], "PRIMARY") || Es(mots[item.primer], "FOREIGN") || Es(mots[item.primer], "UNIQUE")) {
      definicio.regles.push_back(Unir(mots, item, escanejada.literals));
      continue;
    }
    taula.columnes.push_back({mots[item.primer].text, Tipus_De_Nom(mots[item.primer + 1].text)});
    definicio.columnes.push_back(Unir(mots, {item.primer + 2, item.ultim}, escanejada.literals));
  }
  definicio.taula = std::move(taula);
  return definicio;
}
