#include "documents/F_Obrir_Document.h"

#include "core/M_Funcions_Comuns.h"
#include "core/formularis/Formularis_Oberts.h"
#include "documents/F_Editor_Document.h"
#include "session/M_Locks.h"

namespace {

void Obrir_Editor(const Tipus_Document& tipus, const Valor& numero, const QString& editor) {
  const std::string lletra(tipus.lletra_bloqueig);
  sessio.*tipus.numero_a_obrir = numero;
  Bloquejar_Per_Tipus(lletra, numero.Text());
  try {
    Mostrar_Formulari(editor);
  } catch (...) {
    Alliberar_Per_Tipus(lletra, numero.Text());
    throw;
  }
  Obrir_Formulari(editor);
}

}  // namespace

void Mostrar_Refus(const Error_Brollador& error) {
  sessio.Error_Mostrat = true;
  sessio.pantalla->Caixa(std::to_string(error.Numero()) + "-" + error.Descripcio(), estil::critic);
}

bool Obrir_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& etiqueta) {
  const QString editor = QString::fromStdString(std::string(tipus.formulari));
  const auto* obert = dynamic_cast<Editor_Document*>(Formulari_De_Nom(editor));
  const bool es_el_mateix = obert != nullptr && Mateix_Numero(obert->Numero_Document(), numero);
  if (obert != nullptr && !es_el_mateix) {
    Descarregar_Formulari(editor);
    if (Formulari_De_Nom(editor) != nullptr) return false;  // it could not save what it holds
  }
  sessio.*tipus.crida = etiqueta;
  try {
    if (es_el_mateix)
      Mostrar_Formulari(editor);
    else
      Obrir_Editor(tipus, numero, editor);
    return true;
  } catch (const Document_Inexistent& error) {
    sessio.pantalla->Caixa(error.Descripcio(), estil::critic);
  } catch (const Error_Brollador& error) {
    if (error.Numero() != errors::refusat) throw;
    Mostrar_Refus(error);
  }
  return false;
}
