// What the six kinds of document share, told once. A shared routine takes the kind; the routine with the name of a
// kind is a line that calls it. A difference between kinds is a field of the description, never an `if` on a name.
//
// Every act on a paper passes through one routine here: creating a head, giving it a number, adding and deleting a
// line, deleting the paper.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/M_Mestres.h"

struct Taula_Document {
  std::string_view nom;    // ALBARACAP
  std::string_view sufix;  // AC
  // A role word with the table's suffix: Columna("NUMALB") is NUMALB_AC.
  std::string Columna(std::string_view paper) const;
};

// What the entry frame of an editor holds when the quantity is left.
struct Linia_Entrada {
  std::string article;
  std::string descripcio;
  std::string iva_article;  // code of the tax type
  double cost = 0;          // euros
  double unitats = 1;
  double porc_marge = 0;     // percent on cost
  double preu_unitari = 0;   // euros, without tax
  double pvp = 0;            // euros, with tax
  double dte = 0;            // percent
  double dte_article = 0;    // percent
  std::int64_t comanda = 0;  // order line that it serves; 0 none
  std::int16_t comanda_lin = 0;
  std::map<std::string, std::string, std::less<>> altres{};  // further fields of the kind's frame, by role words
};

// The head as it stands on the form.
struct Capcalera_Oberta {
  Valor numero;
  std::string empresa;
  bool iva = false;
  bool re = false;
};

// Units that a line moves: +1 when they come into a document, -1 when they go out of it.
struct Unitats_Mogudes {
  double signe;
  double unitats;
};
double Total_Mogut(const std::vector<Unitats_Mogudes>& mogudes);
// The stock that a line moves: looked at, and warned of, before the first write; asked for when the line stands;
// posted.
struct Apunt_Estoc {
  std::function<void()> demanar;
  std::function<void()> fer;
};

// What a new line does to the documents that its own is linked with.
struct Apunt_Linia {
  std::function<void()> abans;    // right before the row is written, when nothing can be asked any more
  std::function<void()> despres;  // when the row, the total and the stock are
};

// What a kind does of its own around its lines. A step that is null is not taken.
struct Passos_Document {
  // Role word: a line where this column is not 0 keeps the customer, as a closed document does. Null: nothing keeps it.
  const char* columna_que_bloqueja = nullptr;
  // A statement of the papers that this one is made of, by company and how many. Those of its own company freeze it: no
  // line comes or goes, though what it has may move. Any of them keeps its customer.
  std::string (*origens)(const Valor& numero) = nullptr;

  // A new line, in this order. The first one asks together for what the others will read (Connexio::Demanar); the
  // second may refuse the line, by raising, and writes nothing yet.
  void (*demanar)() = nullptr;
  Apunt_Linia (*apunt)(const Capcalera_Oberta& cap, const Linia_Entrada& linia) = nullptr;
  // A posting for each of the units moved; what is warned of is what all of them leave.
  Apunt_Estoc (*estoc)(const Capcalera_Oberta& cap, const std::string& article,
                       const std::vector<Unitats_Mogudes>& mogudes) = nullptr;
  // The columns that only this kind has, into the row that is about to be written.
  void (*columnes)(const Capcalera_Oberta& cap, const Linia_Entrada& linia, Recordset& fila) = nullptr;

  // A line deleted. The first one may refuse it, after a box; `columna_lligada` is the role word of a column: a line
  // where it is not 0 stays, in silence.
  bool (*es_pot_esborrar)(const Capcalera_Oberta& cap) = nullptr;
  const char* columna_lligada = nullptr;
  void (*despres_d_esborrar)(const Capcalera_Oberta& cap, const Recordset& fila) = nullptr;
  // When the total has been made again, before all of it is committed.
  void (*linies_esborrades)(const Capcalera_Oberta& cap, Document_Obert& obert) = nullptr;

  bool (*es_pot_moure)(const Valor& numero, const std::string& empresa, std::int16_t linia) = nullptr;

  // The whole paper has been deleted: what depended on it is let go, in the same transaction.
  void (*document_esborrat)(const Valor& numero, const std::string& empresa) = nullptr;
};

struct Passos_Detall;

