// The lines of a document, for every kind: writing one, deleting one, moving one, new rates on all of them, and the
// total that follows. What a kind does of its own are the steps of its description (Passos_Document). Reads and writes
// the lines, the foot and through the steps whatever they say.
#pragma once

#include <array>

#include "documents/Documents.h"
#include "documents/M_Linies.h"

// Where a line stands.
struct Lloc_Linia {
  Valor numero;
  std::string empresa;
  std::int16_t lin = 0;
};
// " WHERE NUMALB_x = n AND EMPRESA_x = 'e' AND LIN_x = l".
std::string Condicio_Linia(const Tipus_Document& tipus, const Lloc_Linia& lloc);
std::string SQL_Linia(const Tipus_Document& tipus, const Lloc_Linia& lloc);
// What it says.
struct Contingut_Linia {
  std::string article;
  std::string descripcio;
  Resultat_Linia xifres;
  bool operator==(const Contingut_Linia&) const = default;
};
// The figures of a line by the role words of their columns.
struct Xifra_De_Linia {
  const char* paper;
  double Resultat_Linia::*valor;
};
extern const std::array<Xifra_De_Linia, 11> xifres_de_linia;

// A typed line under its rates; `mode` says which of its figures steers the others.
Resultat_Linia Calcular_Linia(const Linia_Entrada& linia, const Taxes_Linia& taxes, Mode_Calcul mode);
// The same as the kind counts it: where it is valued at cost, the amounts are.
Resultat_Linia Valorar_Linia(const Tipus_Document& tipus, const Linia_Entrada& linia, const Taxes_Linia& taxes,
                             Mode_Calcul mode);
Contingut_Linia Llegir_Linia(const Tipus_Document& tipus, const Recordset& fila);
// Into the row in edit, passing over the columns that the kind has not.
void Posar_Linia(const Tipus_Document& tipus, const Contingut_Linia& linia, Recordset& fila);
// Into a new row, which the caller completes and writes.
void Posar_Linia_Nova(const Tipus_Document& tipus, const Lloc_Linia& lloc, const Contingut_Linia& linia,
                      Recordset& fila);
// What the kind posts for these units; nothing where it keeps no stock. Warns, and reads, before the first write.
Apunt_Estoc Preparar_Estoc(const Tipus_Document& tipus, const Capcalera_Oberta& cap, const std::string& article,
                           const std::vector<Unitats_Mogudes>& mogudes);

// Writes a line on the form's line recordset: row, foot, stock, and what the kind does to linked documents. Call it
// inside a transaction that has not written yet: a warning may be shown before it writes. Raises 1010 when the kind
// refuses it or the stock could not be posted (already shown), 6, 13 or the engine's.
void Afegir_Linia(const Tipus_Document& tipus, const Capcalera_Oberta& cap, const Linia_Entrada& linia,
                  Recordset& linies, Document_Obert& obert);

struct Linia_A_Esborrar {
  std::int16_t numero = 0;
  std::string article;  // as the user sees it
  double unitats = 0;
};
// Asks, deletes the line and undoes what it did. False when the user, or the kind, said no. A line that the kind keeps
// stays in silence. Raises Document_Inexistent when another terminal deleted the document, 80040E38 when the line is
// gone or is another one; then nothing is written. Call it inside a transaction that has not written yet.
bool Esborrar_Linia(const Tipus_Document& tipus, const Capcalera_Oberta& cap, const Linia_A_Esborrar& linia);

// New rates on all lines after a change of customer; the foot is rebuilt. In a transaction of its own unless one is
// open. False when there was neither a line nor a foot.
bool Recalcular_Linies(const Tipus_Document& tipus, const Capcalera_Oberta& cap, Document_Obert& obert);
// Exchanges a line with its neighbour: `avall` towards the end. False when there is none or the kind forbids it.
bool Moure_Linia(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa, std::int16_t linia,
                 bool avall);

// Is the document closed, or has it lines that keep its customer (Passos_Document::columna_que_bloqueja). Demanar_: it
// will be asked in this transaction (Connexio::Demanar).
bool Bloquejat_Per_Linies(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
void Demanar_Bloquejat_Per_Linies(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);

// The total that the open form shows: of the foot, which is rebuilt, or of the lines where a kind has no foot.
void Calcular_Totals(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa,
                     Document_Obert& obert);
// Euros, as the database has it.
double Total_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa);
