// A form on paper, black on white: its grids one after the other with all their rows, or, when it has none, its own
// image. Goes out through the print dialog as any document does.
#pragma once

class Formulari;
struct Pagines;

// What M_PrintScreen does with the form in front. Without one, and on any failure, the box "No Puc !!!!!".
void Imprimir_Formulari(Formulari* formulari);

// The pages of a form.
Pagines Pagines_De_Formulari(Formulari& formulari);
