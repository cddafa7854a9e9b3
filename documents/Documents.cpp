#include "documents/Documents.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <sstream>

#include "core/M_Funcions_Comuns.h"
#include "core/dades/Numeros.h"
#include "core/dades/Text.h"
#include "documents/M_Linies_Document.h"
#include "session/M_Locks.h"

namespace {

std::vector<const Tipus_Document*>& Registre() {
  static std::vector<const Tipus_Document*> tipus;
  return tipus;
}

// The only row of a reading statement gives one value; null when there is no row.
Valor Llegir_Valor(const std::string& sentencia) {
  const Recordset rs(sentencia, sessio.Connexio_Comuna);
  return rs.RecordCount() > 0 ? rs[0] : Valor();
}

// One more than a number of digits alone, however long.
std::string Un_Mes(std::string xifres) {
  const std::size_t que_creix = xifres.find_last_not_of('9');
  if (que_creix == std::string::npos) return "1" + std::string(xifres.size(), '0');
  ++xifres[que_creix];
  std::fill(xifres.begin() + static_cast<std::ptrdiff_t>(que_creix) + 1, xifres.end(), '0');
  return xifres;
}

// The next of a count of texts. What a supplier wrote counts as what ISNUMERIC takes for a number: "$5" is 5, "12,5" is
// 12. Digits that a double cannot hold are counted on as they stand.
std::string Seguent_De_Text(std::string ultim) {
  constexpr std::size_t xifres_d_un_doble = 15;
  const bool son_xifres = ultim.find_first_not_of("0123456789") == std::string::npos;
  if (son_xifres && ultim.size() > xifres_d_un_doble) return Un_Mes(std::move(ultim));
  ultim.erase(0, ultim.find_first_not_of(" $"));
  return Text_Numero(std::trunc(Numero_De_Text(ultim).value_or(0)) + 1);
}

std::string SQL_Ultima_Linia(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  return "SELECT MAX(" + tipus.lin.Columna("LIN") + ") AS MAXIM FROM " + std::string(tipus.lin.nom) +
         Condicio_Document(tipus, tipus.lin, numero, empresa);
}

std::string SQL_Maxim(const Tipus_Document& tipus, const std::string& empresa) {
  const std::string numero = tipus.cap.Columna("NUMALB");
  return "SELECT MAX(" + numero + ") AS MAXIM FROM " + std::string(tipus.cap.nom) + " WHERE " +
         tipus.cap.Columna("EMPRESA") + " = " + Text_SQL(empresa) +
         (tipus.numero_es_text ? " AND ISNUMERIC(" + numero + ") = -1" : "");
}

// The next of a count that ends at `maxim`: raises 6 beyond it.
std::int64_t Seguent(const Valor& ultim, std::int64_t maxim) {
  const std::int64_t sencer = Nul_A_Defecte(ultim).Enter();
  if (sencer >= maxim) Llancar_Error(errors::desbordament, "Documents");
  return sencer + 1;
}

}  // namespace

std::string Taula_Document::Columna(std::string_view paper) const {
  return std::string(paper) + "_" + std::string(sufix);
}

Document_Inexistent::Document_Inexistent(const Tipus_Document& tipus)
    : Error_Brollador(
          errors::refusat, std::string(tipus.formulari),
          Missatge("El document ja no existeix.", "El documento ya no existe.", "The document no longer exists.")) {}

double Total_Mogut(const std::vector<Unitats_Mogudes>& mogudes) {
  return std::accumulate(mogudes.begin(), mogudes.end(), 0.0, [](double total, const Unitats_Mogudes& mogut) {
    return total + mogut.signe * mogut.unitats;
  });
}

const Passos_Document& Passos_De(const Tipus_Document& tipus) {
  static constexpr Passos_Document cap_pas;
  return tipus.passos == nullptr ? cap_pas : *tipus.passos;
}

void Registrar_Tipus(const Tipus_Document& tipus) {
  if (std::ranges::count(Registre(), &tipus) > 0) return;
  Registre().push_back(&tipus);
  Registrar_Bloqueig(std::string(tipus.lletra_bloqueig), std::string(tipus.formulari));
}

const std::vector<const Tipus_Document*>& Tipus_Registrats() {
  return Registre();
}

std::optional<Valor> Numero_Escrit(const Tipus_Document& tipus, std::string_view text) {
  const std::size_t primer = text.find_first_not_of(' ');
  if (primer == std::string_view::npos) return std::nullopt;
  const std::string net(text.substr(primer, text.find_last_not_of(' ') - primer + 1));
  if (tipus.numero_es_text) return Valor(net);
  const auto numero = Numero_De_Text(net);
  if (!numero || *numero < 1 || *numero > std::numeric_limits<std::int32_t>::max() || *numero != std::trunc(*numero)) {
    return std::nullopt;
  }
  return Valor(static_cast<std::int64_t>(*numero));
}

bool Mateix_Numero(const Valor& un, const Valor& altre) {
  return Iguals_Plegats(un.Text(), altre.Text());
}

