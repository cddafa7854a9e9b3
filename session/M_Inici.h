// Start-up before any window: paths, configuration file, connections, parameters.
#pragma once

#include "core/Sessio.h"

// Dir_Dades and what hangs from it. The folder is the user's data folder of the desktop standard.
void Fixar_Directoris();
// Computer name, "/", user name.
std::string Nom_Equip();
// Reads Fitxer_Ini into Fitxer_Comu: one item, with or without double quotes, cut at the first comma. Raises 53.
void Llegir_Ini();
// Shared database first, then the local one. Raises the engine's error.
void Obrir_Connexions();
void Tancar_Connexions();
// CONFIGURACIO (local) into Parametres; a key that stands twice raises an error.
void Carregar_Parametres();

// Steps of the start up to the parameters, in their order; a missing Fitxer_Ini is passed over. Errors reach the
// caller.
void Preparar_Inici();
// The box that tells that the start failed: its text for an error.
std::string Text_Inici_Fallit(const Error_Brollador& error);
