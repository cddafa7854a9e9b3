// What the six kinds of document share, told once. A shared routine takes the kind; the routine with the name of a
// kind is a line that calls it. A difference between kinds is a field of the description, never an `if` on a name.
//
// Every act on a paper passes through one routine here: creating a head, giving it a number, adding and deleting a
// line, deleting the paper.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/Sessio.h"

struct Taula_Document {
  std::string_view nom;    // ALBARACAP
  std::string_view sufix;  // AC
  // A role word with the table's suffix: Columna("NUMALB") is NUMALB_AC.
  std::string Columna(std::string_view paper) const;
};

struct Tipus_Document {
  std::string_view formulari;  // F_ALBARA
  std::string_view llista;     // F_ALBARANSM
  Taula_Document cap;
  Taula_Document lin;
  Taula_Document peu;                // empty name: no foot (transfers)
  std::string_view lletra_bloqueig;  // of LOCKS
  std::string_view lletra_pagament;  // of PAGAMENTS; empty: none
  bool numero_es_text;               // purchase notes carry the supplier's own number
  std::string_view columnes_linies;  // role words of the lines grid, in its order, separated by blanks
  bool peu_exigeix_capcalera;        // a foot total for a head that is missing is an error, not nothing
};

extern const Tipus_Document tipus_pressupost;
extern const Tipus_Document tipus_comanda;
extern const Tipus_Document tipus_albara;
extern const Tipus_Document tipus_factura;
extern const Tipus_Document tipus_albcompra;
extern const Tipus_Document tipus_albmag;

// The kind that a code of LOCKS stands for; null for any other code.
const Tipus_Document* Tipus_De_Bloqueig(std::string_view lletra);

// A number of a document for a statement: bare, or between quotes where it is text.
std::string Numero_Document_SQL(const Tipus_Document& tipus, const Valor& numero);
// " WHERE NUMALB_x = n AND EMPRESA_x = 'e'" on one of the kind's tables.
std::string Condicio_Document(const Tipus_Document& tipus, const Taula_Document& taula, const Valor& numero,
                              const std::string& empresa);

// Creates the head (number, company, its name, today) and returns its number. Raises 1010 "Empresa" without a company,
// the engine's error when another terminal took the number.
Valor Crear_Capcalera(const Tipus_Document& tipus);
Valor Seguent_Numero(const Tipus_Document& tipus, const std::string& empresa);
// Raises 6 after line 32767.
std::int16_t Seguent_Linia(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
bool Existeix_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
std::int64_t Comptar_Linies(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
bool Hi_Ha_Descomptes(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
// The whole paper: lines and foot go with the head, by the database.
void Esborrar_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
// On closing: a paper without lines and without payments goes. True when it went.
bool Esborrar_Document_Buit(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
// Exchanges a line with its neighbour, through the spare number 0. False when there is none on that side.
bool Intercanviar_Linia(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa,
                        std::int16_t linia, bool avall);

// Statements of the editors: the head, the lines grid, the foot grid.
std::string SQL_Capcalera(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
std::string SQL_Linies(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
std::string SQL_Peu(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);

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
};

// The head as it stands on the form.
struct Capcalera_Oberta {
  Valor numero;
  std::string empresa;
  bool iva = false;
  bool re = false;
};
