// The address of a shared database: the path of a file, or postgresql://... as the server's own library reads it. An
// address may carry a password: nothing here puts one into a text that somebody reads.
#pragma once

#include <string>

// postgresql://...: a server's database, not a file.
bool Es_De_Servidor(const std::string& adreca);

// Raises 0x80004005, without the address in its words, when it is neither a path nor an address of the server.
void Exigir_Adreca(const std::string& adreca);
// The database that a server's address names; empty when it names none. Raises as Exigir_Adreca does.
std::string Base_De_Adreca(const std::string& adreca);
// The same server and user, another database.
std::string Amb_Base(const std::string& adreca, const std::string& base);
bool Te_Contrasenya(const std::string& adreca);
// A text of the library or the server without what is secret in the address.
std::string Sense_Contrasenya(std::string text, const std::string& adreca);
// The address for a person: without its password and whatever else it sets.
std::string Adreca_Per_Mostrar(const std::string& adreca);
