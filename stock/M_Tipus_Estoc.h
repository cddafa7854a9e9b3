// The kinds of document that only move stock, as constant descriptions: purchase notes and transfers between
// warehouses.
#pragma once

#include "documents/Documents.h"

extern const Tipus_Document tipus_albcompra;
extern const Tipus_Document tipus_albmag;

void Registrar_Tipus_Estoc();
