#include "tests/eines/guio/Cua.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QProcess>
#include <cstdio>
#include <memory>
#include <vector>

namespace {

class Cua {
 public:
  explicit Cua(const Opcions_Cua& opcions)
      : opcions_(opcions), sortides_(static_cast<std::size_t>(opcions.fitxers.size())), acabats_(sortides_.size()) {}

  bool Executar() {
    for (int i = 0; i < opcions_.alhora; ++i) Engegar_Seguent();
    if (en_marxa_ > 0) bucle_.exec();
    std::printf("%d passed, %d failed\n", passats_, fallats_);
    return fallats_ == 0;
  }

 private:
  void Engegar_Seguent() {
    if (seguent_ == sortides_.size()) return;
    const std::size_t quin = seguent_++;
    const QString fitxer = opcions_.fitxers[static_cast<qsizetype>(quin)];
    auto* proces = new QProcess(&bucle_);
    proces->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QObject::connect(proces, &QProcess::readyReadStandardOutput, &bucle_, [=, this] { Rebre(proces, quin); });
    QObject::connect(proces, &QProcess::finished, &bucle_, [=, this] { Acabat(proces, quin, fitxer); });
    QObject::connect(proces, &QProcess::errorOccurred, &bucle_, [=, this](QProcess::ProcessError error) {
      if (error == QProcess::FailedToStart) No_Engegat(proces, quin, fitxer);
    });
    ++en_marxa_;
    proces->start(QCoreApplication::applicationFilePath(), opcions_.arguments + QStringList{fitxer});
  }

  // What the scripts say is printed as it comes for the first that has not ended, and kept for those behind it.
  void Rebre(QProcess* proces, std::size_t quin) {
    sortides_[quin] += QString::fromUtf8(proces->readAllStandardOutput());
    if (quin == imprimits_) Imprimir(quin);
  }

  void Acabat(QProcess* proces, std::size_t quin, const QString& fitxer) {
    const bool be = proces->exitStatus() == QProcess::NormalExit && proces->exitCode() == 0;
    Rebre(proces, quin);
    if (proces->exitStatus() == QProcess::CrashExit)
      sortides_[quin] += QStringLiteral("FAILED %1:0: the runner crashed\n").arg(fitxer);
    Comptar(proces, quin, be);
  }

  void No_Engegat(QProcess* proces, std::size_t quin, const QString& fitxer) {
    sortides_[quin] += QStringLiteral("FAILED %1:0: the runner did not start\n").arg(fitxer);
    Comptar(proces, quin, false);
  }

  void Comptar(QProcess* proces, std::size_t quin, bool be) {
    ++(be ? passats_ : fallats_);
    acabats_[quin] = true;
    proces->deleteLater();
    for (; imprimits_ < sortides_.size() && acabats_[imprimits_]; ++imprimits_) Imprimir(imprimits_);
    --en_marxa_;
    Engegar_Seguent();
    if (en_marxa_ == 0) bucle_.quit();
  }

  void Imprimir(std::size_t quin) {
    std::printf("%s", qUtf8Printable(sortides_[quin]));
    std::fflush(stdout);
    sortides_[quin].clear();
  }

  const Opcions_Cua& opcions_;
  std::vector<QString> sortides_;
  std::vector<bool> acabats_;
  std::size_t seguent_ = 0;
  std::size_t imprimits_ = 0;
  int en_marxa_ = 0;
  int passats_ = 0;
  int fallats_ = 0;
  QEventLoop bucle_;
};

}  // namespace

bool Executar_Cua(const Opcions_Cua& opcions) {
  return Cua(opcions).Executar();
}
