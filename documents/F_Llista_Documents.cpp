#include "documents/F_Llista_Documents.h"

#include <QPushButton>

#include "core/formularis/Aparenca.h"
#include "core/formularis/Formularis_Oberts.h"
#include "documents/F_Cerca_Document.h"
#include "documents/F_Obrir_Document.h"

Llista_Documents::Llista_Documents(const Descripcio_Llista_Documents& descripcio)
    : Llista(QString()), descripcio_(descripcio) {}

void Llista_Documents::Muntar() {
  auto* graella = Control_De_Nom<Graella>(QString::fromUtf8(descripcio_.graella));
  const auto boto = [this](const char* nom) { return Control_De_Nom<QPushButton>(QString::fromUtf8(nom)); };
  Llista::Muntar(graella, descripcio_.columnes);
  Muntar_Botons(boto(descripcio_.boto_nou), boto(descripcio_.boto_esborrar), boto("B_Exit"));
  for (const auto& [nom, formulari] : descripcio_.botons) {
    const QString pantalla = QString::fromUtf16(formulari);
    auto* control = Control_De_Nom<QPushButton>(QString::fromUtf16(nom));
    Dibuixar(control, Dibuix::Calcular);
    Boto_De_Pantalla(control->objectName(), pantalla);
    connect(control, &QPushButton::clicked, this, [pantalla] { Obrir(pantalla); });
  }
  for (const Boto_De_Llistat& que : descripcio_.llistats) {
    Dibuixar(boto(que.boto), Dibuix::Imprimir);
    connect(boto(que.boto), &QPushButton::clicked, this,
            [this, &que] { Guardar_Event([&] { que.imprimir(Valors_De(descripcio_.consulta.cerca)); }); });
  }
  if (descripcio_.seleccio_multiple) graella->Seleccio_Multiple(true);
  if (descripcio_.columna_ok != nullptr) graella->Files_OK(descripcio_.columna_ok);
}

std::string Llista_Documents::Sentencia() const {
  return Consulta(descripcio_.consulta, Valors_De(descripcio_.consulta.cerca)) + " ORDER BY " +
         descripcio_.consulta.ordre;
}

Valor Llista_Documents::Numero_Actual() {
  return Graella_Llista()->Valor_Actual(Tipus().cap.Columna("NUMALB").c_str());
}

void Llista_Documents::Nou() {
  Valor numero;
  try {
    numero = Crear_Capcalera(Tipus());
  } catch (const Error_Brollador& error) {
    if (error.Numero() != errors::refusat) throw;
    return Mostrar_Refus(error);
  }
  Obrir_Nou(numero);
}

// Nobody is left with an empty head that did not open.
void Llista_Documents::Obrir_Nou(const Valor& numero) {
  bool obert = false;
  try {
    obert = Obrir_Document(Tipus(), numero, std::string(Tipus().llista) + ";NEW");
  } catch (...) {
    Esborrar_Document(Tipus(), numero, sessio.Empresa_Actual);
    throw;
  }
  if (!obert) Esborrar_Document(Tipus(), numero, sessio.Empresa_Actual);
}

// A document that is there no more goes from the list too.
void Llista_Documents::Obrir_Fila() {
  if (!Obrir_Document(Tipus(), Numero_Actual(), std::string(Tipus().llista) + ";EDIT")) Requerir();
}

void Llista_Documents::Esborrar_Fila() {
  const Valor numero = Numero_Actual();
  if (numero.Es_Nul()) return;
  Demanar_Esborrar_Document(Tipus(), numero, sessio.Empresa_Actual);
  Requerir();
}
