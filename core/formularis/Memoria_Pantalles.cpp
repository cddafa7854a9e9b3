#include "core/formularis/Memoria_Pantalles.h"

#include <QSettings>
#include <QUrl>

#include "core/Sessio.h"

namespace {

constexpr int maxim = 20000;  // pixels; more than that is no window

QString Fitxer() {
  return QString::fromStdString(sessio.Dir_Dades + "/pantalles.ini");
}

// Codes of users and names of controls may hold what divides the keys.
QString Tros(const QString& nom) {
  return QString::fromLatin1(QUrl::toPercentEncoding(nom.toUpper()));
}

QString Clau_Usuari() {
  return Tros(QString::fromStdString(sessio.Usuari_Actual)) + u'/';
}
QString Clau_Mida(const QString& formulari) {
  return Clau_Usuari() + Tros(formulari) + QStringLiteral("/mida");
}
QString Clau_Amplada(const QString& formulari, const QString& graella, const QString& camp) {
  return Clau_Usuari() + Tros(formulari) + u'/' + Tros(graella) + u'/' + Tros(camp);
}

bool Val(int pixels) {
  return pixels > 0 && pixels <= maxim;
}

QVariant Llegir(const QString& clau) {
  return sessio.Usuari_Actual.empty() ? QVariant() : QSettings(Fitxer(), QSettings::IniFormat).value(clau);
}

// The file is written only when it would change.
void Escriure(const QString& clau, const QVariant& valor, bool propi) {
  if (sessio.Usuari_Actual.empty()) return;
  QSettings fitxer(Fitxer(), QSettings::IniFormat);
  if (propi && fitxer.contains(clau)) fitxer.remove(clau);
  if (!propi && fitxer.value(clau).toString() != valor.toString()) fitxer.setValue(clau, valor);
}

}  // namespace

std::optional<QSize> Mida_Recordada(const QString& formulari) {
  const QStringList costats = Llegir(Clau_Mida(formulari)).toString().split(u'x');
  const QSize mida(costats.value(0).toInt(), costats.value(1).toInt());
  if (costats.size() != 2 || !Val(mida.width()) || !Val(mida.height())) return std::nullopt;
  return mida;
}

void Recordar_Mida(const QString& formulari, QSize mida, QSize propia) {
  Escriure(Clau_Mida(formulari), QStringLiteral("%1x%2").arg(mida.width()).arg(mida.height()), mida == propia);
}

std::optional<int> Amplada_Recordada(const QString& formulari, const QString& graella, const QString& camp) {
  const int amplada = Llegir(Clau_Amplada(formulari, graella, camp)).toInt();
  return Val(amplada) ? std::optional(amplada) : std::nullopt;
}

void Recordar_Amplada(const QString& formulari, const QString& graella, const QString& camp, int amplada, int propia) {
  Escriure(Clau_Amplada(formulari, graella, camp), amplada, amplada == propia);
}

namespace {
// The terminal's own: no code of a user is written with a star.
const QString clau_principal = QStringLiteral("*/principal");
const QString clau_impressora = QStringLiteral("*/impressora");
const QString clau_copies = QStringLiteral("*/copies");
constexpr int maxim_copies = 999;
}  // namespace

QByteArray Estat_Recordat() {
  return QByteArray::fromBase64(QSettings(Fitxer(), QSettings::IniFormat).value(clau_principal).toString().toLatin1());
}

void Recordar_Estat(const QByteArray& estat) {
  QSettings(Fitxer(), QSettings::IniFormat).setValue(clau_principal, QString::fromLatin1(estat.toBase64()));
}

Impressora_Recordada Darrera_Impressora() {
  const QSettings fitxer(Fitxer(), QSettings::IniFormat);
  const int copies = fitxer.value(clau_copies).toInt();
  return {.nom = fitxer.value(clau_impressora).toString(), .copies = copies > 0 && copies <= maxim_copies ? copies : 1};
}

void Recordar_Impressora(const Impressora_Recordada& impressora) {
  QSettings fitxer(Fitxer(), QSettings::IniFormat);
  fitxer.setValue(clau_impressora, impressora.nom);
  fitxer.setValue(clau_copies, impressora.copies);
}
