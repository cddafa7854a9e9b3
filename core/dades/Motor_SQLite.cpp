// The embedded engine. The shared file may lie where several machines see it, so nothing that needs memory shared
// between them (no WAL); every commit is on the disk before it is told.
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <list>
#include <unordered_map>

#include "core/dades/Dates.h"
#include "core/dades/Errors_Motor.h"
#include "core/dades/Espera.h"
#include "core/dades/Funcions_SQLite.h"
#include "core/dades/Motor.h"
#include "core/dades/Retencio_Fitxer.h"
#include "core/dades/Text.h"

namespace {

constexpr std::size_t sentencies_preparades = 300;

constexpr Trets_Motor trets_sqlite{
    .marcador = '?', .ordre_catala = " COLLATE CATALA", .clau_oculta = "rowid", .menor = "MIN", .major = "MAX"};

// How a type of the dialect is stored. By the order of Tipus_Columna.
constexpr const char* tipus_desats[] = {
    "TEXT COLLATE PLEGAT",
    "TEXT COLLATE PLEGAT",
    "INTEGER",
    "INTEGER",
    "REAL",
    "INTEGER",
    "TEXT",
    "TEXT",
    "INTEGER PRIMARY KEY AUTOINCREMENT",
};

struct Tancar_Base {
  void operator()(sqlite3* base) const { sqlite3_close_v2(base); }
};
struct Acabar_Sentencia {
  void operator()(sqlite3_stmt* sentencia) const { sqlite3_finalize(sentencia); }
};
using Base = std::unique_ptr<sqlite3, Tancar_Base>;

struct Preparada {
  std::string sql;
  std::unique_ptr<sqlite3_stmt, Acabar_Sentencia> sentencia;
  std::vector<Columna_Resultat> columnes;
  bool escriu = false;
};

// A file that another terminal writes is looked at again every few milliseconds, each time after another while: the
// engine's own waits grow long, and a terminal that has waited much would be the last to come in.
int Esperar_Torn(void* limit, int vegades) {
  constexpr int pas = 2000;  // microseconds
  if (static_cast<std::int64_t>(vegades) * pas / 1000 >= *static_cast<const int*>(limit)) return 0;
  constexpr int es_nota = 50;  // steps
  if (vegades > es_nota) Avisar_De_L_Espera();
  usleep(static_cast<useconds_t>(pas / 2 + (vegades * 7 + getpid()) % pas));
  return 1;
}

Falla Falla_De(int codi, std::string_view sql) {
  switch (codi) {
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_ROWID:
      return Falla::Clau_Repetida;
    case SQLITE_CONSTRAINT_FOREIGNKEY:
    case SQLITE_CONSTRAINT_TRIGGER:  // a relation that restricts
      return Falla_De_Relacio(sql);
    case SQLITE_CONSTRAINT_NOTNULL:
      return Falla::Valor_Buit;
    default:
      break;
  }
  switch (codi & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return Falla::Espera;
    case SQLITE_CANTOPEN:
      return Falla::Sense_Connexio;
    case SQLITE_READONLY:
      return Falla::No_Es_Pot_Escriure;
    case SQLITE_FULL:
      return Falla::Disc_Ple;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      return Falla::Base_Malmesa;
    case SQLITE_IOERR:
      return Falla::Disc_Que_Falla;
    default:
      return Falla::Altra_Del_Motor;
  }
}

[[noreturn]] void Llancar_De(sqlite3* base, int codi, std::string_view sql = {}, const std::string& lloc = {}) {
  const std::string paraules = std::string(sqlite3_errmsg(base)) + " (" + std::to_string(codi) + ")";
  Llancar_Error_Motor(Falla_De(codi, sql), "SQLite", lloc.empty() ? paraules : paraules + ": " + lloc, sql);
}

Base Obrir_Base(const std::string& cami, int mode) {
  sqlite3* oberta = nullptr;
  const int codi = sqlite3_open_v2(cami.c_str(), &oberta, mode, nullptr);
  Base base(oberta);
  if (codi != SQLITE_OK) {
    const std::string paraules = base ? sqlite3_errmsg(base.get()) : sqlite3_errstr(codi);
    Llancar_Sense_Connexio("SQLite", paraules + " (" + std::to_string(codi) + "): " + cami, cami);
  }
  sqlite3_extended_result_codes(base.get(), 1);
  // A name between double quotes is a name: one that is no column is an error, not a text.
  sqlite3_db_config(base.get(), SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  Registrar_Funcions_SQLite(base.get());
  return base;
}

class Motor_SQLite final : public Motor {
 public:
  Motor_SQLite(const std::string& cami, int espera)
      : espera_(espera), base_(Obrir_Base(cami, SQLITE_OPEN_READWRITE | SQLITE_OPEN_EXRESCODE)), retencio_(cami) {
    sqlite3_busy_handler(base_.get(), Esperar_Torn, &espera_);
    if (sqlite3_db_readonly(base_.get(), "main") == 1) {
      Llancar_Falla(Falla::No_Es_Pot_Escriure, "SQLite", cami);
    }
    Executar_Directe("PRAGMA journal_mode = TRUNCATE");
    Executar_Directe("PRAGMA synchronous = FULL");
    Executar_Directe("PRAGMA foreign_keys = ON");
    Executar_Directe("PRAGMA temp_store = MEMORY");
    Executar_Directe("PRAGMA cache_size = -16000");
    Llegir_Cataleg();
  }

  const Cataleg& Taules() const override { return taules_; }
  const Trets_Motor& Trets() const override { return trets_sqlite; }

  int Executar(const std::string& sql, const std::vector<Valor>& parametres) override {
    Files_Memoria files;
    return Consultar(sql, parametres, files, nullptr);
  }

  int Consultar(const std::string& sql, const std::vector<Valor>& parametres, Files_Memoria& files,
                std::vector<Columna_Resultat>* columnes) override {
    Preparada& preparada = Preparar(sql);
    sqlite3_stmt* sentencia = preparada.sentencia.get();
    if (preparada.escriu) Comencar_Si_Cal();
    Lligar(sentencia, parametres);
    const int quantes = sqlite3_column_count(sentencia);
    files.Buidar(static_cast<std::size_t>(quantes));
    int codi = SQLITE_ROW;
    while ((codi = sqlite3_step(sentencia)) == SQLITE_ROW) Llegir_Fila(sentencia, quantes, files);
    sqlite3_reset(sentencia);
    sqlite3_clear_bindings(sentencia);
    if (codi != SQLITE_DONE) Llancar(codi, sql);
    if (columnes != nullptr) *columnes = preparada.columnes;
    return preparada.escriu ? sqlite3_changes(base_.get()) : 0;
  }

  void Definir(const Definicio& definicio) override {
    Comencar_Si_Cal();
    if (!definicio.taula) return Executar_Directe(definicio.text);
    const Taula& taula = *definicio.taula;
    if (definicio.afegeix) return Afegir_Columna(taula, definicio.columnes.front());
    std::string sql = "CREATE TABLE " + taula.nom + " (";
    bool clau_propia = false;
    for (std::size_t i = 0; i < taula.columnes.size(); ++i) {
      const Columna& columna = taula.columnes[i];
      clau_propia = clau_propia || columna.tipus == Tipus_Columna::Autonumeric;
      sql += (i == 0 ? "" : ", ") + columna.nom + " " + tipus_desats[static_cast<std::size_t>(columna.tipus)] +
             definicio.columnes[i];
    }
    for (const auto& regla : definicio.regles) {
      if (!clau_propia || regla.find("PRIMARY") == std::string::npos) sql += "," + regla;
    }
    Executar_Directe(sql + ") STRICT");
    Apuntar_Columnes(taula);
    taules_.Afegir(taula);
  }

  void BeginTrans() override { marcada_ = true; }

  void CommitTrans() override {
    if (comencada_) {
      Comprovar_Viva();
      Executar_Directe("COMMIT");
    }
    marcada_ = comencada_ = false;
  }

  void RollbackTrans() override {
    const bool cal = comencada_ && sqlite3_get_autocommit(base_.get()) == 0;
    marcada_ = comencada_ = false;
    if (cal) Executar_Directe("ROLLBACK");
  }

  bool En_Transaccio() const override { return marcada_; }
  bool Te_Canvis() const override { return comencada_; }

  std::string Condicio_Identica(const Columna& columna, int parametre) const override {
    const bool text = columna.tipus == Tipus_Columna::Codi || columna.tipus == Tipus_Columna::Text;
    return "\"" + columna.nom + "\"" + (text ? " COLLATE BINARY" : "") + " IS ?" + std::to_string(parametre);
  }

  bool Retenir(const std::string& taula, const Valor& clau) override {
    return retencio_.Retenir(Empremta_Fila(taula, clau));
  }
  void Deixar_Anar(const std::string& taula, const Valor& clau) override {
    retencio_.Deixar_Anar(Empremta_Fila(taula, clau));
  }

  std::string Comprovar_Integritat() override {
    Files_Memoria files;
    Consultar("PRAGMA integrity_check", {}, files, nullptr);
    std::string defectes;
    for (std::size_t i = 0; i < files.Files(); ++i) {
      const std::string text = files.Valor_De(i, 0, Tipus_Columna::Text).Text();
      if (text != "ok") defectes += text + "\n";
    }
    Consultar("PRAGMA foreign_key_check", {}, files, nullptr);
    for (std::size_t i = 0; i < files.Files(); ++i) {
      defectes += "foreign key: " + files.Valor_De(i, 0, Tipus_Columna::Text).Text() + "\n";
    }
    return defectes;
  }

 private:
  [[noreturn]] void Llancar(int codi, std::string_view sql) const { Llancar_De(base_.get(), codi, sql); }

  void Executar_Directe(const std::string& sql) {
    const int codi = sqlite3_exec(base_.get(), sql.c_str(), nullptr, nullptr, nullptr);
    if (codi != SQLITE_OK) Llancar(codi, sql);
  }

  Preparada& Preparar(const std::string& sql) {
    if (const auto it = per_text_.find(sql); it != per_text_.end()) {
      preparades_.splice(preparades_.begin(), preparades_, it->second);
      return preparades_.front();
    }
    sqlite3_stmt* sentencia = nullptr;
    const int codi = sqlite3_prepare_v3(base_.get(), sql.c_str(), static_cast<int>(sql.size()) + 1,
                                        SQLITE_PREPARE_PERSISTENT, &sentencia, nullptr);
    if ((codi & 0xFF) == SQLITE_ERROR) Llancar_Sentencia_Motor("SQLite", sqlite3_errmsg(base_.get()), sql);
    if (codi != SQLITE_OK) Llancar(codi, sql);
    Preparada nova;
    nova.sql = sql;
    nova.sentencia.reset(sentencia);
    nova.escriu = sqlite3_stmt_readonly(sentencia) == 0;
    nova.columnes = Columnes_De(sentencia);
    preparades_.push_front(std::move(nova));
    per_text_.emplace(preparades_.front().sql, preparades_.begin());
    if (preparades_.size() > sentencies_preparades) {
      per_text_.erase(preparades_.back().sql);
      preparades_.pop_back();
    }
    return preparades_.front();
  }

  static std::vector<Columna_Resultat> Columnes_De(sqlite3_stmt* sentencia) {
    const auto text = [](const char* t) { return std::string(t == nullptr ? "" : t); };
    const int quantes = sqlite3_column_count(sentencia);
    std::vector<Columna_Resultat> columnes;
    columnes.reserve(static_cast<std::size_t>(quantes));
    for (int i = 0; i < quantes; ++i) {
      columnes.push_back({text(sqlite3_column_name(sentencia, i)), text(sqlite3_column_table_name(sentencia, i)),
                          text(sqlite3_column_origin_name(sentencia, i))});
    }
    return columnes;
  }

  static void Lligar(sqlite3_stmt* sentencia, const std::vector<Valor>& parametres) {
    for (std::size_t i = 0; i < parametres.size(); ++i) {
      const int lloc = static_cast<int>(i) + 1;
      const Valor& valor = parametres[i];
      if (valor.Es_Nul()) {
        sqlite3_bind_null(sentencia, lloc);
      } else if (valor.Es_Enter()) {
        sqlite3_bind_int64(sentencia, lloc, valor.Enter());
      } else if (valor.Es_Doble()) {
        sqlite3_bind_double(sentencia, lloc, valor.Doble());
      } else if (const std::string* text = valor.Text_Propi()) {
        // The parameters outlive the step: the engine need not copy them.
        sqlite3_bind_text(sentencia, lloc, text->data(), static_cast<int>(text->size()), SQLITE_STATIC);
      } else {
        const std::string data = Data_Desada(valor.Data());
        sqlite3_bind_text(sentencia, lloc, data.data(), static_cast<int>(data.size()), SQLITE_TRANSIENT);
      }
    }
  }

  static void Llegir_Fila(sqlite3_stmt* sentencia, int quantes, Files_Memoria& files) {
    for (int i = 0; i < quantes; ++i) {
      switch (sqlite3_column_type(sentencia, i)) {
        case SQLITE_INTEGER:
          files.Afegir_Enter(sqlite3_column_int64(sentencia, i));
          break;
        case SQLITE_FLOAT:
          files.Afegir_Doble(sqlite3_column_double(sentencia, i));
          break;
        case SQLITE_NULL:
          files.Afegir_Nul();
          break;
        default: {
          const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(sentencia, i));
          files.Afegir_Text({text, static_cast<std::size_t>(sqlite3_column_bytes(sentencia, i))});
        }
      }
    }
  }

  // The engine's transaction begins here, at the first write, so that a question on the screen holds no lock.
  void Comencar_Si_Cal() {
    if (comencada_) return Comprovar_Viva();
    if (!marcada_) return;
    Executar_Directe("BEGIN IMMEDIATE");
    comencada_ = true;
  }

  // A full disk or a broken one makes the engine undo the transaction by itself: nothing may be written after that
  // as if it were still there.
  void Comprovar_Viva() const {
    if (sqlite3_get_autocommit(base_.get()) == 0) return;
    Llancar_Falla(Falla::Transaccio_Desfeta, "SQLite");
  }

  // The catalogue is kept in a table of the database: a STRICT table knows neither dates nor booleans.
  void Llegir_Cataleg() {
    Files_Memoria files;
    Consultar("SELECT TAULA, COLUMNA, TIPUS, CLAU FROM ESQUEMA ORDER BY ORDRE", {}, files, nullptr);
    taules_ = Llegir_Esquema(files);
  }

  void Afegir_Columna(const Taula& taula, const std::string& resta) {
    const Columna& columna = taula.columnes.front();
    Executar_Directe("ALTER TABLE " + taula.nom + " ADD COLUMN " + columna.nom + " " +
                     tipus_desats[static_cast<std::size_t>(columna.tipus)] + resta);
    Apuntar_Columnes(taula);
    taules_.Afegir_Columnes(taula);
  }

  void Apuntar_Columnes(const Taula& taula) {
    for (const auto& fila : Files_Esquema(taula)) {
      Executar("INSERT INTO ESQUEMA (TAULA, COLUMNA, TIPUS, CLAU) VALUES (?1, ?2, ?3, ?4)", fila);
    }
  }

  int espera_;  // milliseconds that a locked file is waited for
  Base base_;
  Cataleg taules_;
  std::list<Preparada> preparades_;  // the last used first
  std::unordered_map<std::string_view, std::list<Preparada>::iterator> per_text_;
  Retencio_Fitxer retencio_;
  bool marcada_ = false;    // BeginTrans was called
  bool comencada_ = false;  // the engine's transaction runs
};

}  // namespace

