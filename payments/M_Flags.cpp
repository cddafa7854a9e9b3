#include "payments/M_Flags.h"

#include <functional>
#include <map>
#include <set>
#include <span>
#include <utility>

#include "core/M_Condicions.h"
#include "core/M_Funcions_Comuns.h"
#include "core/dades/Transaccio.h"
#include "payments/Decisions_Flag.h"

namespace {

[[noreturn]] void Refusar(const std::string& text) {
  throw Error_Brollador(errors::refusat, "Flag Pagament", text);
}

std::string Nom_Columna(const Nivell_Pagable& nivell, const char* paper) {
  return std::string(paper) + "_" + std::string(nivell.sufix);
}

std::string De_L_Empresa(const Nivell_Pagable& nivell) {
  return Nom_Columna(nivell, "EMPRESA") + " = " + Text_SQL(sessio.Empresa_Actual);
}

std::string Condicio(const Nivell_Pagable& nivell, std::int64_t numero) {
  return " WHERE " + Nom_Columna(nivell, "NUMALB") + " = " + std::to_string(numero) + " AND " + De_L_Empresa(nivell);
}

// The flag of the heads of one level, in one statement.
void Posar_A_Les_Capcaleres(char lletra, bool flag, const std::vector<std::int64_t>& numeros) {
  const Nivell_Pagable& nivell = Nivell_De(lletra);
  sessio.Connexio_Comuna.Execute_Despres("UPDATE " + std::string(nivell.taula) + " SET " +
                                         Nom_Columna(nivell, "PAGAMENT") + " = " + (flag ? "-1" : "0") + " WHERE " +
                                         Nom_Columna(nivell, "NUMALB") + " IN (" + Llista_De_Numeros(numeros) +
                                         ") AND " + De_L_Empresa(nivell));
}

Document_Obert* Formulari_De(const Document_Pagable& document) {
  return sessio.pantalla->Document(Nivell_De(document.lletra).formulari);
}

// Flags of a chain, written through the form of that kind when it is loaded, on the document that it shows. All of them
// are written at the end: the head of a form once, and the others a level at a time.
class Escriptor {
 public:
  explicit Escriptor(Cadena& cadena) : cadena_(cadena) {}

  void Posar(const Document_Pagable& document, bool flag) {
    Document_Obert* obert = Formulari_De(document);
    if (obert == nullptr) {
      if (cadena_.Apuntar_Flag(document, flag)) canviats_.insert(document);
      return;
    }
    obert->Posar_Pagament(flag);
    const Document_Pagable mostrat{document.lletra, obert->Numero_Document().Enter()};
    bool& canviat = mostrats_[mostrat];
    canviat = cadena_.Apuntar_Flag(mostrat, flag) || canviat;
  }

  // A form writes what changed on it; when another terminal wrote the flag since it was read, that is not all.
  void Desar() {
    for (const auto& [document, canviat] : std::exchange(mostrats_, {})) {
      if (Document_Obert* obert = Formulari_De(document)) obert->Desar_Capcalera();
      if (canviat) canviats_.insert(document);
    }
    std::map<std::pair<char, bool>, std::vector<std::int64_t>> per_nivell;
    for (const Document_Pagable& document : std::exchange(canviats_, {}))
      per_nivell[{document.lletra, cadena_.Flag(document)}].push_back(document.numero);
    for (const auto& [quins, numeros] : per_nivell) Posar_A_Les_Capcaleres(quins.first, quins.second, numeros);
  }

 private:
  Cadena& cadena_;
  std::map<Document_Pagable, bool> mostrats_;
  std::set<Document_Pagable> canviats_;
};

using Documents = std::vector<Document_Pagable>;
using Pregunta_Document = bool (Cadena::*)(const Document_Pagable&) const;

// The documents of the walk, in their order, each of them once.
class Llista_De_Feina {
 public:
  void Afegir(const Document_Pagable& document) {
    if (vistos_.insert(document).second) documents_.push_back(document);
  }
  std::size_t Quants() const { return documents_.size(); }
  Document_Pagable operator[](std::size_t i) const { return documents_[i]; }

