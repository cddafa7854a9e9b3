#include "tests/eines/guio/Lector.h"

#include "tests/eines/guio/Error_Guio.h"

namespace {

// One step over a text that may hold quoted pieces: the index behind the character at `i`, `dins` kept up to date.
qsizetype Seguent(const QString& text, qsizetype i, bool& dins) {
  if (dins && text[i] == u'\\' && i + 1 < text.size()) return i + 2;
  if (text[i] == u'"') dins = !dins;
  return i + 1;
}

qsizetype Cercar(const QString& text, const QString& que, bool l_ultim) {
  qsizetype trobat = -1;
  bool dins = false;
  for (qsizetype i = 0; i < text.size(); i = Seguent(text, i, dins)) {
    if (dins || QStringView(text).mid(i, que.size()) != que) continue;
    trobat = i;
    if (!l_ultim) break;
  }
  return trobat;
}

// Index of the quote that closes the one at the start, -1 when it stays open.
qsizetype Cometa_Final(const QString& text) {
  bool dins = true;
  for (qsizetype i = 1; i < text.size();) {
    const qsizetype seguent = Seguent(text, i, dins);
    if (!dins) return i;
    i = seguent;
  }
  return -1;
}

QString Sense_Escapades(const QString& text) {
  QString net;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const bool escapada = text[i] == u'\\' && i + 1 < text.size() && (text[i + 1] == u'n' || text[i + 1] == u'"');
    if (escapada) ++i;
    net += escapada && text[i] == u'n' ? QChar(u'\n') : text[i];
  }
  return net;
}

}  // namespace

std::optional<QString> Entre_Cometes(const QString& text) {
  if (!text.startsWith(u'"') || Cometa_Final(text) != text.size() - 1) return std::nullopt;
  return Sense_Escapades(text.mid(1, text.size() - 2));
}

qsizetype Ultim_Fora_De_Cometes(const QString& text, const QString& que) {
  return Cercar(text, que, true);
}

qsizetype Primer_Fora_De_Cometes(const QString& text, const QString& que) {
  return Cercar(text, que, false);
}

QStringList Partir_Per_Barres(const QString& text) {
  QStringList peces;
  QString resta = text;
  for (;;) {
    const qsizetype barra = Primer_Fora_De_Cometes(resta, QStringLiteral("|"));
    const QString pesa = resta.left(barra < 0 ? resta.size() : barra).trimmed();
    peces << Entre_Cometes(pesa).value_or(pesa);
    if (barra < 0) return peces;
    resta = resta.mid(barra + 1);
  }
}

QString Lector::Mot(const char* nom) {
  if (resta_.isEmpty()) throw Error_Guio(QStringLiteral("%1 is missing").arg(QString::fromUtf8(nom)));
  qsizetype final = 0;
  if (resta_.startsWith(u'"')) {
    final = Cometa_Final(resta_) + 1;
    if (final == 0) throw Error_Guio(QStringLiteral("a quote is not closed"));
  } else {
    while (final < resta_.size() && !resta_[final].isSpace()) ++final;
  }
  const QString mot = resta_.left(final);
  resta_ = resta_.mid(final).trimmed();
  return Entre_Cometes(mot).value_or(mot);
}

bool Lector::Treure(const QString& mot) {
  if (resta_ != mot && !resta_.startsWith(mot + u' ') && !resta_.startsWith(mot + u'\t')) return false;
  resta_ = resta_.mid(mot.size()).trimmed();
  return true;
}

QString Lector::Resta() {
  QString text = Resta_Tal_Qual();
  if (!text.startsWith(u'"')) return text;
  const auto net = Entre_Cometes(text);
  if (net) return *net;
  if (Cometa_Final(text) < 0) throw Error_Guio(QStringLiteral("a quote is not closed"));
  throw Error_Guio(QStringLiteral("there is text behind the closing quote"));
}

QString Lector::Resta_Tal_Qual() {
  return std::exchange(resta_, QString());
}

void Lector::Final() const {
  if (!resta_.isEmpty()) throw Error_Guio(QStringLiteral("too much: %1").arg(resta_));
}
