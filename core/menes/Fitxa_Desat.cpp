#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <algorithm>

#include "core/controls/Focus_Camps.h"
#include "core/formularis/Formularis_Oberts.h"
#include "core/menes/Fitxa.h"

bool Fitxa::Te_Canvis() const {
  return std::any_of(camps_.begin(), camps_.end(), [](const Lligam& camp) { return camp.Canviat(); });
}

bool Fitxa::Admet(const Lligam& camp) const {
  if (camp.Control() == admes_) return true;
  const auto exigencia = exigencies_.find(camp.Control());
  return exigencia == exigencies_.end() || !camp.Canviat() || exigencia->second.admet();
}

// Text that is not saved stays in its field, which keeps the focus, unless the user goes to the exit. A choice that is
// not saved is taken back.
void Fitxa::Deixar(Lligam& camp) {
  if (!rs_.State() || rs_.RecordCount() == 0) return;
  bool desat = false;
  QString motiu;
  Guardar_Event([&] {
    if (!Admet(camp)) return exigencies_.at(camp.Control()).avis();
    try {
      const QScopedValueRollback<const QWidget*> admes(admes_, camp.Control());
      Acceptar(camp);
    } catch (const Error_Brollador& error) {
      motiu = QString::fromStdString(error.Descripcio());
      throw;
    }
    desat = true;
  });
  if (rs_.RecordCount() == 0 && !Es_Tanca()) return Descarregar_Formulari(Nom());
  if (desat || !camp.Canviat()) return;
  if (camp.Es_De_Text()) Retenir_Focus(camp.Control(), motiu);
  if (!camp.Es_De_Text() || !Focus_Retingut()) camp.Mostrar();
}

// Others may have changed what a code stands for: it is looked up again each time.
void Fitxa::Acceptar(const Lligam& camp) {
  for (const auto& rutina : en_deixar_[camp.Control()]) rutina();
  for (Descripcio& descripcio : descripcions_) {
    if (descripcio.codi == camp.Control()) descripcio.descrit = QString();
  }
  if (Te_Canvis()) return Desar();
  Mostrar_Descripcions();
}

// A save that fails leaves no edit pending.
void Fitxa::Desar() {
  try {
    Escriure();
  } catch (const Error_Brollador& error) {
    Recuperar(error);
    throw;
  }
  Mostrar_Fila();
  Aplicar_Drets();
}

// One row is one statement, which stands or falls by itself.
void Fitxa::Escriure() {
  for (const Lligam& camp : camps_) {
    if (camp.Canviat() && Admet(camp)) camp.Posar();
  }
  Abans_De_Desar();
  std::vector<Recordset*> pendents;
  for (const Fila& fila : files_) {
    if (fila.rs->EditMode() != Edicio::Cap) pendents.push_back(fila.rs);
  }
  if (pendents.size() == 1) return pendents.front()->Update();
  Transaccio transaccio(sessio.Connexio_Comuna);
  Abans_D_Escriure();
  for (Recordset* rs : pendents) rs->Update();
  transaccio.Confirmar();
}

// After a change by another terminal all rows are read and shown again, each from its own statement.
void Fitxa::Recuperar(const Error_Brollador& error) {
  for (const Fila& fila : files_) fila.rs->CancelUpdate();
  if (error.Numero() != errors::concurrencia) return;
  for (const Fila& fila : files_) {
    Obrir_Fila(fila);
    if (rs_.RecordCount() == 0) return;
  }
  Mostrar_Fila();
}

// A description that was typed finds its code, which is saved; one that is nobody's, or that cannot be looked for, goes
// back to that of the code.
void Fitxa::Buscar_Codi(Descripcio& descripcio) {
  if (!descripcio.text->isModified()) return;
  const QString text = descripcio.text->text().trimmed();
  descripcio.text->setText(descripcio.descripcio);
  const QString codi =
      text.isEmpty() ? QString() : QString::fromStdString(Codi_De(descripcio.referencia, text.toStdString()));
  descripcio.descrit = QString();
  if (text.isEmpty() || !codi.isEmpty()) descripcio.codi->setText(codi);
  try {
    if (Te_Canvis()) Desar();
  } catch (const Error_Brollador&) {
    if (Lligam* camp = Camp_De_Control(descripcio.codi)) camp->Mostrar();
    Mostrar_Descripcions();
    throw;
  }
  Mostrar_Descripcions();
}

void Fitxa::keyPressEvent(QKeyEvent* event) {
  Lligam* camp = event->key() == Qt::Key_Escape ? Camp_De_Control(focusWidget()) : nullptr;
  if (camp == nullptr || !camp->Canviat()) return Formulari::keyPressEvent(event);
  camp->Mostrar();
  Posar_Focus(camp->Control());
}

// What was typed and never left is saved on closing as on leaving, or given up when it is refused.
void Fitxa::Descarregar() {
  for (Lligam& camp : camps_) {
    if (rs_.RecordCount() > 0 && camp.Canviat()) Deixar(camp);
  }
  for (const Fila& fila : files_) fila.rs->Close();
}
