// Lists of 100,000 customers and articles: opened, filtered and sorted by a header, against the bare read of the same
// rows in the same order.
#include "bench/Base_Nua.h"
#include "bench/Mesura.h"
#include "masters/M_Articles.h"
#include "masters/M_Clients.h"
#include "tests/regles/Installacio_Prova.h"

namespace {

constexpr int quants = 100000;
constexpr int voltes = 7;

void Sembrar(Base_Nua& base) {
  const std::string files =
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " + std::to_string(quants) + ") ";
  base.Executar(
      files +
      "INSERT INTO CLIENTS (NIF_CLI, RAO_SOCIAL_CLI, LOCALITAT_CLI, TELEFON_CLI, EMAIL_CLI) SELECT 'B' || (10000000 + "
      "i), "
      "CASE i % 3 WHEN 0 THEN 'Àlvarez' WHEN 1 THEN 'Serralleria Puig' ELSE 'Fusteria Çaballol' END || ' número ' || "
      "((i * 7919) % 100000), 'Població ' || (i % 900), '972 ' || i, 'c' || i || '@exemple.cat' FROM n");
  base.Executar(
      files +
      "INSERT INTO ARTICLES (CODI_ART, DESCRIPCIO_ART, FAMILIA_ART, IVA_ART, COST_ART, PVP_NET_ART, DESCOMPTE_ART, "
      "ACTIU_ART) SELECT substr('0000000000' || i, -10), 'Cargol d''acer inoxidable M' || ((i * 7919) % 100000), "
      "'F' || (i % 50), 'GN', i * 0.5, i * 0.7, 28.57143, -1 FROM n");
}

struct Fila {
  std::string a, b, c, d, e, f;
};

std::vector<Fila> Llegir(Sentencia_Nua& sentencia) {
  std::vector<Fila> files;
  for (sentencia.Amb(); sentencia.Fila();)
    files.push_back({sentencia.Text(0), sentencia.Text(1), sentencia.Text(2), sentencia.Text(3), sentencia.Text(4),
                     sentencia.Text(5)});
  return files;
}

Figura Mesurar(Base_Nua& base, const char* nom, const std::string& nostra, const char* seva, double com_a_molt) {
  Sentencia_Nua sentencia(base, seva);
  Parella parella;
  for (int i = 0; i < voltes; ++i) {
    Recordset rs;
    std::vector<Fila> files;
    parella.nostre.push_back(Mil_Segons([&] { rs.Open(nostra, sessio.Connexio_Comuna); }));
    parella.nu.push_back(Mil_Segons([&] { files = Llegir(sentencia); }));
    Exigir_Igual("rows", static_cast<double>(rs.RecordCount()), static_cast<double>(files.size()));
    rs.MoveLast();
    if (rs[0].Text() != files.back().a) throw std::runtime_error(std::string(nom) + ": another last row");
  }
  return parella.Fer_Figura(nom, "ms", com_a_molt);
}

}  // namespace

std::vector<Figura> Mesurar_Llista_Mestres() {
  const Installacio_Prova installacio;
  Base_Nua base(sessio.Fitxer_Comu);
  Sembrar(base);
  const std::string columnes =
      "SELECT NIF_CLI, RAO_SOCIAL_CLI, LOCALITAT_CLI, TELEFON_CLI, MOBIL_CLI, EMAIL_CLI FROM CLIENTS";
  return {
      Mesurar(base, "100,000 customers opened, in the order of a dictionary", SQL_Clients(""),
              (columnes + " ORDER BY RAO_SOCIAL_CLI COLLATE CATALA").c_str(), 1.6),
      Mesurar(base, "100,000 customers filtered by a part of the name", SQL_Clients("puig"),
              (columnes + " WHERE RAO_SOCIAL_CLI LIKE '%puig%' ORDER BY RAO_SOCIAL_CLI COLLATE CATALA").c_str(), 1.6),
      Mesurar(base, "100,000 customers sorted by the header of the town", columnes + " ORDER BY LOCALITAT_CLI",
              (columnes + " ORDER BY LOCALITAT_CLI COLLATE CATALA, NIF_CLI").c_str(), 2.0),
      Mesurar(
          base, "100,000 articles opened", SQL_Articles({}),
          "SELECT CODI_ART, DESCRIPCIO_ART, DESCRIPCIO_FAM, COST_ART, PVP_NET_ART, PORC_IVA FROM ARTICLES LEFT JOIN "
          "FAMILIES ON "
          "FAMILIA_ART = CODI_FAM LEFT JOIN SUBFAMILIES ON SUBFAMILIA_ART = CODI_SUBF LEFT JOIN MARQUES ON MARCA_ART = "
          "CODI_MAR LEFT JOIN IVAS ON IVA_ART = CODI_IVA ORDER BY CODI_ART",
          1.6),
      Mesurar(
          base, "100,000 articles filtered by a part of the description", SQL_Articles({.descripcio = "M99"}),
          "SELECT CODI_ART, DESCRIPCIO_ART, DESCRIPCIO_FAM, COST_ART, PVP_NET_ART, PORC_IVA FROM ARTICLES LEFT JOIN "
          "FAMILIES ON "
          "FAMILIA_ART = CODI_FAM LEFT JOIN SUBFAMILIES ON SUBFAMILIA_ART = CODI_SUBF LEFT JOIN MARQUES ON MARCA_ART = "
          "CODI_MAR LEFT JOIN IVAS ON IVA_ART = CODI_IVA WHERE DESCRIPCIO_ART LIKE '%M99%' ORDER BY CODI_ART",
          1.6)};
}
