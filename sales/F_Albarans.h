// The screens of delivery notes: search form, list and editor.
#pragma once

void Registrar_Formularis_Albara();
