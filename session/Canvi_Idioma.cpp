#include "session/Canvi_Idioma.h"

#include "core/formularis/Formularis_Oberts.h"
#include "session/M_Idiomes.h"
#include "session/M_Usuaris.h"

void Canviar_Idioma(std::int16_t id) {
  Fixar_Idioma(id);
  Traduir_Formularis();
  Actualitzar_Menu_Sessio();
}
