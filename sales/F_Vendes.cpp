#include "sales/F_Vendes.h"

#include "sales/F_Albarans.h"

void Registrar_Formularis_Venda() {
  Registrar_Formularis_Albara();
}
