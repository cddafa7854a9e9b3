// The engine's C interface by hand: the least that reading and writing the same rows can cost.
#pragma once

#include <sqlite3.h>

#include <string>
#include <string_view>

// A file opened with the settings of the program's own connections.
class Base_Nua {
 public:
  explicit Base_Nua(const std::string& cami);
  ~Base_Nua() { sqlite3_close(base_); }
  Base_Nua(const Base_Nua&) = delete;
  Base_Nua& operator=(const Base_Nua&) = delete;

  void Executar(const std::string& sql);
  double Numero(const std::string& sql);  // first column of the first row
  void Reposar();                         // no statement half-way, so that no lock is held
  sqlite3* Base() { return base_; }

 private:
  sqlite3* base_ = nullptr;
};

// A statement prepared once. Texts bound to it must outlive its next Reiniciar.
class Sentencia_Nua {
 public:
  Sentencia_Nua(Base_Nua& base, const char* sql);
  ~Sentencia_Nua() { sqlite3_finalize(sentencia_); }
  Sentencia_Nua(const Sentencia_Nua&) = delete;
  Sentencia_Nua& operator=(const Sentencia_Nua&) = delete;

  template <class... Valors>
  Sentencia_Nua& Amb(const Valors&... valors) {
    sqlite3_reset(sentencia_);
    int lloc = 0;
    (Lligar(++lloc, valors), ...);
    return *this;
  }
  bool Fila();      // the next row; raises when the statement fails
  void Executar();  // to the end
  std::int64_t Enter(int columna) const { return sqlite3_column_int64(sentencia_, columna); }
  double Doble(int columna) const { return sqlite3_column_double(sentencia_, columna); }
  std::string Text(int columna) const;
  int Camps() const { return sqlite3_column_count(sentencia_); }

 private:
  void Lligar(int lloc, double valor) { sqlite3_bind_double(sentencia_, lloc, valor); }
  void Lligar(int lloc, int valor) { sqlite3_bind_int(sentencia_, lloc, valor); }
  void Lligar(int lloc, std::int64_t valor) { sqlite3_bind_int64(sentencia_, lloc, valor); }
  void Lligar(int lloc, std::string_view valor) {
    sqlite3_bind_text(sentencia_, lloc, valor.data(), static_cast<int>(valor.size()), SQLITE_STATIC);
  }

  sqlite3_stmt* sentencia_ = nullptr;
};
