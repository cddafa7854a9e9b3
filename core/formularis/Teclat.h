// The keyboard as the system wants it: Enter goes to the next field, the point is the decimal comma.
#pragma once

#include <QString>

class QKeyEvent;
class QLineEdit;
class QWidget;

// The point of the keyboard or of its numeric pad shows a comma in a numeric field. Who goes on to a second mark was
// typing thousands: the ones before become points, and a point stays one ("1.234,50" and "1.234.567" can be typed as
// they are written). True when the key was a mark and the field has it.
bool Punt_Per_Coma(const QKeyEvent& tecla, QLineEdit& camp);

// Enter: a button is pressed, any other field is left for the next one, whose text is selected. The two fields of the
// system that take line breaks keep the key. True when the key is consumed.
bool Enter_Avanca(const QKeyEvent& tecla, QWidget& formulari);

// The next field of the form, as the Tab key would.
void Premer_Tab(QWidget& formulari);
