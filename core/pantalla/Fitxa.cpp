#include "core/pantalla/Fitxa.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

#include "core/pantalla/Aparenca.h"
#include "core/pantalla/Camps.h"
#include "core/pantalla/Control_Interface.h"

Fitxa::Fitxa(const QString& nom, std::string taula) : Formulari(nom), taula_(std::move(taula)) {}

void Fitxa::Exigir(const QWidget* camp, Exigencia exigencia) {
  exigencies_[camp] = std::move(exigencia);
}

void Fitxa::Boto_Sortir(QPushButton* boto) {
  Dibuixar(boto, Dibuix::Sortir);
  connect(boto, &QPushButton::clicked, this, [this] { Descarregar_Formulari(Nom()); });
}

// ---- Showing ----------------------------------------------------------------------------------------------------

// Raises 80040E38 when the row is there no more.
void Fitxa::Carregar() {
  rs_.Unique_Table(taula_);
  rs_.Open(Sentencia(), sessio.Connexio_Comuna, Bloqueig::Pessimista);
  if (rs_.RecordCount() == 0) Llancar_Error(errors::concurrencia, Nom().toStdString());
  camps_ = Lligams_De(*this, rs_);
  Abans_De_Mostrar();
  Mostrar_Fila();
  for (Lligam& camp : camps_) camp.En_Canviar([this, &camp] { Deixar(camp); });
}

void Fitxa::Mostrar_Fila() {
  for (Lligam& camp : camps_) camp.Mostrar(rs_[camp.Columna()]);
  Mostrar_Altres();
}

// The first time, the first field that can be typed in.
void Fitxa::Activar() {
  if (std::exchange(vista_, true)) return;
  for (QWidget* control = nextInFocusChain(); control != this; control = control->nextInFocusChain()) {
    const bool seu =
        std::any_of(camps_.begin(), camps_.end(), [&](const Lligam& camp) { return camp.Control() == control; });
    if (seu && control->isEnabled()) return Posar_Focus(control);
  }
}

// ---- Saving -----------------------------------------------------------------------------------------------------

bool Fitxa::Admet(const Lligam& camp) const {
  const auto exigencia = exigencies_.find(camp.Control());
  return exigencia == exigencies_.end() || exigencia->second.admet();
}

// Text that is not saved stays in its field, which keeps the focus, unless the user goes to the exit. A choice that is
// not saved is taken back.
void Fitxa::Deixar(Lligam& camp) {
  if (!rs_.State() || !camp.Canviat()) return;
  Guardar_Event([&] {
    if (Admet(camp)) return Desar();
    exigencies_.at(camp.Control()).avis();
  });
  if (rs_.RecordCount() == 0) return Descarregar_Formulari(Nom());
  if (!camp.Canviat()) return;
  const bool text = qobject_cast<QLineEdit*>(camp.Control()) != nullptr;
  if (text) Retenir_Focus(camp.Control());
  if (!text || !Focus_Retingut()) camp.Mostrar(rs_[camp.Columna()]);
}

// What fails is not left pending. After a change by another terminal the row is read and shown again.
void Fitxa::Desar() {
  try {
    Escriure();
  } catch (const Error_Brollador& error) {
    rs_.CancelUpdate();
    if (error.Numero() != errors::concurrencia) throw;
    rs_.Reopen(Sentencia());
    if (rs_.RecordCount() > 0) Mostrar_Fila();
    throw;
  }
  Mostrar_Fila();
  Aplicar_Drets();
}

void Fitxa::Escriure() {
  for (const Lligam& camp : camps_) {
    if (camp.Canviat() && Admet(camp)) rs_.Set(camp.Columna(), camp.Escrit());
  }
  if (rs_.EditMode() != Edicio::Cap) rs_.Update();
}

void Fitxa::keyPressEvent(QKeyEvent* event) {
  const auto camp = std::find_if(camps_.begin(), camps_.end(), [&](const Lligam& c) {
    return event->key() == Qt::Key_Escape && c.Control() == focusWidget() && c.Canviat();
  });
  if (camp == camps_.end()) return Formulari::keyPressEvent(event);
  camp->Mostrar(rs_[camp->Columna()]);
  Posar_Focus(camp->Control());
}

// What was typed and never left is saved on closing as on leaving, or given up when it is refused.
void Fitxa::Descarregar() {
  for (Lligam& camp : camps_) {
    if (rs_.RecordCount() > 0 && camp.Canviat()) Deixar(camp);
  }
  rs_.Close();
}
