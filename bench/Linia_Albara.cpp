// A line of a delivery note: its row, the served units of its order (none), the tax foot, the stock and the journal,
// in one transaction. Ours through the rules; bare with the same rows read and written by prepared statements.
#include <filesystem>
#include <iostream>

#include "bench/Base_Nua.h"
#include "bench/Mesura.h"
#include "bench/Nota_Oberta.h"
#include "core/dades/Dates.h"
#include "sales/M_Albarans.h"
#include "tests/regles/Installacio_Prova.h"

namespace {

constexpr int linies_nota_curta = 12;
constexpr int linies_nota_llarga = 397;  // before the measured ones

// The same reads and writes, in the same order.
class Nota_Nua {
 public:
  explicit Nota_Nua(Base_Nua& base) : base_(base) {}

  void Afegir(std::int64_t numero, const Linia_Entrada& linia) {
    comencar_.Amb().Executar();
    const std::int64_t lin = Escriure_Linia(numero, linia);
    Refer_Peu(numero);
    Treure_D_Estoc(numero, linia);
    acabar_.Amb().Executar();
    base_.Reposar();
    ultima_ = lin;
  }
  std::int64_t Ultima() const { return ultima_; }

 private:
  std::int64_t Escriure_Linia(std::int64_t numero, const Linia_Entrada& linia) {
    maxim_.Amb(numero, e_).Fila();
    const std::int64_t lin = maxim_.Enter(0) + 1;
    iva_.Amb(std::string_view("GN")).Fila();
    const double porc_iva = iva_.Doble(2);
    comanda_.Amb(0, e_, 0).Executar();
    const double net = linia.unitats * linia.preu_unitari;
    linia_
        .Amb(numero, e_, lin, std::string_view(linia.article), std::string_view(linia.descripcio), linia.cost, porc_iva,
             0.0, linia.unitats, linia.porc_marge, linia.preu_unitari, linia.pvp, net, linia.unitats * linia.pvp,
             net - linia.unitats * linia.cost, 0.0, 0, 0)
        .Executar();
    return lin;
  }

  void Refer_Peu(std::int64_t numero) {
    grups_.Amb(numero, e_).Fila();
    const double porc = grups_.Doble(0);
    const double net = grups_.Doble(2);
    const bool existeix = fila_peu_.Amb(numero, e_, porc).Fila();
    const std::int64_t rowid = fila_peu_.Enter(0);
    const double iva = net * porc / 100;
    if (existeix) {
      canvi_peu_.Amb(net, iva, 0.0, net + iva, rowid).Executar();
    } else {
      iva_percentatge_.Amb(porc).Fila();
      const std::string codi = iva_percentatge_.Text(0);
      const std::string nom = iva_percentatge_.Text(1);
      alta_peu_.Amb(numero, e_, std::string_view(codi), std::string_view(nom), net, porc, iva, 0.0, 0.0, net + iva)
          .Executar();
    }
    peu_.Amb(numero, e_).Executar();
    total_.Amb(numero, e_).Fila();
    import_ = total_.Doble(0);
  }

  void Treure_D_Estoc(std::int64_t numero, const Linia_Entrada& linia) {
    const std::string_view article = linia.article;
    article_.Amb(article).Fila();
    const std::string magatzem = article_.Text(4);
    magatzem_.Amb(std::string_view(magatzem)).Fila();
    estoc_.Amb(e_, article, std::string_view(magatzem)).Fila();
    canvi_estoc_.Amb(estoc_.Doble(1) - linia.unitats, estoc_.Enter(0)).Executar();
    hora_.Amb().Fila();
    const std::string data = Data_Desada(Rellotge_Local());
    const std::string document = std::to_string(numero);
    moviments_
        .Amb(e_, article, std::string_view(data), std::string_view("AC"), std::string_view(magatzem),
             std::string_view(document))
        .Executar();
    moviment_
        .Amb(e_, article, std::string_view(data), std::string_view("AC"), std::string_view(magatzem),
             std::string_view(document), -linia.unitats)
        .Executar();
  }

