#include "core/menes/Llista_Mestra.h"

#include "core/formularis/Formularis_Oberts.h"

// No row is made for an editor that cannot show it yet.
void Llista_Mestra::Nou() {
  if (Deixar_El_D_Abans(QString::fromUtf16(mestra_.editor))) Obrir_Editor(mestra_.nou());
}

void Llista_Mestra::Obrir_Fila() {
  const Valor codi = Graella_Llista()->Valor_Actual(mestra_.codi);
  if (!codi.Es_Nul()) Obrir_Editor(codi.Text());
}

// A row that another terminal deleted goes from the list when its editor does not open.
void Llista_Mestra::Obrir_Editor(const std::string& codi) {
  const QString editor = QString::fromUtf16(mestra_.editor);
  if (!Deixar_El_D_Abans(editor)) return;
  sessio.*mestra_.per_obrir = codi;
  try {
    if (Mostrar_Formulari(editor) != nullptr) Obrir_Formulari(editor);
  } catch (const Error_Brollador& error) {
    if (error.Numero() == errors::concurrencia) Requerir();
    throw;
  }
}

void Llista_Mestra::Esborrar_Fila() {
  const Graella& graella = *Graella_Llista();
  const Valor codi = graella.Valor_Actual(mestra_.codi);
  if (codi.Es_Nul()) return;
  mestra_.esborrar(codi.Text(), graella.Valor_Actual(mestra_.descripcio).Text());
  Requerir();
}
