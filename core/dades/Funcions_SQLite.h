// What the dialect has and SQLite has not: the collation of texts, LIKE without case, dates, ROUND to the even digit.
#pragma once

struct sqlite3;

void Registrar_Funcions_SQLite(sqlite3* base);
