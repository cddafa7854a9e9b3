// The same figures on a server over loopback: a line saved, against the same rows read and written by libpq one
// statement after the other; how many trips to the server it takes; 100,000 heads opened.
#include "bench/Base_Nua_PG.h"
#include "bench/Fila_Nua.h"
#include "bench/Mesura.h"
#include "bench/Nota_Oberta.h"
#include "core/dades/Numeros.h"
#include "sales/M_Consultes_Venda.h"
#include "tests/regles/Installacio_Prova.h"

namespace {

constexpr int notes = 20;
constexpr int linies_nota = 12;
constexpr int linies_nota_llarga = 397;
constexpr int albarans = 100000;

// The reads and writes of a saved line, in their order.
class Nota_Nua_PG {
 public:
  explicit Nota_Nua_PG(Base_Nua_PG& base) : base_(base) {}

  void Afegir(const std::string& numero, const Linia_Entrada& linia) {
    base_.Executar("BEGIN");
    Escriure_Linia(numero, linia);
    Refer_Peu(numero);
    Treure_D_Estoc(numero, linia);
    base_.Executar("COMMIT");
  }

 private:
  static std::string N(double valor) { return Numero_SQL(valor); }

  void Escriure_Linia(const std::string& numero, const Linia_Entrada& linia) {
    const int lin = maxim_.Amb({numero, e_}).Text(0).empty() ? 1 : std::stoi(maxim_.Text(0)) + 1;
    const std::string porc_iva = iva_.Amb({"gn"}).Text(2);
    const double net = linia.unitats * linia.preu_unitari;
    linia_.Amb({numero, e_, std::to_string(lin), linia.article, linia.descripcio, N(linia.cost), porc_iva,
                N(linia.unitats), N(linia.porc_marge), N(linia.preu_unitari), N(linia.pvp), N(net),
                N(linia.unitats * linia.pvp), N(net - linia.unitats * linia.cost)});
  }

  void Refer_Peu(const std::string& numero) {
    grups_.Amb({numero, e_});
    const std::string porc = grups_.Text(0);
    const double net = grups_.Doble(2);
    const double iva = net * grups_.Doble(0) / 100;
    if (fila_peu_.Amb({numero, e_, porc}).Files() > 0) {
      canvi_peu_.Amb({N(net), N(iva), N(net + iva), fila_peu_.Text(0)});
    } else {
      iva_percentatge_.Amb({porc});
      alta_peu_.Amb(
          {numero, e_, iva_percentatge_.Text(0), iva_percentatge_.Text(1), N(net), porc, N(iva), N(net + iva)});
    }
    peu_.Amb({numero, e_});
    total_.Amb({numero, e_});
  }

  void Treure_D_Estoc(const std::string& numero, const Linia_Entrada& linia) {
    const std::string codi = article_.Amb({Plegar_ASCII(linia.article)}).Text(0);
    const std::string magatzem = article_.Text(4);
    magatzem_.Amb({magatzem});
    estoc_.Amb({e_, Plegar_ASCII(codi), magatzem});
    canvi_estoc_.Amb({N(estoc_.Doble(1) - linia.unitats), estoc_.Text(0)});
    const std::string ara = hora_.Amb({}).Text(0);
    moviment_.Amb({e_, codi, ara, magatzem, numero, N(-linia.unitats)});
  }

  static std::string Plegar_ASCII(std::string text) {
    for (char& c : text) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
    return text;
  }