 private:
  Documents documents_;
  std::set<Document_Pagable> vistos_;
};

// Each document that is asked enters the list, up to the first that answers otherwise.
Resposta_Cadena Preguntar(const Cadena& cadena, const Documents& documents, Pregunta_Document pregunta,
                          Llista_De_Feina& feina) {
  if (documents.empty()) return Resposta_Cadena::Cap_Document;
  const bool primera = (cadena.*pregunta)(documents.front());
  for (const Document_Pagable& document : documents) {
    if ((cadena.*pregunta)(document) != primera) return Resposta_Cadena::Discrepen;
    feina.Afegir(document);
  }
  return primera ? Resposta_Cadena::Totes_Si : Resposta_Cadena::Totes_No;
}

Documents Enllacats(const Cadena& cadena, const Document_Pagable& document, char lletra) {
  Documents trobats;
  for (const std::int64_t numero : cadena.Enllacats(document, lletra)) trobats.push_back({lletra, numero});
  return trobats;
}

// What is linked with each of its notes: the invoices of an order, the orders of an invoice.
Documents A_Traves_Dels_Albarans(const Cadena& cadena, const Document_Pagable& document, char lletra) {
  Documents trobats;
  for (const Document_Pagable& albara : Enllacats(cadena, document, 'A')) {
    for (const Document_Pagable& altre : Enllacats(cadena, albara, lletra)) trobats.push_back(altre);
  }
  return trobats;
}

// Do the documents of the level before carry the payments: by their flags, and where all are on, by what they hold.
// Flags without a payment behind them are taken away then.
Resposta_Cadena Preguntar_Al_Nivell_Anterior(const Cadena& cadena, const Document_Pagable& document, char lletra,
                                             Llista_De_Feina& feina,
                                             const std::function<void(const Documents&)>& treure) {
  const Documents anteriors = Enllacats(cadena, document, lletra);
  const Resposta_Cadena flags = Preguntar(cadena, anteriors, &Cadena::Flag, feina);
  if (flags != Resposta_Cadena::Totes_Si) return flags;
  const Resposta_Cadena pagaments = Preguntar(cadena, anteriors, &Cadena::Te_Pagaments, feina);
  if (pagaments == Resposta_Cadena::Totes_No) treure(anteriors);
  return pagaments;
}

class Recorregut {
 public:
  explicit Recorregut(Cadena& cadena) : cadena_(cadena), flags_(cadena) {}

  // The list grows while it is gone through; a document that is in it already does not enter again, which ends the
  // walk.
  void Fer(const Documents& inicis) {
    for (const Document_Pagable& inici : inicis) feina_.Afegir(inici);
    while (fets_ < feina_.Quants()) {
      for (const std::size_t fins_on = feina_.Quants(); fets_ < fins_on; ++fets_) Avaluar_Flag_Pagament(feina_[fets_]);
      sessio.pantalla->Processar_Events();
    }
  }

  // The heads of the forms, and the work list as the walk left it, for whoever looks into it afterwards.
  void Desar() {
    flags_.Desar();
    if (Es_La_Desada()) return;
    Connexio& local = sessio.Connexio_Local;
    Transaccio transaccio(local);
    local.Execute("DELETE * FROM FLAG_PAGAMENTS_TEMP");
    for (std::size_t i = 0; i < feina_.Quants(); ++i) {
      local.Afegir_Fila("FLAG_PAGAMENTS_TEMP", {{"DOCUMENT", Valor(std::string(1, feina_[i].lletra))},
                                                {"NUMALB", Valor(feina_[i].numero)},
                                                {"FLAG", Valor(std::int64_t{i < fets_ ? -1 : 0})}});
    }
    transaccio.Confirmar();
  }

 private:
  // Line after line of a note the list is the same, and writing it waits for the terminal's disk each time.
  bool Es_La_Desada() const {
    Recordset rs("SELECT * FROM FLAG_PAGAMENTS_TEMP", sessio.Connexio_Local);
    bool es_igual = rs.RecordCount() == static_cast<std::int64_t>(feina_.Quants());
    for (std::size_t i = 0; es_igual && !rs.Eof(); rs.MoveNext(), ++i)
      es_igual = rs["DOCUMENT"].Text() == std::string(1, feina_[i].lletra) &&
                 rs["NUMALB"].Enter() == feina_[i].numero && Nul_A_Defecte(rs["FLAG"]).Boolea() == (i < fets_);
    return es_igual;
  }

  void Avaluar_Flag_Pagament(const Document_Pagable& document) {
    if (document.lletra == 'P') return Avaluar_Comanda(document);
    if (document.lletra == 'A') return Avaluar_Albara(document);
    Avaluar_Factura(document);
  }

  void Avaluar_Comanda(const Document_Pagable& comanda) {
    const bool pagaments = cadena_.Te_Pagaments(comanda);
    const Resposta_Cadena albarans = Flags(Enllacats(cadena_, comanda, 'A'));
    const Resposta_Cadena factures = Flags(A_Traves_Dels_Albarans(cadena_, comanda, 'F'));
    Decidir(comanda, decisions::comanda, resposta::Conjunt(factures), resposta::Conjunt(albarans),
            resposta::Conjunt(pagaments));
  }

  void Avaluar_Albara(const Document_Pagable& albara) {
    const Resposta_Cadena comandes = Nivell_Anterior(albara, 'P');
    const bool propi = cadena_.Flag(albara);
    const Resposta_Cadena factura = Flags(Enllacats(cadena_, albara, 'F'));
    Decidir(albara, decisions::albara, resposta::Conjunt(factura), resposta::Conjunt(comandes),
            resposta::Conjunt(propi));
  }

