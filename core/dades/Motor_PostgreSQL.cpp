// The engine of an office with a server. Several terminals write at once: rows read to be written inside a
// transaction are held until it ends, and each write stands on a savepoint, so that a statement that fails leaves the
// transaction usable.
#include <algorithm>
#include <map>
#include <utility>

#include "core/dades/Adreca.h"
#include "core/dades/Enllac_PostgreSQL.h"
#include "core/dades/Error_Brollador.h"
#include "core/dades/Esquema_PostgreSQL.h"
#include "core/dades/Motor.h"

namespace {

const Trets_Motor trets_postgresql{.marcador = '$',
                                   .ordre_catala = R"( COLLATE "ca-x-icu")",
                                   .clau_oculta = clau_oculta_postgresql,
                                   .menor = "LEAST",
                                   .major = "GREATEST",
                                   .plegar = "plegar",
                                   .prefix_propi = "br_",
                                   .clau_en_la_taula = true,
                                   .nuls_al_final = true};

bool Escriu(std::string_view sql) {
  sql.remove_prefix(std::min(sql.find_first_not_of(' '), sql.size()));
  return sql.starts_with("INSERT") || sql.starts_with("UPDATE") || sql.starts_with("DELETE");
}

int Files_Tocades(const PGresult* resultat) {
  const char* text = resultat == nullptr ? "" : PQcmdTuples(const_cast<PGresult*>(resultat));
  return *text == '\0' ? 0 : std::stoi(text);
}

std::string Primer_Text(const Resultat_PG& resultat) {
  return PQntuples(resultat.get()) == 0 ? std::string() : PQgetvalue(resultat.get(), 0, 0);
}

// Where our tables and functions stand, quoted.
std::string Esquema_Actual(Enllac_PostgreSQL& enllac) {
  return Primer_Text(enllac.Executar_Directe("SELECT quote_ident(current_schema())"));
}

class Motor_PostgreSQL final : public Motor {
 public:
  Motor_PostgreSQL(const std::string& adreca, int espera) : enllac_(adreca, espera) { Llegir_Cataleg(); }

  const Cataleg& Taules() const override { return taules_; }
  const Trets_Motor& Trets() const override { return trets_postgresql; }

  int Executar(const std::string& sql, const std::vector<Valor>& parametres) override {
    return Files_Tocades(Passar(sql, parametres).get());
  }

  int Consultar(const std::string& sql, const std::vector<Valor>& parametres, Files_Memoria& files,
                std::vector<Columna_Resultat>* columnes) override {
    Resultat_PG resultat = Ja_Demanada(sql, parametres);
    if (!resultat) resultat = Passar(sql, parametres);
    Llegir_Files(resultat.get(), files);
    if (columnes != nullptr) *columnes = Columnes_De(resultat.get());
    return Escriu(sql) ? Files_Tocades(resultat.get()) : 0;
  }

  void Demanar(const std::string& sql, const std::vector<Valor>& parametres) override {
    const bool ja_hi_es = std::any_of(demanades_.begin(), demanades_.end(),
                                      [&](const Demanada& demanada) { return demanada.Es(sql, parametres); });
    if (marcada_ && !ja_hi_es) demanades_.push_back({sql, parametres, nullptr});
  }

  void Executar_Despres(const std::string& sql, const std::vector<Valor>& parametres) override {
    if (!marcada_) return static_cast<void>(Executar(sql, parametres));
    Preparar_Cami(true);
    Oblidar_Demanades_De(sql);
    enllac_.Encuar(sql, parametres);
  }

  void Definir(const Definicio& definicio) override {
    for (const auto& sql : Definicions_PostgreSQL(definicio, taules_)) {
      Preparar_Cami(true);
      enllac_.Encuar(sql);
    }
    if (definicio.taula) {
      for (const auto& fila : Files_Esquema(*definicio.taula)) {
        enllac_.Encuar(R"(INSERT INTO "ESQUEMA" ("TAULA", "COLUMNA", "TIPUS", "CLAU") VALUES ($1, $2, $3, $4))", fila);
      }
    }
    Enviar();
    if (definicio.afegeix) {
      taules_.Afegir_Columnes(*definicio.taula);
    } else if (definicio.taula) {
      taules_.Afegir(*definicio.taula);
    }
    noms_columnes_.clear();
  }

  void Renovar_Funcions() override {
    Preparar_Cami(true);
    Enviar();
    for (const auto& sql : Funcions_PostgreSQL(Esquema_Actual(enllac_))) enllac_.Executar_Directe(sql);
  }

  void BeginTrans() override { marcada_ = true; }

