#include "core/formularis/Llengua_Qt.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QPointer>
#include <QTranslator>

#include "core/Sessio.h"

namespace {

QLocale Llengua_De_La_Sessio() {
  switch (sessio.Idioma_Actual) {
    case 1:
      return {QLocale::Spanish, QLocale::Spain};
    case 2:
      return {QLocale::English, QLocale::UnitedKingdom};
    default:
      return {QLocale::Catalan, QLocale::Spain};
  }
}

}  // namespace

void Traduir_Toolkit() {
  static QPointer<QTranslator> traductor;
  const QLocale llengua = Llengua_De_La_Sessio();
  if (traductor && QLocale() == llengua) return;
  QLocale::setDefault(llengua);
  delete traductor;
  traductor = new QTranslator(qApp);
  if (!traductor->load(llengua, QStringLiteral("qtbase"), QStringLiteral("_"),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    qWarning("no texts of the toolkit in %s", qUtf8Printable(llengua.name()));
  QCoreApplication::installTranslator(traductor);
}
