// What a PostgreSQL database has to hold before the first table of ours: the functions of the dialect and the table of
// the catalogue; and the definitions of tables and indexes in the server's own words.
//
// The server compares texts byte by byte (collation "C"), which no version of any library changes. What the dialect
// compares without case goes through plegar(), the frozen table of this program written into the database: the keys
// are unique indexes over it.
#pragma once

#include <string>
#include <vector>

#include "core/dades/Dialecte.h"

// Statements that prepare an empty database. `esquema`: the server's schema where they go.
std::vector<std::string> Definicions_Inicials(const std::string& esquema);
// The functions of them alone, to be put over those of an older program.
std::vector<std::string> Funcions_PostgreSQL(const std::string& esquema);

// A table, a new column or an index of the dialect.
std::vector<std::string> Definicions_PostgreSQL(const Definicio& definicio, const Cataleg& taules);

extern const char* const clau_oculta_postgresql;  // a column of every table, quoted
