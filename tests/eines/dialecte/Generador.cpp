#include "tests/eines/dialecte/Generador.h"

#include <utility>

namespace {

constexpr const char* taules[] = {"CLIENTS", "CAP", "LIN", "DIARI", "clients", "NO_HI_ES", "CAP AS C, LIN"};
constexpr const char* columnes[] = {"NIF_CLI",  "RAO_SOCIAL_CLI", "adreça_cli", "IVA_CLI", "SALDO_CLI", "ALTA_CLI",
                                    "NUM_C",    "CAP.NUM_C",      "DATA_C",     "HORA_C",  "LIN_L",     "ARTICLE_D",
                                    "NO_HI_ES", "\"NIF_CLI\"",    "[NUM_C]",    "C.NUM_C", "TOTAL"};
constexpr const char* operadors[] = {"=", "<>", "<", ">", "<=", ">=", "LIKE", "NOT LIKE", "!="};
constexpr const char* funcions[] = {"SUM", "MAX", "MIN", "COUNT", "DAY", "ISNUMERIC", "ROUND", "NOW", "DATESERIAL"};
constexpr const char* paraules[] = {"SELECT", "FROM", "WHERE", "AND",  "ORDER BY", "GROUP BY", "BETWEEN", "IN", "(",
                                    ")",      ",",    "*",     "AS x", "TOP",      "DISTINCT", "NOT",     ".",  ";"};

}  // namespace

std::string Inventada::Text() const {
  std::string text;
  for (const Tros& tros : trossos) text += tros.text;
  return text;
}

std::vector<Valor> Inventada::Literals() const {
  std::vector<Valor> valors;
  for (const Tros& tros : trossos) {
    if (tros.literal) valors.push_back(tros.valor);
  }
  return valors;
}

std::string Generador::Bytes() {
  constexpr const char* de_risc[] = {"'",  "''", "#", "\"", "[", "]", "--", "?",
                                     "?1", "$1", ";", "(",  ")", "%", "\\", "/*"};
  std::string text;
  for (std::size_t i = Un_De(24); i > 0; --i) {
    if (Un_De(4) == 0) {
      text += De(de_risc);
    } else {
      text.push_back(static_cast<char>(Un_De(256)));
    }
  }
  return text;
}

// A value and how it is written. Quotes inside a text are doubled, as the scanner reads them.
void Generador::Literal_De_Text() {
  std::string valor = Bytes() + marca_de_valor + Bytes();
  std::string escrit = "'";
  for (const char c : valor) escrit.append(c == '\'' ? 2 : 1, c);
  actual_.trossos.push_back({escrit + "'", true, valor});
  actual_.trossos.push_back({" "});
}

void Generador::Literal() {
  const std::size_t quin = Un_De(8);
  if (quin < 4) return Literal_De_Text();
  if (quin == 4) {
    const Data_Hora data{.any = 7000 + static_cast<int>(Un_De(900)), .mes = 1 + static_cast<int>(Un_De(12)), .dia = 7};
    const std::string escrita =
        "#" + std::to_string(data.mes) + "/" + std::to_string(data.dia) + "/" + std::to_string(data.any) + "#";
    actual_.trossos.push_back({escrita, true, data});
  } else {
    const auto enter = static_cast<std::int64_t>(700000000 + Un_De(99999999));
    const bool doble = quin == 5;
    actual_.trossos.push_back({std::to_string(enter) + (doble ? ".5" : ""), true,
                               doble ? Valor(static_cast<double>(enter) + 0.5) : Valor(enter)});
  }
  actual_.trossos.push_back({" "});
}

void Generador::Columna() {
  Posar(De(columnes));
}

void Generador::Comparacio(std::size_t fondaria) {
  Columna();
  switch (Un_De(8)) {
    case 0:
      Posar("BETWEEN");
      Literal();
      Posar("AND");
      Literal();
      break;
    case 1:
      Posar("IN (");
      for (std::size_t i = Un_De(4); i > 0; --i) {
        Literal();
        Posar(",");
      }
      Literal();
      Posar(")");
      break;
    case 2:
      Posar("IN (");
      if (fondaria > 0) {
        Seleccio(fondaria - 1);
      } else {
        Literal();
      }
      Posar(")");
      break;
    case 3:
      Posar(De(operadors));
      Columna();
      break;
    default:
      Posar(De(operadors));
      Literal();
  }
}

void Generador::Condicions(std::size_t fondaria) {
  Posar("WHERE");
  Comparacio(fondaria);
  for (std::size_t i = Un_De(4); i > 0; --i) {
    Posar(Un_De(3) == 0 ? "OR" : "AND");
    Comparacio(fondaria);
  }
}

