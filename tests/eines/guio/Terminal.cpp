#include "tests/eines/guio/Terminal.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "tests/eines/guio/Error_Guio.h"

namespace {

constexpr qint64 paciencia = 60'000;  // ms a command may take

// Stands in for the programs that the desktop would open: leaves its arguments, one a line, in a numbered file.
const char* const obridor =
    "#!/bin/sh\n"
    "n=$(ls \"$PROVA_OBERTS\" | wc -l)\n"
    "{ basename \"$0\"; for a in \"$@\"; do printf '%s\\n' \"$a\"; done; } > \"$PROVA_OBERTS/$(printf %04d \"$n\")\"\n";

// The screen that scripts are written for, where there is no real one.
const char* const pantalla =
    R"({"screens":[{"name":"guio","x":0,"y":0,"width":1366,"height":768,"logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})";

void Escriure(const QString& cami, const char* text, QFile::Permissions permisos) {
  QFile fitxer(cami);
  if (!fitxer.open(QIODevice::WriteOnly) || fitxer.write(text) < 0 || !fitxer.setPermissions(permisos))
    throw Error_Guio(QStringLiteral("%1: %2").arg(cami, fitxer.errorString()));
}

void Posar_Obridors(const QString& carpeta) {
  QDir().mkpath(carpeta);
  for (const char* nom : {"xdg-open", "xdg-email"})
    Escriure(carpeta + u'/' + QString::fromUtf8(nom), obridor, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void Posar_Pantalla(QProcessEnvironment& entorn, const QString& carpeta) {
  for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
    if (!entorn.value(QString::fromUtf8(variable)).isEmpty()) return;
  const QString fitxer = carpeta + QStringLiteral("/pantalla.json");
  Escriure(fitxer, pantalla, QFile::ReadOwner | QFile::WriteOwner);
  entorn.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen:configfile=") + fitxer);
}

// Everything that the program finds by its surroundings lies in the terminal's own folder.
QProcessEnvironment Entorn(const Terminal& terminal, const QString& carpeta) {
  auto entorn = QProcessEnvironment::systemEnvironment();
  for (const char* variable : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"})
    entorn.insert(QString::fromUtf8(variable), carpeta + QStringLiteral("/config"));
  entorn.insert(QStringLiteral("XDG_DATA_HOME"), carpeta);
  entorn.insert(QStringLiteral("XDG_RUNTIME_DIR"), carpeta + QStringLiteral("/runtime"));
  entorn.insert(QStringLiteral("PROVA_IMPRESSIONS"), terminal.Impressions());
  entorn.insert(QStringLiteral("PROVA_OBERTS"), terminal.Oberts());
  entorn.insert(QStringLiteral("PATH"), carpeta + QStringLiteral("/bin:") + entorn.value(QStringLiteral("PATH")));
  Posar_Pantalla(entorn, carpeta);
  return entorn;
}

}  // namespace

Terminal::Terminal(int numero, const QString& carpeta) : numero_(numero), carpeta_(carpeta) {
  for (const QString& una : {Impressions(), Oberts(), carpeta_ + QStringLiteral("/config")}) QDir().mkpath(una);
  QDir().mkdir(carpeta_ + QStringLiteral("/runtime"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  Posar_Obridors(carpeta_ + QStringLiteral("/bin"));
  proces_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
}

Terminal::~Terminal() {
  Matar();
}

void Terminal::Engegar() {
  proces_.setProcessEnvironment(Entorn(*this, carpeta_));
  proces_.start(QCoreApplication::applicationDirPath() + QStringLiteral("/prova_terminal"), {QString::number(numero_)});
  if (!proces_.waitForStarted()) throw Error_Guio(QStringLiteral("prova_terminal: %1").arg(proces_.errorString()));
}

void Terminal::Enviar(const QStringList& mots) {
  if (!Engegat()) throw Error_Guio(QStringLiteral("the terminal is not running"));
  proces_.write(QJsonDocument(QJsonArray::fromStringList(mots)).toJson(QJsonDocument::Compact) + '\n');
}

void Terminal::Esperar() {
  const QDeadlineTimer limit(paciencia);
  for (;;) {
    while (proces_.canReadLine())
      if (Tractar_Linia(proces_.readLine())) return;
    if (!Engegat()) return Acabat();
    if (!proces_.waitForReadyRead(static_cast<int>(limit.remainingTime())) && limit.hasExpired()) Penjat();
  }
}

bool Terminal::Tractar_Linia(const QByteArray& linia) {
  const QJsonObject missatge = QJsonDocument::fromJson(linia).object();
  if (missatge.contains(QLatin1String("caixa"))) {
    caixes.push_back({missatge[QLatin1String("caixa")].toString(), missatge[QLatin1String("titol")].toString(),
                      missatge[QLatin1String("estil")].toInt()});
    return false;
  }
  if (missatge.contains(QLatin1String("error"))) throw Error_Guio(missatge[QLatin1String("error")].toString());
  if (!missatge.contains(QLatin1String("fet")))
    throw Error_Guio(QStringLiteral("the terminal answers \"%1\"").arg(QString::fromUtf8(linia.trimmed())));
  return true;
}

// The program may end by its own will in the middle of a command; falling down is another thing.
void Terminal::Acabat() {
  while (proces_.canReadLine()) Tractar_Linia(proces_.readLine());
  if (proces_.exitStatus() == QProcess::CrashExit) throw Error_Guio(QStringLiteral("the terminal crashed"));
}

void Terminal::Penjat() {
  Matar();
  throw Error_Guio(QStringLiteral("the terminal hung and was ended after %1 seconds").arg(paciencia / 1000));
}

void Terminal::Matar() {
  if (proces_.state() == QProcess::NotRunning) return;
  proces_.kill();
  proces_.waitForFinished();
}

bool Terminal::Acabat_Sol() {
  if (Engegat()) proces_.waitForFinished(5'000);
  return proces_.state() == QProcess::NotRunning && proces_.exitStatus() == QProcess::NormalExit;
}
