// prova_vectors DIR: runs the tables of figures of a folder against the rules, and prints for each how many rows hold
// and the first that does not. Fails when a row fails or when a file whose rule is built is missing.
// Figures that need tables run on a real database, in a base installation of their own.
#include <charconv>
#include <cmath>
#include <fstream>
#include <iostream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "core/dades/Numeros.h"
#include "documents/M_Linies.h"
#include "documents/M_Peu.h"
#include "masters/M_Articles.h"
#include "masters/M_Venciments_Factura.h"
#include "payments/M_Flags.h"
#include "sales/M_Factures.h"
#include "sales/M_Tipus_Venda.h"
#include "stock/M_Magatzems.h"
#include "tests/regles/Installacio_Prova.h"

namespace {

using Json = nlohmann::json;
using Fila = std::map<std::string, std::string>;  // by the name of the column

constexpr double tolerancia = 1e-9;
const std::string empresa = "B00000000";

// Empty when the row holds, else what was seen.
using Veredicte = std::string;

Veredicte Comparar(const std::string& que, double vist, double esperat) {
  if (std::abs(vist - esperat) <= tolerancia) return {};
  std::ostringstream text;
  text.precision(17);
  text << que << " is " << vist << " and not " << esperat;
  return text.str();
}

std::vector<std::string> Linies_De(const std::filesystem::path& fitxer) {
  std::ifstream entrada(fitxer);
  std::vector<std::string> linies;
  for (std::string linia; std::getline(entrada, linia);)
    if (!linia.empty()) linies.push_back(linia);
  return linies;
}

std::vector<std::string> Camps_De(const std::string& linia) {
  std::vector<std::string> camps;
  std::istringstream text(linia);
  for (std::string camp; std::getline(text, camp, '\t');) camps.push_back(camp);
  if (linia.ends_with('\t')) camps.emplace_back();
  return camps;
}

double Numero_De(const Fila& fila, const char* columna) {
  const std::string& text = fila.at(columna);
  double numero = 0;
  const auto [fi, error] = std::from_chars(text.data(), text.data() + text.size(), numero);
  if (error != std::errc() || fi != text.data() + text.size()) throw std::runtime_error("no number: " + text);
  return numero;
}

Veredicte Provar_Arrodonir(const Fila& fila) {
  return Comparar("resultat", Arrodonir(Numero_De(fila, "valor"), Numero_De(fila, "decimals")),
                  Numero_De(fila, "resultat"));
}

Veredicte Comparar_Linia(const Resultat_Linia& vista, const Fila& fila) {
  const std::pair<const char*, double> columnes[] = {{"COST", vista.cost},
                                                     {"UNITATS", vista.unitats},
                                                     {"PORC_MARGE", vista.porc_marge},
                                                     {"PREU_UNITARI", vista.preu_unitari},
                                                     {"PORC_IVA", vista.porc_iva},
                                                     {"PORC_RE", vista.porc_re},
                                                     {"PVP", vista.pvp},
                                                     {"IMPORT_NET", vista.import_net},
                                                     {"IMPORT_BRUT", vista.import_brut},
                                                     {"MARGE", vista.marge},
                                                     {"DTE", vista.dte}};
  for (const auto& [columna, valor] : columnes) {
    Veredicte veredicte = Comparar(columna, valor, Numero_De(fila, columna));
    if (!veredicte.empty()) return veredicte;
  }
  return {};
}

Veredicte Provar_Linia(const Fila& fila) {
  const auto numero = [&](const char* columna) { return Numero_De(fila, columna); };
  const bool falla = fila.at("COST") == "FAULT";
  try {
    const Resultat_Linia vista = Calcular_Linia(numero("cost"), numero("unitats"), numero("porc_marge"),
                                                numero("dte_article"), numero("porc_iva"), numero("porc_re"),
                                                numero("preu_unitari"), numero("pvp"), numero("dte"), fila.at("camp"));
    return falla ? "no division fault" : Comparar_Linia(vista, fila);
  } catch (const Error_Brollador& error) {
    if (falla && error.Numero() == errors::divisio_per_zero) return {};
    throw;
  }
}

Veredicte Provar_Preus(const Fila& fila) {
  const auto numero = [&](const char* columna) { return Numero_De(fila, columna); };
  const Preus vists =
      Recalcular_Preus(fila.at("camp"), {numero("cost"), numero("marge"), numero("pvp"), numero("descompte")});
  Veredicte veredicte = Comparar("cost", vists.cost, numero("cost_r"));
  if (veredicte.empty()) veredicte = Comparar("marge", vists.marge, numero("marge_r"));
  if (veredicte.empty()) veredicte = Comparar("pvp", vists.pvp, numero("pvp_r"));
  if (veredicte.empty()) veredicte = Comparar("descompte", vists.descompte, numero("descompte_r"));
  return veredicte;
}

void Executar(const std::string& sentencia) {
  sessio.Connexio_Comuna.Execute(sentencia);
}

std::string Numeros_SQL(std::initializer_list<Json> numeros) {
  std::string text;
  for (const Json& numero : numeros) text += ", " + Numero_SQL(numero.get<double>());
  return text;
}

// One document with its lines and the foot that stands before.
void Preparar_Peu(const Json& cas) {
  for (const char* taula : {"ALBARACAP", "IVAS"}) Executar(std::string("DELETE * FROM ") + taula);
  for (const Json& iva : cas["ivas"])
    Executar("INSERT INTO IVAS (CODI_IVA, DESC_IVA, PORC_IVA, RE_IVA) VALUES(" + Text_SQL(iva[0].get<std::string>()) +
             ", " + Text_SQL(iva[1].get<std::string>()) + Numeros_SQL({iva[2], iva[3]}) + ")");
  Executar("INSERT INTO ALBARACAP (NUMALB_AC, EMPRESA_AC) VALUES(1, '" + empresa + "')");
  int numero_linia = 0;
  for (const Json& linia : cas["linies"])
    Executar(
        "INSERT INTO ALBARALIN (NUMALB_AL, EMPRESA_AL, LIN_AL, PORC_IVA_AL, PORC_RE_AL, IMPORT_NET_AL, IMPORT_BRUT_AL) "
        "VALUES(1, '" +
        empresa + "', " + std::to_string(++numero_linia) + Numeros_SQL({linia[0], linia[1], linia[2], linia[3]}) + ")");
  for (const Json& fila : cas["peu_abans"])
    Executar(
        "INSERT INTO ALBARAPEU (NUMALB_AP, EMPRESA_AP, TIPUS_IVA_AP, DESC_IVA_AP, PORC_IVA_AP, PORC_RE_AP, BASE_AP, "
        "IVA_AP, RE_AP, IMPORT_AP) VALUES(1, '" +
        empresa + "', " + Text_SQL(fila["TIPUS_IVA"].get<std::string>()) + ", " +
        Text_SQL(fila["DESC_IVA"].get<std::string>()) +
        Numeros_SQL({fila["PORC_IVA"], fila["PORC_RE"], fila["BASE"], fila["IVA"], fila["RE"], fila["IMPORT"]}) + ")");
}

Veredicte Comparar_Peu(const Json& peu) {
  Recordset rs("SELECT * FROM ALBARAPEU ORDER BY PORC_IVA_AP", sessio.Connexio_Comuna);
  if (static_cast<std::size_t>(rs.RecordCount()) != peu.size())
    return std::to_string(rs.RecordCount()) + " rows and not " + std::to_string(peu.size());
  for (const Json& fila : peu) {
    for (const auto& [camp, esperat] : fila.items()) {
      const Valor vist = rs[camp + "_AP"];
      Veredicte veredicte;
      if (!esperat.is_string()) {
        veredicte = Comparar(camp, vist.Doble(), esperat.get<double>());
      } else if (vist.Text() != esperat.get<std::string>()) {
        veredicte = camp + " is " + vist.Text();
      }
      if (!veredicte.empty()) return veredicte;
    }
    rs.MoveNext();
  }
  return {};
}

// Both ways to build a foot give the same one.
Veredicte Provar_Peu(const Json& cas) {
  const bool re = cas["re"].get<bool>();
  const double total = cas["total"].get<double>();
  Preparar_Peu(cas);
  Document_Fals obert;
  obert.re = re;
  Calcular_Peu(tipus_albara, 1, empresa, obert);
  Veredicte veredicte = Comparar_Peu(cas["peu"]);
  if (veredicte.empty()) veredicte = Comparar("total", obert.import.value_or(NAN), total);
  if (!veredicte.empty()) return "Calcular_Peu: " + veredicte;

  Preparar_Peu(cas);
  Calcular_Peu_Document(tipus_albara, 1, empresa, re ? 1 : 0);
  veredicte = Comparar_Peu(cas["peu"]);
  const Recordset cap("SELECT IMPORT_AC FROM ALBARACAP", sessio.Connexio_Comuna);
  if (veredicte.empty()) veredicte = Comparar("total", cap["IMPORT_AC"].Doble(), total);
  return veredicte.empty() ? veredicte : "Calcular_Peu_Document: " + veredicte;
}

void Preparar_Estoc(const Json& cas) {
  for (const char* taula : {"ARTICLES", "ALMACENES", "STOCK", "MOVIMIENTOS"})
    Executar(std::string("DELETE * FROM ") + taula);
  for (const auto& [magatzem, negatiu] : cas["negatiu"].items())
    Executar("INSERT INTO ALMACENES (CODI_ALM, STOCK_NEG_ALM) VALUES(" + Text_SQL(magatzem) + ", " +
             std::to_string(negatiu.get<int>()) + ")");
  Executar("INSERT INTO ARTICLES (CODI_ART, MAGATZEM_ART, STOCK_ART) VALUES('A', " +
           Text_SQL(cas["magatzem_article"].get<std::string>()) + ", " + (cas["porta_stock"].get<bool>() ? "-1" : "0") +
           ")");
}

// What a posting left behind, in the words of the file.
Json Fer_Operacio(const Json& cas, const Json& operacio, Pantalla_Falsa& pantalla) {
  const auto moviments = [] { return Recordset("SELECT * FROM MOVIMIENTOS", sessio.Connexio_Comuna).RecordCount(); };
  const std::string magatzem = operacio["magatzem"].get<std::string>();
  const double delta = operacio["delta"].get<double>();
  const bool porta_stock = cas["porta_stock"].get<bool>();
  const std::int64_t abans = moviments();
  Json vist = {{"error", 0}};
  pantalla.caixes.clear();
  try {
    const Article_Estoc article = {"A", magatzem, cas["minim"].get<double>(), Stock_Negatiu_Permes(magatzem),
                                   porta_stock};
    Avisar_Sota_Minims(article, delta);
    Actualitzar_Stock("A", magatzem, delta, article.stock_neg, porta_stock);
    Afegir_Moviment("A", magatzem, delta, "AC", "1", porta_stock);
  } catch (const Error_Brollador& error) {
    vist["error"] = error.Numero();
  }
  const Recordset saldo("SELECT UNIDADES_ST FROM STOCK WHERE ALMACEN_ST = " + Text_SQL(magatzem),
                        sessio.Connexio_Comuna);
  vist["avis"] = pantalla.caixes == std::vector<Caixa_Vista>{{"A: Article sota mínims.", estil::critic, "Brollador"}};
  vist["saldo"] = saldo.RecordCount() > 0 ? Json(saldo["UNIDADES_ST"].Doble()) : Json();
  vist["moviment"] = moviments() == abans + 1;
  return vist;
}

Veredicte Provar_Estoc(const Json& cas, Pantalla_Falsa& pantalla) {
  Preparar_Estoc(cas);
  for (const Json& operacio : cas["operacions"]) {
    const Json vist = Fer_Operacio(cas, operacio, pantalla);
    for (const char* camp : {"error", "avis", "moviment"})
      if (vist[camp] != operacio[camp]) return operacio.dump() + ": " + vist.dump();
    const bool saldo_igual =
        vist["saldo"].is_null() || operacio["saldo"].is_null()
            ? vist["saldo"] == operacio["saldo"]
            : std::abs(vist["saldo"].get<double>() - operacio["saldo"].get<double>()) <= tolerancia;
    if (!saldo_igual) return operacio.dump() + ": " + vist.dump();
  }
  return {};
}

// The chain of a case, in empty tables.
void Preparar_Cadena(const Json& abans) {
  for (const char* taula : {"PAGAMENTS", "COMANDACAP", "ALBARACAP", "FACTURACAP"})
    Executar(std::string("DELETE * FROM ") + taula);
  const auto cap = [](const std::string& taula, const std::string& sufix, const std::string& numero, const Json& estat,
                      const std::string& lletra) {
    Executar("INSERT INTO " + taula + " (NUMALB_" + sufix + ", EMPRESA_" + sufix + ", PAGAMENT_" + sufix +
             ") VALUES (" + numero + ", " + Text_SQL(empresa) + ", " + (estat[0].get<bool>() ? "-1" : "0") + ")");
    if (estat[1].get<bool>())
      Executar("INSERT INTO PAGAMENTS (DOCUMENT_PAG, NUMALB_PAG, EMPRESA_PAG, IMPORT_PAG) VALUES (" + Text_SQL(lletra) +
               ", " + numero + ", " + Text_SQL(empresa) + ", 10)");
  };
  for (const auto& [numero, estat] : abans["comandes"].items()) cap("COMANDACAP", "CC", numero, estat, "P");
  for (const auto& [numero, estat] : abans["factures"].items()) cap("FACTURACAP", "FC", numero, estat, "F");
  for (const auto& [numero, estat] : abans["albarans"].items()) {
    cap("ALBARACAP", "AC", numero, estat, "A");
    if (estat[2].get<int>() != 0)
      Executar("UPDATE ALBARACAP SET NUMFAC_AC = '" + std::to_string(estat[2].get<int>()) +
               "' WHERE NUMALB_AC = " + numero);
    int linia = 0;
    for (const auto& comanda : estat[3])
      Executar("INSERT INTO ALBARALIN (NUMALB_AL, EMPRESA_AL, LIN_AL, COMANDA_AL) VALUES (" + numero + ", " +
               Text_SQL(empresa) + ", " + std::to_string(++linia) + ", " + std::to_string(comanda.get<int>()) + ")");
  }
}

Json Flags_De(const std::string& taula, const std::string& sufix) {
  Json flags = Json::object();
  Recordset rs("SELECT NUMALB_" + sufix + ", PAGAMENT_" + sufix + " FROM " + taula, sessio.Connexio_Comuna);
  for (; !rs.Eof(); rs.MoveNext()) flags[rs[0].Text()] = rs[1].Boolea();
  return flags;
}

Veredicte Provar_Flags(const Json& cas) {
  Preparar_Cadena(cas["abans"]);
  std::string error;
  try {
    Propagar_Flag_Pagaments(cas["document"].get<std::string>(), cas["numero"].get<std::int64_t>());
  } catch (const Error_Brollador& raised) {
    error = raised.Descripcio();
  }
  if (error != cas["error"].get<std::string>()) return "error: " + error;
  const Json flags = {{"comandes", Flags_De("COMANDACAP", "CC")},
                      {"albarans", Flags_De("ALBARACAP", "AC")},
                      {"factures", Flags_De("FACTURACAP", "FC")}};
  return flags == cas["flags"] ? Veredicte() : flags.dump();
}

// Within a transaction that is given up: quicker, and the next case starts clean.
Veredicte En_Base(const std::function<Veredicte()>& prova) {
  const Transaccio transaccio(sessio.Connexio_Comuna);
  return prova();
}

std::function<Veredicte(const Json&)> Donat_Per_Perdut(Veredicte (*prova)(const Json&)) {
  return [prova](const Json& cas) { return En_Base([&] { return prova(cas); }); };
}

Veredicte Provar_Venciments(const Fila& fila) {
  return En_Base([&]() -> Veredicte {
    const bool hi_ha = Numero_De(fila, "dies_ven") != -1 || Numero_De(fila, "terminis_ven") != -1;
    Executar("INSERT INTO CLIENTS (NIF_CLI, VENCIMENT_CLI, DIA_PAG_CLI) VALUES ('V', 'V', " + fila.at("dia_pag") + ")");
    if (hi_ha) {
      Executar("INSERT INTO VENCIMENTS (CODI_VEN, DESCRIPCIO_VEN, DIES_VEN, TERMINIS_VEN) VALUES ('V', " +
               Text_SQL(fila.at("descripcio_ven")) + ", " + fila.at("dies_ven") + ", " + fila.at("terminis_ven") + ")");
    }
    const auto vist = Venciments_Factura("V", *Data_De_Text(fila.at("data")), Numero_De(fila, "import"));
    if (vist[1] != fila.at("descripcio")) return "descripcio: " + vist[1];
    return vist[2] == fila.at("venciments") ? Veredicte() : "venciments: " + vist[2];
  });
}

Veredicte Provar_Forats(const Fila& fila) {
  return En_Base([&]() -> Veredicte {
    std::istringstream numeros(fila.at("numeros"));
    for (std::string numero; numeros >> numero;)
      Executar("INSERT INTO FACTURACAP (NUMALB_FC, EMPRESA_FC) VALUES (" + numero + ", " +
               Text_SQL(sessio.Empresa_Actual) + ")");
    const std::string vist = std::to_string(Primer_Forat_Factura());
    return vist == fila.at("forat") ? Veredicte() : "forat: " + vist;
  });
}

// A file's rows, each with the way to judge it.
class Recompte {
 public:
  void Afegir(const std::string& fila, const std::function<Veredicte()>& prova) {
    ++files_;
    Veredicte veredicte;
    try {
      veredicte = prova();
    } catch (const std::exception& error) {
      veredicte = error.what();
    }
    if (veredicte.empty()) {
      ++bones_;
    } else if (primera_dolenta_.empty()) {
      primera_dolenta_ = "row " + std::to_string(files_) + ": " + veredicte + "\n    " + fila;
    }
  }
  bool Dir(const std::string& nom) const {
    std::cout << nom << ": " << bones_ << " of " << files_ << " rows hold\n";
    if (!primera_dolenta_.empty()) std::cout << "  first that does not: " << primera_dolenta_ << "\n";
    return files_ > 0 && bones_ == files_;
  }

