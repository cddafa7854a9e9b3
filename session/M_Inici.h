// Start-up before any window: paths, configuration file, connections, parameters.
#pragma once

#include "core/Sessio.h"

// Dir_Dades and what hangs from it. The folder is the user's data folder of the desktop standard.
void Fixar_Directoris();
// The name of this terminal in LOCKS: computer, "/", account; behind another "/" the mark of its data folder
// (Dir_Dades), where that is not the account's usual one, or where the account's name has capitals, which LOCKS does
// not tell from small letters. So no two terminals that run at once share a name, and each keeps its own.
std::string Nom_Equip();
// The same for an account with that home folder (empty: unknown).
std::string Nom_De_Terminal(const std::string& equip, const std::string& compte, const std::string& casa);
// Reads Fitxer_Ini into Fitxer_Comu: one item, with or without double quotes, cut at the first comma. Raises 53.
void Llegir_Ini();
// Raises unless the open shared database (VERSIO) is of this program's version; the text tells who is to be renewed.
void Exigir_Versio();
// Shared database first, then the local one, which is made anew when it is another program's. Raises the engine's
// error, and that of Exigir_Versio.
void Obrir_Connexions();
void Tancar_Connexions();
// The data folder of an older installation becomes the user's alone; when the shared database lies in it, what it holds
// of this terminal does.
void Tancar_Als_Altres();
// CONFIGURACIO (local) into Parametres; a key that stands twice raises an error.
void Carregar_Parametres();

// Steps of the start up to the parameters, in their order; a missing Fitxer_Ini is passed over. Errors reach the
// caller.
void Preparar_Inici();
// The box that tells that the start failed: its text for an error.
std::string Text_Inici_Fallit(const Error_Brollador& error);
