// The main window: a multiple-document area and the menu, the only way into the modules. It knows menu entries and
// forms by name, nothing of what they do.
#pragma once

#include <QMainWindow>
#include <QMap>

class Formulari;
class QMdiArea;
class QMdiSubWindow;

class F_Principal : public QMainWindow {
  Q_OBJECT
 public:
  F_Principal();
  ~F_Principal() override;
  // The main window; null before the start and after the end.
  static F_Principal* Unica();

  QMdiArea* Area() const { return area_; }
  Formulari* Del_Davant() const;                 // the form in front, or null
  QAction* Accio(const QString& entrada) const;  // stops at once on an unknown name
  // An entry whose screen does not exist in this program stays disabled.
  void Habilitar(const QString& entrada, bool habilitada);
  void Portar_Al_Davant(QMdiSubWindow* finestra);
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
