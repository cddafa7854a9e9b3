#include "core/dades/Enllac_PostgreSQL.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "core/dades/Adreca.h"
#include "core/dades/Dates.h"
#include "core/dades/Errors_Motor.h"

namespace {

constexpr std::size_t sentencies_preparades = 300;

// Types of the server by their numbers, which never change.
enum : Oid {
  per_context = 0,
  enter8 = 20,
  enter2 = 21,
  enter4 = 23,
  real4 = 700,
  real8 = 701,
  moment = 1114,
  decimal = 1700
};

Oid Tipus_De(const Valor& valor) {
  if (valor.Es_Enter()) return enter8;
  if (valor.Es_Doble()) return real8;
  return valor.Es_Data() ? moment : per_context;
}

template <class Numero>
std::string Xifres(Numero valor) {
  std::array<char, 40> text{};
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), valor).ptr};
}

std::string Text_De(const Valor& valor) {
  if (valor.Es_Enter()) return Xifres(valor.Enter());
  if (valor.Es_Doble()) return Xifres(valor.Doble());
  return valor.Es_Data() ? Data_Desada(valor.Data()) : valor.Text();
}

// A statement's own key: the same text with parameters of other types is another statement for the server.
std::string Clau_De(const std::string& sql, const std::vector<Valor>& parametres) {
  std::string clau = sql;
  clau.push_back('\n');
  for (const Valor& valor : parametres) {
    clau.push_back(valor.Es_Enter() ? 'e' : valor.Es_Doble() ? 'd' : valor.Es_Data() ? 'm' : 't');
  }
  return clau;
}

std::string Sense_Salt(const char* text) {
  std::string paraules = text == nullptr ? "" : text;
  while (!paraules.empty() && paraules.back() == '\n') paraules.pop_back();
  return paraules;
}

bool Comenca(std::string_view codi, std::string_view amb) {
  return codi.starts_with(amb);
}

Falla Falla_De(std::string_view codi, std::string_view sql) {
  if (codi == "23505") return Falla::Clau_Repetida;
  if (codi == "23503" || codi == "23001") return Falla_De_Relacio(sql);
  if (codi == "23502") return Falla::Valor_Buit;
  if (codi == "55P03") return Falla::Espera;
  if (codi == "40P01" || codi == "40001") return Falla::Interbloqueig;
  if (codi == "25006") return Falla::No_Es_Pot_Escriure;
  if (codi == "53100") return Falla::Disc_Ple;
  if (codi == "XX001" || codi == "XX002") return Falla::Base_Malmesa;
  if (Comenca(codi, "58")) return Falla::Disc_Que_Falla;
  return Falla::Altra_Del_Motor;
}

// About a value that does not fit the server repeats the value, which may have been typed: its words end before it.
std::string Paraules_De(const PGresult* resultat, std::string_view codi) {
  std::string paraules = Sense_Salt(PQresultErrorField(resultat, PG_DIAG_MESSAGE_PRIMARY));
  if (Comenca(codi, "22")) paraules.resize(std::min(paraules.find_first_of(":\"'"), paraules.size()));
  return paraules + " (" + std::string(codi) + ")";
}

void Callar(void* /*qui*/, const PGresult* /*avis*/) {}

}  // namespace

Enllac_PostgreSQL::Enllac_PostgreSQL(std::string adreca, int espera) : adreca_(std::move(adreca)), espera_(espera) {
  Exigir_Adreca(adreca_);
  // An address tells what it wants; the rest is for a server that does not answer.
  const char* claus[] = {
      "dbname", "client_encoding", "connect_timeout", "tcp_user_timeout", "keepalives_idle", "application_name",
      nullptr};
  const char* valors[] = {adreca_.c_str(), "UTF8", "10", "20000", "30", "Brollador", nullptr};
  connexio_.reset(PQconnectdbParams(claus, valors, 1));
  if (!Es_Viu()) Llancar_Connexio();
  Configurar();
}

Enllac_PostgreSQL::~Enllac_PostgreSQL() = default;

void Enllac_PostgreSQL::Configurar() {
  PQsetNoticeReceiver(connexio_.get(), Callar, nullptr);
  Executar_Directe(
      "SET DateStyle = 'ISO, YMD'; SET extra_float_digits = 1; SET standard_conforming_strings = on; "
      // The database of an office fits in the server's memory, and a statement is prepared once for all its values: an
      // index is as near as the next page, and no plan is made again for each use.
      "SET random_page_cost = 1; SET plan_cache_mode = force_generic_plan; "
      "SET client_min_messages = warning; SET lock_timeout = " +
      std::to_string(espera_));
}

void Enllac_PostgreSQL::Reconnectar() {
  per_clau_.clear();
  preparades_.clear();
  cua_.clear();
  PQreset(connexio_.get());
  if (!Es_Viu()) Llancar_Connexio();
  Configurar();
}

