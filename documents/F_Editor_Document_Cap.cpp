#include <QPushButton>

#include "core/controls/Controls.h"
#include "core/controls/Focus_Camps.h"
#include "documents/F_Editor_Document.h"
#include "documents/F_Obrir_Document.h"
#include "documents/M_Linies_Document.h"
#include "session/M_Locks.h"

void Editor_Document::Desar_Capcalera() {
  const Valor abans = Numero();
  cap_->Desar(Numero_Escrit(Tipus(), cap_->Camp_Numero()->text().toStdString()).value_or(abans));
  if (!(Numero() == abans)) Obrir_Recordsets();
  Aplicar_Drets();
}

// True when the number in the field is the document's, or has become it. One that is taken gives way to the old one.
bool Editor_Document::Acceptar_Numero() {
  QLineEdit* camp = cap_->Camp_Numero();
  const auto escrit = Numero_Escrit(Tipus(), camp->text().toStdString());
  const auto mostrar = [&] { camp->setText(QString::fromStdString(Numero().Text())); };
  if (!escrit && camp->text().toStdString() != Numero().Text()) return false;
  const bool es_el_mateix = !escrit || Mateix_Numero(*escrit, Numero());
  if (!es_el_mateix && Existeix_Document(Tipus(), *escrit, sessio.Empresa_Actual)) {
    mostrar();
    return false;
  }
  try {
    if (!es_el_mateix) Canviar_Numero(*escrit);
    mostrar();
    return true;
  } catch (const Error_Brollador& error) {
    cap_->Cancellar();
    mostrar();
    Retenir_Focus(camp);
    if (error.Numero() == errors::refusat) Mostrar_Refus(error);  // as where a document is opened
    throw;
  }
}

void Editor_Document::Deixar_Numero() {
  if (!Acceptar_Numero()) Retenir_Focus(cap_->Camp_Numero());
}

// The number is taken when the field is left.
void Editor_Document::Proposar_Forat() {
  cap_->Camp_Numero()->setText(QString::number(descripcio_.primer_forat()));
  Posar_Focus(cap_->Camp_Numero());
}

// The lock of the new number first: when it is refused the document stays locked under its own.
void Editor_Document::Canviar_Numero(const Valor& nou) {
  const std::string lletra(Tipus().lletra_bloqueig);
  const Valor vell = Numero();
  Bloquejar_Per_Tipus(lletra, nou.Text());
  try {
    Desar_Capcalera();
  } catch (const Error_Brollador&) {
    Desbloquejar_Document(lletra, sessio.Empresa_Actual, nou.Text());
    throw;
  }
  Desbloquejar_Document(lletra, sessio.Empresa_Actual, vell.Text());
}

void Editor_Document::Canviar_Qui() {
  cap_->Canviar_Qui();
  Desar_Capcalera();
  if (Recalcular_Linies(Tipus(), cap_->Oberta(), *this)) {
    Requerir_Linies();
    Refrescar_Peu();
  }
  Aplicar_Estat();
  Aplicar_Opcio();
}

void Editor_Document::Refrescar_Peu() {
  if (graella_peu_ == nullptr) return;
  peu_.Requery();
  graella_peu_->Refrescar();
}

// Each step runs whatever became of the one before: a document that cannot be saved is released all the same, and one
// that is gone is told of once.
void Editor_Document::Descarregar() {
  if (Dret() != "C") {
    bool desada = false;
    Guardar_Event([this] { Acceptar_Numero(); });  // typed, and the field never left
    Guardar_Event([&] {
      Desar_Capcalera();
      desada = true;
    });
    Guardar_Event([&] {
      const bool hi_es = Esborrar_Document_Buit(Tipus(), Numero(), sessio.Empresa_Actual) != Buit::Perdut;
      if (desada && !hi_es) Llancar_Error(errors::concurrencia, std::string(Tipus().formulari));
    });
  }
  Alliberar_Per_Tipus(std::string(Tipus().lletra_bloqueig), Numero().Text());
  graella_linies_->Lligar(nullptr);
  if (graella_peu_ != nullptr) graella_peu_->Lligar(nullptr);
  cap_->Tancar();
  for (Recordset* rs : {&linies_, &peu_}) rs->Close();
  if (descripcio_.qui != nullptr && descripcio_.qui->document_tancat != nullptr)
    Guardar_Event([this] { descripcio_.qui->document_tancat(); });
}
