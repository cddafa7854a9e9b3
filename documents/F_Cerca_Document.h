// A search form: criteria with their defaults, and the buttons that open its list. Forms differ in the rows of their
// criteria (documents/M_Consultes.h), which name the controls of the .ui file.
#pragma once

#include "core/formularis/Formulari.h"
#include "documents/M_Consultes.h"

class QWidget;

struct Boto_De_Cerca {
  const char* boto;        // B_Albarans
  const char16_t* llista;  // the form that it opens
  bool nomes_pendents = false;
};

struct Descripcio_Cerca {
  const std::vector<Criteri>& criteris;
  const char* primer_camp;  // where the focus stands when the form opens
  std::vector<Boto_De_Cerca> botons;
  std::vector<Boto_De_Llistat> llistats = {};
};

class Cerca_Document : public Formulari {
  Q_OBJECT
 public:
  explicit Cerca_Document(const Descripcio_Cerca& descripcio);
  void Carregar() override;
  void Activar() override;
  Valors_Cerca Valors() const;

 protected:
  // After setupUi: finds the controls and connects them.
  void Muntar();

 private:
  void Muntar_Camp(const Criteri& criteri);
  QWidget* Camp(const Criteri& criteri, bool segon = false) const;
  void Posar(const Criteri& criteri, const Valor_Criteri& valor);
  Valor_Criteri Llegir(const Criteri& criteri) const;
  void Netejar();
  void Obrir_Llista(const Boto_De_Cerca& boto);

  const Descripcio_Cerca& descripcio_;
};

// What the search form of that name asks for; one that is not open is there all the same, as it comes.
Valors_Cerca Valors_De(const char* formulari);