  void CommitTrans() override {
    if (comencada_) {
      Exigir_Viva();
      const std::vector<std::int64_t> per_deixar = per_deixar_;  // when it fails, behind the rollback
      enllac_.Encuar("COMMIT");
      Encuar_Per_Deixar();
      try {
        Enviar();
      } catch (const Error_Brollador&) {
        per_deixar_ = per_deixar;
        throw;
      }
    }
    Deixar_Pendents();
    Oblidar_Transaccio();
  }

  void RollbackTrans() override {
    const bool cal = comencada_ && enviada_;
    Oblidar_Transaccio();
    if (cal && enllac_.Es_Viu()) {
      enllac_.Encuar("ROLLBACK");
      Encuar_Per_Deixar();
      enllac_.Enviar();
    }
    Deixar_Pendents();
  }

  bool En_Transaccio() const override { return marcada_; }
  bool Te_Canvis() const override { return comencada_; }
  std::int64_t Transaccio_Que_Reten() const override { return comencada_ ? numero_ : 0; }
  std::int64_t Viatges() const override { return enllac_.Viatges(); }

  std::string Condicio_Identica(const Columna& columna, int parametre) const override {
    return "\"" + columna.nom + "\" IS NOT DISTINCT FROM $" + std::to_string(parametre);
  }

  bool Retenir(const std::string& taula, const Valor& clau) override {
    const Resultat_PG resultat = Passar("SELECT pg_try_advisory_lock($1)", {Empremta_Fila(taula, clau)});
    return PQgetvalue(resultat.get(), 0, 0)[0] == 't';
  }
  // Inside a transaction the lock of a row is released after the commit or the rollback. The server has released those
  // of a connection that is gone.
  void Deixar_Anar(const std::string& taula, const Valor& clau) override {
    if (!enllac_.Es_Viu()) return;
    per_deixar_.push_back(Empremta_Fila(taula, clau));
    if (!marcada_) Deixar_Pendents();
  }
  std::string Condicio_Lliure(int parametre) const override {
    return " AND pg_try_advisory_xact_lock($" + std::to_string(parametre) + ")";
  }

  std::string Comprovar_Integritat() override {
    Files_Memoria files;
    Consultar("SELECT c.relname FROM pg_index i JOIN pg_class c ON c.oid = i.indexrelid WHERE NOT i.indisvalid", {},
              files, nullptr);
    std::string defectes;
    for (std::size_t i = 0; i < files.Files(); ++i) {
      defectes += "index: " + files.Valor_De(i, 0, Tipus_Columna::Text).Text() + "\n";
    }
    return defectes;
  }

 private:
  void Encuar_Per_Deixar() {
    for (const std::int64_t fila : std::exchange(per_deixar_, {})) {
      enllac_.Encuar("SELECT pg_advisory_unlock($1)", {fila});
    }
  }

  // Never raises: a lock that cannot be released went with its connection.
  void Deixar_Pendents() {
    if (per_deixar_.empty()) return;
    try {
      Encuar_Per_Deixar();
      if (enllac_.Es_Viu()) enllac_.Enviar();
    } catch (const Error_Brollador&) {
      per_deixar_.clear();
    }
    enllac_.Oblidar_Cua();
  }

  Resultat_PG Passar(const std::string& sql, const std::vector<Valor>& parametres) {
    const bool nova = !comencada_ && enllac_.Es_Viu();
    try {
      return Passar_Un_Cop(sql, parametres);
    } catch (const Error_Brollador&) {
      // A server that was away while nothing was under way is looked for again, once. What it had not answered yet
      // may be asked again as long as nothing of it can have been kept.
      const bool res_desat = nova && (marcada_ || !Escriu(sql));
      if (enllac_.Es_Viu() || !res_desat) throw;
    }
    Oblidar_Enviada();
    return Passar_Un_Cop(sql, parametres);
  }

  // Behind the statement go the reads that were asked for, if nothing failed before them.
  Resultat_PG Passar_Un_Cop(const std::string& sql, const std::vector<Valor>& parametres) {
    Preparar_Cami(Escriu(sql));
    if (Escriu(sql)) Oblidar_Demanades_De(sql);
    const std::size_t lloc = enllac_.En_Cua();
    enllac_.Encuar(sql, parametres);
    for (const Demanada& demanada : demanades_) {
      if (!demanada.resposta) enllac_.Encuar(demanada.sql, demanada.parametres);
    }
    auto resultats = Enviar();
    std::size_t seguent = lloc;
    for (Demanada& demanada : demanades_) {
      if (!demanada.resposta) demanada.resposta = std::move(resultats.at(++seguent));
    }
    return std::move(resultats.at(lloc));
  }

