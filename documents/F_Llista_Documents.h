// The list of a kind of document: new, open, delete. Kinds differ in a description and in their named steps.
#pragma once

#include "core/menes/Llista.h"
#include "documents/Documents.h"

class Llista_Documents : public Llista {
  Q_OBJECT
 public:
  Llista_Documents(const QString& nom, const Tipus_Document& tipus);

 protected:
  virtual Valor Crear_Document() = 0;                   // a head without lines; raises
  virtual void Esborrar(const Valor& numero) = 0;       // asks and deletes
  virtual void Passar_Numero(const Valor& numero) = 0;  // to the editor that opens

  void Nou() override;
  void Obrir_Fila() override;
  void Esborrar_Fila() override;

 private:
  void Obrir_Editor(const Valor& numero, const char* proposit);

  const Tipus_Document& tipus_;
};
