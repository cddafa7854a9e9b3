// prova_guio [--engine sqlite|postgres] [--pictures DIR] [--keep] [-j N] [--say] FILE...
//
// Runs screen scripts: `ok FILE (N checks)` or `FAILED FILE:LINE: COMMAND: what was seen instead` for each, and
// `N passed, N failed` at the end. Exit status 0 only when all passed, 2 when it was called wrongly.
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <cstdio>

#include "core/dades/Error_Brollador.h"
#include "tests/eines/guio/Cua.h"
#include "tests/eines/guio/Execucio.h"

namespace {

constexpr int mal_cridat = 2;

struct Opcions {
  QStringList fitxers;
  QString motor;
  QString imatges;
  QString base;  // given to the processes of single scripts
  int alhora = 2;
  bool guardar = false;
  bool explicar = false;
};

Opcions Llegir_Opcions() {
  QCommandLineParser lector;
  lector.addOptions({{"engine", "sqlite or postgres", "name", "sqlite"},
                     {"pictures", "where pictures are written", "dir"},
                     {"keep", "leave the folder of each script"},
                     {"j", "scripts at a time", "n", "2"},
                     {"say", "print the comments of the scripts as they are reached"},
                     {"base", "the installation that scripts start from", "dir"}});
  lector.addHelpOption();
  lector.addPositionalArgument("FILE", "screen scripts", "FILE...");
  lector.process(*QCoreApplication::instance());
  return {
      lector.positionalArguments(),           lector.value("engine"), lector.value("pictures"), lector.value("base"),
      std::max(1, lector.value("j").toInt()), lector.isSet("keep"),   lector.isSet("say")};
}

bool Executar_Un(const QString& fitxer, const Opcions& opcions) {
  QString carpeta;
  bool be = false;
  try {
    const Guio guio = Llegir_Guio(fitxer);
    Execucio execucio(guio, {opcions.base, opcions.imatges, opcions.guardar, opcions.explicar});
    carpeta = execucio.Carpeta();
    std::printf("ok %s (%d checks)\n", qUtf8Printable(fitxer), execucio.Executar());
    be = true;
  } catch (const Error_Guio& error) {
    QString text = error.Text();
    text.replace(u'\n', QStringLiteral("\\n"));  // a script has one line
    std::printf("FAILED %s:%d: %s\n", qUtf8Printable(fitxer), error.Linia(), qUtf8Printable(text));
  }
  if (opcions.guardar && !carpeta.isEmpty()) std::printf("   kept in %s\n", qUtf8Printable(carpeta));
  return be;
}

bool Executar_Tots(const Opcions& opcions) {
  const QTemporaryDir base(QDir::tempPath() + "/guions-base-XXXXXX");
  const Base_De_Guions installacio(base.path());
  QStringList arguments{"--engine", opcions.motor, "--base", base.path(), "--pictures", opcions.imatges};
  if (opcions.guardar) arguments << "--keep";
  if (opcions.explicar) arguments << "--say";
  return Executar_Cua({opcions.fitxers, arguments, opcions.alhora});
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication programa(argc, argv);
  const Opcions opcions = Llegir_Opcions();
  if (opcions.motor != QLatin1String("sqlite") && opcions.motor != QLatin1String("postgres")) {
    std::fprintf(stderr, "prova_guio: no engine %s\n", qUtf8Printable(opcions.motor));
    return mal_cridat;
  }
  qputenv("BROLLADOR_MOTOR", opcions.motor.toUtf8());  // for the processes of single scripts too
  if (Proves_Al_Servidor()) Assegurar_Servidor();
  if (opcions.fitxers.isEmpty()) {
    std::fprintf(stderr, "prova_guio: no script was given\n");
    return mal_cridat;
  }
  if (!opcions.imatges.isEmpty()) QDir().mkpath(opcions.imatges);
  try {
    return (opcions.base.isEmpty() ? Executar_Tots(opcions) : Executar_Un(opcions.fitxers.first(), opcions)) ? 0 : 1;
  } catch (const Error_Brollador& error) {
    std::fprintf(stderr, "prova_guio: the base installation: %s\n", error.what());
    return mal_cridat;
  }
}
