// The small form that filters the list in front by a text in one of its fields. It stays above all others, and what it
// filtered is whole again when it goes.
#pragma once

#include <QPoint>
#include <memory>
#include <optional>

#include "core/formularis/Formulari.h"

namespace Ui {
class F_Cerca;
}

class F_Cerca : public Formulari {
  Q_OBJECT
 public:
  F_Cerca();
  ~F_Cerca() override;
  void Descarregar() override;
  bool Sempre_A_Dalt() const override { return true; }
  Graella* Graella_Llista() override;  // of the list that is searched: its rows are those to be counted
  // The names of the text fields of Recordset_Cerca; the field chosen before stays chosen.
  void Omplir_Camps();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Filtrar();

  std::unique_ptr<Ui::F_Cerca> ui_;
};

// Opens F_Cerca on a form, at a point of the screen or beside the list. Nothing when the form is no list that can be
// searched or has no rows.
void Obrir_Cerca(Formulari* llista, std::optional<QPoint> lloc = std::nullopt);
// The forms that can be searched, by name.
bool Es_Pot_Cercar(const QString& nom);