 private:
  int files_ = 0;
  int bones_ = 0;
  std::string primera_dolenta_;
};

bool Provar_Taula(const std::string& nom, const std::vector<std::string>& linies, Veredicte (*prova)(const Fila&)) {
  Recompte recompte;
  const std::vector<std::string> columnes = Camps_De(linies.at(0));
  for (std::size_t i = 1; i < linies.size(); ++i) {
    recompte.Afegir(linies[i], [&] {
      const std::vector<std::string> camps = Camps_De(linies[i]);
      Fila fila;
      for (std::size_t c = 0; c < columnes.size(); ++c) fila[columnes[c]] = camps.at(c);
      return prova(fila);
    });
  }
  return recompte.Dir(nom);
}

bool Provar_Objectes(const std::string& nom, const std::vector<std::string>& linies,
                     const std::function<Veredicte(const Json&)>& prova) {
  Recompte recompte;
  for (const std::string& linia : linies) recompte.Afegir(linia, [&] { return prova(Json::parse(linia)); });
  return recompte.Dir(nom);
}

constexpr const char* encara_no[] = {"check.jsonl"};

bool Provar_Carpeta(const std::string& carpeta) {
  Installacio_Prova installacio;
  const std::map<std::string, std::function<bool(const std::string&, const std::vector<std::string>&)>> proves = {
      {"arrodonir.tsv", [](auto& nom, auto& linies) { return Provar_Taula(nom, linies, Provar_Arrodonir); }},
      {"calcular_linia.tsv", [](auto& nom, auto& linies) { return Provar_Taula(nom, linies, Provar_Linia); }},
      {"recalcular_preus.tsv", [](auto& nom, auto& linies) { return Provar_Taula(nom, linies, Provar_Preus); }},
      {"venciments.tsv", [](auto& nom, auto& linies) { return Provar_Taula(nom, linies, Provar_Venciments); }},
      {"forats.tsv", [](auto& nom, auto& linies) { return Provar_Taula(nom, linies, Provar_Forats); }},
      {"flags.jsonl",
       [](auto& nom, auto& linies) { return Provar_Objectes(nom, linies, Donat_Per_Perdut(Provar_Flags)); }},
      {"peu.jsonl", [](auto& nom, auto& linies) { return Provar_Objectes(nom, linies, Donat_Per_Perdut(Provar_Peu)); }},
      // It shows boxes, which wait for the end of a transaction.
      {"stock.jsonl", [&](auto& nom, auto& linies) {
         return Provar_Objectes(nom, linies, [&](const Json& cas) { return Provar_Estoc(cas, installacio.pantalla); });
       }}};
  bool tot_be = true;
  for (const auto& [nom, prova] : proves) {
    const std::vector<std::string> linies = Linies_De(std::filesystem::path(carpeta) / nom);
    if (linies.empty()) std::cout << nom << ": missing\n";
    tot_be = !linies.empty() && prova(nom, linies) && tot_be;
  }
  for (const char* nom : encara_no) std::cout << nom << ": not yet there\n";
  return tot_be;
}

}  // namespace

int main(int quants, char** arguments) {
  if (quants != 2) {
    std::cerr << "usage: prova_vectors DIR\n";
    return 2;
  }
  try {
    return Provar_Carpeta(arguments[1]) ? 0 : 1;
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return 1;
  }
}