std::string Numero_Per_A_Fitxer(const Valor& numero) {
  constexpr std::string_view prohibits = "/\\:*?\"<>|";
  std::string nom = numero.Text();
  for (char& lletra : nom) {
    const bool es_de_control = static_cast<unsigned char>(lletra) < ' ';
    if (es_de_control || prohibits.find(lletra) != std::string_view::npos) lletra = '-';
  }
  for (std::size_t lloc = nom.find(".."); lloc != std::string::npos; lloc = nom.find("..")) nom.replace(lloc, 2, "--");
  return nom;
}

std::string Numero_Document_SQL(const Tipus_Document& tipus, const Valor& numero) {
  return tipus.numero_es_text ? Text_SQL(numero.Text()) : std::to_string(numero.Enter());
}

std::string Condicio_Document(const Tipus_Document& tipus, const Taula_Document& taula, const Valor& numero,
                              const std::string& empresa) {
  return " WHERE " + taula.Columna("NUMALB") + " = " + Numero_Document_SQL(tipus, numero) + " AND " +
         taula.Columna("EMPRESA") + " = " + Text_SQL(empresa);
}

Valor Crear_Capcalera(const Tipus_Document& tipus, const std::vector<std::pair<const char*, Valor>>& altres) {
  const Taula_Document& cap = tipus.cap;
  if (sessio.Empresa_Actual.find_first_not_of(' ') == std::string::npos)
    throw Error_Brollador(errors::refusat, "Empresa", "Empresa");
  // Read together; the row itself is a write of its own.
  Transaccio lectures(sessio.Connexio_Comuna);
  sessio.Connexio_Comuna.Demanar(SQL_Maxim(tipus, sessio.Empresa_Actual));
  // Any row would do: the statement is there for a set with the columns of the head.
  Recordset rs(SQL_Capcalera(tipus, 1, "01"), sessio.Connexio_Comuna, Bloqueig::Optimista);
  const Valor numero = Seguent_Numero(tipus, sessio.Empresa_Actual);
  lectures.Confirmar();
  rs.AddNew();
  rs.Set(cap.Columna("EMPRESA"), sessio.Empresa_Actual);
  rs.Set(cap.Columna("EMP_DESC"), sessio.Nom_Empresa);
  rs.Set(cap.Columna("NUMALB"), numero);
  rs.Set(cap.Columna("DATA"), Avui());
  for (const auto& [paper, valor] : altres) rs.Set(cap.Columna(paper), valor);
  rs.Update();
  return rs[cap.Columna("NUMALB")];
}

Valor Seguent_Numero(const Tipus_Document& tipus, const std::string& empresa) {
  const Valor ultim = Llegir_Valor(SQL_Maxim(tipus, empresa));
  if (tipus.numero_es_text) return Valor(Seguent_De_Text(ultim.Text()));
  return Valor(Seguent(ultim, std::numeric_limits<std::int32_t>::max()));
}

std::int16_t Seguent_Linia(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  const Valor ultima = Llegir_Valor(SQL_Ultima_Linia(tipus, numero, empresa));
  return static_cast<std::int16_t>(Seguent(ultima, std::numeric_limits<std::int16_t>::max()));
}

void Demanar_Seguent_Linia(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  sessio.Connexio_Comuna.Demanar(SQL_Ultima_Linia(tipus, numero, empresa));
}

bool Existeix_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  return Recordset(SQL_Capcalera(tipus, numero, empresa), sessio.Connexio_Comuna).RecordCount() > 0;
}

void Exigir_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  if (Existeix_Document(tipus, numero, empresa)) return;
  const Document_Inexistent error(tipus);
  sessio.Error_Mostrat = true;
  sessio.pantalla->Caixa(error.Descripcio(), estil::critic);
  throw error;
}

namespace {

std::string SQL_Comptar_Linies(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  return "SELECT COUNT(*) AS CUENTA FROM " + std::string(tipus.lin.nom) +
         Condicio_Document(tipus, tipus.lin, numero, empresa);
}

}  // namespace

std::int64_t Comptar_Linies(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  return Llegir_Valor(SQL_Comptar_Linies(tipus, numero, empresa)).Enter();
}

void Demanar_Estat(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  sessio.Connexio_Comuna.Demanar(SQL_Comptar_Linies(tipus, numero, empresa));
  Demanar_Bloquejat_Per_Linies(tipus, numero, empresa);
  if (const auto origens = Passos_De(tipus).origens) sessio.Connexio_Comuna.Demanar(origens(numero));
}

Estat_Document Llegir_Estat(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  Transaccio lectures(sessio.Connexio_Comuna);
  Demanar_Estat(tipus, numero, empresa);
  Estat_Document estat;
  estat.bloquejat = Bloquejat_Per_Linies(tipus, numero, empresa);
  estat.te_linies = Comptar_Linies(tipus, numero, empresa) > 0;
  if (const auto origens = Passos_De(tipus).origens) {
    for (Recordset rs(origens(numero), sessio.Connexio_Comuna); !rs.Eof(); rs.MoveNext()) {
      estat.te_origens = true;
      estat.congelat = estat.congelat || Iguals_Plegats(rs[0].Text(), empresa);
    }
  }
  lectures.Confirmar();
  return estat;
}

