// The screens of invoices: search, list, editor, and the invoicing run.
#pragma once

void Registrar_Formularis_Factura();
