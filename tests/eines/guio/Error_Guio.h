// What went wrong with a script: a line of it that cannot be read, or a command that did not do what it says.
#pragma once

#include <QString>
#include <exception>

class Error_Guio : public std::exception {
 public:
  explicit Error_Guio(QString text, int linia = 0) : text_(std::move(text)), linia_(linia), bytes_(text_.toUtf8()) {}

  const QString& Text() const { return text_; }
  int Linia() const { return linia_; }  // 0: that of the command under way
  const char* what() const noexcept override { return bytes_.constData(); }

 private:
  QString text_;
  int linia_;
  QByteArray bytes_;
};
