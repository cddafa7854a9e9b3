// libpq by hand: statements prepared once and run one after the other, which is what a plain program would do.
#pragma once

#include <libpq-fe.h>

#include <initializer_list>
#include <memory>
#include <string>

class Base_Nua_PG {
 public:
  explicit Base_Nua_PG(const std::string& adreca) : connexio_(PQconnectdb(adreca.c_str()), PQfinish) {}
  void Executar(const std::string& sql);
  double Numero(const std::string& sql);  // first column of the first row
  PGconn* Connexio() const { return connexio_.get(); }

 private:
  std::unique_ptr<PGconn, decltype(&PQfinish)> connexio_;
};

class Sentencia_Nua_PG {
 public:
  Sentencia_Nua_PG(Base_Nua_PG& base, const char* sql);
  // Runs it; raises when it fails.
  Sentencia_Nua_PG& Amb(std::initializer_list<std::string> valors);
  int Files() const { return PQntuples(resultat_.get()); }
  int Camps() const { return PQnfields(resultat_.get()); }
  std::string Text(int columna, int fila = 0) const { return PQgetvalue(resultat_.get(), fila, columna); }
  double Doble(int columna) const { return std::stod(Text(columna)); }

 private:
  Base_Nua_PG& base_;
  std::string nom_;
  std::unique_ptr<PGresult, decltype(&PQclear)> resultat_{nullptr, PQclear};
};
