// Lines on their way: a proposal's line accepted into the order of the day, an order's line served into the note of the
// day, and taken back; bare with the same rows written by prepared statements, and nothing read. And the lines of a
// customer that are pending among those of everybody, read by hand. On a file and on a server.

#include "bench/Mesura.h"
#include "bench/Motors_Nus.h"
#include "bench/Nota_Oberta.h"
#include "sales/M_Acceptacio.h"
#include "sales/M_Comandes.h"
#include "sales/M_Tipus_Venda.h"

namespace {

constexpr int linies = 100;  // of the proposal
constexpr int comandes = 2000;
constexpr int linies_comanda = 100;  // 200,000 in all
constexpr int comandes_client = 20;  // of the customer that is looked for
constexpr int voltes_llista = 15;
constexpr int pressupost = 1;
constexpr int comanda = comandes + 1;  // the one of the day

void Sembrar() {
  Sembrar_Articles(sessio.Connexio_Comuna);
  Transaccio transaccio(sessio.Connexio_Comuna);
  sessio.Connexio_Comuna.Afegir_Fila("PRESSUPOSTCAP",
                                     {{"NUMALB_PC", pressupost}, {"EMPRESA_PC", empresa_mesura}, {"IVA_PC", -1}});
  for (int lin = 1; lin <= linies; ++lin)
    sessio.Connexio_Comuna.Afegir_Fila("PRESSUPOSTLIN", {{"NUMALB_PL", pressupost},
                                                         {"EMPRESA_PL", empresa_mesura},
                                                         {"LIN_PL", lin},
                                                         {"ARTICLE_PL", Codi_Article(lin)},
                                                         {"UNITATS_PL", 2}});
  for (int numero = 1; numero <= comandes; ++numero) {
    const bool del_client = numero % (comandes / comandes_client) == 0;
    sessio.Connexio_Comuna.Afegir_Fila("COMANDACAP", {{"NUMALB_CC", numero},
                                                      {"EMPRESA_CC", empresa_mesura},
                                                      {"DATA_CC", Data_Hora{2026, 1, 15}},
                                                      {"CLIENT_CC", del_client ? "B1" : "B2"},
                                                      {"CLIENT_DESC_CC", "Serralleria Puig i Fills"}});
    for (int lin = 1; lin <= linies_comanda; ++lin)
      sessio.Connexio_Comuna.Afegir_Fila("COMANDALIN", {{"NUMALB_CL", numero},
                                                        {"EMPRESA_CL", empresa_mesura},
                                                        {"LIN_CL", lin},
                                                        {"ARTICLE_CL", Codi_Article(lin)},
                                                        {"DESCRIPCIO_CL", "Article de la mesura"},
                                                        {"UNITATS_CL", 2},
                                                        {"PREU_UNITARI_CL", 13}});
  }
  transaccio.Confirmar();
  sessio.Connexio_Comuna.Execute("UPDATE ARTICLES SET STOCK_ART = -1");
}

Linia_Detall Linia(std::int64_t document, int lin) {
  const Linia_Entrada escrita = Linia_Mesura(lin);
  return {.cap = {document, empresa_mesura, true, false},
          .qui = {"B3", "Qui passa avui"},
          .lin = static_cast<std::int16_t>(lin),
          .contingut = {Codi_Article(lin), escrita.descripcio,
                        Calcular_Linia(escrita, {21, 0}, Mode_Calcul::Preu_Unitari)}};
}

// The rows of each act, and nothing else. Figures come from the same lines.
template <class Motor>
class Linies_Nues {
 public:
  explicit Linies_Nues(typename Motor::Base& base) : base_(base) {
    base_.Executar(
        R"(INSERT INTO "COMANDACAP" ("NUMALB_CC", "EMPRESA_CC", "CLIENT_CC") VALUES (2001, 'B00000000', 'B3'))");
    base_.Executar(
        R"(INSERT INTO "COMANDAPEU" ("NUMALB_CP", "EMPRESA_CP", "TIPUS_IVA_CP") VALUES (2001, 'B00000000', 'GN'))");
    base_.Executar(R"(INSERT INTO "ALBARACAP" ("NUMALB_AC", "EMPRESA_AC", "CLIENT_AC") VALUES (1, 'B00000000', 'B3'))");
    base_.Executar(
        R"(INSERT INTO "ALBARAPEU" ("NUMALB_AP", "EMPRESA_AP", "TIPUS_IVA_AP") VALUES (1, 'B00000000', 'GN'))");
  }
  void Acceptar(int lin) {
    const std::string l = std::to_string(lin);
    En_Transaccio_Nua([&] {
      Motor::Fer(alta_comanda_, l, Codi_Article(lin));
      Motor::Fer(peu_comanda_, l);
      Motor::Fer(cap_comanda_, l);
      Motor::Fer(acceptada_, l);
    });
  }
  void Servir(int lin) {
    const std::string l = std::to_string(lin);
    En_Transaccio_Nua([&] {
      Motor::Fer(alta_nota_, l, Codi_Article(lin));
      Motor::Fer(peu_nota_, l);
      Motor::Fer(cap_nota_, l);
      Motor::Fer(servida_, "2", l);
      Moure("-2", lin);
    });
  }
  void Retirar(int lin) {
    const std::string l = std::to_string(lin);
    En_Transaccio_Nua([&] {
      Motor::Fer(baixa_nota_, l);
      Motor::Fer(peu_nota_, l);
      Motor::Fer(cap_nota_, l);
      Motor::Fer(servida_, "0", l);
      Moure("2", lin);
    });
  }

