#include "bench/Base_Nua.h"

#include <stdexcept>

#include "core/dades/Funcions_SQLite.h"

namespace {

[[noreturn]] void Llancar(sqlite3* base) {
  throw std::runtime_error(sqlite3_errmsg(base));
}

}  // namespace

Base_Nua::Base_Nua(const std::string& cami) {
  if (sqlite3_open_v2(cami.c_str(), &base_, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) Llancar(base_);
  Registrar_Funcions_SQLite(base_);
  for (const char* ajust : {"journal_mode = TRUNCATE", "synchronous = FULL", "foreign_keys = ON", "temp_store = MEMORY",
                            "cache_size = -16000"}) {
    Executar(std::string("PRAGMA ") + ajust);
  }
}

void Base_Nua::Executar(const std::string& sql) {
  if (sqlite3_exec(base_, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) Llancar(base_);
}

double Base_Nua::Numero(const std::string& sql) {
  Sentencia_Nua sentencia(*this, sql.c_str());
  return sentencia.Fila() ? sentencia.Doble(0) : 0;
}

void Base_Nua::Reposar() {
  for (sqlite3_stmt* s = sqlite3_next_stmt(base_, nullptr); s != nullptr; s = sqlite3_next_stmt(base_, s)) {
    sqlite3_reset(s);
  }
}

Sentencia_Nua::Sentencia_Nua(Base_Nua& base, const char* sql) {
  if (sqlite3_prepare_v3(base.Base(), sql, -1, SQLITE_PREPARE_PERSISTENT, &sentencia_, nullptr) != SQLITE_OK) {
    Llancar(base.Base());
  }
}

bool Sentencia_Nua::Fila() {
  const int codi = sqlite3_step(sentencia_);
  if (codi == SQLITE_ROW) return true;
  sqlite3_reset(sentencia_);
  if (codi != SQLITE_DONE) Llancar(sqlite3_db_handle(sentencia_));
  return false;
}

void Sentencia_Nua::Executar() {
  while (Fila()) continue;
}

std::string Sentencia_Nua::Text(int columna) const {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(sentencia_, columna));
  return text == nullptr ? std::string()
                         : std::string(text, static_cast<std::size_t>(sqlite3_column_bytes(sentencia_, columna)));
}
