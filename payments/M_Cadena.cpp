#include "payments/M_Cadena.h"

#include <algorithm>
#include <functional>
#include <string>
#include <utility>

#include "core/M_Condicions.h"
#include "core/M_Funcions_Comuns.h"
#include "core/dades/Numeros.h"

namespace {

constexpr Nivell_Pagable nivells[] = {{'P', "F_COMANDA", "COMANDACAP", "CC"},
                                      {'A', "F_ALBARA", "ALBARACAP", "AC"},
                                      {'F', "F_FACTURA", "FACTURACAP", "FC"}};

// How the documents of one letter lead to those of another. {e} is the company, {n} the numbers, {t} the numbers as
// text.
struct Relacio {
  char de;
  char a;
  const char* sentencia;
};
constexpr Relacio relacions[] = {
    {'P', 'A',
     "SELECT DISTINCT COMANDA_AL, NUMALB_AL FROM ALBARALIN WHERE EMPRESA_AL = {e} AND COMANDA_AL IN ({n}) "
     "ORDER BY NUMALB_AL"},
    {'A', 'P',
     "SELECT DISTINCT NUMALB_AL, COMANDA_AL FROM ALBARALIN WHERE EMPRESA_AL = {e} AND NUMALB_AL IN ({n}) AND "
     "COMANDA_AL <> 0 ORDER BY COMANDA_AL"},
    {'A', 'F',
     "SELECT NUMALB_AC, NUMFAC_AC FROM ALBARACAP WHERE EMPRESA_AC = {e} AND NUMALB_AC IN ({n}) AND NUMFAC_AC <> ''"},
    {'F', 'A',
     "SELECT NUMFAC_AC, NUMALB_AC FROM ALBARACAP WHERE EMPRESA_AC = {e} AND NUMFAC_AC IN ({t}) ORDER BY NUMALB_AC"},
};

constexpr std::size_t maxim_de_numeros = 512;  // in one statement

std::string Omplir(std::string sentencia, const std::vector<std::int64_t>& numeros) {
  const auto posar = [&](const char* marca, const std::string& valor) {
    if (const auto lloc = sentencia.find(marca); lloc != std::string::npos) sentencia.replace(lloc, 3, valor);
  };
  posar("{n}", Llista_De_Numeros(numeros));
  posar("{t}", Llista_De_Numeros(numeros, "'"));
  posar("{e}", Text_SQL(sessio.Empresa_Actual));
  return sentencia;
}

std::int64_t Numero_De(const Valor& valor) {
  if (!valor.Es_Text()) return valor.Enter();
  const auto numero = Numero_De_Text(valor.Text());
  if (!numero) Llancar_Error(errors::tipus, "Cadena", valor.Text());
  return static_cast<std::int64_t>(*numero);
}

// Statements that are asked for together, each with what is done with its rows.
class Lectura {
 public:
  using Fila = std::function<void(const Recordset&)>;
  void Afegir(const char* sentencia, const std::vector<std::int64_t>& numeros, const Fila& fila) {
    for (std::size_t i = 0; i < numeros.size(); i += maxim_de_numeros) {
      const auto des_de = numeros.begin() + static_cast<std::ptrdiff_t>(i);
      const auto fins_a = numeros.begin() + static_cast<std::ptrdiff_t>(std::min(i + maxim_de_numeros, numeros.size()));
      peticions_.push_back({Omplir(sentencia, {des_de, fins_a}), fila});
    }
  }
  void Fer() const {
    for (const Peticio& peticio : peticions_) sessio.Connexio_Comuna.Demanar(peticio.sentencia);
    for (const Peticio& peticio : peticions_) {
      for (Recordset rs(peticio.sentencia, sessio.Connexio_Comuna); !rs.Eof(); rs.MoveNext()) peticio.fila(rs);
    }
  }

 private:
  struct Peticio {
    std::string sentencia;
    Fila fila;
  };
  std::vector<Peticio> peticions_;
};

}  // namespace

