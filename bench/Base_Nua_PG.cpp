#include "bench/Base_Nua_PG.h"

#include <stdexcept>
#include <vector>

namespace {

void Exigir_Bo(PGconn* connexio, const PGresult* resultat) {
  const ExecStatusType estat = PQresultStatus(resultat);
  if (estat != PGRES_COMMAND_OK && estat != PGRES_TUPLES_OK) throw std::runtime_error(PQerrorMessage(connexio));
}

}  // namespace

void Base_Nua_PG::Executar(const std::string& sql) {
  const std::unique_ptr<PGresult, decltype(&PQclear)> resultat(PQexec(Connexio(), sql.c_str()), PQclear);
  Exigir_Bo(Connexio(), resultat.get());
}

double Base_Nua_PG::Numero(const std::string& sql) {
  const std::unique_ptr<PGresult, decltype(&PQclear)> resultat(PQexec(Connexio(), sql.c_str()), PQclear);
  Exigir_Bo(Connexio(), resultat.get());
  return std::stod(PQgetvalue(resultat.get(), 0, 0));
}

Sentencia_Nua_PG::Sentencia_Nua_PG(Base_Nua_PG& base, const char* sql) : base_(base) {
  static int comptador = 0;
  nom_ = "nua" + std::to_string(++comptador);
  const std::unique_ptr<PGresult, decltype(&PQclear)> resultat(
      PQprepare(base.Connexio(), nom_.c_str(), sql, 0, nullptr), PQclear);
  Exigir_Bo(base.Connexio(), resultat.get());
}

Sentencia_Nua_PG& Sentencia_Nua_PG::Amb(std::initializer_list<std::string> valors) {
  std::vector<const char*> punters;
  punters.reserve(valors.size());
  for (const std::string& valor : valors) punters.push_back(valor.c_str());
  resultat_.reset(PQexecPrepared(base_.Connexio(), nom_.c_str(), static_cast<int>(punters.size()), punters.data(),
                                 nullptr, nullptr, 0));
  Exigir_Bo(base_.Connexio(), resultat_.get());
  return *this;
}
