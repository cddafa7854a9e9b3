// The head of a document on its form. Every control that is named after a column of the head (TXT_, CHK_, DT_ and the
// column) shows it and is saved by it; a kind without such a control has no such field. Who the document is for is a
// code and a name, chosen together in a combo. Only what the user or a rule changed is written.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "core/controls/Controls.h"
#include "core/controls/Lligam.h"
#include "core/formularis/Formulari.h"
#include "documents/Documents.h"

class QCheckBox;

struct Caselles_D_Impost {
  bool iva = false;
  bool re = false;
};

// Who a document is for.
struct Per_A_Qui {
  const char* codi;                                        // role words of the columns: CLIENT
  const char* nom;                                         // CLIENT_DESC
  const char* combo;                                       // of the combo: CLIENT_DESC for CMB_CLIENT_DESC_AC
  const char* boto;                                        // that opens the list: B_CLIENT
  const Noms_Amb_Codi& noms;                               // what the combo offers
  Caselles_D_Impost (*caselles)(const std::string& codi);  // the boxes of tax that choosing it ticks
  void (*document_tancat)() = nullptr;                     // its own screen may show what the document changed
};
extern const Per_A_Qui per_a_un_client;
extern const Per_A_Qui per_a_un_proveidor;

class Capcalera_Document {
 public:
  // After setupUi. `qui` is null where a document is for nobody.
  Capcalera_Document(const Formulari& formulari, const Tipus_Document& tipus, const Per_A_Qui* qui);

  // Reads the head and shows it. Raises Document_Inexistent.
  void Obrir(const Valor& numero);
  void Tancar();
  // Writes what changed, and the number when it is another one. After 80040E38 the fields that nobody touched show the
  // row as it stands now, and what was typed stays, to be saved the next time.
  void Desar(const Valor& numero);
  // Something that the user typed or chose waits to be saved. What a rule put there (the total) does not count.
  bool Te_Canvis() const;
  // Gives up what is pending. What was saved in a transaction that is undone is to be saved again, and what rules put
  // there meanwhile is as it was.
  void Cancellar();

  const Valor& Numero() const { return numero_; }  // the one that the database has
  Capcalera_Oberta Oberta() const;
  bool Esta_Marcada(const char* paper) const;  // CHK_x; false when the form has none
  void Marcar(const char* paper, bool marcada);
  void Posar_Import(double euros);
  double Import() const;                      // euros, as it is shown
  std::string Text(const char* paper) const;  // TXT_x
  // The choice in the combo: its code and its boxes.
  void Canviar_Qui();

  QLineEdit* Camp_Numero() const { return camp_numero_; }
  Combo_Codi* Combo() const { return combo_; }
  // TXT_OBSR for TXT_OBSR_AC; a button by its own name. Null when the form has none.
  QWidget* Control(const QString& nom) const;

 private:
  struct Qui {
    std::string codi;
    std::string nom;
    bool operator==(const Qui&) const = default;
  };
  void Mostrar();
  Qui Qui_De_La_Fila() const;
  bool Qui_Ha_Canviat() const;
  void Posat_Per_Una_Regla(const QWidget* control);
  void Posar_Canvis(const Valor& numero);
  void Recuperar();
  void Recordar_Abans();
  void Desfer_Si_Cal();
  std::string Columna(const char* paper) const { return tipus_.cap.Columna(paper); }

  const Formulari& formulari_;
  const Tipus_Document& tipus_;
  const Per_A_Qui* qui_;
  Recordset cap_;
  Valor numero_;
  std::vector<Lligam> camps_;
  bool vista_ = false;
  QLineEdit* camp_numero_;
  Combo_Codi* combo_ = nullptr;
  Qui qui_mostrat_;

  // The head before a transaction that may still be undone.
  struct Abans {
    std::shared_ptr<const Transaccio::Estat> transaccio;
    std::vector<Lligam> camps;
    Qui qui;
    Valor numero;
    std::vector<std::pair<QCheckBox*, bool>> caselles;
  };
  Abans abans_;
};
