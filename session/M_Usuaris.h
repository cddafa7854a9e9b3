// Who is at the terminal and what they may do. Reads USUARIS, EMPRESES; writes USUARIS.
#pragma once

#include "core/Sessio.h"

// Checks code and password (an inactive user is the same as none) and fills user, language and company of the session
// (the chooser runs when the user's company does not exist). False when they do not match; nothing changes then.
bool Iniciar_Sessio(const std::string& usuari, const std::string& contrasenya);

void Habilitar_Menus(bool sessio_iniciada);
// The ten rights of the user into the session, and the menu by them.
void Carregar_Drets(const std::string& usuari);
bool Te_Acces(const std::string& dret);  // "C", "S" or "M", exactly
// Ticks the language and writes user and company in the menu bar.
void Actualitzar_Menu_Sessio();

// Creates a user named "Usuari" and its code, active, without a password or any access, in the session's language.
// Returns the code. Raises 80004005 when another terminal took the code at the same moment.
std::string Nou_Usuari();
// Asks, naming the user, and deletes it. The administrator and the user at work are not deleted: a box says so.
void Esborrar_Usuari(const std::string& codi, const std::string& descripcio);

// Statements of the list and of the editor.
std::string SQL_Usuaris();
std::string SQL_Usuari(const std::string& codi);

// What the editor takes: "S" or "N" for an active user, "M", "C" or "X" for a right, exactly. Each box says so.
bool Es_Actiu_Valid(const std::string& valor);
void Avisar_Actiu_Invalid();
void Avisar_Sense_Idioma();
bool Es_Dret_Valid(const std::string& valor);
void Avisar_Dret_Invalid();