  // The answer of a read that was asked for; it serves once.
  Resultat_PG Ja_Demanada(const std::string& sql, const std::vector<Valor>& parametres) {
    const auto it = std::find_if(demanades_.begin(), demanades_.end(),
                                 [&](const Demanada& demanada) { return demanada.Es(sql, parametres); });
    if (it == demanades_.end()) return nullptr;
    Resultat_PG resposta = std::move(it->resposta);
    demanades_.erase(it);
    return resposta;
  }

  // What was read of a table that is being written is not what it will hold.
  void Oblidar_Demanades_De(const std::string& escriptura) {
    const std::size_t obre = std::min(escriptura.find('"'), escriptura.size());
    const std::string taula = escriptura.substr(obre, escriptura.find('"', obre + 1) - obre + 1);  // the first name
    std::erase_if(demanades_, [&](const Demanada& demanada) {
      return demanada.resposta && demanada.sql.find(taula) != std::string::npos;
    });
  }

  // What has to go before a statement: a connection that lives, the start of the transaction at its first write, and
  // a savepoint behind which nothing was written yet.
  void Preparar_Cami(bool escriu) {
    if (comencada_) Exigir_Viva();
    if (comencada_ ? !enllac_.Es_Viu() : !enllac_.Segueix_Viu()) {
      enllac_.Reconnectar();
      per_deixar_.clear();
    }
    if (marcada_ && escriu && !comencada_) {
      enllac_.Encuar("BEGIN");
      comencada_ = true;
      canvis_ = true;
      ++numero_;
    }
    if (comencada_ && canvis_) {
      if (punt_) enllac_.Encuar("RELEASE SAVEPOINT punt");
      enllac_.Encuar("SAVEPOINT punt");
      punt_ = true;
      canvis_ = false;
    }
    canvis_ = canvis_ || (comencada_ && escriu);
  }

  std::vector<Resultat_PG> Enviar() {
    enviada_ = comencada_;
    try {
      return enllac_.Enviar();
    } catch (const Error_Brollador&) {
      demanades_.clear();
      if (enviada_ && enllac_.Es_Viu()) Tornar_Al_Punt();
      throw;
    }
  }

  // The statement failed: the transaction goes back to where it stood before it, and goes on.
  void Tornar_Al_Punt() {
    try {
      enllac_.Encuar("ROLLBACK TO SAVEPOINT punt");
      enllac_.Enviar();
      canvis_ = false;
      ++numero_;  // rows read since the savepoint are not held any more
    } catch (const Error_Brollador&) {
      trencada_ = true;  // the statement's own error is what the user has to see
    }
  }

  void Exigir_Viva() const {
    if (enllac_.Es_Viu() && !trencada_) return;
    Llancar_Falla(Falla::Transaccio_Desfeta, "PostgreSQL");
  }

  void Oblidar_Enviada() {
    demanades_.clear();
    enllac_.Oblidar_Cua();
    comencada_ = enviada_ = punt_ = canvis_ = trencada_ = false;
  }
  void Oblidar_Transaccio() {
    Oblidar_Enviada();
    marcada_ = false;
  }

  void Llegir_Cataleg() {
    Files_Memoria files;
    Consultar(R"(SELECT "TAULA", "COLUMNA", "TIPUS", "CLAU" FROM "ESQUEMA" ORDER BY "ORDRE")", {}, files, nullptr);
    taules_ = Llegir_Esquema(files);
  }

  // Tables and columns by the server's numbers, read when the first answer has to be described.
  void Llegir_Noms() {
    const Resultat_PG resultat = Passar(
        R"(SELECT c.oid::bigint, a.attnum, c.relname, a.attname FROM pg_class c JOIN pg_attribute a ON a.attrelid = c.oid )"
        R"(WHERE c.relkind = 'r' AND a.attnum > 0 AND c.relname IN (SELECT "TAULA" FROM "ESQUEMA"))",
        {});
    for (int i = 0; i < PQntuples(resultat.get()); ++i) {
      const auto text = [&](int columna) { return std::string(PQgetvalue(resultat.get(), i, columna)); };
      noms_columnes_[{static_cast<Oid>(std::stoul(text(0))), std::stoi(text(1))}] = {text(2), text(3)};
    }
  }

  std::vector<Columna_Resultat> Columnes_De(const PGresult* resultat) {
    if (noms_columnes_.empty()) Llegir_Noms();
    std::vector<Columna_Resultat> columnes;
    for (int i = 0; i < PQnfields(resultat); ++i) {
      const auto it = noms_columnes_.find({PQftable(resultat, i), PQftablecol(resultat, i)});
      const bool propia = it != noms_columnes_.end();
      columnes.push_back({PQfname(resultat, i), propia ? it->second.first : "", propia ? it->second.second : ""});
    }
    return columnes;
  }

  struct Demanada {
    std::string sql;
    std::vector<Valor> parametres;
    Resultat_PG resposta;
    bool Es(const std::string& altra_sql, const std::vector<Valor>& altres) const {
      return sql == altra_sql && parametres == altres;
    }
  };

