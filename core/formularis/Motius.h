// Why a control cannot be used now, for the tooltip of a disabled button.
#pragma once

#include <QString>

class QWidget;

// Properties of a control that tell what keeps it disabled: the screen that it works on, that the rights of the user do
// not reach it, and words of its own in a window that is no form.
constexpr const char* propietat_pantalla = "pantalla";
constexpr const char* propietat_sense_dret = "sense_dret";
constexpr const char* propietat_motiu = "motiu";

// In the language of the session; never empty.
QString Motiu_De_Desactivat(const QWidget& control);

// What it does, when it has a tooltip, and below why it cannot.
QString Ajuda_De_Desactivat(const QWidget& control);
