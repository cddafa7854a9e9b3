#include "core/formularis/Drets.h"

#include <algorithm>

#include "core/controls/Graella.h"
#include "core/formularis/Control_Interface.h"
#include "core/formularis/Formulari.h"

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

bool Permet(const Fila_Drets& fila, const Formulari& formulari) {
  if (fila.mena == Mena_Drets::Sempre_Desactivat) return false;
  if (fila.condicio != nullptr && !fila.condicio(formulari)) return false;
  return fila.mena == Mena_Drets::Sense_Lletra || Permet_La_Lletra(fila);
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
  const QVariant pantalla = control.property("pantalla");
  control.setEnabled(habilitat && (!pantalla.isValid() || Hi_Ha_Fabrica(pantalla.toString())));
}

void Aplicar_Taula_De_Drets(Formulari& formulari) {
  const QString nom = formulari.Nom().toUpper();
  for (const Fila_Drets& fila : files) {
    if (nom != QStringView(fila.formulari)) continue;
    const bool permet = Permet(fila, formulari);
    for (const char16_t* nom_control : fila.controls) {
      QWidget* control = formulari.Cercar_Control(QString::fromUtf16(nom_control));
      auto* graella = qobject_cast<Graella*>(control);
      if (graella != nullptr && fila.mena == Mena_Drets::Llista_Editable) {
        graella->Permetre_Canvis(permet);
      } else if (control != nullptr) {
        Habilitar_Control(*control, permet);
      }
    }
  }
}