 private:
  void En_Transaccio_Nua(const std::function<void()>& feina) {
    base_.Executar("BEGIN");
    feina();
    base_.Executar("COMMIT");
    Motor::Acabar(base_);
  }
  void Moure(const std::string& unitats, int lin) {
    Motor::Fer(estoc_, unitats, Codi_Article(lin));
    Motor::Fer(diari_, Codi_Article(lin), unitats);
  }

  typename Motor::Base& base_;
  typename Motor::Sentencia alta_comanda_{
      base_, R"(INSERT INTO "COMANDALIN" ("NUMALB_CL", "EMPRESA_CL", "LIN_CL", "ARTICLE_CL", "UNITATS_CL", )"
             R"("PREU_UNITARI_CL") VALUES (2001, 'B00000000', $1, $2, 2, 13))"};
  typename Motor::Sentencia peu_comanda_{base_, R"(UPDATE "COMANDAPEU" SET "BASE_CP" = $1 WHERE "NUMALB_CP" = 2001)"};
  typename Motor::Sentencia cap_comanda_{base_, R"(UPDATE "COMANDACAP" SET "IMPORT_CC" = $1 WHERE "NUMALB_CC" = 2001 )"
                                                R"(AND "EMPRESA_CC" = 'B00000000')"};
  typename Motor::Sentencia acceptada_{
      base_, R"(UPDATE "PRESSUPOSTLIN" SET "COMANDA_PL" = 2001 WHERE "EMPRESA_PL" = 'B00000000' AND "NUMALB_PL" = 1 )"
             R"(AND "LIN_PL" = $1)"};
  typename Motor::Sentencia alta_nota_{
      base_, R"(INSERT INTO "ALBARALIN" ("NUMALB_AL", "EMPRESA_AL", "LIN_AL", "ARTICLE_AL", "UNITATS_AL", )"
             R"("COMANDA_AL", "COMANDA_LIN_AL") VALUES (1, 'B00000000', $1, $2, 2, 2001, 1))"};
  typename Motor::Sentencia baixa_nota_{base_, R"(DELETE FROM "ALBARALIN" WHERE "EMPRESA_AL" = 'B00000000' AND )"
                                               R"("NUMALB_AL" = 1 AND "LIN_AL" = $1)"};
  typename Motor::Sentencia peu_nota_{base_, R"(UPDATE "ALBARAPEU" SET "BASE_AP" = $1 WHERE "NUMALB_AP" = 1)"};
  typename Motor::Sentencia cap_nota_{base_, R"(UPDATE "ALBARACAP" SET "IMPORT_AC" = $1 WHERE "NUMALB_AC" = 1 )"
                                             R"(AND "EMPRESA_AC" = 'B00000000')"};
  typename Motor::Sentencia servida_{
      base_, R"(UPDATE "COMANDALIN" SET "SERVIDES_CL" = $1 WHERE "EMPRESA_CL" = 'B00000000' AND "NUMALB_CL" = 2001 )"
             R"(AND "LIN_CL" = $2)"};
  typename Motor::Sentencia estoc_{
      base_, R"(UPDATE "STOCK" SET "UNIDADES_ST" = "UNIDADES_ST" + $1 WHERE "EMPRESA_ST" = 'B00000000' AND )"
             R"("CODI_ART_ST" = $2)"};
  typename Motor::Sentencia diari_{
      base_, R"(INSERT INTO "MOVIMIENTOS" ("EMPRESA_MOV", "ARTICULO_MOV", "TIPO_MOV", "ALMACEN_MOV", "DOCUMENTO_MOV", )"
             R"("FECHA_MOV", "UNIDADES_MOV") VALUES ('B00000000', $1, 'AC', '1', '1', '2026-01-15', $2))"};
};

// What the picking list asks, by hand.
constexpr const char* pendents =
    R"(SELECT "NUMALB_CC", "DATA_CC", "CLIENT_DESC_CC", "LIN_CL", "ARTICLE_CL", "DESCRIPCIO_CL", "COST_CL", )"
    R"("UNITATS_CL" - "SERVIDES_CL", "PORC_MARGE_CL", "PREU_UNITARI_CL", "PORC_IVA_CL", "PVP_CL", "DTE_CL" )"
    R"(FROM "COMANDACAP" INNER JOIN "COMANDALIN" ON "EMPRESA_CC" = "EMPRESA_CL" AND "NUMALB_CC" = "NUMALB_CL" )"
    R"(WHERE "EMPRESA_CC" = 'B00000000' AND "CLIENT_CC" = 'B1' AND "UNITATS_CL" - "SERVIDES_CL" > 0 )"
    R"(ORDER BY "DATA_CC")";

template <class Motor>
Figura Mesurar_Llista(typename Motor::Base& base, const std::string& on) {
  Parella llista;
  for (int volta = 0; volta < voltes_llista; ++volta) {
    llista.nostre.push_back(Mil_Segons([&] {
      const Recordset rs(SQL_Comandes_Pendents("B1", "", ""), sessio.Connexio_Comuna);
      Exigir_Igual("pending lines", static_cast<double>(rs.RecordCount()), comandes_client * linies_comanda);
    }));
    llista.nu.push_back(Mil_Segons(
        [&] { Exigir_Igual("bare pending lines", Motor::Llegir(base, pendents), comandes_client * linies_comanda); }));
  }
  return llista.Fer_Figura(on + "2,000 pending lines among 200,000", "ms", 1.6);
}

void Comparar(double linies_nues) {
  const Recordset rs("SELECT COUNT(*) AS N FROM COMANDALIN", sessio.Connexio_Comuna);
  Exigir_Igual("lines of orders", rs[0].Doble(), linies_nues);
}

template <class Motor>
std::vector<Figura> Mesurar(typename Motor::Base& base, const std::string& on) {
  std::vector<Figura> figures = {Mesurar_Llista<Motor>(base, on)};
  Linies_Nues<Motor> nues(base);
  const auto mesurar = [&](const char* nom, void (*nostre)(const Linia_Detall&), std::int64_t document, auto nu) {
    Parella parella;
    for (int lin = 1; lin <= linies; ++lin) {
      const Linia_Detall linia = Linia(document, lin);
      parella.nostre.push_back(Mil_Segons([&] { nostre(linia); }));
      parella.nu.push_back(Mil_Segons([&] { (nues.*nu)(lin); }));
    }
    figures.push_back(parella.Fer_Figura(on + nom, "ms", 3.0));
  };
  mesurar("a proposal's line accepted", Acceptar_Linia_Pressupost, pressupost, &Linies_Nues<Motor>::Acceptar);
  Comparar(base.Numero(R"(SELECT COUNT(*) FROM "COMANDALIN")"));
  mesurar("an order's line served", Servir_Linia_Sencera, comanda, &Linies_Nues<Motor>::Servir);
  mesurar("a served line taken back", Retirar_Linia_Servida, comanda, &Linies_Nues<Motor>::Retirar);
  return figures;
}

}  // namespace

std::vector<Figura> Mesurar_Acceptacio() {
  return Mesurar_Als_Dos(Sembrar, Mesurar<Amb_SQLite>, Mesurar<Amb_PG>);
}
