// The editor of a document: head, lines, entry frame, foot, closing. The six kinds are descriptions of it. Controls are
// found by the names that the kind's suffixes give them (TXT_NUMALB_AC, CHK_IVA_AC...); one that the form has not is
// something that the kind has not: an option set, a foot, buttons that move lines, a box of its state.
#pragma once

#include <QPointer>
#include <memory>
#include <optional>
#include <vector>

#include "core/controls/Graella.h"
#include "core/formularis/Formulari.h"
#include "documents/F_Capcalera_Document.h"
#include "documents/F_Columnes_Document.h"
#include "documents/F_Entrada_Linia.h"
#include "documents/M_Detall_Linia.h"

class Grup_Opcions;
class QGroupBox;
class QPushButton;

// A button that opens a screen of this kind alone.
struct Boto_D_Editor {
  const char16_t* boto;
  const char16_t* formulari;
};

struct Descripcio_Editor {
  const Tipus_Document& tipus;
  std::string Sessio::*dret;                         // P_Albarans
  const Per_A_Qui* qui = nullptr;                    // a document for nobody has none
  const char* graella_linies;                        // G_ALBLIN
  const char* graella_peu = nullptr;                 // G_ALBPEU
  std::vector<Columna_Propia> columnes_linies = {};  // what differs from the columns of every kind
  const char* linia_ok = nullptr;                    // role word: a line where it is set shows as OK
  Descripcio_Entrada entrada;
  // Controls of the head, without their suffix; buttons as they are.
  std::vector<const char*> demanats;             // no line can be typed before these hold something: TXT_CLIENT
  std::vector<const char*> fixats;               // lines fix these
  std::vector<const char*> desen = {"DT_DATA"};  // a change of these saves the head
  bool amaga_entrada = true;                     // a closed document hides the entry frame; else it is disabled
  bool tancat_guarda_linies = true;              // no line of a closed document is asked to be deleted
  std::int64_t (*primer_forat)() = nullptr;      // the number that B_Forats proposes; null: no such button
  // Prints it: sessio.Crida_Document tells whether with prices.
  void (*imprimir)(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa, int mode) = nullptr;
  std::vector<Boto_D_Editor> botons = {};
  const char* sense_pagaments =
      nullptr;                       // what B_Pagaments says of a document that may have none; null: no such button
  const char16_t* detall = nullptr;  // shows a line whole; null: its lines have no such screen
};

class Editor_Document : public Formulari, public Document_Obert {
  Q_OBJECT
 public:
  explicit Editor_Document(const Descripcio_Editor& descripcio);
  ~Editor_Document() override;

  void Carregar() override;
  void Activar() override;
  void Descarregar() override;
  void Aplicar_Drets() override { Aplicar_Estat(); }
  Document_Obert* Document() override { return this; }
  bool Vol_Tot_El_Lloc() const override { return true; }
  QString Que_Mostra() const override;
  bool Tot_Desat() const override;
  QString Per_Que_No(const QWidget& control) const override;

  Valor Numero_Document() const override { return cap_->Numero(); }
  bool Re_Marcat() const override { return cap_->Esta_Marcada("RE"); }
  void Posar_Import(double euros) override { cap_->Posar_Import(euros); }
  void Posar_Estat(bool estat) override { cap_->Marcar("ESTAT", estat); }
  void Posar_Pagament(bool pagament) override { cap_->Marcar("PAGAMENT", pagament); }
  void Desar_Capcalera() override;
  void Refrescar_Peu() override;

  // For the detail of its lines.
  const Tipus_Document& Tipus() const { return descripcio_.tipus; }
  Capcalera_Oberta Capcalera() const { return cap_->Oberta(); }
  Qui_Del_Document Qui() const;
  std::int16_t Linia_Actual() const;  // the number of the current line
  bool Nomes_Es_Mira() const { return Dret() == "C"; }
  void Tornar_Del_Detall();         // it goes
  void Rellegir_Linies();           // another form wrote them, or the foot
  void Cancellar_Edicions();        // after a failure the screen shows what the database holds
  bool Desar_En_Tancar() override;  // the detail goes first

 protected:
  // After setupUi: finds the controls and connects them.
  void Muntar();

 private:
  const Valor& Numero() const { return cap_->Numero(); }
  const std::string& Dret() const { return sessio.*descripcio_.dret; }
  QPushButton* Boto(const char* nom) const;

  void Connectar_Capcalera();
  void Connectar_Botons();
  void Drecera(const char* boto, Qt::Key tecla);
  void Obrir_Recordsets();
  bool Tancat() const;
  bool Pot_Entrar() const;
  void Aplicar_Estat();
  void Aplicar_Opcio();
  void Mostrar_Estat();
  void Deixar_Numero();
  void Proposar_Forat();
  bool Acceptar_Numero();
  void Canviar_Numero(const Valor& nou);
  void Canviar_Qui();
  bool Desar_Linia();
  void Esborrar_Linia_Actual();
  void Desplacar_Linia(bool avall);
  void Valorar();
  void Imprimir(const char* proposit);
  void Obrir_Pagaments();
  void Obrir_Detall();
  void Requerir_Linies();

  const Descripcio_Editor& descripcio_;
  std::unique_ptr<Capcalera_Document> cap_;
  Estat_Document estat_;
  std::optional<Estat_Document> llegit_;  // just now, with the document or with the line that has been saved
  Recordset linies_;
  Recordset peu_;
  std::unique_ptr<Entrada_Linia> entrada_;
  QPointer<Formulari> detall_;     // of one of its lines
  bool torna_del_detall_ = false;  // it has just gone: the user is among the lines
  Graella* graella_linies_ = nullptr;
  Graella* graella_peu_ = nullptr;
  QGroupBox* nova_ = nullptr;
  Grup_Opcions* opcions_ = nullptr;
};
