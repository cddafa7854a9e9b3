// Application locks of documents: a row of LOCKS for as long as an editor shows a document. Reads and writes LOCKS.
#pragma once

#include "core/Sessio.h"

// True when the lock was taken. Any failure counts as a busy document. In a transaction that is open the row belongs to
// it, and is neither committed nor undone here: other terminals see it at its end.
bool Bloquejar_Document(const std::string& document, const std::string& empresa, const std::string& numero);
// Removes the row whoever holds it; a missing row is no error. True when it ended well.
bool Desbloquejar_Document(const std::string& document, const std::string& empresa, const std::string& numero);
// Locks of this terminal, left by a crash.
void Netejar_Locks_Equip();
// The documents that are locked, told at start: their code in LOCKS and the form that holds the lock.
void Registrar_Bloqueig(const std::string& document, const std::string& formulari);
// Locks for the form of a kind ("AC", "C", "AM", "P", "F", "PR"); a code that nobody told does nothing. Raises 1010
// with the form's name as source and "Document en ús!" in the language of the session.
void Bloquejar_Per_Tipus(const std::string& document, const std::string& numero);
// At the form's unload: releases when the flag is set.
void Alliberar_Per_Tipus(const std::string& document, const std::string& numero);
