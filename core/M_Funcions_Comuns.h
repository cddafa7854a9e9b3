// Common routines that everything else calls: rounding, nulls, dates for statements, the server's clock, positions of
// lists, and how errors and messages reach the user. Touches no table but ARTICLES (the server's clock).
#pragma once

#include <functional>
#include <string>

#include "core/Sessio.h"

// Rounds half away from zero through the text of the number at 15 significant digits, which is what makes 1.005 give
// 1.01. `decimals` is 2 for amounts (euros), 5 for percentages. Values whose scaled form reaches 1E+15 are out of
// range.
double Arrodonir(double valor, double decimals);

// `valor`, or `defecte` when it is null or its text is empty.
Valor Nul_A_Defecte(const Valor& valor, const Valor& defecte = 0);

// Literals for statements.
std::string Data_SQL(const Data_Hora& data);  // #3/5/2011#
std::string Valor_SQL(const Valor& valor);    // any value: 'text' (Text_SQL), number, #date#, NULL

// Clocks. Avui and Ara are the only ones of the program. Fixar_Avui makes them stand on a day, the time of day going
// on; Fixar_Rellotge replaces them (tests); Deixar_Anar_Rellotge gives the computer's back.
Data_Hora Avui();
Data_Hora Ara();
void Fixar_Avui(const Data_Hora& dia);
void Fixar_Rellotge(std::function<Data_Hora()> rellotge);
void Deixar_Anar_Rellotge();
// The clock of the database engine, so that terminals agree; the local one when ARTICLES is empty.
Data_Hora Data_Hora_Servidor();

// Goes back to a saved row after a requery: `posicio` rows from the first. Never raises.
void Reposicionar(Recordset& rs, std::int64_t posicio);
// Reads the rows of a list again, by another statement when there is one, and goes back to the row that was current.
// The only one that fills and reads Posicio_Guardada. Raises what the reading raises.
void Requerir_Alla_Mateix(Recordset& rs, const std::string& sentencia = {});

// Closes the recordsets that outlive their form, at the end of the program and before a backup.
void Tancar_Recordsets_Informe();

// Waits so many seconds, letting events run and asleep between them; what the user does meanwhile waits too.
void Esperar(std::int32_t segons);

// Creates a folder path piece by piece; `cami` comes back rebuilt, without doubled slashes and with a closing one.
void Crear_Directori(std::string& cami);

bool Formulari_Carregat(std::string_view nom);

// The text of the session's language; empty for a language that is none of the three.
std::string Missatge(const char* catala, const char* castella, const char* angles);

// "number - description", the system's error box (critical), and a line of the log of errors. Once per failure: see
// Error_Mostrat.
void Mostrar_Error(const Error_Brollador& error);

// The system's input while a document is saved: typed keys and clicks are swallowed. Releasing twice is harmless.
void Bloquejar_Entrada();
void Alliberar_Entrada();
