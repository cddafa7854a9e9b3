#include "sales/F_Vendes.h"

#include "sales/F_Albarans.h"
#include "sales/F_Comandes.h"
#include "sales/F_Factures.h"
#include "sales/F_Pressupostos.h"

void Registrar_Formularis_Venda() {
  Registrar_Formularis_Albara();
  Registrar_Formularis_Comanda();
  Registrar_Formularis_Pressupost();
  Registrar_Formularis_Factura();
}
