#include "core/formularis/Motius.h"

#include <QVariant>
#include <QWidget>

#include "core/M_Funcions_Comuns.h"
#include "core/formularis/Formulari.h"
#include "core/formularis/Formularis_Oberts.h"

namespace {

QString Paraules(const char* catala, const char* castella, const char* angles) {
  return QString::fromStdString(Missatge(catala, castella, angles));
}

const Formulari* Formulari_De(const QWidget* control) {
  while (control != nullptr && qobject_cast<const Formulari*>(control) == nullptr) control = control->parentWidget();
  return static_cast<const Formulari*>(control);
}

}  // namespace

QString Motiu_De_Desactivat(const QWidget& control) {
  const Formulari* formulari = Formulari_De(&control);
  if (formulari != nullptr && !formulari->isEnabled()) {
    return Paraules("Té un altre formulari al damunt", "Tiene otro formulario encima", "Another form lies over it");
  }
  const QVariant pantalla = control.property(propietat_pantalla);
  if (pantalla.isValid() && !Hi_Ha_Fabrica(pantalla.toString())) {
    return Paraules("Aquest programa no té aquesta pantalla", "Este programa no tiene esta pantalla",
                    "This program does not have that screen");
  }
  if (control.property(propietat_sense_dret).toBool()) {
    return Paraules("L'usuari no hi té dret", "El usuario no tiene derecho", "The user has no right to it");
  }
  QString propi = formulari == nullptr ? control.property(propietat_motiu).toString() : formulari->Per_Que_No(control);
  if (!propi.isEmpty()) return propi;
  return Paraules("Ara no es pot fer servir", "Ahora no se puede usar", "It cannot be used now");
}

QString Ajuda_De_Desactivat(const QWidget& control) {
  const QString ajuda = control.toolTip();
  const QString motiu = Motiu_De_Desactivat(control);
  return ajuda.isEmpty() ? motiu : ajuda + u'\n' + motiu;
}
