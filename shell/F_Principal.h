// The main window: a multiple-document area, the menu, the only way into the modules, and the status line. It knows
// menu entries and forms by name, nothing of what they do.
#pragma once

#include <QMap>
#include <QPointer>
#include <QTimer>

#include "core/formularis/Finestra_Principal.h"

class Barra_Estat;
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

  // As it was left on this terminal; the first time, the whole display.
  void Mostrar();
  void Recordar_Estat() const;

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* objecte, QEvent* event) override;

 private:
  void Crear_Menu();
  void Activada(QMdiSubWindow* finestra);
  void Omplir_Finestres();
  bool Lletra_Del_Formulari(QEvent* event);

  QMdiArea* area_;
  Barra_Estat* estat_;
  QTimer quan_toqui_;
  QMap<QString, QAction*> accions_;
  QPointer<QMdiSubWindow> activa_;
};
