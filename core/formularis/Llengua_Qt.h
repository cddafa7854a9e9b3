// The language of Qt itself: calendar, file and print dialogs, menus of text fields, names of days and months.
#pragma once

// It speaks the language of the session from now on. Nothing when it does already.
void Traduir_Toolkit();
