// The screens of invoices: search, list, editor.
#pragma once

void Registrar_Formularis_Factura();
