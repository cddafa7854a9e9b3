// The screens of customers, suppliers and articles.
#pragma once

void Registrar_Formularis_Mestres();
