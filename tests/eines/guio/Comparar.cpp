#include "tests/eines/guio/Comparar.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <cmath>

#include "core/dades/Numeros.h"
#include "tests/eines/guio/Error_Guio.h"
#include "tests/eines/guio/Lector.h"

namespace {

bool Mateix_Numero(double valor, const QString& esperat) {
  bool be = false;
  double numero = esperat.toDouble(&be);
  if (!be) {
    const auto llegit = Numero_De_Text(esperat.toStdString());
    if (!llegit) return false;
    numero = *llegit;
  }
  // Sums of doubles carry a dust that no reader means.
  return std::abs(valor - numero) <= 1e-9 * std::max(1.0, std::abs(numero));
}

bool Mateixa_Data(const Data_Hora& data, const QString& esperat) {
  const auto dos = [](int n) { return QStringLiteral("%1").arg(n, 2, 10, QChar(u'0')); };
  const QString any = QStringLiteral("%1").arg(data.any, 4, 10, QChar(u'0'));
  QString hora;
  if (data.hora != 0 || data.minut != 0 || data.segon != 0)
    hora = u' ' + dos(data.hora) + u':' + dos(data.minut) + u':' + dos(data.segon);
  return esperat == dos(data.dia) + u'/' + dos(data.mes) + u'/' + any + hora ||
         esperat == any + u'-' + dos(data.mes) + u'-' + dos(data.dia) + hora;
}

QString Mostrar(const Valor& valor) {
  if (valor.Es_Nul()) return QStringLiteral("NULL");
  if (valor.Es_Doble() || valor.Es_Enter()) return QString::fromStdString(Numero_SQL(valor.Doble()));
  return QString::fromStdString(valor.Text());
}

QString Mostrar_Fila(const Recordset& rs, int columnes) {
  QStringList valors;
  for (int i = 0; i < columnes; ++i) valors << Mostrar(rs[i]);
  return valors.join(QStringLiteral(" | "));
}

// A set of one column expects one text, whatever bars it holds.
QStringList Valors_Esperats(const QString& esperat, int columnes) {
  const QString net = Entre_Cometes(esperat).value_or(esperat);
  return columnes == 1 ? QStringList{net} : Partir_Per_Barres(net);
}

QString Sortida(const QString& programa, const QStringList& arguments) {
  QProcess proces;
  proces.start(programa, arguments);
  if (!proces.waitForFinished() || proces.exitStatus() != QProcess::NormalExit || proces.exitCode() != 0)
    throw Error_Guio(QStringLiteral("%1: %2 %3")
                         .arg(programa, proces.errorString(), QString::fromUtf8(proces.readAllStandardError())));
  return QString::fromUtf8(proces.readAllStandardOutput());
}

QString Un_Blanc(const QString& text) {
  return text.simplified().replace(QChar(QChar::Nbsp), u' ').simplified();
}

// The text of each shared string of a workbook, or the value of the cell itself.
QStringList Textos_Compartits(const QString& xml) {
  QStringList textos;
  QXmlStreamReader lector(xml);
  while (!lector.atEnd()) {
    lector.readNext();
    if (lector.isStartElement() && lector.name() == QLatin1String("si")) textos << QString();
    if (lector.isStartElement() && lector.name() == QLatin1String("t") && !textos.isEmpty())
      textos.last() += lector.readElementText();
  }
  return textos;
}

QString Valor_Cella(const QString& xml, const QString& cella, const QStringList& compartits) {
  QXmlStreamReader lector(xml);
  QString tipus;
  bool dins = false;
  while (!lector.atEnd()) {
    lector.readNext();
    if (!lector.isStartElement()) continue;
    if (lector.name() == QLatin1String("c")) {
      dins = lector.attributes().value(QLatin1String("r")) == cella;
      tipus = lector.attributes().value(QLatin1String("t")).toString();
    } else if (dins && (lector.name() == QLatin1String("v") || lector.name() == QLatin1String("t"))) {
      const QString text = lector.readElementText();
      return tipus == QLatin1String("s") ? compartits.value(text.toInt()) : text;
    }
  }
  return {};
}

}  // namespace