  void Avaluar_Factura(const Document_Pagable& factura) {
    const bool propi = cadena_.Flag(factura);
    const Resposta_Cadena albarans = Nivell_Anterior(factura, 'A');
    const Resposta_Cadena comandes = Flags(A_Traves_Dels_Albarans(cadena_, factura, 'P'));
    Decidir(factura, decisions::factura, resposta::Conjunt(propi), resposta::Conjunt(albarans),
            resposta::Conjunt(comandes));
  }

  Resposta_Cadena Flags(const Documents& documents) { return Preguntar(cadena_, documents, &Cadena::Flag, feina_); }

  Resposta_Cadena Nivell_Anterior(const Document_Pagable& document, char lletra) {
    return Preguntar_Al_Nivell_Anterior(cadena_, document, lletra, feina_, [this](const Documents& anteriors) {
      for (const Document_Pagable& anterior : anteriors) flags_.Posar(anterior, false);
    });
  }

  void Decidir(const Document_Pagable& document, std::span<const Decisio_Flag> taula, unsigned primer, unsigned segon,
               unsigned tercer) {
    for (const Decisio_Flag& decisio : taula) {
      if ((decisio.primer & primer) == 0 || (decisio.segon & segon) == 0 || (decisio.tercer & tercer) == 0) continue;
      if (!decisio.flag) Refusar(decisio.error);
      return flags_.Posar(document, *decisio.flag);
    }
  }

  Cadena& cadena_;
  Escriptor flags_;
  Llista_De_Feina feina_;
  std::size_t fets_ = 0;
};

}  // namespace

namespace {

void Propagar_Des_De(Cadena& cadena, const Documents& documents) {
  Recorregut recorregut(cadena);
  try {
    recorregut.Fer(documents);
  } catch (...) {
    recorregut.Desar();
    throw;
  }
  recorregut.Desar();
}

}  // namespace

void Propagar_Flag_Pagaments(Cadena& cadena, const Document_Pagable& document) {
  Propagar_Des_De(cadena, {document});
}

void Propagar_Flag_Pagaments(const std::string& document, std::int64_t numalb) {
  Propagar_Flag_Pagaments(std::vector<Document_Pagable>{{document.at(0), numalb}});
}

// Flags that were written before an error stay when nobody else's work depends on them.
void Propagar_Flag_Pagaments(const std::vector<Document_Pagable>& documents) {
  Transaccio transaccio(sessio.Connexio_Comuna);
  Cadena cadena(documents);
  try {
    Propagar_Des_De(cadena, documents);
  } catch (const Error_Brollador& error) {
    if (error.Numero() == errors::refusat) transaccio.Confirmar();
    throw;
  }
  transaccio.Confirmar();
}

bool Flag_Pagament(const std::string& document, std::int64_t numalb) {
  const Nivell_Pagable& nivell = Nivell_De(document.at(0));
  const Recordset rs("SELECT " + Nom_Columna(nivell, "PAGAMENT") + " AS FLAG_PAGAMENT FROM " +
                         std::string(nivell.taula) + Condicio(nivell, numalb),
                     sessio.Connexio_Comuna);
  return rs.RecordCount() > 0 && Nul_A_Defecte(rs[0]).Boolea();
}

void Posar_Flag_Pagament(const std::string& document, std::int64_t numalb, bool flag) {
  const Document_Pagable quin{document.at(0), numalb};
  Document_Obert* obert = Formulari_De(quin);
  if (obert == nullptr) return Posar_A_Les_Capcaleres(quin.lletra, flag, {quin.numero});
  obert->Posar_Pagament(flag);
  obert->Desar_Capcalera();
}

std::vector<Flag_A_Posar> Comprovar_Linia_Albara(const Cadena& cadena, std::int64_t albara, std::int64_t comanda) {
  const Document_Pagable nota{'A', albara};
  std::vector<Flag_A_Posar> flags;
  Llista_De_Feina cap;
  const Resposta_Cadena comandes = Preguntar_Al_Nivell_Anterior(cadena, nota, 'P', cap, [&](const Documents&) {
    flags.push_back({nota, false});
  });
  if (comandes == Resposta_Cadena::Totes_Si || comandes == Resposta_Cadena::Discrepen) {
    Refusar("No es poden afegir línies a l'albarà si no pot tenir pagaments!");
  }
  if (comanda == 0) return flags;
  const Document_Pagable servida{'P', comanda};
  const bool com_la_resta = comandes == Resposta_Cadena::Totes_No && !cadena.Flag(servida);
  const bool pagaments = cadena.Te_Pagaments(servida);
  if (!com_la_resta && pagaments != cadena.Flag(servida)) flags.push_back({servida, pagaments});
  return flags;
}

void Posar_Flags(Cadena& cadena, const std::vector<Flag_A_Posar>& flags) {
  Escriptor escriptor(cadena);
  for (const auto& [document, flag] : flags) escriptor.Posar(document, flag);
  escriptor.Desar();
}
