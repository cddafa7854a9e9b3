// The kinds of document of sales, as constant descriptions: what is not told here is as in every kind.
#pragma once

#include "documents/Documents.h"

extern const Tipus_Document tipus_pressupost;
extern const Tipus_Document tipus_comanda;
extern const Tipus_Document tipus_albara;
extern const Tipus_Document tipus_factura;

void Registrar_Tipus_Venda();