bool Hi_Ha_Descomptes(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  const std::string dte = tipus.lin.Columna("DTE");
  const Recordset rs("SELECT " + dte + " FROM " + std::string(tipus.lin.nom) +
                         Condicio_Document(tipus, tipus.lin, numero, empresa) + " AND " + dte + " <> 0",
                     sessio.Connexio_Comuna);
  return rs.RecordCount() > 0;
}

namespace {

bool Te_Pagaments(const Tipus_Document& tipus, const Valor& numero) {
  return tipus.te_pagaments != nullptr && tipus.te_pagaments(std::string(tipus.lletra_pagament), numero.Enter());
}

}  // namespace

void Demanar_Esborrar_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  if (!Confirmar(tipus.pregunta_esborrar, numero.Text())) return;
  if (Te_Pagaments(tipus, numero)) {
    sessio.pantalla->Caixa("No es pot esborrar. Hi ha pagaments!", estil::critic);
    return;
  }
  try {
    Esborrar_Document(tipus, numero, empresa);
  } catch (const Error_Brollador&) {
    const Pregunta& refus = tipus.refus_esborrar;
    if (refus.catala == nullptr) throw;
    sessio.pantalla->Caixa(Missatge(refus.catala, refus.castella, refus.angles) + numero.Text() + " !!!",
                           estil::critic);
  }
}

bool Esborrar_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  const auto document_esborrat = Passos_De(tipus).document_esborrat;
  bool hi_era = false;
  En_Transaccio(sessio.Connexio_Comuna, [&] {
    hi_era = sessio.Connexio_Comuna.Execute("DELETE * FROM " + std::string(tipus.cap.nom) +
                                            Condicio_Document(tipus, tipus.cap, numero, empresa)) > 0;
    if (hi_era && document_esborrat != nullptr) document_esborrat(numero, empresa);
  });
  return hi_era;
}

Buit Esborrar_Document_Buit(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  if (Comptar_Linies(tipus, numero, empresa) > 0 || Te_Pagaments(tipus, numero)) return Buit::Es_Queda;
  return Esborrar_Document(tipus, numero, empresa) ? Buit::Esborrat : Buit::Perdut;
}

bool Intercanviar_Linia(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa,
                        std::int16_t linia, bool avall) {
  const std::string lin = tipus.lin.Columna("LIN");
  const std::string condicio = Condicio_Document(tipus, tipus.lin, numero, empresa) + " AND " + lin;
  const Valor vei =
      Llegir_Valor("SELECT " + lin + " FROM " + std::string(tipus.lin.nom) + condicio + (avall ? " > " : " < ") +
                   std::to_string(linia) + " ORDER BY " + lin + (avall ? "" : " DESC"));
  if (vei.Es_Nul()) return false;
  const auto renumerar = [&](std::int64_t de, std::int64_t a) {
    const int tocades = sessio.Connexio_Comuna.Execute("UPDATE " + std::string(tipus.lin.nom) + " SET " + lin + " = " +
                                                       std::to_string(a) + condicio + " = " + std::to_string(de));
    if (tocades == 0) Llancar_Error(errors::concurrencia, "Documents");  // another terminal deleted it meanwhile
  };
  Transaccio transaccio(sessio.Connexio_Comuna);
  renumerar(linia, 0);
  renumerar(vei.Enter(), linia);
  renumerar(0, vei.Enter());
  transaccio.Confirmar();
  return true;
}

std::string SQL_Capcalera(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  return "SELECT * FROM " + std::string(tipus.cap.nom) + Condicio_Document(tipus, tipus.cap, numero, empresa);
}

std::string SQL_Linies(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  std::istringstream papers{std::string(tipus.columnes_linies)};
  std::string columnes;
  for (std::string paper; papers >> paper;) columnes += (columnes.empty() ? "" : ", ") + tipus.lin.Columna(paper);
  return "SELECT " + columnes + " FROM " + std::string(tipus.lin.nom) +
         Condicio_Document(tipus, tipus.lin, numero, empresa) + " ORDER BY " + tipus.lin.Columna("LIN");
}

std::string SQL_Peu(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  const auto columna = [&](const char* paper) { return tipus.peu.Columna(paper); };
  return "SELECT " + columna("TIPUS_IVA") + ", " + columna("DESC_IVA") + ", " + columna("PORC_IVA") + ", " +
         columna("PORC_RE") + ", " + columna("BASE") + "," + columna("IVA") + ", " + columna("RE") + ", " +
         columna("IMPORT") + " FROM " + std::string(tipus.peu.nom) +
         Condicio_Document(tipus, tipus.peu, numero, empresa) + " ORDER BY " + columna("TIPUS_IVA");
}
