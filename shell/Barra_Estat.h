// The line at the foot of the main window: what the form in front shows and whether it is saved, how many rows it
// lists, who works for which company and on which shared database, and what the program waits for.
#pragma once

#include <QStatusBar>

class Formulari;
class QLabel;

class Barra_Estat : public QStatusBar {
  Q_OBJECT
 public:
  explicit Barra_Estat(QWidget* pare);
  // Reads all again: the form in front, or null.
  void Actualitzar(const Formulari* davant);
  // Another terminal holds the shared database; said at once, although no event runs, and until the work goes on.
  void Esperar();

 private:
  QLabel* Etiqueta(const char* nom, int espai = 0);
  QLabel* formulari_;
  QLabel* espera_;
  QLabel* files_;
  QLabel* usuari_;
  QLabel* empresa_;
  QLabel* base_;
};

// What a person calls a shared database: the file's name, or base and server; never a password.
QString Nom_De_La_Base(const QString& adreca);
