#include <array>
#include <cctype>
#include <charconv>
#include <optional>

#include "core/dades/Dates.h"
#include "core/dades/Dialecte.h"
#include "core/dades/Mots_SQL.h"

using namespace mots_sql;

namespace {

using Tres = std::array<int, 3>;

// Exactly three, with this sign between them.
std::optional<Tres> Tres_Numeros(std::string_view text, char entre) {
  Tres numeros{};
  const char* p = text.data();
  const char* final = p + text.size();
  for (std::size_t k = 0; k < numeros.size(); ++k) {
    const auto [seguent, error] = std::from_chars(p, final, numeros[k]);
    const bool segueix = k + 1 < numeros.size() ? seguent != final && *seguent == entre : seguent == final;
    if (error != std::errc() || !segueix) return std::nullopt;
    p = seguent == final ? seguent : seguent + 1;
  }
  return numeros;
}

bool Es_Hora(const Tres& hora) {
  return hora[0] >= 0 && hora[0] < 24 && hora[1] >= 0 && hora[1] < 60 && hora[2] >= 0 && hora[2] < 60;
}

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
    if (c == '?') Sentencia_Erronia("?");
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

  // M/D/YYYY, and H:MM:SS behind a blank.
  void Llegir_Data() {
    const std::size_t fi = text_.find('#', i_ + 1);
    const std::string_view dins = text_.substr(i_ + 1, fi == std::string_view::npos ? 0 : fi - i_ - 1);
    const std::size_t blanc = dins.find(' ');
    const auto dia = Tres_Numeros(dins.substr(0, blanc), '/');
    const auto hora =
        blanc == std::string_view::npos ? std::optional(Tres{}) : Tres_Numeros(dins.substr(blanc + 1), ':');
    if (!dia || !hora) Sentencia_Erronia("#" + std::string(dins));
    const Data_Hora moment{(*dia)[2], (*dia)[0], (*dia)[1], (*hora)[0], (*hora)[1], (*hora)[2]};
    if (!Es_Data(moment) || !Es_Hora(*hora)) Sentencia_Erronia("#" + std::string(dins));
    i_ = fi + 1;
    if (i_ < text_.size() && Es_De_Nom(text_[i_])) Sentencia_Erronia(text_.substr(i_, 20));
    Literal(moment);
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
    const std::string_view nom = text_.substr(i_ + 1, fi == std::string_view::npos ? fi : fi - i_ - 1);
    if (fi == std::string_view::npos || nom.find('"') != std::string_view::npos) {
      Sentencia_Erronia(text_.substr(i_, 20));
    }
    sortida_.forma += '"';
    sortida_.forma += nom;
    sortida_.forma += '"';
    i_ = fi + 1;
  }

  std::string_view text_;
  std::size_t i_ = 0;
  Sentencia_Escanejada sortida_;
};

}  // namespace

Sentencia_Escanejada Escanejar(std::string_view sentencia) {
  return Escaner(sentencia).Executar();
}

namespace {

// Behind what begins here: a literal, a name between quotes, a word, or one letter.
std::size_t Final_Del_Tros(std::string_view text, std::size_t i) {
  const char c = text[i];
  if (c == '\'' || c == '#' || c == '"' || c == '[') {
    const std::size_t fi = text.find(c == '[' ? ']' : c, i + 1);
    return fi == std::string_view::npos ? text.size() : fi + 1;
  }
  if (!Es_De_Nom(c)) return i + 1;
  while (i < text.size() && Es_De_Nom(text[i])) ++i;
  return i;
}

bool Es_Paraula(std::string_view text, std::string_view paraula) {
  return Es(Mot{Mena::Nom, std::string(text)}, paraula);
}

}  // namespace

std::string Sense_Ordre(std::string_view sentencia) {
  int fondaria = 0;
  std::size_t ordre = std::string_view::npos;  // where the word ORDER stands, while nothing but blanks follows it
  for (std::size_t i = 0; i < sentencia.size();) {
    const std::size_t fi = Final_Del_Tros(sentencia, i);
    const std::string_view tros = sentencia.substr(i, fi - i);
    if (tros == "(") ++fondaria;
    if (tros == ")") --fondaria;
    if (ordre != std::string_view::npos && Es_Paraula(tros, "BY")) {
      sentencia = sentencia.substr(0, ordre);
      break;
    }
    const bool blanc = tros.size() == 1 && std::isspace(static_cast<unsigned char>(tros.front())) != 0;
    if (!blanc) ordre = fondaria == 0 && Es_Paraula(tros, "ORDER") ? i : std::string_view::npos;
    i = fi;
  }
  while (!sentencia.empty() && std::isspace(static_cast<unsigned char>(sentencia.back())) != 0) {
    sentencia.remove_suffix(1);
  }
  return std::string(sentencia);
}
