// A field that refuses what it holds looks it, with the focus and without, and says why: in its tooltip and in a line
// below the form. It looks as before as soon as its text is another one.
#pragma once

#include <QString>

class QWidget;

// An empty `motiu` gives the usual words for a field of its kind.
void Senyalar_Refus(QWidget* camp, const QString& motiu = {});
void Treure_Refus(QWidget* camp);
// Why the field refuses what it holds; empty when it does not.
QString Refus_De(const QWidget* camp);