// Read twice: the server's last message arrives before the end of the connection.
bool Enllac_PostgreSQL::Segueix_Viu() {
  for (int cops = 0; cops < 2 && Es_Viu(); ++cops) PQconsumeInput(connexio_.get());
  return Es_Viu();
}

void Enllac_PostgreSQL::Llancar_Connexio() const {
  const std::string paraules = Sense_Contrasenya(Sense_Salt(PQerrorMessage(connexio_.get())), adreca_);
  Llancar_Sense_Connexio("PostgreSQL", paraules, Adreca_Per_Mostrar(adreca_));
}

void Enllac_PostgreSQL::Exigir_Bo(const PGresult* resultat, std::string_view sql) const {
  const ExecStatusType estat = PQresultStatus(resultat);
  if (estat == PGRES_COMMAND_OK || estat == PGRES_TUPLES_OK) return;
  const char* codi = resultat == nullptr ? nullptr : PQresultErrorField(resultat, PG_DIAG_SQLSTATE);
  if (codi == nullptr || Comenca(codi, "08") || Comenca(codi, "57P")) Llancar_Connexio();
  const std::string paraules = Paraules_De(resultat, codi);
  if (Comenca(codi, "42") || Comenca(codi, "22P")) Llancar_Sentencia_Motor("PostgreSQL", paraules, sql);
  Llancar_Error_Motor(Falla_De(codi, sql), "PostgreSQL", paraules, sql);
}

Resultat_PG Enllac_PostgreSQL::Executar_Directe(const std::string& sql) {
  ++viatges_;
  Resultat_PG resultat(PQexec(connexio_.get(), sql.c_str()));
  Exigir_Bo(resultat.get(), {});
  return resultat;
}

void Enllac_PostgreSQL::Encuar(std::string sql, std::vector<Valor> parametres) {
  cua_.push_back({std::move(sql), std::move(parametres)});
}

std::vector<Resultat_PG> Enllac_PostgreSQL::Enviar() {
  const std::vector<Ordre> ordres = std::exchange(cua_, {});
  if (ordres.empty()) return {};
  ++viatges_;
  return ordres.size() == 1 ? Una_Ordre(ordres.front()) : Totes_Juntes(ordres);
}

Enllac_PostgreSQL::Parametres_PG Enllac_PostgreSQL::Preparar_Parametres(const std::vector<Valor>& parametres) {
  Parametres_PG fets;
  fets.textos.reserve(parametres.size());
  for (const Valor& valor : parametres) {
    fets.textos.push_back(valor.Es_Nul() ? std::string() : Text_De(valor));
    fets.punters.push_back(valor.Es_Nul() ? nullptr : fets.textos.back().c_str());
    fets.mides.push_back(static_cast<int>(fets.textos.back().size()));
    fets.tipus.push_back(Tipus_De(valor));
  }
  return fets;
}

std::string Enllac_PostgreSQL::Nom_Preparada(const std::string& clau) {
  const auto it = per_clau_.find(clau);
  if (it == per_clau_.end()) return {};
  preparades_.splice(preparades_.begin(), preparades_, it->second);
  return preparades_.front().nom;
}

std::string Enllac_PostgreSQL::Apuntar_Preparada(const std::string& clau) {
  preparades_.push_front({clau, "s" + std::to_string(++comptador_)});
  per_clau_.emplace(preparades_.front().clau, preparades_.begin());
  return preparades_.front().nom;
}

void Enllac_PostgreSQL::Oblidar_Preparada(const std::string& clau) {
  const auto it = per_clau_.find(clau);
  if (it == per_clau_.end()) return;
  const auto preparada = it->second;
  per_clau_.erase(it);
  preparades_.erase(preparada);
}

// The usual case: one statement that the server knows already.
std::vector<Resultat_PG> Enllac_PostgreSQL::Una_Ordre(const Ordre& ordre) {
  const std::string nom = Nom_Preparada(Clau_De(ordre.sql, ordre.parametres));
  if (nom.empty()) return Totes_Juntes({ordre});
  const Parametres_PG p = Preparar_Parametres(ordre.parametres);
  Resultat_PG resultat(PQexecPrepared(connexio_.get(), nom.c_str(), static_cast<int>(p.punters.size()),
                                      p.punters.data(), p.mides.data(), nullptr, 0));
  Exigir_Bo(resultat.get(), ordre.sql);
  std::vector<Resultat_PG> resultats;
  resultats.push_back(std::move(resultat));
  return resultats;
}

