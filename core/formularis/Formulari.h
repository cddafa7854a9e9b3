// The base of every form: a child of the main window that exists at most once, known by its name.
//
// A form overrides what it needs of its life: Carregar (recordsets, grids), Activar (it came to the front), Descarregar
// (it goes). The services around it (Formularis_Oberts.h) translate it, disable its parents and give it its rights.
#pragma once

#include <QWidget>
#include <functional>

#include "core/Sessio.h"

class Graella;

class Formulari : public QWidget {
  Q_OBJECT
 public:
  explicit Formulari(const QString& nom);  // becomes the object name: F_Albara
  QString Nom() const { return objectName(); }
  bool Es_Tanca() const { return descarregat_; }

  virtual void Carregar() {}                        // once, before it is shown
  virtual void Activar() {}                         // each time it comes to the front
  virtual void Descarregar() {}                     // when it is closed; an error is shown and it closes all the same
  virtual void Tornar_A_Obrir() {}                  // it was open already when somebody opened it, maybe on another row
  virtual bool Pot_Tancar() const { return true; }  // false: the window stays, whatever asks it to go
  // The last work of a form that may refuse to go, once its field has been left. False, after a box: it stays.
  virtual bool Desar_En_Tancar() { return true; }
  virtual void Aplicar_Drets();  // controls by the rights of the session: what the table of rights says

  // A control by its name in any case; null when the form has none.
  QWidget* Cercar_Control(const QString& nom) const;
  // A button that works on a screen: disabled for as long as this program has no such screen.
  void Boto_De_Pantalla(const QString& boto, const QString& formulari);

  // The recordset of a list, which editors requery and F_Cerca filters; null when the form has none.
  virtual Recordset* Recordset_Llista() { return nullptr; }
  // The grid that shows it.
  virtual Graella* Graella_Llista() { return nullptr; }
  // Before Recordset_Llista is requeried by a form that closes: for a list over a table that has to be filled again.
  virtual void Preparar_Requery() {}
  // Its grid is a table whose rows are edited in place, by whoever has the right.
  virtual bool Es_Taula_Editable() const { return false; }
  // Kept above the other forms.
  virtual bool Sempre_A_Dalt() const { return false; }
  // Opens as large as the area, unless the user gave it another size.
  virtual bool Vol_Tot_El_Lloc() const { return false; }

  // What the status line tells of the form in front: the document or row that it shows; empty: it shows none.
  virtual QString Que_Mostra() const { return {}; }
  // All that was typed in it is saved.
  virtual bool Tot_Desat() const { return true; }
  // Why a control of the form cannot be used now, beside rights and screens that this program lacks; empty: nothing to
  // say.
  virtual QString Per_Que_No(const QWidget& /*control*/) const { return {}; }
  // The document behind a document editor, for the rules.
  virtual Document_Obert* Document() { return nullptr; }

  // Runs an event routine under the system's guard: busy pointer around it, and an error of any kind ends in the
  // system's box (once: Error_Mostrat) with the input released and `despres_d_un_error` run. What the routine began in
  // a transaction is undone by then; one that was open before is its owner's matter.
  static void Guardar_Event(const std::function<void()>& rutina, const std::function<void()>& despres_d_un_error = {});

 protected:
  // A control of the .ui file by its name; a missing one is a programming error that stops at once.
  template <class Control>
  Control* Control_De_Nom(const QString& nom) const {
    auto* control = findChild<Control*>(nom);
    if (control == nullptr) qFatal("%s: no %s", qUtf8Printable(Nom()), qUtf8Printable(nom));
    return control;
  }

  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;  // Enter goes to the next field

 private:
  bool descarregat_ = false;
};
