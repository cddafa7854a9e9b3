// The letter of printed pages, in twips so that every device shows the same page.
#pragma once

#include <QFont>

QFont Lletra(double punts, bool negreta);
