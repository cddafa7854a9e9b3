// The invoicing run: 1,000 delivery notes of ten lines in one invoice, and one by one; bare with the rows of the
// invoices inserted by prepared statements, and nothing else. On a file and on a server.

#include "bench/Mesura.h"
#include "bench/Motors_Nus.h"
#include "bench/Nota_Oberta.h"
#include "sales/M_Consultes_Venda.h"
#include "sales/M_Factures.h"
#include "sales/M_Tipus_Venda.h"

namespace {

constexpr int notes = 1000;
constexpr int linies_nota = 10;

void Sembrar() {
  Transaccio transaccio(sessio.Connexio_Comuna);
  for (int nota = 1; nota <= notes; ++nota) {
    sessio.Connexio_Comuna.Afegir_Fila("ALBARACAP", {{"NUMALB_AC", nota},
                                                     {"EMPRESA_AC", empresa_mesura},
                                                     {"DATA_AC", Data_Hora{2026, 1, 15}},
                                                     {"CLIENT_AC", "B1"},
                                                     {"CLIENT_DESC_AC", "Serralleria Puig i Fills"},
                                                     {"IVA_AC", -1},
                                                     {"PAGAMENT_AC", -1}});
    for (int lin = 1; lin <= linies_nota; ++lin) {
      sessio.Connexio_Comuna.Afegir_Fila("ALBARALIN", {{"NUMALB_AL", nota},
                                                       {"EMPRESA_AL", empresa_mesura},
                                                       {"LIN_AL", lin},
                                                       {"ARTICLE_AL", Codi_Article(lin)},
                                                       {"DESCRIPCIO_AL", "Article de la mesura"},
                                                       {"UNITATS_AL", 2},
                                                       {"COST_AL", 10},
                                                       {"PREU_UNITARI_AL", 13},
                                                       {"PVP_AL", 15.73},
                                                       {"PORC_IVA_AL", 21},
                                                       {"IMPORT_NET_AL", 26},
                                                       {"IMPORT_BRUT_AL", 31.46}});
    }
  }
  transaccio.Confirmar();
}

template <class Motor>
class Factures_Nues {
 public:
  explicit Factures_Nues(typename Motor::Base& base) : base_(base) {}

  void Fer(int numero, int primera, int ultima) {
    const std::string n = std::to_string(numero);
    base_.Executar("BEGIN");
    Motor::Fer(cap_, n, e_, "Empresa de prova", "2026-01-15", "B1", "Serralleria Puig i Fills");
    int lin = 0;
    for (int nota = primera; nota <= ultima; ++nota) {
      const std::string titol = "Albarán " + std::to_string(nota) + " de 15/01/2026";
      Motor::Fer(linia_, n, e_, std::to_string(++lin), "", titol, "0", "0", "0", "0", "21", "0", "0");
      for (int k = 1; k <= linies_nota; ++k)
        Motor::Fer(linia_, n, e_, std::to_string(++lin), Codi_Article(k), "Article de la mesura", "10", "2", "13",
                   "15.73", "21", "26", "31.46");
    }
    const int quantes = (ultima - primera + 1) * linies_nota;
    const auto import = [&](double d_una) { return Amb_Decimals(d_una * quantes, 2); };
    Motor::Fer(peu_, n, e_, "GN", "General", import(26), "21", import(5.46), import(31.46));
    base_.Executar("COMMIT");
    Motor::Acabar(base_);
  }

