// One terminal of a script: the process that runs the whole program with real windows, and the line to it. Commands
// go out and answers come back as one JSON text a line; the message boxes that it shows arrive as they appear.
// Whatever becomes of a script, the process never outlives this object.
#pragma once

#include <QProcess>
#include <deque>

// A message box as the user saw it.
struct Caixa_Vista {
  QString text;
  QString titol;
  int estil = 0;
};

class Terminal {
 public:
  // `carpeta` is the terminal's own; the program's data folder lies in it.
  Terminal(int numero, const QString& carpeta);
  ~Terminal();
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  QString Dades() const { return carpeta_ + QStringLiteral("/brollador"); }
  QString Temporals() const { return Dades() + QStringLiteral("/Temp/"); }
  // Where the jobs that it printed, and what it opened in other programs, are left.
  QString Impressions() const { return carpeta_ + QStringLiteral("/impressions"); }
  QString Oberts() const { return carpeta_ + QStringLiteral("/oberts"); }

  bool Engegat() const { return proces_.state() == QProcess::Running; }
  void Engegar();
  // Enviar and Esperar are apart so that two terminals can work at the same moment. Esperar raises Error_Guio with
  // what the terminal says against the command, or when it crashes or hangs.
  void Enviar(const QStringList& mots);
  void Esperar();
  // As a power cut would.
  void Matar();
  // The process has ended without being killed; waits a moment for it.
  bool Acabat_Sol();

  std::deque<Caixa_Vista> caixes;  // shown and not yet checked off

 private:
  bool Tractar_Linia(const QByteArray& linia);  // true when it was the answer
  void Acabat();
  [[noreturn]] void Penjat();

  int numero_;
  QString carpeta_;
  QProcess proces_;
};
