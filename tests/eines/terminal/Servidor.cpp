#include "tests/eines/terminal/Servidor.h"

#include <unistd.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QThread>
#include <cstdlib>

#include "core/dades/Error_Brollador.h"
#include "tests/eines/guio/Error_Guio.h"

namespace {

constexpr int rondes_maximes = 200;  // a program that never rests is answered for all the same
constexpr int pols = 5;              // ms between looks at whether a modal window has opened

QByteArray Linia(const QJsonObject& objecte) {
  return QJsonDocument(objecte).toJson(QJsonDocument::Compact) + '\n';
}

QStringList Mots(const QByteArray& linia) {
  QStringList mots;
  for (const auto& mot : QJsonDocument::fromJson(linia).array()) mots << mot.toString();
  return mots;
}

}  // namespace

void Calmar() {
  QAbstractEventDispatcher* repartidor = QAbstractEventDispatcher::instance();
  for (int ronda = 0; ronda < rondes_maximes; ++ronda) {
    QCoreApplication::sendPostedEvents();
    if (!repartidor->processEvents(QEventLoop::AllEvents)) return;
  }
}

Servidor::Servidor(int entrada, int sortida, std::function<void(const QStringList&)> rutina)
    : entrada_(entrada), sortida_(sortida), rutina_(std::move(rutina)), avis_(entrada, QSocketNotifier::Read) {
  connect(&avis_, &QSocketNotifier::activated, this, &Servidor::Llegir);
  connect(&vigia_, &QTimer::timeout, this, &Servidor::Vigilar);
  vigia_.setInterval(pols);
}

void Servidor::Caixa(const QString& text, int estil, const QString& titol) {
  Enviar(Linia({{QStringLiteral("caixa"), text}, {QStringLiteral("estil"), estil}, {QStringLiteral("titol"), titol}}));
}

void Servidor::Fallar(const QString& text) {
  if (error_.isEmpty()) error_ = text;
}

// The other end gone means that nobody is left to work for.
void Servidor::Llegir() {
  char bloc[4096];
  const ssize_t llegits = read(entrada_, bloc, sizeof bloc);
  if (llegits <= 0) std::_Exit(EXIT_SUCCESS);
  rebut_.append(bloc, llegits);
  Atendre();
}

bool Servidor::Pot_Atendre() const {
  if (en_curs_.empty()) return true;
  const En_Curs& ultim = en_curs_.back();
  return ultim.respost && ultim.modal && ultim.modal->isVisible();
}

void Servidor::Atendre() {
  const qsizetype final = rebut_.indexOf('\n');
  if (final < 0 || !Pot_Atendre()) return;
  const QByteArray linia = rebut_.left(final);
  rebut_.remove(0, final + 1);
  Executar(Mots(linia));
}

void Servidor::Executar(const QStringList& mots) {
  en_curs_.push_back({QThread::currentThread()->loopLevel(), false, nullptr});
  vigia_.start();
  try {
    rutina_(mots);
    Calmar();
  } catch (const Error_Guio& error) {
    Fallar(error.Text());
  } catch (const Error_Brollador& error) {
    Fallar(QStringLiteral("%1 - %2").arg(error.Numero()).arg(QString::fromStdString(error.Descripcio())));
  } catch (const std::exception& error) {
    Fallar(QString::fromUtf8(error.what()));
  }
  const bool respost = en_curs_.back().respost;
  en_curs_.pop_back();
  if (en_curs_.empty()) vigia_.stop();
  // From the loop itself, where what was to be deleted has gone.
  QTimer::singleShot(0, this, [this, respost] { Acabar(respost); });
}

void Servidor::Acabar(bool respost) {
  if (!respost) pendent_ = true;
  if (pendent_ && Pot_Atendre()) Respondre();
  Atendre();
}

// The command under way sits behind a modal window (or an open list) of its own: the answer is that it is there.
void Servidor::Vigilar() {
  QWidget* modal = QApplication::activePopupWidget();
  if (modal == nullptr) modal = QApplication::activeModalWidget();
  if (modal == nullptr || !modal->isVisible() || QThread::currentThread()->loopLevel() <= en_curs_.back().nivell)
    return;
  En_Curs& ultim = en_curs_.back();
  if (ultim.respost && (!pendent_ || modal == ultim.modal)) return;
  ultim.respost = true;
  ultim.modal = modal;
  Respondre();
  Atendre();
}

void Servidor::Respondre() {
  pendent_ = false;
  const QString error = std::exchange(error_, QString());
  Enviar(error.isEmpty() ? Linia({{QStringLiteral("fet"), true}}) : Linia({{QStringLiteral("error"), error}}));
}

void Servidor::Enviar(const QByteArray& linia) const {
  for (qsizetype enviats = 0; enviats < linia.size();) {
    const ssize_t ara = write(sortida_, linia.constData() + enviats, static_cast<std::size_t>(linia.size() - enviats));
    if (ara <= 0) std::_Exit(EXIT_FAILURE);
    enviats += ara;
  }
}
