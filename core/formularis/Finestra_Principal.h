// The main window as forms and rules see it: where forms stand, and the entries of its menu by name.
#pragma once

#include <QMainWindow>

class QAction;
class QMdiArea;
class QMdiSubWindow;

class Finestra_Principal : public QMainWindow {
  Q_OBJECT
 public:
  // The main window; null before the start and after the end.
  static Finestra_Principal* Unica();
  ~Finestra_Principal() override;

  virtual QMdiArea* Area() const = 0;
  virtual QAction* Accio(const QString& entrada) const = 0;  // stops at once on an unknown name
  // An entry whose screen does not exist in this program stays disabled.
  virtual void Habilitar(const QString& entrada, bool habilitada) = 0;
  virtual void Portar_Al_Davant(QMdiSubWindow* finestra) = 0;

 protected:
  Finestra_Principal();
};