const Trets_Motor& Trets_SQLite() {
  return trets_sqlite;
}

std::unique_ptr<Motor> Obrir_Motor_SQLite(const std::string& cami, int espera) {
  return std::make_unique<Motor_SQLite>(cami, espera);
}

void Crear_Fitxer_SQLite(const std::string& cami) {
  const int fitxer = open(cami.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, 0666);
  if (fitxer < 0) {
    if (errno == EEXIST) Llancar_Error(errors::fitxer_existent, "SQLite", cami);
    Llancar_Sense_Connexio("SQLite", cami + ": " + std::strerror(errno), cami);
  }
  close(fitxer);
  const Base base = Obrir_Base(cami, SQLITE_OPEN_READWRITE);
  const char* esquema =
      "CREATE TABLE ESQUEMA (ORDRE INTEGER PRIMARY KEY, TAULA TEXT NOT NULL, COLUMNA TEXT NOT NULL, "
      "TIPUS TEXT NOT NULL, CLAU INTEGER NOT NULL) STRICT";
  const int codi = sqlite3_exec(base.get(), esquema, nullptr, nullptr, nullptr);
  if (codi != SQLITE_OK) Llancar_De(base.get(), codi, esquema, cami);
}

void Copiar_Fitxer_SQLite(const std::string& cami, const std::string& desti) {
  if (std::filesystem::exists(desti)) Llancar_Error(errors::fitxer_existent, "SQLite", desti);
  const Base origen = Obrir_Base(cami, SQLITE_OPEN_READWRITE);
  int espera = 8000;  // milliseconds for a terminal that is writing
  sqlite3_busy_handler(origen.get(), Esperar_Torn, &espera);
  const Base copia = Obrir_Base(desti, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  sqlite3_backup* feina = sqlite3_backup_init(copia.get(), "main", origen.get(), "main");
  if (feina != nullptr) {
    sqlite3_backup_step(feina, -1);
    sqlite3_backup_finish(feina);
  }
  if (const int codi = sqlite3_errcode(copia.get()); codi != SQLITE_OK) {
    Llancar_De(copia.get(), codi, {}, desti);
  }
  std::filesystem::permissions(desti, std::filesystem::status(cami).permissions());
}
