// One connection to a PostgreSQL server, over libpq. Orders are queued and travel together: nothing is sent until
// somebody waits for an answer, and then all of them go in one trip. Statements are prepared once by their text and
// the types of their parameters.
#pragma once

#include <libpq-fe.h>

#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/dades/Files_Memoria.h"
#include "core/dades/Valor.h"

struct Alliberar_Resultat {
  void operator()(PGresult* resultat) const { PQclear(resultat); }
};
using Resultat_PG = std::unique_ptr<PGresult, Alliberar_Resultat>;

class Enllac_PostgreSQL {
 public:
  // Raises 0x80004005 when it is not reached. `espera`: milliseconds that a lock is waited for.
  Enllac_PostgreSQL(std::string adreca, int espera);
  ~Enllac_PostgreSQL();
  Enllac_PostgreSQL(const Enllac_PostgreSQL&) = delete;
  Enllac_PostgreSQL& operator=(const Enllac_PostgreSQL&) = delete;

  void Encuar(std::string sql, std::vector<Valor> parametres = {});
  void Oblidar_Cua() { cua_.clear(); }
  std::size_t En_Cua() const { return cua_.size(); }
  // Sends the queue and waits. The answers in the order of the queue; the error of the first one that failed. The queue
  // is empty afterwards, however it ended.
  std::vector<Resultat_PG> Enviar();
  // A statement at once, as it stands; it may hold several. Used while connecting and creating.
  Resultat_PG Executar_Directe(const std::string& sql);

  bool Es_Viu() const { return PQstatus(connexio_.get()) == CONNECTION_OK; }
  // The same after a look at what the server may have said meanwhile, an end of the connection among it. No trip.
  bool Segueix_Viu();
  void Reconnectar();
  std::int64_t Viatges() const { return viatges_; }

 private:
  struct Tancar {
    void operator()(PGconn* connexio) const { PQfinish(connexio); }
  };
  struct Ordre {
    std::string sql;
    std::vector<Valor> parametres;
  };
  struct Preparada {
    std::string clau;
    std::string nom;
  };
  // The parameters of an order as libpq takes them.
  struct Parametres_PG {
    std::vector<std::string> textos;
    std::vector<const char*> punters;
    std::vector<int> mides;
    std::vector<Oid> tipus;
  };
  // What is waited for on one trip, in the order in which it was sent.
  struct Resposta {
    std::string_view sql = {};
    std::string clau = {};  // of the statement that is prepared here
    bool d_una_ordre = false;
    bool bona = false;
  };
  struct Viatge {
    std::vector<Resposta> respostes;
    std::vector<Resultat_PG> resultats;  // of the orders
    Resultat_PG dolent;
    std::string_view sql_dolent = {};
  };

  void Configurar();
  static Parametres_PG Preparar_Parametres(const std::vector<Valor>& parametres);
  // The name of the prepared statement; empty when it has still to be prepared (and `nou` takes its name).
  std::string Nom_Preparada(const std::string& clau);
  std::string Apuntar_Preparada(const std::string& clau);
  void Oblidar_Preparada(const std::string& clau);
  std::vector<Resultat_PG> Una_Ordre(const Ordre& ordre);
  std::vector<Resultat_PG> Totes_Juntes(const std::vector<Ordre>& ordres);
  bool Enviar_Sobrants(Viatge& viatge);
  bool Enviar_Ordres(const std::vector<Ordre>& ordres, Viatge& viatge);
  void Rebre(Viatge& viatge);
  void Exigir_Bo(const PGresult* resultat, std::string_view sql) const;
  [[noreturn]] void Llancar_Connexio() const;

  std::string adreca_;
  int espera_;
  std::unique_ptr<PGconn, Tancar> connexio_;
  std::vector<Ordre> cua_;
  std::list<Preparada> preparades_;  // the last used first
  std::unordered_map<std::string_view, std::list<Preparada>::iterator> per_clau_;
  std::int64_t comptador_ = 0;
  std::int64_t viatges_ = 0;
};

// The rows of an answer.
void Llegir_Files(const PGresult* resultat, Files_Memoria& files);
