#include "tests/eines/guio/Installacio.h"

#include <QDir>
#include <QFile>

#include "schema/Installador.h"
#include "tests/eines/guio/Error_Guio.h"

namespace {

const QString nom_del_model = QStringLiteral("/model");  // file with the name of the server's database to copy

void Copiar(const QString& origen, const QString& desti) {
  QFile fitxer(origen);
  if (!fitxer.copy(desti)) throw Error_Guio(QStringLiteral("%1: %2").arg(desti, fitxer.errorString()));
}

void Escriure(const QString& cami, const QString& text) {
  QFile fitxer(cami);
  if (!fitxer.open(QIODevice::WriteOnly) || fitxer.write(text.toUtf8()) < 0)
    throw Error_Guio(QStringLiteral("%1: %2").arg(cami, fitxer.errorString()));
}

Connexio& Obrir(Connexio& connexio, const QString& adreca) {
  if (!connexio.Es_Oberta()) connexio.Open(adreca.toStdString());
  return connexio;
}

}  // namespace

Base_De_Guions::Base_De_Guions(const QString& carpeta) {
  std::string compartida = (carpeta + QStringLiteral("/comuna.db")).toStdString();
  if (Proves_Al_Servidor()) {
    compartida = servidor_.emplace().Adreca();
    Escriure(carpeta + nom_del_model, QString::fromStdString(servidor_->Nom()));
  }
  Crear_Base((carpeta + QStringLiteral("/dades")).toStdString(), compartida);
}

Installacio::Installacio(const QString& base, bool guardar) : base_(base), carpeta_(QDir::tempPath() + "/guio-XXXXXX") {
  if (!carpeta_.isValid()) throw Error_Guio(carpeta_.errorString());
  carpeta_.setAutoRemove(!guardar);
  if (!Proves_Al_Servidor()) {
    Copiar(base_ + QStringLiteral("/comuna.db"), Adreca_Comuna());
    return;
  }
  QFile model(base_ + nom_del_model);
  if (!model.open(QIODevice::ReadOnly)) throw Error_Guio(model.errorString());
  servidor_.emplace(model.readAll().toStdString());
}

QString Installacio::Adreca_Comuna() const {
  return servidor_ ? QString::fromStdString(servidor_->Adreca()) : Carpeta() + QStringLiteral("/comuna.db");
}

Terminal& Installacio::De_Numero(int numero) {
  auto& terminal = terminals_[numero];
  if (terminal) return *terminal;
  terminal = std::make_unique<Terminal>(numero, QStringLiteral("%1/terminal%2").arg(Carpeta()).arg(numero));
  QDir().mkpath(terminal->Temporals());
  QDir().mkpath(terminal->Dades() + QStringLiteral("/copia"));
  Copiar(base_ + QStringLiteral("/dades/dadeslocals.db"), terminal->Dades() + QStringLiteral("/dadeslocals.db"));
  Escriure(terminal->Dades() + QStringLiteral("/Brollador.ini"), u'"' + Adreca_Comuna() + QStringLiteral("\"\n"));
  return *terminal;
}

const Base_Servidor& Installacio::Al_Servidor() const {
  if (!servidor_) throw Error_Guio(QStringLiteral("the shared database is on no server"));
  return *servidor_;
}

Connexio& Installacio::Comuna() {
  return Obrir(comuna_, Adreca_Comuna());
}

Connexio& Installacio::Local(int numero) {
  return Obrir(locals_[numero], De_Numero(numero).Dades() + QStringLiteral("/dadeslocals.db"));
}
