// The editor of one row of a table. A control named after a column shows it, and every field saves when it is left:
// there is no button for it. What a screen adds is its statement, what its fields refuse, and what it shows besides.
//
// Only what the user changed is written. A field that refuses what it holds keeps the focus and its text; Esc gives the
// row's value back. A row that another terminal changed is shown as it stands now, with nothing overwritten; one that
// it deleted closes the form.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "core/pantalla/Formulari.h"
#include "core/pantalla/Lligam.h"

class QPushButton;

class Fitxa : public Formulari {
  Q_OBJECT
 public:
  Fitxa(const QString& nom, std::string taula);
  void Carregar() override;
  void Activar() override;
  void Descarregar() override;

 protected:
  virtual std::string Sentencia() const = 0;  // of the row
  virtual void Abans_De_Mostrar() {}          // combos and grids, once
  virtual void Mostrar_Altres() {}            // what stands in no column, each time the row is shown

  // The field takes only what `admet` says; `avis` tells the user why not.
  struct Exigencia {
    std::function<bool()> admet;
    std::function<void()> avis;
  };
  void Exigir(const QWidget* camp, Exigencia exigencia);
  void Boto_Sortir(QPushButton* boto);

  Recordset rs_;

 private:
  void Mostrar_Fila();
  void Deixar(Lligam& camp);
  bool Admet(const Lligam& camp) const;
  void Desar();
  void Escriure();
  void keyPressEvent(QKeyEvent* event) override;

  std::string taula_;
  std::vector<Lligam> camps_;
  std::map<const QWidget*, Exigencia> exigencies_;
  bool vista_ = false;
};
