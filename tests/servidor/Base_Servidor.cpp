#include "tests/servidor/Base_Servidor.h"

#include <libpq-fe.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <stdexcept>

namespace {

// A server for this process alone, which ends with it.
void Engegar_Servidor() {
  const std::string ordre = "bash '" CARPETA_SERVIDOR "/engegar' " + std::to_string(getpid());
  const std::unique_ptr<FILE, decltype(&pclose)> sortida(popen(ordre.c_str(), "r"), pclose);
  char linia[512] = {};
  if (!sortida || fgets(linia, sizeof linia, sortida.get()) == nullptr) throw std::runtime_error("no server: " + ordre);
  std::string adreca = linia;
  adreca.resize(adreca.find_last_not_of('\n') + 1);
  setenv("BROLLADOR_SERVIDOR", adreca.c_str(), 1);
}

std::string Servidor() {
  if (std::getenv("BROLLADOR_SERVIDOR") == nullptr) Engegar_Servidor();
  const char* adreca = std::getenv("BROLLADOR_SERVIDOR");
  return adreca == nullptr ? std::string() : adreca;
}

std::string Adreca_De(const std::string& base) {
  std::string adreca = Servidor();
  return adreca.insert(adreca.find("///") + 3, base);
}

void Manar(const std::string& sql, const std::string& base = "postgres") {
  const std::unique_ptr<PGconn, decltype(&PQfinish)> connexio(PQconnectdb(Adreca_De(base).c_str()), PQfinish);
  const std::unique_ptr<PGresult, decltype(&PQclear)> resultat(PQexec(connexio.get(), sql.c_str()), PQclear);
  const ExecStatusType estat = PQresultStatus(resultat.get());
  if (estat != PGRES_COMMAND_OK && estat != PGRES_TUPLES_OK) throw std::runtime_error(PQerrorMessage(connexio.get()));
}

std::string Nom_Nou() {
  static int comptador = 0;
  return "prova_" + std::to_string(getpid()) + "_" + std::to_string(++comptador);
}

}  // namespace

void Assegurar_Servidor() {
  Servidor();
}

namespace {

void Caiguda(const std::string& que) {
  const std::string adreca = Servidor();
  const std::size_t carpeta = adreca.find("host=") + 5;
  const std::string ordre = "bash '" CARPETA_SERVIDOR "/caiguda' " + que + " '" +
                            adreca.substr(carpeta, adreca.find('&', carpeta) - carpeta) + "'";
  if (std::system(ordre.c_str()) != 0) throw std::runtime_error("failed: " + ordre);
}

}  // namespace

void Matar_Servidor() {
  Caiguda("matar");
}

void Tornar_A_Engegar_Servidor() {
  Caiguda("tornar");
}

bool Proves_Al_Servidor() {
  const char* motor = std::getenv("BROLLADOR_MOTOR");
  return motor != nullptr && std::string(motor) == "postgres";
}

Base_Servidor::Base_Servidor() : nom_(Nom_Nou()) {}

Base_Servidor::Base_Servidor(const std::string& model) : nom_(Nom_Nou()) {
  Manar("CREATE DATABASE " + nom_ + " TEMPLATE " + model + " STRATEGY file_copy");
}

Base_Servidor::~Base_Servidor() {
  try {
    Esborrar(nom_);
    if (tocaio_) Manar("DROP ROLE " + nom_);
  } catch (const std::runtime_error&) {
    return;  // a server that a test took away
  }
}

std::string Base_Servidor::Adreca() const {
  return Adreca_De(nom_);
}

std::string Base_Servidor::Adreca_Del_Tocaio() {
  if (!tocaio_) Manar("CREATE ROLE " + nom_ + " LOGIN SUPERUSER");
  tocaio_ = true;
  std::string adreca = Adreca();
  return adreca.insert(adreca.find("///") + 2, nom_ + "@") + "&user=" + nom_;
}

void Base_Servidor::Esborrar(const std::string& nom) {
  Manar("DROP DATABASE IF EXISTS " + nom + " WITH (FORCE)");
}

void Base_Servidor::Tallar() const {
  Manar("SELECT pg_terminate_backend(pid, 5000) FROM pg_stat_activity WHERE datname = '" + nom_ + "'");
}

void Base_Servidor::Marxar() const {
  Manar("ALTER DATABASE " + nom_ + " ALLOW_CONNECTIONS false");
  Tallar();
}

void Base_Servidor::Tornar() const {
  Manar("ALTER DATABASE " + nom_ + " ALLOW_CONNECTIONS true");
}

void Base_Servidor::Fixar_Avui(const std::string& dia) const {
  Manar(
      "DO $d$ DECLARE e text; BEGIN FOR e IN SELECT n.nspname FROM pg_proc p JOIN pg_namespace n "
      "ON n.oid = p.pronamespace WHERE p.proname = 'br_now' LOOP EXECUTE format('CREATE OR REPLACE FUNCTION "
      "%I.br_now() RETURNS timestamp(0) LANGUAGE sql VOLATILE AS %L', e, 'SELECT (date ''" +
          dia + "'' + localtime(0))::timestamp(0)'); END LOOP; END $d$",
      nom_);
}
