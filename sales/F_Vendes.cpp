#include "sales/F_Vendes.h"

#include "core/formularis/Amb_Ui.h"
#include "core/formularis/Formularis_Oberts.h"
#include "documents/F_Detall_Linia.h"
#include "sales/F_Albarans.h"
#include "sales/F_Comandes.h"
#include "sales/F_Factures.h"
#include "sales/F_Pressupostos.h"
#include "ui_F_Detall_Linia.h"

void Registrar_Formularis_Venda() {
  static const Descripcio_Detall detall = {.preus = preus_de_detall};
  Registrar_Formulari(QStringLiteral("F_DETALL_LINIA"), Fabrica_De<Detall_Linia, Ui::F_Detall_Linia>(detall));
  Registrar_Formularis_Albara();
  Registrar_Formularis_Comanda();
  Registrar_Formularis_Pressupost();
  Registrar_Formularis_Factura();
}
