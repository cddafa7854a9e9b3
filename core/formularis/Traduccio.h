// The texts of forms from table TEXTS, by the names of their controls.
#pragma once

#include <QString>

// Captions, grid headers, tabs, options and tips of a loaded form (or F_PRINCIPAL) in the language of the session. A
// row whose control is not there is passed over; one whose property the control lacks raises error 438. A form that is
// not loaded gets no translation.
void Traduir_Formulari(const QString& nom);
