#include "session/Canvi_Idioma.h"

#include "core/formularis/Control_Interface.h"
#include "core/formularis/Formulari.h"
#include "session/M_Idiomes.h"
#include "session/M_Usuaris.h"

void Canviar_Idioma(std::int16_t id) {
  Fixar_Idioma(id);
  Traduir_Formulari(QStringLiteral("F_PRINCIPAL"));
  for (const auto* formulari : Formularis_Carregats()) Traduir_Formulari(formulari->Nom());
  Actualitzar_Menu_Sessio();
}
