// The command server of a terminal: commands come in as JSON texts, one a line, and are answered one by one. It works
// from the event loop and so also while a modal window is open: a command that opens one is answered then, and what it
// still has to do when the window closes ends before the next answer goes out.
#pragma once

#include <QObject>
#include <QPointer>
#include <QSocketNotifier>
#include <QStringList>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <vector>

class Servidor : public QObject {
 public:
  // `rutina` carries a command out and raises Error_Guio or Error_Brollador.
  Servidor(int entrada, int sortida, std::function<void(const QStringList&)> rutina);

  // Tells of a message box at once.
  void Caixa(const QString& text, int estil, const QString& titol);
  // Fails the command under way, or the next one.
  void Fallar(const QString& text);

 private:
  struct En_Curs {
    int nivell;  // of the event loop that it began in
    bool respost = false;
    QPointer<QWidget> modal;  // the window behind which it was answered
  };

  void Llegir();
  void Atendre();
  bool Pot_Atendre() const;
  void Executar(const QStringList& mots);
  void Acabar(bool respost);
  void Vigilar();
  void Respondre();
  void Enviar(const QByteArray& linia) const;

  int entrada_;
  int sortida_;
  std::function<void(const QStringList&)> rutina_;
  QSocketNotifier avis_;
  QTimer vigia_;
  QByteArray rebut_;
  std::vector<En_Curs> en_curs_;
  bool pendent_ = false;  // an answer waits for a command that goes on behind it
  QString error_;
};

// Lets pending events run until nothing is left to do.
void Calmar();
