#include "sales/F_Vendes.h"

#include "core/formularis/Control_Interface.h"
#include "sales/F_Albara.h"
#include "sales/F_AlbaransM.h"
#include "sales/F_AlbaransS.h"

void Registrar_Formularis_Venda() {
  Registrar_Formulari(QStringLiteral("F_ALBARANSS"), [] { return new F_AlbaransS; });
  Registrar_Formulari(QStringLiteral("F_ALBARANSM"), [] { return new F_AlbaransM; });
  Registrar_Formulari(QStringLiteral("F_ALBARA"), [] { return new F_Albara; });
}
