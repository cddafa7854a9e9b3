// The list of a kind of document: new, open, delete. Kinds differ in a description.
#pragma once

#include "core/menes/Llista.h"
#include "documents/M_Consultes.h"

// A button that opens a screen of this kind alone.
struct Boto_De_Documents {
  const char16_t* boto;
  const char16_t* formulari;
};

struct Descripcio_Llista_Documents {
  const Descripcio_Consulta& consulta;
  const char* graella;  // G_AlbM
  std::vector<Columna_Graella> columnes;
  const char* boto_nou;
  const char* boto_esborrar;
  const char* columna_ok = nullptr;  // a row where it is set shows as OK
  std::vector<Boto_De_Documents> botons = {};
  std::vector<Boto_De_Llistat> llistats = {};
  bool seleccio_multiple = false;  // one of them works on the rows that are selected
};

class Llista_Documents : public Llista {
  Q_OBJECT
 public:
  explicit Llista_Documents(const Descripcio_Llista_Documents& descripcio);

 protected:
  // After setupUi: finds the controls and connects them.
  void Muntar();

  std::string Sentencia() const override;
  void Nou() override;
  void Obrir_Fila() override;
  void Esborrar_Fila() override;

 private:
  const Tipus_Document& Tipus() const { return descripcio_.consulta.tipus; }
  Valor Numero_Actual();
  void Obrir_Nou(const Valor& numero);

  const Descripcio_Llista_Documents& descripcio_;
};
