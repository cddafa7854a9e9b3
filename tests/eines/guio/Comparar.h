// Does what was found hold against what a script expects. Each gives nothing when it does, else what was seen instead.
#pragma once

#include <QString>
#include <optional>

#include "core/dades/Recordset.h"

using Desacord = std::optional<QString>;

// The first row against `V | V ...`: numbers as numbers, NULL for null, dates in either writing, texts exactly.
Desacord Comparar_Primera_Fila(const Recordset& rs, const QString& esperat);
Desacord Comparar_Files(const Recordset& rs, const QString& esperat);
bool Coincideix_Valor(const Valor& valor, const QString& esperat);

// Text (~, or !~ on no page) and pages of a PDF; runs of blanks count as one.
Desacord Comparar_PDF(const QString& fitxer, const QString& que, const QString& esperat);
// A line of a PDF that begins with `comenca` has these words and no others, column by column from left to right; an
// empty column stands for nothing. The first column may be the one that it begins with or the next one.
Desacord Comparar_Fila_De_PDF(const QString& fitxer, const QString& comenca, const QString& esperat);
// A cell of the first sheet of a workbook.
Desacord Comparar_Cella(const QString& llibre, const QString& cella, const QString& esperat);