const Nivell_Pagable& Nivell_De(char lletra) {
  for (const Nivell_Pagable& nivell : nivells)
    if (nivell.lletra == lletra) return nivell;
  throw Error_Brollador(errors::tipus, "Cadena", std::string(1, lletra));
}

Cadena::Cadena(const std::vector<Document_Pagable>& des_de) {
  Nivell nivell;
  for (const Document_Pagable& document : des_de) {
    if (documents_.try_emplace(document).second) nivell[document.lletra].push_back(document.numero);
  }
  while (!nivell.empty()) {
    Nivell seguent;
    Llegir(nivell, seguent);
    nivell = std::move(seguent);
  }
}

void Cadena::Llegir(const Nivell& nivell, Nivell& seguent) {
  Lectura lectura;
  for (const auto& [lletra, numeros] : nivell) {
    const char quina = lletra;
    const Nivell_Pagable& taula = Nivell_De(lletra);
    const std::string sufix = "_" + std::string(taula.sufix);
    lectura.Afegir(("SELECT NUMALB" + sufix + ", PAGAMENT" + sufix + " FROM " + std::string(taula.taula) +
                    " WHERE EMPRESA" + sufix + " = {e} AND NUMALB" + sufix + " IN ({n})")
                       .c_str(),
                   numeros, [this, quina](const Recordset& rs) {
                     if (!rs[1].Es_Nul()) documents_[{quina, rs[0].Enter()}].flag = rs[1].Boolea() ? -1 : 0;
                   });
    lectura.Afegir(("SELECT DISTINCT NUMALB_PAG FROM PAGAMENTS WHERE EMPRESA_PAG = {e} AND DOCUMENT_PAG = " +
                    Text_SQL(std::string(1, lletra)) + " AND NUMALB_PAG IN ({n})")
                       .c_str(),
                   numeros, [this, quina](const Recordset& rs) {
                     documents_[{quina, rs[0].Enter()}].pagaments = true;
                   });
    for (const Relacio& relacio : relacions) {
      if (relacio.de != lletra) continue;
      lectura.Afegir(relacio.sentencia, numeros, [this, &relacio, &seguent](const Recordset& rs) {
        Relacionar({relacio.de, Numero_De(rs[0])}, {relacio.a, Numero_De(rs[1])}, seguent);
      });
    }
  }
  lectura.Fer();
}

void Cadena::Relacionar(const Document_Pagable& un, const Document_Pagable& altre, Nivell& seguent) {
  auto& numeros = enllacos_[{un, altre.lletra}];
  const auto lloc = std::lower_bound(numeros.begin(), numeros.end(), altre.numero);
  if (lloc != numeros.end() && *lloc == altre.numero) return;
  numeros.insert(lloc, altre.numero);
  if (documents_.try_emplace(altre).second) seguent[altre.lletra].push_back(altre.numero);
}

const std::vector<std::int64_t>& Cadena::Enllacats(const Document_Pagable& document, char lletra) const {
  static const std::vector<std::int64_t> cap;
  const auto trobats = enllacos_.find({document, lletra});
  return trobats == enllacos_.end() ? cap : trobats->second;
}

bool Cadena::Flag(const Document_Pagable& document) const {
  const auto trobat = documents_.find(document);
  return trobat != documents_.end() && trobat->second.flag == -1;
}

bool Cadena::Te_Pagaments(const Document_Pagable& document) const {
  const auto trobat = documents_.find(document);
  return trobat != documents_.end() && trobat->second.pagaments;
}

void Cadena::Enllacar(std::int64_t albara, std::int64_t comanda) {
  Nivell cap;
  Relacionar({'A', albara}, {'P', comanda}, cap);
  Relacionar({'P', comanda}, {'A', albara}, cap);
}

bool Cadena::Apuntar_Flag(const Document_Pagable& document, bool flag) {
  return std::exchange(documents_[document].flag, flag ? -1 : 0) != (flag ? -1 : 0);
}
