// The same work by hand on either engine, for measures that are one template.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "bench/Base_Nua.h"
#include "bench/Base_Nua_PG.h"
#include "bench/Mesura.h"

// The same statements by hand on either engine.
struct Amb_SQLite {
  using Base = Base_Nua;
  using Sentencia = Sentencia_Nua;
  template <class... Textos>
  static void Fer(Sentencia& sentencia, const Textos&... textos) {
    sentencia.Amb(std::string_view(textos)...).Executar();
  }
  static void Acabar(Base& base) { base.Reposar(); }
  // Every value of every row as its text; how many rows.
  static double Llegir(Base& base, const std::string& sql) {
    Sentencia sentencia(base, sql.c_str());
    double files = 0;
    std::vector<std::string> valors;
    for (sentencia.Amb(); sentencia.Fila(); ++files) {
      for (int camp = 0; camp < sentencia.Camps(); ++camp) valors.push_back(sentencia.Text(camp));
    }
    return files;
  }
};
struct Amb_PG {
  using Base = Base_Nua_PG;
  using Sentencia = Sentencia_Nua_PG;
  template <class... Textos>
  static void Fer(Sentencia& sentencia, const Textos&... textos) {
    sentencia.Amb({std::string(textos)...});
  }
  static void Acabar(Base& /*base*/) {}
  static double Llegir(Base& base, const std::string& sql) {
    Sentencia sentencia(base, sql.c_str());
    sentencia.Amb({});
    std::vector<std::string> valors;
    for (int fila = 0; fila < sentencia.Files(); ++fila) {
      for (int camp = 0; camp < sentencia.Camps(); ++camp) valors.push_back(sentencia.Text(camp, fila));
    }
    return sentencia.Files();
  }
};

// The figures of a file and those of a server, each with a copy of what `sembrar` wrote for the work by hand.
std::vector<Figura> Mesurar_Als_Dos(void (*sembrar)(),
                                    std::vector<Figura> (*al_fitxer)(Base_Nua& base, const std::string& on),
                                    std::vector<Figura> (*al_servidor)(Base_Nua_PG& base, const std::string& on));
