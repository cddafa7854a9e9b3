#include "core/controls/Imatge_De_Fitxer.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QRegularExpression>

namespace {

constexpr qint64 maxim_bytes = 16LL << 20;

// A file that grows meanwhile is cut at the limit, and no longer a valid picture.
QByteArray Contingut(const QString& nom) {
  const QFileInfo info(nom);
  if (!info.isFile() || info.size() > maxim_bytes) return {};
  QFile fitxer(nom);
  return fitxer.open(QIODevice::ReadOnly) ? fitxer.read(maxim_bytes) : QByteArray();
}

// A drawing may ask for other files, which would be read unseen.
bool Demana_Fitxers(const QByteArray& dibuix) {
  static const QRegularExpression referencia(QStringLiteral(R"(href\s*=\s*["'](?!#|data:))"));
  return referencia.match(QString::fromUtf8(dibuix)).hasMatch();
}

}  // namespace

QImage Imatge_De_Fitxer(const QString& fitxer, QSize maxim) {
  QByteArray contingut = Contingut(fitxer);
  if (contingut.isEmpty()) return {};
  QBuffer memoria(&contingut);
  QImageReader lector(&memoria);
  lector.setAutoTransform(true);
  const bool dibuix = lector.format() == "svg";  // drawn as large as it is wanted
  if (lector.format() == "svgz" || (dibuix && Demana_Fitxers(contingut))) return {};
  const QSize mida = lector.size();
  const bool girada = lector.transformation().testFlag(QImageIOHandler::TransformationRotate90);
  const QSize cap = girada ? maxim.transposed() : maxim;
  const bool gran = mida.width() > cap.width() || mida.height() > cap.height();
  if (mida.isValid() && (dibuix || gran))
    lector.setScaledSize(mida.scaled(cap, Qt::KeepAspectRatio).expandedTo({1, 1}));
  return lector.read();
}
