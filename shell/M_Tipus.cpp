#include "shell/M_Tipus.h"

#include "sales/M_Tipus_Venda.h"
#include "stock/M_Tipus_Estoc.h"

void Registrar_Tipus_De_Document() {
  Registrar_Tipus_Venda();
  Registrar_Tipus_Estoc();
}
