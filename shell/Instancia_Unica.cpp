#include "shell/Instancia_Unica.h"

#include <QCryptographicHash>
#include <QLocalSocket>

namespace {
constexpr int espera = 2000;  // milliseconds

QString Nom_De_Servidor(const QString& carpeta) {
  const QByteArray resum = QCryptographicHash::hash(carpeta.toUtf8(), QCryptographicHash::Sha1).toHex();
  return QStringLiteral("brollador-") + QString::fromLatin1(resum.left(16));
}
}  // namespace

Instancia_Unica::Instancia_Unica(const QString& carpeta) : pany_(carpeta + QStringLiteral("/brollador.lock")) {
  const QString nom = Nom_De_Servidor(carpeta);
  pany_.setStaleLockTime(0);  // the lock of a process that is no more is nobody's
  primera_ = pany_.tryLock() || pany_.error() != QLockFile::LockFailedError;
  if (primera_) {
    Escoltar(nom);
  } else {
    Cridar(nom);
  }
}

void Instancia_Unica::Escoltar(const QString& nom) {
  QLocalServer::removeServer(nom);
  servidor_.setSocketOptions(QLocalServer::UserAccessOption);
  connect(&servidor_, &QLocalServer::newConnection, this, [this] {
    while (QLocalSocket* trucada = servidor_.nextPendingConnection()) trucada->deleteLater();
    Q_EMIT Cridada();
  });
  if (!servidor_.listen(nom)) qWarning("%s", qUtf8Printable(servidor_.errorString()));
}

void Instancia_Unica::Cridar(const QString& nom) {
  QLocalSocket trucada;
  trucada.connectToServer(nom);
  trucada.waitForConnected(espera);
}
