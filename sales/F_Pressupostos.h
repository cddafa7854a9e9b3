// The screens of proposals: search, list and editor.
#pragma once

void Registrar_Formularis_Pressupost();
