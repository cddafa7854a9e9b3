// The list of 100,000 delivery notes: opened as the list form opens it, against the same rows stepped into structs;
// then shown in the grid and scrolled to its end.
#include <QApplication>
#include <QScrollBar>
#include <algorithm>

#include "bench/Base_Nua.h"
#include "bench/Fila_Nua.h"
#include "bench/Mesura.h"
#include "core/controls/Graella.h"
#include "core/dades/Dates.h"
#include "sales/M_Consultes_Venda.h"
#include "tests/regles/Installacio_Prova.h"

namespace {

constexpr int albarans = 100000;
constexpr int albarans_de_anys = 200000;
constexpr int voltes = 9;

void Sembrar(Base_Nua& base, int quants) {
  base.Executar(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " + std::to_string(quants) +
      ") INSERT INTO ALBARACAP (NUMALB_AC, EMPRESA_AC, EMP_DESC_AC, DATA_AC, CLIENT_AC, CLIENT_DESC_AC, OBSR_AC, "
      "IMPORT_AC, ESTAT_AC) SELECT i, 'B00000000', 'Empresa de prova', date('2020-01-01', '+' || (i / 60) || ' day'), "
      "'B' || (i % 120), 'Serralleria Puig i Fills número ' || (i % 120), CASE WHEN i % 7 = 0 THEN 'Portar al matí' "
      "END, i * 1.21, -(i % 2) FROM n");
}

std::vector<Fila_Nua> Llegir_Nua(Sentencia_Nua& sentencia) {
  std::vector<Fila_Nua> files;
  for (sentencia.Amb(std::string_view("B00000000")); sentencia.Fila();) {
    files.push_back({sentencia.Enter(0), sentencia.Text(1), sentencia.Text(2), sentencia.Text(3), sentencia.Doble(4),
                     static_cast<int>(sentencia.Enter(5))});
  }
  return files;
}

std::string Sentencia_Llista() {
  return Consulta_Albarans({}, false) + " ORDER BY NUMALB_AC";
}

Figura Mesurar_Obrir(Base_Nua& base) {
  Sentencia_Nua sentencia(base,
                          "SELECT NUMALB_AC, DATA_AC, CLIENT_DESC_AC, OBSR_AC, IMPORT_AC, ESTAT_AC FROM ALBARACAP "
                          "WHERE EMPRESA_AC = ?1 ORDER BY NUMALB_AC");
  Parella parella;
  for (int i = 0; i < voltes; ++i) {
    Recordset rs;
    std::vector<Fila_Nua> files;
    parella.nostre.push_back(Mil_Segons([&] { rs.Open(Sentencia_Llista(), sessio.Connexio_Comuna); }));
    parella.nu.push_back(Mil_Segons([&] { files = Llegir_Nua(sentencia); }));
    Exigir_Igual("rows of the list", static_cast<double>(rs.RecordCount()), static_cast<double>(files.size()));
    rs.MoveLast();
    Exigir_Igual("amount of the last row", rs["IMPORT_AC"].Doble(), files.back().import);
  }
  return parella.Fer_Figura("Consulta_Albarans over 100,000 heads opened", "ms", 1.6);
}

std::vector<Figura> Mesurar_Graella() {
  const std::vector<Columna_Graella> columnes = {{"NUMALB_AC", 1200, "Albarà", true},
                                                 {"DATA_AC", 1500, "Data"},
                                                 {"CLIENT_DESC_AC", 4800, "Client"},
                                                 {"OBSR_AC", 3600, "Observacions"},
                                                 {"IMPORT_AC", 1700, "Import", true, "#,##0.00"},
                                                 {"ESTAT_AC", 750, "OK?", false, "", true}};
  Recordset rs(Sentencia_Llista(), sessio.Connexio_Comuna);
  Graella graella;
  graella.resize(1100, 600);
  graella.Columnes(columnes);
  const double mostrar = Mil_Segons([&] {
    graella.Lligar(&rs);
    graella.show();
    QApplication::processEvents();
  });
  QScrollBar* barra = graella.verticalScrollBar();
  std::vector<double> passos;
  while (barra->value() < barra->maximum()) {
    passos.push_back(Mil_Segons([&] {
      barra->setValue(std::min(barra->value() + barra->maximum() / 500, barra->maximum()));
      graella.viewport()->repaint();
      QApplication::processEvents();
    }));
  }
  const double pitjor = *std::max_element(passos.begin(), passos.end());
  return {{.nom = "100,000 heads shown in the grid", .nostre = Amb_Decimals(mostrar, 1) + " ms"},
          {.nom = "a step of scrolling them to the end, median of " + std::to_string(passos.size()),
           .nostre = Amb_Decimals(Mediana(passos), 2) + " ms"},
          {.nom = "the slowest of those steps", .nostre = Amb_Decimals(pitjor, 2) + " ms"}};
}

// What the search form asks for when it opens, among the notes of years.
Figura Mesurar_Ultim_Mes() {
  const Installacio_Prova installacio;
  Base_Nua base(sessio.Fitxer_Comu);
  Sembrar(base, albarans_de_anys);
  const Recordset extrems("SELECT MAX(DATA_AC) AS DARRERA FROM ALBARACAP", sessio.Connexio_Comuna);
  const Data_Hora darrera = extrems["DARRERA"].Data();
  const Data_Hora primera = Data_Serial(darrera.any, darrera.mes - 1, darrera.dia);
  const std::string nostra =
      Consulta_Albarans({{"DT_DATA", {.data = primera, .data_y = darrera}}}, false) + " ORDER BY NUMALB_AC";
  const std::string seva =
      "SELECT NUMALB_AC, DATA_AC, CLIENT_DESC_AC, OBSR_AC, IMPORT_AC, ESTAT_AC FROM ALBARACAP WHERE EMPRESA_AC = ?1 "
      "AND DATA_AC BETWEEN '" +
      Data_Desada(primera) + "' AND '" + Data_Desada(darrera) + "' ORDER BY NUMALB_AC";
  Sentencia_Nua sentencia(base, seva.c_str());
  Parella parella;
  for (int i = 0; i < voltes; ++i) {
    Recordset rs;
    std::vector<Fila_Nua> files;
    parella.nostre.push_back(Mil_Segons([&] { rs.Open(nostra, sessio.Connexio_Comuna); }));
    parella.nu.push_back(Mil_Segons([&] { files = Llegir_Nua(sentencia); }));
    Exigir_Igual("rows of the last month", static_cast<double>(rs.RecordCount()), static_cast<double>(files.size()));
  }
  return parella.Fer_Figura("the last month's notes out of 200,000", "ms", 1.6);
}

}  // namespace

std::vector<Figura> Mesurar_Llista_Albarans() {
  const Installacio_Prova installacio;
  Base_Nua base(sessio.Fitxer_Comu);
  Sembrar(base, albarans);
  std::vector<Figura> figures{Mesurar_Obrir(base)};
  for (auto& figura : Mesurar_Graella()) figures.push_back(std::move(figura));
  figures.push_back(Mesurar_Ultim_Mes());
  return figures;
}
