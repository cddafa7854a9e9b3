// One process per terminal: the first one on a data folder listens, and a later one calls it to the front.
#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <memory>

class Instancia_Unica : public QObject {
  Q_OBJECT
 public:
  explicit Instancia_Unica(const QString& carpeta);
  // False when another process runs on the folder; it has been called.
  bool Es_La_Primera() const { return primera_; }

 Q_SIGNALS:
  void Cridada();

 private:
  void Escoltar(const QString& nom);
  static void Cridar(const QString& nom);
  QLockFile pany_;
  QLocalServer servidor_;
  bool primera_ = true;
};
