// The report of the five valued documents: its page, drawn from what tells one document from another.
#pragma once

#include "output/M_Informes.h"
#include "output/informe/Informe.h"

// DR_PRESSUPOST_VALORAT, DR_COMANDA_VALORAT, DR_ALBARA_VALORAT, DR_FACTURA_VALORAT, DR_FACTCOMPRA_VALORAT.
const Definicio_Informe& DR_Valorat(const Descripcio_Impressio& descripcio);

// With a logo: the company's block begins at `top` twips, beside the picture until it has slid under it, and never so
// low that the lines have no room left. The picture is set before.
void Posar_Bloc_Empresa(Informe& informe, int top);
