// The editor of one row of a table. A control named after a column shows it, and every field saves when it is left:
// there is no button for it. What a screen adds is its statement, what its fields refuse, and what follows from them.
//
// Only what the user changed is written. A field that refuses what it holds keeps the focus and its text; Esc gives the
// row's value back. A row that another terminal changed is shown as it stands now, with nothing overwritten; one that
// it deleted closes the form.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "core/M_Mestres.h"
#include "core/controls/Lligam.h"
#include "core/formularis/Formulari.h"

class QLineEdit;
class QPushButton;

class Fitxa : public Formulari {
  Q_OBJECT
 public:
  Fitxa(const QString& nom, std::string taula);
  void Carregar() override;
  void Activar() override;
  void Descarregar() override;
  void Tornar_A_Obrir() override;
  QString Que_Mostra() const override;
  bool Tot_Desat() const override { return !Te_Canvis(); }

 protected:
  virtual std::string Sentencia() const = 0;  // of the row
  virtual void Abans_De_Mostrar() {}          // combos, grids and further rows, once
  virtual void Mostrar_Altres() {}            // what stands in no column, each time the row is shown
  virtual void Abans_De_Desar() {}            // further columns of the rows that are written
  virtual void Abans_D_Escriure() {}          // further statements before those of several rows, in their transaction

  // The field takes only what `admet` says; `avis` tells the user why not.
  struct Exigencia {
    std::function<bool()> admet;
    std::function<void()> avis;
  };
  void Exigir(const QWidget* camp, Exigencia exigencia);
  // The key of the row: a code that another row has is refused with `avis`.
  void Exigir_Lliure(QLineEdit* camp, bool (*existeix)(const std::string&), void (*avis)());
  // What leaving the field, or choosing in it, sets in other controls before it is saved.
  void En_Deixar(QWidget* camp, std::function<void()> rutina);
  // The field beside a code shows its description, and a description typed there finds its code.
  void Descriure(QLineEdit* codi, QLineEdit* descripcio, const Referencia& referencia);
  // The locality follows the postal code: one typed by hand stays for as long as the code does.
  void Seguir_CP(QLineEdit* cp, QLineEdit* localitat);
  void Boto_Sortir(QPushButton* boto);

  // One more row on the form, of another table; `assegurar` adds it where it is missing.
  void Afegir_Fila(Recordset& fila, const std::string& taula, std::function<std::string()> sentencia,
                   std::function<void()> assegurar = {});

  Recordset rs_;

 private:
  struct Descripcio {
    QLineEdit* codi;
    QLineEdit* text;
    Referencia referencia;
    QString descrit;  // the code that the text describes; null: it has to be looked up
    QString descripcio;
  };
  struct Fila {
    Recordset* rs;
    std::function<std::string()> sentencia;
    std::function<void()> assegurar;
  };
  static void Obrir_Fila(const Fila& fila);
  void Mostrar_Fila();
  void Mostrar_Descripcions();
  void Buscar_Codi(Descripcio& descripcio);
  void Deixar(Lligam& camp);
  void Acceptar(const Lligam& camp);
  bool Te_Canvis() const;
  bool Admet(const Lligam& camp) const;
  void Desar();
  void Escriure();
  void Recuperar(const Error_Brollador& error);
  Lligam* Camp_De_Control(const QWidget* control);
  void keyPressEvent(QKeyEvent* event) override;

  std::string taula_;
  std::vector<Fila> files_;
  std::vector<Lligam> camps_;
  std::map<const QWidget*, Exigencia> exigencies_;
  std::map<const QWidget*, std::vector<std::function<void()>>> en_deixar_;
  std::vector<Descripcio> descripcions_;
  const QWidget* admes_ = nullptr;  // the field that has been asked already whether it takes what it holds
  bool vista_ = false;
};