void Generador::Llista_De_Columnes() {
  if (Un_De(4) == 0) return Posar("*");
  for (std::size_t i = Un_De(4); i > 0; --i) {
    Columna();
    Posar(",");
  }
  if (Un_De(3) != 0) return Columna();
  Posar(std::string(De(funcions)) + "(");
  Columna();
  Posar(") AS TOTAL");
}

void Generador::Seleccio(std::size_t fondaria) {
  Posar("SELECT");
  if (Un_De(6) == 0) Posar("DISTINCT");
  if (Un_De(6) == 0) {
    Posar("TOP");
    Literal();
  }
  Llista_De_Columnes();
  Posar("FROM");
  if (fondaria > 0 && Un_De(5) == 0) {
    Posar("(");
    Seleccio(fondaria - 1);
    Posar(")");
  } else {
    Posar(De(taules));
  }
  if (Un_De(4) != 0) Condicions(fondaria);
  if (Un_De(5) == 0) {
    Posar("GROUP BY");
    Columna();
  }
  if (Un_De(3) == 0) {
    Posar("ORDER BY");
    Columna();
    if (Un_De(2) == 0) Posar("DESC");
  }
}

void Generador::Canvi() {
  Posar(std::string("UPDATE ") + De(taules) + " SET");
  Columna();
  Posar("=");
  Literal();
  if (Un_De(4) != 0) Condicions(1);
}

void Generador::Alta() {
  Posar(std::string("INSERT INTO ") + De(taules) + " (");
  Columna();
  Posar(",");
  Columna();
  Posar(") VALUES (");
  Literal();
  Posar(",");
  Literal();
  Posar(")");
}

void Generador::Baixa() {
  Posar(std::string(Un_De(2) == 0 ? "DELETE * FROM " : "DELETE FROM ") + De(taules));
  if (Un_De(4) != 0) Condicions(1);
}

// Letters that do not open a literal or a quoted name, nor a comment.
std::string Generador::Lletres_Soltes() {
  if (Un_De(2) == 0) return std::string(" ") + De(paraules) + " ";
  std::string text;
  for (std::size_t i = 1 + Un_De(4); i > 0; --i) {
    const char c = static_cast<char>(Un_De(256));
    text.push_back(c == '\'' || c == '#' || c == '"' || c == '[' || c == '-' ? '.' : c);
  }
  return text;
}

void Generador::Espatllar() {
  actual_.sencera = false;
  for (std::size_t vegades = 1 + Un_De(3); vegades > 0; --vegades) {
    const std::size_t lloc = Un_De(actual_.trossos.size());
    Tros& tros = actual_.trossos[lloc];
    const std::size_t com = Un_De(3);
    if (com == 0) {
      actual_.trossos.insert(actual_.trossos.begin() + static_cast<std::ptrdiff_t>(lloc), {Lletres_Soltes()});
    } else if (com == 1 && actual_.trossos.size() > 1) {
      actual_.trossos.erase(actual_.trossos.begin() + static_cast<std::ptrdiff_t>(lloc));
    } else if (!tros.literal && tros.text.find_first_of("\"[") == std::string::npos) {
      tros.text.insert(Un_De(tros.text.size() + 1), Lletres_Soltes());
    }
  }
}

Inventada Generador::Acabar() {
  if (Un_De(3) == 0) Espatllar();
  return std::exchange(actual_, {});
}

Inventada Generador::Sentencia() {
  switch (Un_De(10)) {
    case 0: {
      Inventada soroll{.trossos = {{Bytes() + De(paraules) + Bytes() + De(columnes) + Bytes()}}};
      soroll.sencera = false;
      soroll.soroll = true;
      return soroll;
    }
    case 1:
      Canvi();
      break;
    case 2:
      Alta();
      break;
    case 3:
      Baixa();
      break;
    default:
      Seleccio(2);
  }
  return Acabar();
}

Inventada Generador::Filtre() {
  constexpr const char* de_filtre[] = {"=", "<>", "<", ">", "<=", ">=", "LIKE", "like"};
  constexpr const char* camps[] = {"NIF_CLI", "rao_social_cli", "\"SALDO_CLI\"", "ALTA_CLI"};
  for (std::size_t i = Un_De(3);; --i) {
    Posar(De(camps));
    Posar(De(de_filtre));
    Literal();
    if (i == 0) break;
    Posar("AND");
  }
  return Acabar();
}
