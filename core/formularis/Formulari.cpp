#include "core/formularis/Formulari.h"

#include <QCloseEvent>
#include <QKeyEvent>

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Focus_Camps.h"
#include "core/controls/Graella.h"
#include "core/formularis/Drets.h"
#include "core/formularis/Finestres.h"
#include "core/formularis/Formularis_Oberts.h"
#include "core/formularis/Motius.h"
#include "core/formularis/Teclat.h"

namespace {

// Errors of the library count as the system's general failure.
Error_Brollador Com_A_Error(const std::exception& error) {
  if (const auto* propi = dynamic_cast<const Error_Brollador*>(&error)) return *propi;
  return {errors::general, "Brollador", error.what()};
}

void Mostrar_Pendents() {
  if (Pantalla* pantalla = sessio.pantalla) pantalla->Mostrar_Pendents();
}

// The busy pointer while it lives.
class Punter {
 public:
  Punter() { Punter_Ocupat(); }
  ~Punter() { Punter_Normal(); }
  Punter(const Punter&) = delete;
  Punter& operator=(const Punter&) = delete;
};

}  // namespace

Formulari::Formulari(const QString& nom) {
  setObjectName(nom);
  setAttribute(Qt::WA_DeleteOnClose);
  setFocusPolicy(Qt::ClickFocus);
  Vigilar_Aplicacio();
}

void Formulari::Guardar_Event(const std::function<void()>& rutina, const std::function<void()>& despres_d_un_error) {
  const Punter punter;
  sessio.Error_Mostrat = false;
  try {
    rutina();
    Mostrar_Pendents();
  } catch (const std::exception& error) {
    const Error_Brollador propi = Com_A_Error(error);
    Alliberar_Entrada();
    Mostrar_Pendents();
    try {
      if (despres_d_un_error) despres_d_un_error();
    } catch (const std::exception& segon) {
      // The failure that began it is the one to tell; this one is told when there was nothing else.
      qWarning("%s", segon.what());
    }
    Mostrar_Error(propi);
  }
}

void Formulari::Aplicar_Drets() {
  Aplicar_Taula_De_Drets(*this);
}

QWidget* Formulari::Cercar_Control(const QString& nom) const {
  for (auto* control : findChildren<QWidget*>()) {
    if (control->objectName().compare(nom, Qt::CaseInsensitive) == 0) return control;
  }
  return nullptr;
}

void Formulari::Boto_De_Pantalla(const QString& boto, const QString& formulari) {
  auto* control = Control_De_Nom<QWidget>(boto);
  control->setProperty(propietat_pantalla, formulari);
  Habilitar_Control(*control, true);
}

void Formulari::closeEvent(QCloseEvent* event) {
  if (!Pot_Tancar()) return event->ignore();
  event->accept();
  if (descarregat_) return;
  descarregat_ = true;
  Guardar_Event([this] { Deixar_El_Camp_En_Tancar(this); });
  if (!Desar_En_Tancar()) {
    descarregat_ = false;
    return event->ignore();
  }
  for (const auto* graella : findChildren<Graella*>()) graella->Desar_Amplades();
  Recordar_Mida(this);
  Guardar_Event([this] { Descarregar(); });
  Guardar_Event([this] { Tancar_Formulari(Nom()); });
}

void Formulari::keyPressEvent(QKeyEvent* event) {
  if (!Enter_Avanca(*event, *this)) QWidget::keyPressEvent(event);
}
