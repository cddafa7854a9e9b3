// The program from its first line to its event loop, for the office's desktop and for the scripts that test it alike.
#pragma once

#include <QApplication>

inline constexpr const char* nom_i_versio = "Brollador 1.27.05";

// Nothing that escapes an event ends the program: it ends in the system's box.
class Aplicacio : public QApplication {
 public:
  Aplicacio(int& argc, char** argv);
  bool notify(QObject* receptor, QEvent* event) override;
};

// Every screen of the program, by its name.
void Registrar_Formularis();

// Steps of the start up to the login form. False when it failed: the user has been told, and the process ends.
bool Inici_Aplicacio();

// Closes all forms, recordsets and connections and ends the process. False when a form stays with work that it could
// not save: then nothing ends.
bool Acabar_Aplicacio();

// The whole program: one process per terminal, a second start brings the running one to the front. Words that neither
// it nor the toolkit knows end it with 2.
int Executar_Brollador(int argc, char** argv);
