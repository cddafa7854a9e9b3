#include "documents/F_Llista_Documents.h"

#include "core/M_Funcions_Comuns.h"
#include "core/formularis/Control_Interface.h"
#include "session/M_Locks.h"

namespace {

// A document that could not be opened: its number in the system's words, without blanks around the dash.
void Mostrar_Refus(const Error_Brollador& error) {
  sessio.Error_Mostrat = true;
  sessio.pantalla->Caixa(std::to_string(error.Numero()) + "-" + error.Descripcio(), estil::critic);
}

}  // namespace

Llista_Documents::Llista_Documents(const QString& nom, const Tipus_Document& tipus) : Llista(nom), tipus_(tipus) {}

void Llista_Documents::Nou() {
  Valor numero;
  try {
    numero = Crear_Document();
    Obrir_Editor(numero, ";NEW");
  } catch (const Error_Brollador& error) {
    if (!numero.Es_Nul())
      Esborrar_Document(tipus_, numero, sessio.Empresa_Actual);  // nobody is left with an empty head
    if (error.Numero() != errors::refusat) throw;
    Mostrar_Refus(error);
  }
}

void Llista_Documents::Obrir_Fila() {
  try {
    Obrir_Editor(Graella_Llista()->Valor_Actual(tipus_.cap.Columna("NUMALB").c_str()), ";EDIT");
  } catch (const Error_Brollador& error) {
    if (error.Numero() != errors::refusat) throw;
    Mostrar_Refus(error);
  }
}

void Llista_Documents::Obrir_Editor(const Valor& numero, const char* proposit) {
  Passar_Numero(numero);
  sessio.Crida_Mestre = std::string(tipus_.llista) + proposit;
  const QString editor = QString::fromStdString(std::string(tipus_.formulari));
  Bloquejar_Per_Tipus(std::string(tipus_.lletra_bloqueig), numero.Text());
  try {
    Mostrar_Formulari(editor);
  } catch (...) {
    Alliberar_Per_Tipus(std::string(tipus_.lletra_bloqueig), numero.Text());
    throw;
  }
  Obrir_Formulari(editor);
}

void Llista_Documents::Esborrar_Fila() {
  const Valor numero = Graella_Llista()->Valor_Actual(tipus_.cap.Columna("NUMALB").c_str());
  if (numero.Es_Nul()) return;
  Esborrar(numero);
  Requerir();
}