  Base_Nua_PG& base_;
  const std::string e_ = "b00000000";
  Sentencia_Nua_PG maxim_{
      base_, R"(SELECT MAX("LIN_AL") FROM "ALBARALIN" WHERE "NUMALB_AL" = $1 AND plegar("EMPRESA_AL") = $2)"};
  Sentencia_Nua_PG iva_{base_,
                        R"(SELECT "CODI_IVA", "DESC_IVA", "PORC_IVA" FROM "IVAS" WHERE plegar("CODI_IVA") = $1)"};
  Sentencia_Nua_PG linia_{
      base_,
      R"(INSERT INTO "ALBARALIN" ("NUMALB_AL", "EMPRESA_AL", "LIN_AL", "ARTICLE_AL", "DESCRIPCIO_AL", "COST_AL", )"
      R"("PORC_IVA_AL", "UNITATS_AL", "PORC_MARGE_AL", "PREU_UNITARI_AL", "PVP_AL", "IMPORT_NET_AL", "IMPORT_BRUT_AL", )"
      R"("MARGE_AL") VALUES ($1, upper($2), $3, $4, $5, $6, $7, $8, $9, $10, $11, $12, $13, $14))"};
  Sentencia_Nua_PG grups_{
      base_, R"(SELECT "PORC_IVA_AL", "PORC_RE_AL", SUM("IMPORT_NET_AL") FROM "ALBARALIN" WHERE "NUMALB_AL" = $1 AND )"
             R"(plegar("EMPRESA_AL") = $2 GROUP BY "PORC_IVA_AL", "PORC_RE_AL")"};
  Sentencia_Nua_PG fila_peu_{base_, R"(SELECT "CLAU_OCULTA", * FROM "ALBARAPEU" WHERE "NUMALB_AP" = $1 AND )"
                                    R"(plegar("EMPRESA_AP") = $2 AND "PORC_IVA_AP" = $3 FOR UPDATE)"};
  Sentencia_Nua_PG canvi_peu_{
      base_, R"(UPDATE "ALBARAPEU" SET "BASE_AP" = $1, "IVA_AP" = $2, "IMPORT_AP" = $3 WHERE "CLAU_OCULTA" = $4)"};
  Sentencia_Nua_PG iva_percentatge_{base_, R"(SELECT "CODI_IVA", "DESC_IVA" FROM "IVAS" WHERE "PORC_IVA" = $1)"};
  Sentencia_Nua_PG alta_peu_{
      base_, R"(INSERT INTO "ALBARAPEU" ("NUMALB_AP", "EMPRESA_AP", "TIPUS_IVA_AP", "DESC_IVA_AP", "BASE_AP", )"
             R"("PORC_IVA_AP", "IVA_AP", "IMPORT_AP") VALUES ($1, upper($2), $3, $4, $5, $6, $7, $8))"};
  Sentencia_Nua_PG peu_{base_, R"(SELECT * FROM "ALBARAPEU" WHERE "NUMALB_AP" = $1 AND plegar("EMPRESA_AP") = $2)"};
  Sentencia_Nua_PG total_{
      base_, R"(SELECT SUM("IMPORT_AP") FROM "ALBARAPEU" WHERE "NUMALB_AP" = $1 AND plegar("EMPRESA_AP") = $2)"};
  Sentencia_Nua_PG article_{base_, R"(SELECT "CODI_ART", "IVA_ART", "STOCK_ART", "STOCK_MINIM_ART", "MAGATZEM_ART", )"
                                   R"("DESCRIPCIO_ART", "COST_ART" FROM "ARTICLES" WHERE plegar("CODI_ART") = $1)"};
  Sentencia_Nua_PG magatzem_{base_, R"(SELECT * FROM "ALMACENES" WHERE plegar("CODI_ALM") = $1)"};
  Sentencia_Nua_PG estoc_{base_,
                          R"(SELECT "CLAU_OCULTA", "UNIDADES_ST" FROM "STOCK" WHERE plegar("EMPRESA_ST") = $1 AND )"
                          R"(plegar("CODI_ART_ST") = $2 AND plegar("ALMACEN_ST") = $3 FOR UPDATE)"};
  Sentencia_Nua_PG canvi_estoc_{base_, R"(UPDATE "STOCK" SET "UNIDADES_ST" = $1 WHERE "CLAU_OCULTA" = $2)"};
  Sentencia_Nua_PG hora_{base_, R"(SELECT br_now() FROM "ARTICLES" LIMIT 1)"};
  Sentencia_Nua_PG moviment_{
      base_, R"(INSERT INTO "MOVIMIENTOS" ("EMPRESA_MOV", "ARTICULO_MOV", "FECHA_MOV", "TIPO_MOV", "ALMACEN_MOV", )"
             R"("DOCUMENTO_MOV", "UNIDADES_MOV") VALUES (upper($1), $2, $3, 'AC', $4, $5, $6))"};
};

void Comparar_Resultats(Base_Nua_PG& nua) {
  for (const auto& [nostra, seva] :
       {std::pair("SELECT COUNT(*) AS N FROM ALBARALIN", R"(SELECT COUNT(*) FROM "ALBARALIN")"),
        std::pair("SELECT SUM(IMPORT_NET_AL) AS N FROM ALBARALIN", R"(SELECT SUM("IMPORT_NET_AL") FROM "ALBARALIN")"),
        std::pair("SELECT SUM(IMPORT_AP) AS N FROM ALBARAPEU", R"(SELECT SUM("IMPORT_AP") FROM "ALBARAPEU")"),
        std::pair("SELECT SUM(UNIDADES_ST) AS N FROM STOCK", R"(SELECT SUM("UNIDADES_ST") FROM "STOCK")"),
        std::pair("SELECT SUM(UNIDADES_MOV) AS N FROM MOVIMIENTOS",
                  R"(SELECT SUM("UNIDADES_MOV") FROM "MOVIMIENTOS")")}) {
    Exigir_Igual(nostra, Recordset(nostra, sessio.Connexio_Comuna)[0].Doble(), nua.Numero(seva));
  }
}

void Omplir_Nota(std::int64_t numero) {
  Transaccio transaccio(sessio.Connexio_Comuna);
  for (int i = 1; i <= linies_nota_llarga; ++i) {
    sessio.Connexio_Comuna.Afegir_Fila("ALBARALIN", {{"NUMALB_AL", numero},
                                                     {"EMPRESA_AL", empresa_mesura},
                                                     {"LIN_AL", i},
                                                     {"ARTICLE_AL", Codi_Article(i)},
                                                     {"DESCRIPCIO_AL", "Article de la mesura"},
                                                     {"UNITATS_AL", 2},
                                                     {"PORC_IVA_AL", 21},
                                                     {"IMPORT_NET_AL", 26},
                                                     {"IMPORT_BRUT_AL", 31.46}});
  }
  transaccio.Confirmar();
}

std::vector<Figura> Mesurar_Linies() {
  const Installacio_Prova installacio;
  Sembrar_Articles(sessio.Connexio_Comuna);
  const std::string nostra = installacio.Base()->Nom();
  Tancar_Connexions();
  const Base_Servidor copia(nostra);
  Obrir_Connexions();
  Base_Nua_PG base(copia.Adreca());
  Nota_Nua_PG nua(base);
  Parella linies;
  std::vector<double> quarta;
  std::vector<double> quatre_centes;
  std::int64_t viatges = 0;
  std::int64_t viatges_cap = 0;
  for (int i = 0; i < notes; ++i) {
    const std::int64_t abans_del_cap = sessio.Connexio_Comuna.Viatges();
    const std::int64_t numero = Crear_Capcalera_Albara();
    viatges_cap = sessio.Connexio_Comuna.Viatges() - abans_del_cap;
    base.Executar(R"(INSERT INTO "ALBARACAP" ("NUMALB_AC", "EMPRESA_AC", "DATA_AC") VALUES ()" +
                  std::to_string(numero) + ", '" + empresa_mesura + "', '2026-01-01')");
    Nota_Oberta oberta(numero);
    for (int k = 1; k <= linies_nota; ++k) {
      const Linia_Entrada linia = Linia_Mesura(i * linies_nota + k);
      const std::int64_t abans = sessio.Connexio_Comuna.Viatges();
      linies.nostre.push_back(Mil_Segons([&] { oberta.Afegir(linia); }));
      viatges = sessio.Connexio_Comuna.Viatges() - abans;
      linies.nu.push_back(Mil_Segons([&] { nua.Afegir(std::to_string(numero), linia); }));
      if (k >= 3 && k <= 5) quarta.push_back(linies.nostre.back());
    }
  }
  Comparar_Resultats(base);
  for (int i = 0; i < notes; ++i) {
    const std::int64_t numero = Crear_Capcalera_Albara();
    Omplir_Nota(numero);
    Nota_Oberta oberta(numero);
    for (int k = 0; k < 3; ++k) quatre_centes.push_back(Mil_Segons([&] { oberta.Afegir(Linia_Mesura(k)); }));
  }
  const double q = Mediana(quarta);
  const double c = Mediana(quatre_centes);
  return {linies.Fer_Figura("server: delivery-note line saved", "ms", 2.0),
          {.nom = "server: trips of a saved line", .nostre = std::to_string(viatges), .nu = "16"},
          {.nom = "server: trips of a new head", .nostre = std::to_string(viatges_cap), .nu = "at most 6"},
          {"server: 400th line of a note, against its 4th", Amb_Decimals(c, 3) + " ms", Amb_Decimals(q, 3) + " ms",
           c / q, 3.0}};
}

std::vector<Fila_Nua> Llegir_Nua(Sentencia_Nua_PG& sentencia) {
  std::vector<Fila_Nua> files;
  sentencia.Amb({"b00000000"});
  files.reserve(static_cast<std::size_t>(sentencia.Files()));
  for (int i = 0; i < sentencia.Files(); ++i) {
    files.push_back({std::stoll(sentencia.Text(0, i)), sentencia.Text(1, i), sentencia.Text(2, i), sentencia.Text(3, i),
                     std::stod(sentencia.Text(4, i)), std::stoi(sentencia.Text(5, i))});
  }
  return files;
}

std::vector<Figura> Mesurar_Llista() {
  const Installacio_Prova installacio;
  Base_Nua_PG base(installacio.Base()->Adreca());
  base.Executar(
      R"(INSERT INTO "ALBARACAP" ("NUMALB_AC", "EMPRESA_AC", "EMP_DESC_AC", "DATA_AC", "CLIENT_AC", "CLIENT_DESC_AC", )"
      R"("OBSR_AC", "IMPORT_AC", "ESTAT_AC") SELECT i, 'B00000000', 'Empresa de prova', date '2020-01-01' + i / 60, )"
      R"('B' || i % 120, 'Serralleria Puig i Fills número ' || i % 120, CASE WHEN i % 7 = 0 THEN 'Portar al matí' END, )"
      R"(i * 1.21, -(i % 2) FROM generate_series(1, )" +
      std::to_string(albarans) + ") AS i; ANALYZE");
  Sentencia_Nua_PG sentencia(base,
                             R"(SELECT "NUMALB_AC", "DATA_AC", "CLIENT_DESC_AC", "OBSR_AC", "IMPORT_AC", "ESTAT_AC" )"
                             R"(FROM "ALBARACAP" WHERE plegar("EMPRESA_AC") = $1 ORDER BY "NUMALB_AC")");
  Parella parella;
  std::int64_t viatges = 0;
  for (int i = 0; i < 9; ++i) {
    Recordset rs;
    std::vector<Fila_Nua> files;
    const std::int64_t abans = sessio.Connexio_Comuna.Viatges();
    const std::string consulta = Consulta_Albarans({}, false) + " ORDER BY NUMALB_AC";
    parella.nostre.push_back(Mil_Segons([&] { rs.Open(consulta, sessio.Connexio_Comuna); }));
    viatges = sessio.Connexio_Comuna.Viatges() - abans;
    parella.nu.push_back(Mil_Segons([&] { files = Llegir_Nua(sentencia); }));
    rs.MoveLast();
    Exigir_Igual("amount of the last row", rs["IMPORT_AC"].Doble(), files.back().import);
  }
  return {parella.Fer_Figura("server: Consulta_Albarans over 100,000 heads opened", "ms", 1.6),
          {.nom = "server: trips of a list opened", .nostre = std::to_string(viatges), .nu = "1"}};
}

}  // namespace

std::vector<Figura> Mesurar_Servidor() {
  setenv("BROLLADOR_MOTOR", "postgres", 1);
  std::vector<Figura> figures = Mesurar_Linies();
  for (auto& figura : Mesurar_Llista()) figures.push_back(std::move(figura));
  setenv("BROLLADOR_MOTOR", "sqlite", 1);
  return figures;
}