  Enllac_PostgreSQL enllac_;
  std::vector<Demanada> demanades_;
  Cataleg taules_;
  std::map<std::pair<Oid, int>, std::pair<std::string, std::string>> noms_columnes_;
  std::vector<std::int64_t> per_deixar_;  // locks of rows, to be released when the transaction ends
  std::int64_t numero_ = 0;
  bool marcada_ = false;    // BeginTrans was called
  bool comencada_ = false;  // the server's transaction runs, or is in the queue
  bool enviada_ = false;    // it was sent
  bool punt_ = false;       // a savepoint stands, or is in the queue
  bool canvis_ = false;     // something was written since the savepoint
  bool trencada_ = false;   // nothing of the transaction is left
};

constexpr const char* base_de_tothom = "postgres";  // the one that every server has

std::string Exigir_Base(const std::string& adreca) {
  std::string nom = Base_De_Adreca(adreca);
  if (nom.empty() || nom.find('"') != std::string::npos) {
    throw Error_Brollador(errors::general, "PostgreSQL",
                          "the address names no database: " + Adreca_Per_Mostrar(adreca));
  }
  return nom;
}

bool Hi_Ha_Base(Enllac_PostgreSQL& servidor, const std::string& nom) {
  servidor.Encuar("SELECT datname FROM pg_database WHERE datname = $1", {nom});
  return !Primer_Text(servidor.Enviar().front()).empty();
}

bool Hi_Ha_Installacio(Enllac_PostgreSQL& base) {
  return !Primer_Text(base.Executar_Directe(R"(SELECT to_regclass('"ESQUEMA"')::text)")).empty();
}

}  // namespace

const Trets_Motor& Trets_PostgreSQL() {
  return trets_postgresql;
}

std::unique_ptr<Motor> Obrir_Motor_PostgreSQL(const std::string& adreca, int espera) {
  return std::make_unique<Motor_PostgreSQL>(adreca, espera);
}

bool Base_PostgreSQL_Ocupada(const std::string& adreca) {
  const std::string nom = Exigir_Base(adreca);
  Enllac_PostgreSQL servidor(Amb_Base(adreca, base_de_tothom), 0);
  if (!Hi_Ha_Base(servidor, nom)) return false;
  Enllac_PostgreSQL base(adreca, 0);
  return Hi_Ha_Installacio(base);
}

void Crear_Base_PostgreSQL(const std::string& adreca) {
  const std::string nom = Exigir_Base(adreca);
  Enllac_PostgreSQL servidor(Amb_Base(adreca, base_de_tothom), 0);
  if (!Hi_Ha_Base(servidor, nom)) {
    servidor.Executar_Directe("CREATE DATABASE \"" + nom + "\" ENCODING 'UTF8' TEMPLATE template0");
  }
  Enllac_PostgreSQL base(adreca, 0);
  if (Primer_Text(base.Executar_Directe("SHOW server_encoding")) != "UTF8") {
    throw Error_Brollador(errors::general, "PostgreSQL", "the database is not in UTF8: " + nom);
  }
  if (Hi_Ha_Installacio(base)) Llancar_Error(errors::fitxer_existent, "PostgreSQL", nom);
  std::string tot = "BEGIN;";
  for (const auto& sql : Definicions_Inicials(Esquema_Actual(base))) tot += sql + ";";
  base.Executar_Directe(tot + "COMMIT");
}

// The server copies a database by itself, file by file, as long as nobody is connected to it.
void Copiar_Base_PostgreSQL(const std::string& adreca, const std::string& desti) {
  Enllac_PostgreSQL servidor(Amb_Base(adreca, base_de_tothom), 0);
  servidor.Executar_Directe("CREATE DATABASE \"" + Exigir_Base(desti) + "\" TEMPLATE \"" + Exigir_Base(adreca) + "\"");
}

void Esborrar_Base_PostgreSQL(const std::string& adreca) {
  Enllac_PostgreSQL base(adreca, 0);
  base.Executar_Directe(R"(DO $f$ DECLARE t text; BEGIN
    FOR t IN SELECT DISTINCT "TAULA" FROM "ESQUEMA" LOOP EXECUTE format('DROP TABLE IF EXISTS %I CASCADE', t); END LOOP;
    DROP TABLE "ESQUEMA";
    FOR t IN SELECT oid::regprocedure FROM pg_proc WHERE pronamespace = current_schema()::regnamespace AND
      (proname LIKE 'br\_%' OR proname IN ('plegar', 'plegar_lletres')) LOOP
      EXECUTE 'DROP FUNCTION ' || t; END LOOP;
  END $f$)");
}
