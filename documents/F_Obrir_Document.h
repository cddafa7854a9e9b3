// The one way to the editor of a document, for lists and for whatever else names documents.
#pragma once

#include "documents/Documents.h"

// Locks the document and shows its editor, which reads the tag (";NEW", ";EDIT" behind the name of the caller) to know
// where to begin. An editor that shows another document leaves its fields, saves and closes first. False when nothing
// opened, after a box that says why: the document is in use, or another terminal deleted it.
bool Obrir_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& etiqueta);

// The box of a document that is refused (1010): the number and the words, without blanks around the dash.
void Mostrar_Refus(const Error_Brollador& error);
