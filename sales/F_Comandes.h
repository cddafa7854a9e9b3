// The screens of orders: search, list and editor.
#pragma once

void Registrar_Formularis_Comanda();
