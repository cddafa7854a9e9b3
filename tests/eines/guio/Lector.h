// Reads the words of one line of a script: words are separated by blanks, a word or the last argument may stand
// between double quotes, where \n is a line break and \" a quote. Knows no command.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

class Lector {
 public:
  explicit Lector(const QString& linia) : resta_(linia.trimmed()) {}

  bool Buit() const { return resta_.isEmpty(); }
  // The next word, taken; raises "NAME is missing" when there is none.
  QString Mot(const char* nom);
  // The next word when it is this one, taken.
  bool Treure(const QString& mot);
  // The last argument, without its quotes; empty when nothing is left.
  QString Resta();
  // What is left, as it was written.
  QString Resta_Tal_Qual();
  // Nothing may be left.
  void Final() const;

 private:
  QString resta_;
};

// The text between the quotes when the whole of it is one quoted text.
std::optional<QString> Entre_Cometes(const QString& text);
// Position of the last `que` that stands outside of quotes, -1 when there is none.
qsizetype Ultim_Fora_De_Cometes(const QString& text, const QString& que);
// Position of the first `que` that stands outside of quotes.
qsizetype Primer_Fora_De_Cometes(const QString& text, const QString& que);
// The pieces between the bars, trimmed and without their quotes.
QStringList Partir_Per_Barres(const QString& text);
