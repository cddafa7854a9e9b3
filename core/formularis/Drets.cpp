#include "core/formularis/Drets.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <algorithm>

#include "core/controls/Controls.h"
#include "core/controls/Graella.h"
#include "core/formularis/Formulari.h"
#include "core/formularis/Formularis_Oberts.h"
#include "core/formularis/Motius.h"

namespace {

std::span<const Fila_Drets> files;

// The letter of the document behind F_PagDoc; no letter at all shows as C does.
const std::string& Dret_De_Pagaments() {
  static const std::string consulta = "C";
  if (sessio.Pag_Document == "A") return sessio.P_Albarans;
  if (sessio.Pag_Document == "P") return sessio.P_Comandes;
  if (sessio.Pag_Document == "F") return sessio.P_Factures;
  return consulta;
}

bool Permet_La_Lletra(const Fila_Drets& fila) {
  const std::string& lletra = fila.dret == nullptr ? Dret_De_Pagaments() : sessio.*fila.dret;
  return fila.mena == Mena_Drets::Editor ? lletra != "C" : lletra == "M";
}

bool Es_D_Editor(const Fila_Drets& fila) {
  return fila.mena == Mena_Drets::Editor || fila.mena == Mena_Drets::Editor_Amb_M;
}

bool Permet(const Fila_Drets& fila, const Formulari& formulari) {
  if (fila.mena == Mena_Drets::Sempre_Desactivat) return false;
  if (fila.condicio != nullptr && !fila.condicio(formulari)) return false;
  return fila.mena == Mena_Drets::Sense_Lletra || Permet_La_Lletra(fila);
}

// What a user changes by hand; what is only read is left as it looks.
bool Es_Canviable(const QWidget* control) {
  if (const auto* camp = qobject_cast<const QLineEdit*>(control)) return !camp->isReadOnly();
  if (const auto* notes = qobject_cast<const QPlainTextEdit*>(control)) return !notes->isReadOnly();
  return qobject_cast<const QComboBox*>(control) != nullptr || qobject_cast<const QCheckBox*>(control) != nullptr ||
         qobject_cast<const QAbstractSpinBox*>(control) != nullptr ||
         qobject_cast<const Selector_Data*>(control) != nullptr;
}

// The pieces of a control follow it: only what stands on the form by itself is disabled.
void Vetar_Canvis(const Formulari& formulari) {
  for (auto* control : formulari.findChildren<QWidget*>()) {
    if (Es_Canviable(control) && !Es_Canviable(control->parentWidget())) control->setEnabled(false);
  }
}

}  // namespace

void Fixar_Drets(std::span<const Fila_Drets> taula) {
  files = taula;
}

std::span<const Fila_Drets> Taula_De_Drets() {
  return files;
}

bool S_Edita_En_Lloc(const QString& formulari) {
  return std::any_of(files.begin(), files.end(), [nom = formulari.toUpper()](const Fila_Drets& fila) {
    return fila.mena == Mena_Drets::Llista_Editable && nom == QStringView(fila.formulari);
  });
}

void Habilitar_Control(QWidget& control, bool habilitat) {
  const QVariant pantalla = control.property(propietat_pantalla);
  control.setEnabled(habilitat && (!pantalla.isValid() || Hi_Ha_Fabrica(pantalla.toString())));
}

void Aplicar_Taula_De_Drets(Formulari& formulari) {
  const QString nom = formulari.Nom().toUpper();
  bool editor = false;
  bool obert = false;
  for (const Fila_Drets& fila : files) {
    if (nom != QStringView(fila.formulari)) continue;
    const bool permet = Permet(fila, formulari);
    editor = editor || Es_D_Editor(fila);
    obert = obert || (Es_D_Editor(fila) && permet);
    for (const char16_t* nom_control : fila.controls) {
      QWidget* control = formulari.Cercar_Control(QString::fromUtf16(nom_control));
      auto* graella = qobject_cast<Graella*>(control);
      const bool en_lloc = fila.mena == Mena_Drets::Llista_Editable || formulari.Es_Taula_Editable();
      if (graella != nullptr && en_lloc) graella->Permetre_Canvis(permet);
      if (control != nullptr && (graella == nullptr || fila.mena != Mena_Drets::Llista_Editable)) {
        control->setProperty(propietat_sense_dret, !permet);
        Habilitar_Control(*control, permet);
      }
    }
  }
  if (editor && !obert) Vetar_Canvis(formulari);
}