 private:
  typename Motor::Base& base_;
  const std::string e_ = empresa_mesura;
  typename Motor::Sentencia cap_{
      base_, R"(INSERT INTO "FACTURACAP" ("NUMALB_FC", "EMPRESA_FC", "EMP_DESC_FC", "DATA_FC", "CLIENT_FC", )"
             R"("CLIENT_DESC_FC") VALUES ($1, $2, $3, $4, $5, $6))"};
  typename Motor::Sentencia linia_{
      base_, R"(INSERT INTO "FACTURALIN" ("NUMALB_FL", "EMPRESA_FL", "LIN_FL", "ARTICLE_FL", "DESCRIPCIO_FL", )"
             R"("COST_FL", "UNITATS_FL", "PREU_UNITARI_FL", "PVP_FL", "PORC_IVA_FL", "IMPORT_NET_FL", )"
             R"("IMPORT_BRUT_FL") VALUES ($1, $2, $3, $4, $5, $6, $7, $8, $9, $10, $11, $12))"};
  typename Motor::Sentencia peu_{
      base_, R"(INSERT INTO "FACTURAPEU" ("NUMALB_FP", "EMPRESA_FP", "TIPUS_IVA_FP", "DESC_IVA_FP", "BASE_FP", )"
             R"("PORC_IVA_FP", "IVA_FP", "IMPORT_FP") VALUES ($1, $2, $3, $4, $5, $6, $7, $8))"};
};

void Facturar_Notes(int numero, const std::vector<std::int64_t>& quines) {
  const bool feta = Facturar({.albarans = Consulta_Albarans({}, true) + Llista_Albarans_Seleccionats(quines),
                              .numero = std::to_string(numero),
                              .data = Data_Hora{2026, 1, 15}});
  if (!feta) throw std::runtime_error("no invoice was made");
}

void Comparar(double linies_nues, double imports_nus) {
  const auto nostre = [](const char* sql) { return Recordset(sql, sessio.Connexio_Comuna)[0].Doble(); };
  Exigir_Igual("lines", nostre("SELECT COUNT(*) AS N FROM FACTURALIN"), linies_nues);
  Exigir_Igual("feet", nostre("SELECT SUM(IMPORT_FP) AS N FROM FACTURAPEU"), imports_nus);
  Exigir_Igual("heads", nostre("SELECT SUM(IMPORT_FC) AS N FROM FACTURACAP"), imports_nus);
  Exigir_Igual("marks", nostre("SELECT COUNT(*) AS N FROM ALBARACAP WHERE ESTAT_AC = -1"), notes);
}

// All in one, five times, freed in between; then each note by itself.
template <class Motor>
std::vector<Figura> Mesurar(typename Motor::Base& base, const std::string& on) {
  constexpr int voltes = 5;
  Factures_Nues<Motor> nues(base);
  Parella totes;
  std::int64_t viatges = 0;
  for (int volta = 0; volta < voltes; ++volta) {
    if (volta > 0) Esborrar_Document(tipus_factura, volta, empresa_mesura);
    const std::int64_t abans = sessio.Connexio_Comuna.Viatges();
    totes.nostre.push_back(Mil_Segons([&] { Facturar_Notes(volta + 1, {}); }));
    viatges = sessio.Connexio_Comuna.Viatges() - abans;
    totes.nu.push_back(Mil_Segons([&] { nues.Fer(volta + 1, 1, notes); }));
  }
  Esborrar_Document(tipus_factura, voltes, empresa_mesura);
  base.Executar(R"(DELETE FROM "FACTURACAP")");
  Parella una_a_una;
  for (int nota = 1; nota <= notes; ++nota) {
    una_a_una.nostre.push_back(Mil_Segons([&] { Facturar_Notes(nota, {nota}); }));
    una_a_una.nu.push_back(Mil_Segons([&] { nues.Fer(nota, nota, nota); }));
  }
  Comparar(base.Numero(R"(SELECT COUNT(*) FROM "FACTURALIN")"),
           base.Numero(R"(SELECT SUM("IMPORT_FP") FROM "FACTURAPEU")"));
  return {totes.Fer_Figura(on + "1,000 notes with 10,000 lines in one invoice", "ms", 2.0),
          {.nom = on + "trips of that run", .nostre = std::to_string(viatges)},
          una_a_una.Fer_Figura(on + "each of 1,000 notes in an invoice", "ms", 2.0)};
}

}  // namespace

std::vector<Figura> Mesurar_Facturacio() {
  return Mesurar_Als_Dos(Sembrar, Mesurar<Amb_SQLite>, Mesurar<Amb_PG>);
}
