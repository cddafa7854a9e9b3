// The kinds of document of this program: told once, before anything is locked, listed or opened.
#pragma once

void Registrar_Tipus_De_Document();