struct Tipus_Document {
  std::string_view formulari;  // F_ALBARA
  std::string_view llista;     // F_ALBARANSM
  Taula_Document cap;
  Taula_Document lin;
  Taula_Document peu = {};                // empty name: no foot (transfers)
  std::string_view lletra_bloqueig;       // of LOCKS
  std::string_view lletra_pagament = {};  // of PAGAMENTS; empty: none
  // Does the document of that letter hold payments: then it is not deleted, not even when it is empty.
  bool (*te_pagaments)(const std::string& lletra, std::int64_t numero) = nullptr;
  bool numero_es_text = false;         // purchase notes carry the supplier's own number
  bool taxes_de_l_article = false;     // no boxes of tax in the head: lines take the rates of their articles
  bool valorat_al_cost = false;        // the amounts of a line are those of its cost
  std::string_view columnes_linies;    // role words of the lines grid, in its order, separated by blanks
  bool peu_exigeix_capcalera = false;  // a foot total for a head that is missing is an error, not nothing
  Valor Sessio::*numero_a_obrir;       // the document that its editor is to open
  std::string Sessio::*crida;          // carries the tags ;NEW and ;EDIT of its list
  Pregunta pregunta_esborrar;          // before its number, when a whole document is to go
  Pregunta refus_esborrar = {};        // before its number, when the database keeps it; none: the error as it comes
  const char* error_estoc = "Error al intentar actualizar movimientos, stock ...";
  const Passos_Document* passos = nullptr;
  const Passos_Detall* detall = nullptr;  // what it does with the detail of a line
};
// The steps of a kind; of one that has none, no steps.
const Passos_Document& Passos_De(const Tipus_Document& tipus);

// Another terminal deleted the document. "El document ja no existeix.", in the language of the session.
class Document_Inexistent : public Error_Brollador {
 public:
  explicit Document_Inexistent(const Tipus_Document& tipus);
};

// The kinds of this program are told at start, by the folders that know them.
void Registrar_Tipus(const Tipus_Document& tipus);
const std::vector<const Tipus_Document*>& Tipus_Registrats();

// What may be typed as the number of a document, and what it becomes: a whole number from 1 to 2147483647; or, where
// numbers are texts, any text that is not empty. Nothing for what is no number.
std::optional<Valor> Numero_Escrit(const Tipus_Document& tipus, std::string_view text);
// The same document: texts are compared as the database does, without case.
bool Mateix_Numero(const Valor& un, const Valor& altre);
// The number as a part of a file's name: no separator of folders, no other folder, nothing that a file may not hold.
std::string Numero_Per_A_Fitxer(const Valor& numero);
// A number of a document for a statement: bare, or between quotes where it is text.
std::string Numero_Document_SQL(const Tipus_Document& tipus, const Valor& numero);
// " WHERE NUMALB_x = n AND EMPRESA_x = 'e'" on one of the kind's tables.
std::string Condicio_Document(const Tipus_Document& tipus, const Taula_Document& taula, const Valor& numero,
                              const std::string& empresa);

// Creates the head (number, company, its name, today, and `altres`: role words and what goes into them) and returns its
// number. Raises 1010 "Empresa" without a company, the engine's error when another terminal took the number.
Valor Crear_Capcalera(const Tipus_Document& tipus, const std::vector<std::pair<const char*, Valor>>& altres = {});
Valor Seguent_Numero(const Tipus_Document& tipus, const std::string& empresa);
// Raises 6 after line 32767.
std::int16_t Seguent_Linia(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
// It will be asked in this transaction (Connexio::Demanar).
void Demanar_Seguent_Linia(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
// Raises Document_Inexistent, after its box, when there is no such document.
void Exigir_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
bool Existeix_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
std::int64_t Comptar_Linies(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
// What its lines keep the head from, read together as the database has it now: another terminal may have added some.
struct Estat_Document {
  bool te_linies = false;
  bool bloquejat = false;   // the customer cannot change any more
  bool congelat = false;    // made of other papers: no line comes or goes
  bool te_origens = false;  // of whatever company
};
// Both will be asked in this transaction (Connexio::Demanar).
void Demanar_Estat(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
Estat_Document Llegir_Estat(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
bool Hi_Ha_Descomptes(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
// Asks, in the words of the kind, and deletes the whole paper, or tells why it stays.
void Demanar_Esborrar_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
// The whole paper: lines and foot go with the head, by the database. False when it was gone already.
bool Esborrar_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
// On closing: a paper without lines and without payments goes.
enum class Buit { Es_Queda, Esborrat, Perdut };  // Perdut: it was gone already
Buit Esborrar_Document_Buit(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
// Exchanges a line with its neighbour, through the spare number 0. False when there is none on that side. Raises
// 80040E38 when one of the two is there no more.
bool Intercanviar_Linia(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa,
                        std::int16_t linia, bool avall);

// Statements of the editors: the head, the lines grid, the foot grid.
std::string SQL_Capcalera(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
std::string SQL_Linies(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
std::string SQL_Peu(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
