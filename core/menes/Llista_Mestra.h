// The list of a master table: new, delete, open the editor on the row. Lists differ in a description.
#pragma once

#include "core/menes/Llista.h"

struct Descripcio_Mestra {
  const char16_t* editor;
  const char* codi;                // column of the list with the code of a row
  const char* descripcio;          // column that a question names it by
  std::string Sessio::*per_obrir;  // where the editor reads the code
  std::string (*nou)();            // creates a row and returns its code; raises
  void (*esborrar)(const std::string& codi, const std::string& descripcio);  // asks and deletes
};

class Llista_Mestra : public Llista {
  Q_OBJECT
 public:
  Llista_Mestra(const QString& nom, const Descripcio_Mestra& descripcio) : Llista(nom), mestra_(descripcio) {}

 protected:
  void Nou() override;
  void Obrir_Fila() override;
  void Esborrar_Fila() override;
  void Obrir_Editor(const std::string& codi);

 private:
  const Descripcio_Mestra& mestra_;
};
