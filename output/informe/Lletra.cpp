#include "output/informe/Lletra.h"

#include <QFontMetricsF>
#include <QHash>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace {

constexpr double twips_per_punt = 20;
constexpr double interlinia = 1.22;
constexpr double base = 0.92;

// Line breaks as the breaker of lines knows them.
QString Amb_Salts(QString text) {
  text.replace(QStringLiteral("\r\n"), QString(QChar::LineSeparator));
  return text.replace(u'\n', QChar::LineSeparator).replace(u'\r', QChar::LineSeparator);
}

QString Sense_Salts(const QString& text) {
  return Amb_Salts(text).replace(QChar::LineSeparator, u' ');
}

QString Retallar(const QString& text, const QFont& lletra, double amplada) {
  return QFontMetricsF(lletra).elidedText(text, Qt::ElideRight, amplada);
}

}  // namespace

// Kept: looking one up among the computer's letters takes longer than measuring a text with it.
QFont Lletra(const Estil_Lletra& estil, double escala) {
  static QHash<int, QFont> fetes;
  const int alcada = static_cast<int>(std::lround(estil.punts * twips_per_punt * escala));
  const int clau = estil.negreta ? -alcada : alcada;
  const auto feta = fetes.constFind(clau);
  if (feta != fetes.constEnd()) return *feta;
  QFont lletra(
      QStringList{QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans"), QStringLiteral("Sans Serif")});
  lletra.setPixelSize(alcada);
  lletra.setBold(estil.negreta);
  lletra.setHintingPreference(QFont::PreferNoHinting);
  return *fetes.insert(clau, lletra);
}

QColor Color(Tinta tinta) {
  switch (tinta) {
    case Tinta::Grisa:
      return {0x55, 0x5F, 0x69};
    case Tinta::Clara:
      return {0xB8, 0xC0, 0xC8};
    case Tinta::Negra:
      return Qt::black;
    case Tinta::Fosca:
      break;
  }
  return {0x14, 0x1A, 0x20};
}

double Pas_De_Linia(const Estil_Lletra& estil) {
  return estil.punts * twips_per_punt * interlinia;
}

double Base_De_Linia(const Estil_Lletra& estil) {
  return estil.punts * twips_per_punt * base;
}

double Amplada(const QString& text, const QFont& lletra) {
  return QFontMetricsF(lletra).horizontalAdvance(text);
}

Linia_Encongida Encongir(const QString& text, const Estil_Lletra& estil, double amplada, double minim) {
  const QString linia = Sense_Salts(text);
  const QFont sencera = Lletra(estil);
  const double natural = Amplada(linia, sencera);
  if (natural <= amplada) return {linia, sencera, natural};
  const QFont petita = Lletra(estil, std::max(minim, 0.995 * amplada / natural));  // a size is a whole number of twips
  const QString tallada = Retallar(linia, petita, amplada);
  return {tallada, petita, Amplada(tallada, petita)};
}

QStringList Partir_En_Linies(const QString& text, const Estil_Lletra& estil, double amplada, int maxim) {
  const QFont lletra = Lletra(estil);
  const QString sencer = Amb_Salts(text);
  if (!sencer.contains(QChar::LineSeparator) && Amplada(sencer, lletra) <= amplada) return {sencer};
  QTextLayout disposicio(sencer, lletra);
  disposicio.setTextOption([] {
    QTextOption opcio;
    opcio.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return opcio;
  }());
  QStringList linies;
  disposicio.beginLayout();
  for (QTextLine linia = disposicio.createLine(); linia.isValid(); linia = disposicio.createLine()) {
    linia.setLineWidth(amplada);
    if (linies.size() + 1 == maxim) {
      linies.append(Retallar(Sense_Salts(sencer.mid(linia.textStart())), lletra, amplada));
      break;
    }
    linies.append(sencer.mid(linia.textStart(), linia.textLength()).remove(QChar::LineSeparator));
  }
  disposicio.endLayout();
  return linies;
}