bool Coincideix_Valor(const Valor& valor, const QString& esperat) {
  if (valor.Es_Nul()) return esperat == QLatin1String("NULL");
  if (valor.Es_Enter() || valor.Es_Doble()) return Mateix_Numero(valor.Doble(), esperat);
  if (valor.Es_Data()) return Mateixa_Data(valor.Data(), esperat);
  return QString::fromStdString(valor.Text()) == esperat;
}

Desacord Comparar_Primera_Fila(const Recordset& rs, const QString& esperat) {
  const int columnes = static_cast<int>(rs.Fields().size());
  const QStringList valors = Valors_Esperats(esperat, columnes);
  if (rs.RecordCount() == 0) return QStringLiteral("no row");
  bool igual = valors.size() == columnes;
  for (int i = 0; igual && i < columnes; ++i) igual = Coincideix_Valor(rs[i], valors[i]);
  if (igual) return std::nullopt;
  return Mostrar_Fila(rs, columnes);
}

Desacord Comparar_Files(const Recordset& rs, const QString& esperat) {
  if (rs.RecordCount() == esperat.toLongLong()) return std::nullopt;
  return QStringLiteral("%1 rows").arg(rs.RecordCount());
}

Desacord Comparar_PDF(const QString& fitxer, const QString& que, const QString& esperat) {
  if (!QFile::exists(fitxer)) return QStringLiteral("there is no file %1").arg(fitxer);
  if (que == QLatin1String("pages")) {
    static const QRegularExpression pagines(QStringLiteral("Pages:\\s+(\\d+)"));
    const QString vist = pagines.match(Sortida(QStringLiteral("pdfinfo"), {fitxer})).captured(1);
    return vist.toInt() == esperat.toInt() ? Desacord() : QStringLiteral("%1 pages").arg(vist);
  }
  const QString text = Un_Blanc(Sortida(QStringLiteral("pdftotext"), {"-layout", fitxer, "-"}));
  const bool ha_de_ser = que == QLatin1String("~");
  return text.contains(Un_Blanc(esperat)) == ha_de_ser ? Desacord() : text;
}

Desacord Comparar_Fila_De_PDF(const QString& fitxer, const QString& comenca, const QString& esperat) {
  QStringList mots = Partir_Per_Barres(esperat);
  mots.removeAll(QString());
  const QString fila = Un_Blanc(mots.join(u' '));
  const QString inici = Un_Blanc(comenca);
  QStringList vistes;
  for (const QString& linia : Sortida(QStringLiteral("pdftotext"), {"-layout", fitxer, "-"}).split(u'\n')) {
    const QString vista = Un_Blanc(linia);
    if (vista != inici && !vista.startsWith(inici + u' ')) continue;
    if (vista == fila || vista == Un_Blanc(inici + u' ' + fila)) return std::nullopt;
    vistes << vista;
  }
  return vistes.isEmpty() ? QStringLiteral("no line begins so") : vistes.join(QStringLiteral(" / "));
}

Desacord Comparar_Cella(const QString& llibre, const QString& cella, const QString& esperat) {
  const auto part = [&](const char* nom) {
    return Sortida(QStringLiteral("unzip"), {"-p", llibre, QString::fromUtf8(nom)});
  };
  const char* const textos = "xl/sharedStrings.xml";  // a workbook of figures alone has none
  const QStringList parts = Sortida(QStringLiteral("unzip"), {"-Z1", llibre}).split(u'\n');
  const QStringList compartits =
      parts.contains(QString::fromUtf8(textos)) ? Textos_Compartits(part(textos)) : QStringList();
  const QString vist = Valor_Cella(part("xl/worksheets/sheet1.xml"), cella, compartits);
  return vist == esperat ? Desacord() : vist;
}
