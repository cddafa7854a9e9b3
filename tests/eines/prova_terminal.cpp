// prova_terminal N
//
// The whole program under the hand of a script: terminal N of a screen script. Commands come in on the standard input
// and answers go out on the standard output, one JSON text a line (tests/eines/guio/Terminal.h is the other end).
#include <unistd.h>

#include <cstdio>

#include "shell/Aplicacio.h"
#include "tests/eines/terminal/Etiquetes.h"
#include "tests/eines/terminal/Ganxos.h"
#include "tests/eines/terminal/Ordres.h"
#include "tests/eines/terminal/Servidor.h"

namespace {

// Said by the library of every key that nobody wanted and of what a terminal without a screen lacks: no use to a
// reader.
const char* const sabuts[] = {"Keyboard event not accepted by receiving widget", "This plugin does not support "};

void Escriure_Avis(QtMsgType tipus, const QMessageLogContext& context, const QString& text) {
  for (const char* sabut : sabuts)
    if (text.startsWith(QLatin1String(sabut))) return;
  std::fprintf(stderr, "prova_terminal: %s\n", qUtf8Printable(qFormatLogMessage(tipus, context, text)));
}

}  // namespace

int main(int argc, char** argv) {
  // The answers have the line for themselves: whatever else is printed goes where errors go.
  const int sortida = dup(STDOUT_FILENO);
  dup2(STDERR_FILENO, STDOUT_FILENO);
  qInstallMessageHandler(Escriure_Avis);
  Aplicacio aplicacio(argc, argv);
  Servidor servidor(STDIN_FILENO, sortida, Executar_Ordre);
  Posar_Ganxos(servidor);
  Vigilar_Etiquetes();
  return Aplicacio::exec();
}
