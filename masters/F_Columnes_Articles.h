// The columns that the two lists of articles show, and the style of their rows.
#pragma once

#include "core/controls/Graella.h"

const std::vector<Columna_Graella>& Columnes_Articles();
// "Baixa" for an article that is not active.
QString Estil_Article(const Recordset& rs, std::int64_t fila);
