// The screens of orders: search, list, editor, and the picking of what is pending.
#pragma once

void Registrar_Formularis_Comanda();
