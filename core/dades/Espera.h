// Who wants to know that a statement waits because another terminal writes.
#pragma once

#include <functional>

// `rutina` runs again and again while a statement waits, from the first tenth of a second on. It may not use the
// connections nor let events run. Null: nobody.
void En_Esperar_Torn(std::function<void()> rutina);
// Called by the engines.
void Avisar_De_L_Espera();
