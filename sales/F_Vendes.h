// The screens of sales, by name.
#pragma once

void Registrar_Formularis_Venda();