  Base_Nua& base_;
  const std::string_view e_ = empresa_mesura;
  std::int64_t ultima_ = 0;
  double import_ = 0;
  Sentencia_Nua comencar_{base_, "BEGIN IMMEDIATE"};
  Sentencia_Nua acabar_{base_, "COMMIT"};
  Sentencia_Nua maxim_{base_, "SELECT MAX(LIN_AL) FROM ALBARALIN WHERE NUMALB_AL = ?1 AND EMPRESA_AL = ?2"};
  Sentencia_Nua iva_{base_, "SELECT CODI_IVA, DESC_IVA, PORC_IVA, RE_IVA FROM IVAS WHERE CODI_IVA = ?1"};
  Sentencia_Nua comanda_{base_, "SELECT * FROM COMANDALIN WHERE NUMALB_CL = ?1 AND EMPRESA_CL = ?2 AND LIN_CL = ?3"};
  Sentencia_Nua linia_{base_,
                       "INSERT INTO ALBARALIN (NUMALB_AL, EMPRESA_AL, LIN_AL, ARTICLE_AL, DESCRIPCIO_AL, COST_AL, "
                       "PORC_IVA_AL, PORC_RE_AL, UNITATS_AL, PORC_MARGE_AL, PREU_UNITARI_AL, PVP_AL, IMPORT_NET_AL, "
                       "IMPORT_BRUT_AL, MARGE_AL, DTE_AL, COMANDA_AL, COMANDA_LIN_AL) VALUES (?1, ?2, ?3, ?4, ?5, ?6, "
                       "?7, ?8, ?9, ?10, ?11, ?12, ?13, ?14, ?15, ?16, ?17, ?18)"};
  Sentencia_Nua grups_{base_,
                       "SELECT PORC_IVA_AL, PORC_RE_AL, SUM(IMPORT_NET_AL), SUM(IMPORT_BRUT_AL) FROM ALBARALIN WHERE "
                       "NUMALB_AL = ?1 AND EMPRESA_AL = ?2 GROUP BY PORC_IVA_AL, PORC_RE_AL"};
  Sentencia_Nua fila_peu_{
      base_, "SELECT rowid, * FROM ALBARAPEU WHERE NUMALB_AP = ?1 AND EMPRESA_AP = ?2 AND PORC_IVA_AP = ?3"};
  Sentencia_Nua canvi_peu_{base_,
                           "UPDATE ALBARAPEU SET BASE_AP = ?1, IVA_AP = ?2, RE_AP = ?3, IMPORT_AP = ?4 WHERE rowid = "
                           "?5"};
  Sentencia_Nua iva_percentatge_{
      base_, "SELECT CODI_IVA, DESC_IVA, PORC_IVA, RE_IVA FROM IVAS WHERE PORC_IVA = ?1 ORDER BY CODI_IVA"};
  Sentencia_Nua alta_peu_{base_,
                          "INSERT INTO ALBARAPEU (NUMALB_AP, EMPRESA_AP, TIPUS_IVA_AP, DESC_IVA_AP, BASE_AP, "
                          "PORC_IVA_AP, IVA_AP, PORC_RE_AP, RE_AP, IMPORT_AP) VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, "
                          "?9, ?10)"};
  Sentencia_Nua peu_{base_,
                     "SELECT TIPUS_IVA_AP, DESC_IVA_AP, PORC_IVA_AP, PORC_RE_AP, BASE_AP, IVA_AP, RE_AP, IMPORT_AP "
                     "FROM ALBARAPEU WHERE NUMALB_AP = ?1 AND EMPRESA_AP = ?2 ORDER BY TIPUS_IVA_AP"};
  Sentencia_Nua total_{base_, "SELECT SUM(IMPORT_AP) FROM ALBARAPEU WHERE NUMALB_AP = ?1 AND EMPRESA_AP = ?2"};
  Sentencia_Nua article_{base_,
                         "SELECT CODI_ART, IVA_ART, STOCK_ART, STOCK_MINIM_ART, MAGATZEM_ART, DESCRIPCIO_ART, COST_ART "
                         "FROM ARTICLES WHERE CODI_ART = ?1"};
  Sentencia_Nua magatzem_{base_, "SELECT * FROM ALMACENES WHERE CODI_ALM = ?1"};
  Sentencia_Nua estoc_{base_,
                       "SELECT rowid, UNIDADES_ST FROM STOCK WHERE EMPRESA_ST = ?1 AND CODI_ART_ST = ?2 AND ALMACEN_ST "
                       "= ?3"};
  Sentencia_Nua canvi_estoc_{base_, "UPDATE STOCK SET UNIDADES_ST = ?1 WHERE rowid = ?2"};
  Sentencia_Nua hora_{base_, "SELECT 1 FROM ARTICLES LIMIT 1"};
  Sentencia_Nua moviments_{base_,
                           "SELECT * FROM MOVIMIENTOS WHERE EMPRESA_MOV = ?1 AND ARTICULO_MOV = ?2 AND FECHA_MOV = ?3 "
                           "AND TIPO_MOV = ?4 AND ALMACEN_MOV = ?5 AND DOCUMENTO_MOV = ?6"};
  Sentencia_Nua moviment_{base_,
                          "INSERT INTO MOVIMIENTOS (EMPRESA_MOV, ARTICULO_MOV, FECHA_MOV, TIPO_MOV, ALMACEN_MOV, "
                          "DOCUMENTO_MOV, UNIDADES_MOV) VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7)"};
};

void Omplir_Nota_Llarga(std::int64_t numero) {
  Transaccio transaccio(sessio.Connexio_Comuna);
  for (int i = 1; i <= linies_nota_llarga; ++i) {
    sessio.Connexio_Comuna.Execute(
        "INSERT INTO ALBARALIN (NUMALB_AL, EMPRESA_AL, LIN_AL, ARTICLE_AL, DESCRIPCIO_AL, UNITATS_AL, PORC_IVA_AL, "
        "IMPORT_NET_AL, IMPORT_BRUT_AL) VALUES(" +
        std::to_string(numero) + ", '" + empresa_mesura + "', " + std::to_string(i) + ", " + Text_SQL(Codi_Article(i)) +
        ", 'Article de la mesura', 2, 21, 26, 31.46)");
  }
  transaccio.Confirmar();
}

void Comparar_Resultats(Base_Nua& nua) {
  const auto nostre = [](const std::string& sql) { return Recordset(sql, sessio.Connexio_Comuna)[0].Doble(); };
  for (const char* sql :
       {"SELECT COUNT(*) AS N FROM ALBARALIN", "SELECT COUNT(*) AS N FROM MOVIMIENTOS",
        "SELECT SUM(IMPORT_NET_AL) AS N FROM ALBARALIN", "SELECT SUM(IMPORT_BRUT_AL) AS N FROM ALBARALIN",
        "SELECT SUM(MARGE_AL) AS N FROM ALBARALIN", "SELECT SUM(IMPORT_AP) AS N FROM ALBARAPEU",
        "SELECT SUM(UNIDADES_ST) AS N FROM STOCK", "SELECT SUM(UNIDADES_MOV) AS N FROM MOVIMIENTOS"}) {
    Exigir_Igual(sql, nostre(sql), nua.Numero(sql));
  }
}

struct Linies_Mesurades {
  Parella qualsevol;
  Parella quarta;
  Parella quatre_centes;
};

Linies_Mesurades Mesurar(int notes) {
  const Installacio_Prova installacio;
  Sembrar_Articles(sessio.Connexio_Comuna);
  const std::string copia = installacio.Dir_Dades() + "/nua.db";
  std::filesystem::copy_file(sessio.Fitxer_Comu, copia);
  Base_Nua base(copia);
  Nota_Nua nua(base);
  Linies_Mesurades mesurades;
  for (int i = 0; i < notes; ++i) {
    const std::int64_t numero = Crear_Capcalera_Albara();
    base.Executar("INSERT INTO ALBARACAP (NUMALB_AC, EMPRESA_AC, DATA_AC) VALUES (" + std::to_string(numero) + ", '" +
                  empresa_mesura + "', '2026-01-01')");
    Nota_Oberta oberta(numero);
    for (int k = 1; k <= linies_nota_curta; ++k) {
      const Linia_Entrada linia = Linia_Mesura(i * linies_nota_curta + k);
      mesurades.qualsevol.nostre.push_back(Mil_Segons([&] { oberta.Afegir(linia); }));
      mesurades.qualsevol.nu.push_back(Mil_Segons([&] { nua.Afegir(numero, linia); }));
      if (k >= 3 && k <= 5) mesurades.quarta.nostre.push_back(mesurades.qualsevol.nostre.back());
    }
  }
  Comparar_Resultats(base);
  for (int i = 0; i < notes; ++i) {
    const std::int64_t numero = Crear_Capcalera_Albara();
    Omplir_Nota_Llarga(numero);
    Nota_Oberta oberta(numero);
    for (int k = 0; k < 3; ++k) {
      mesurades.quatre_centes.nostre.push_back(Mil_Segons([&] { oberta.Afegir(Linia_Mesura(k)); }));
    }
  }
  return mesurades;
}

Figura Quatre_Centes(const Linies_Mesurades& mesurades, const std::string& on) {
  const double quarta = Mediana(mesurades.quarta.nostre);
  const double quatre_centes = Mediana(mesurades.quatre_centes.nostre);
  return {"400th line of a note, against its 4th (bare: our 4th)" + on, Amb_Decimals(quatre_centes, 3) + " ms",
          Amb_Decimals(quarta, 3) + " ms", quatre_centes / quarta, 3.0};
}

}  // namespace

std::vector<Figura> Mesurar_Linia_Albara() {
  const Linies_Mesurades disc = Mesurar(20);
  std::vector<Figura> figures{disc.qualsevol.Fer_Figura("delivery-note line saved, file on disk", "ms", 2.0),
                              Quatre_Centes(disc, "")};
  // Where the disk takes no time, what is left is the work of the program: it has no limit set.
  if (std::filesystem::is_directory("/dev/shm")) {
    setenv("TMPDIR", "/dev/shm", 1);
    const Linies_Mesurades memoria = Mesurar(20);
    unsetenv("TMPDIR");
    figures.push_back(memoria.qualsevol.Fer_Figura("delivery-note line saved, file in memory (no disk)", "ms", {}));
    figures.push_back(Quatre_Centes(memoria, ", no disk"));
  }
  return figures;
}