// All orders in one trip. After the first that fails the server passes over the rest, and says so of each.
std::vector<Resultat_PG> Enllac_PostgreSQL::Totes_Juntes(const std::vector<Ordre>& ordres) {
  Viatge viatge;
  const bool enviat = PQenterPipelineMode(connexio_.get()) == 1 && Enviar_Sobrants(viatge) &&
                      Enviar_Ordres(ordres, viatge) && PQpipelineSync(connexio_.get()) == 1;
  if (enviat) Rebre(viatge);
  PQexitPipelineMode(connexio_.get());
  for (const Resposta& resposta : viatge.respostes) {
    if (!resposta.clau.empty() && !resposta.bona) Oblidar_Preparada(resposta.clau);
  }
  if (!enviat || !Es_Viu()) Llancar_Connexio();
  if (viatge.dolent) Exigir_Bo(viatge.dolent.get(), viatge.sql_dolent);
  return std::move(viatge.resultats);
}

bool Enllac_PostgreSQL::Enviar_Sobrants(Viatge& viatge) {
  while (preparades_.size() > sentencies_preparades) {
    const std::string sobra = "DEALLOCATE " + preparades_.back().nom;
    Oblidar_Preparada(std::string(preparades_.back().clau));
    if (PQsendQueryParams(connexio_.get(), sobra.c_str(), 0, nullptr, nullptr, nullptr, nullptr, 0) != 1) return false;
    viatge.respostes.push_back({.d_una_ordre = false});
  }
  return true;
}

bool Enllac_PostgreSQL::Enviar_Ordres(const std::vector<Ordre>& ordres, Viatge& viatge) {
  for (const Ordre& ordre : ordres) {
    const Parametres_PG p = Preparar_Parametres(ordre.parametres);
    const int quants = static_cast<int>(p.punters.size());
    const std::string clau = Clau_De(ordre.sql, ordre.parametres);
    std::string nom = Nom_Preparada(clau);
    if (nom.empty()) {
      nom = Apuntar_Preparada(clau);
      viatge.respostes.push_back({.sql = ordre.sql, .clau = clau});
      if (PQsendPrepare(connexio_.get(), nom.c_str(), ordre.sql.c_str(), quants, p.tipus.data()) != 1) return false;
    }
    viatge.respostes.push_back({.sql = ordre.sql, .d_una_ordre = true});
    if (PQsendQueryPrepared(connexio_.get(), nom.c_str(), quants, p.punters.data(), p.mides.data(), nullptr, 0) != 1) {
      return false;
    }
  }
  return true;
}

void Enllac_PostgreSQL::Rebre(Viatge& viatge) {
  for (Resposta& resposta : viatge.respostes) {
    Resultat_PG resultat(PQgetResult(connexio_.get()));
    if (!resultat) return;
    const ExecStatusType estat = PQresultStatus(resultat.get());
    resposta.bona = estat == PGRES_COMMAND_OK || estat == PGRES_TUPLES_OK;
    if (resposta.bona && resposta.d_una_ordre) viatge.resultats.push_back(std::move(resultat));
    if (!resposta.bona && !viatge.dolent) {
      viatge.dolent = std::move(resultat);
      viatge.sql_dolent = resposta.sql;
    }
    while (const Resultat_PG resta{PQgetResult(connexio_.get())}) {
    }
  }
  // Up to the mark that ends the trip; a connection that breaks gives nothing more.
  for (int nuls = 0; nuls < 2 && Es_Viu();) {
    const Resultat_PG fi(PQgetResult(connexio_.get()));
    if (!fi) {
      ++nuls;
    } else if (PQresultStatus(fi.get()) == PGRES_PIPELINE_SYNC) {
      return;
    }
  }
}

void Llegir_Files(const PGresult* resultat, Files_Memoria& files) {
  const int columnes = PQnfields(resultat);
  const int quantes = PQntuples(resultat);
  std::vector<Oid> tipus;
  tipus.reserve(static_cast<std::size_t>(columnes));
  for (int i = 0; i < columnes; ++i) tipus.push_back(PQftype(resultat, i));
  files.Buidar(static_cast<std::size_t>(columnes));
  for (int fila = 0; fila < quantes; ++fila) {
    for (int i = 0; i < columnes; ++i) {
      if (PQgetisnull(resultat, fila, i) != 0) {
        files.Afegir_Nul();
        continue;
      }
      const std::string_view text(PQgetvalue(resultat, fila, i),
                                  static_cast<std::size_t>(PQgetlength(resultat, fila, i)));
      const Oid de = tipus[static_cast<std::size_t>(i)];
      const bool sencer =
          de == enter2 || de == enter4 || de == enter8 || (de == decimal && text.find('.') == std::string_view::npos);
      if (sencer) {
        std::int64_t valor = 0;
        std::from_chars(text.data(), text.data() + text.size(), valor);
        files.Afegir_Enter(valor);
      } else if (de == real8 || de == real4 || de == decimal) {
        double valor = 0;
        std::from_chars(text.data(), text.data() + text.size(), valor);
        files.Afegir_Doble(valor);
      } else {
        files.Afegir_Text(text);
      }
    }
  }
}
