// The main window: a multiple-document area and the menu, the only way into the modules. It knows menu entries and
// forms by name, nothing of what they do.
#pragma once

#include <QMap>

#include "core/formularis/Finestra_Principal.h"

class Formulari;

class F_Principal : public Finestra_Principal {
  Q_OBJECT
 public:
  F_Principal();
  ~F_Principal() override;
  static F_Principal* Unica() { return static_cast<F_Principal*>(Finestra_Principal::Unica()); }

  QMdiArea* Area() const override { return area_; }
  Formulari* Del_Davant() const;  // the form in front, or null
  QAction* Accio(const QString& entrada) const override;
  void Habilitar(const QString& entrada, bool habilitada) override;
  void Portar_Al_Davant(QMdiSubWindow* finestra) override;
  void Portar_Al_Davant_Del_Tot();  // this window, over the others of the desktop

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void Crear_Menu();
  void Activada(QMdiSubWindow* finestra);
  void Omplir_Finestres();

  QMdiArea* area_;
  QMap<QString, QAction*> accions_;
  QMdiSubWindow* activa_ = nullptr;
};
