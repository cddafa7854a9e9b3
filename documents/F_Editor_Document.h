// The editor of a document: head, lines, entry frame, foot, closing. The six kinds are descriptions of it plus the
// steps that are theirs. Controls are found by the names that the kind's suffixes give them (TXT_NUMALB_AC,
// CHK_IVA_AC...).
#pragma once

#include <memory>
#include <vector>

#include "core/controls/Graella.h"
#include "core/formularis/Formulari.h"
#include "documents/F_Entrada_Linia.h"

class Combo_Codi;
class Grup_Opcions;
class QCheckBox;
class QGroupBox;
class QLineEdit;
class QPushButton;
class Selector_Data;

struct Descripcio_Editor {
  const Tipus_Document& tipus;
  const char* graella_linies;  // G_ALBLIN
  const char* graella_peu;     // G_ALBPEU
  std::vector<Columna_Graella> columnes_linies;
  std::vector<Columna_Graella> columnes_peu;
  std::string Sessio::*dret;  // P_Albarans
  bool amaga_entrada;         // a closed document hides the entry frame; else it is disabled
  bool data_fixa_amb_linies;  // the date cannot change once there are lines
};

class Editor_Document : public Formulari, public Document_Obert {
  Q_OBJECT
 public:
  Editor_Document(const QString& nom, const Descripcio_Editor& descripcio);
  ~Editor_Document() override;

  void Carregar() override;
  void Activar() override;
  void Descarregar() override;
  void Aplicar_Drets() override { Aplicar_Estat(); }
  Document_Obert* Document() override { return this; }

  Valor Numero_Document() const override { return numero_; }
  bool Re_Marcat() const override;
  void Posar_Import(double euros) override;
  void Posar_Estat(bool estat) override;
  void Posar_Pagament(bool pagament) override;
  void Desar_Capcalera() override;
  void Refrescar_Peu() override;

 protected:
  // The steps of a kind.
  virtual Valor Numero_A_Obrir() const = 0;
  virtual bool Bloquejat() const = 0;  // its customer cannot change any more
  virtual void Afegir_Linia(const Capcalera_Oberta& cap, const Linia_Entrada& linia) = 0;
  virtual bool Esborrar_Linia() = 0;  // the current one; false when the user said no
  virtual void Recalcular_Linies(const Capcalera_Oberta& cap) = 0;
  virtual bool Moure_Linia(std::int16_t linia, bool avall) = 0;
  virtual void Esborrar_Buit() = 0;
  virtual void Desar_Camps_Propis() {}  // columns of the head that only this kind has
  virtual void Mostrar_Camps_Propis() {}

  // After setupUi: finds the controls and connects them.
  void Muntar();
  const Valor& Numero() const { return numero_; }
  Valor Camp_De_Linia(const char* paper) const;  // of the current line

  Recordset cap_;
  Recordset linies_;
  Recordset peu_;

 private:
  template <class Control>
  Control* Del_Cap(const char* paper) const;
  Capcalera_Oberta Capcalera() const;
  const std::string& Dret() const { return sessio.*descripcio_.dret; }

  void Trobar_Controls();
  void Connectar();
  void Obrir_Recordsets();
  void Mostrar_Capcalera();
  void Aplicar_Estat();
  void Aplicar_Opcio();
  void Deixar_Numero();
  bool Acceptar_Numero();
  void Canviar_Numero(const Valor& nou);
  void Canviar_Client();
  void Desar_Linia();
  void Cancellar_Edicions();
  void Esborrar_Linia_Actual();
  void Desplacar_Linia(bool avall);
  void Valorar();
  void Imprimir(const char* proposit);
  void Requerir_Linies();

  const Descripcio_Editor descripcio_;
  Valor numero_;  // remembered: the one that the database has
  std::unique_ptr<Entrada_Linia> entrada_;
  Graella* graella_linies_ = nullptr;
  Graella* graella_peu_ = nullptr;
  QGroupBox* nova_ = nullptr;
  Grup_Opcions* opcions_ = nullptr;
  QLineEdit* camp_numero_ = nullptr;
  Selector_Data* data_ = nullptr;
  QLineEdit* client_ = nullptr;
  Combo_Codi* nom_client_ = nullptr;
  QCheckBox* iva_ = nullptr;
  QCheckBox* re_ = nullptr;
  QCheckBox* estat_ = nullptr;
  QCheckBox* pagament_ = nullptr;
  QLineEdit* observacions_ = nullptr;
  QLineEdit* import_ = nullptr;
};
