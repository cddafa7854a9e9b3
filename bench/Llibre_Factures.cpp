// The book of invoices read, laid out and written as PDF: what a page of 10,000 rows takes, against one of 1,000.
#include <QFile>

#include "bench/Mesura.h"
#include "bench/Nota_Oberta.h"
#include "output/DR_Llistat.h"
#include "output/informe/Sortida.h"
#include "sales/M_Consultes_Venda.h"
#include "tests/regles/Installacio_Prova.h"

namespace {

constexpr int factures = 10000;
constexpr int voltes = 5;

void Sembrar() {
  Transaccio transaccio(sessio.Connexio_Comuna);
  for (int i = 1; i <= factures; ++i) {
    sessio.Connexio_Comuna.Afegir_Fila("FACTURACAP", {{"NUMALB_FC", i},
                                                      {"EMPRESA_FC", empresa_mesura},
                                                      {"DATA_FC", Data_Hora{2026, 1, 15}},
                                                      {"CLIENT_DESC_FC", "Serralleria Puig i Fills"}});
    sessio.Connexio_Comuna.Afegir_Fila("FACTURAPEU", {{"NUMALB_FP", i},
                                                      {"EMPRESA_FP", empresa_mesura},
                                                      {"PORC_IVA_FP", 21.0},
                                                      {"BASE_FP", 100.0},
                                                      {"IVA_FP", 21.0},
                                                      {"IMPORT_FP", 121.0}});
  }
  transaccio.Confirmar();
}

// Milliseconds a page.
double Una_Pagina(int files, const QString& fitxer) {
  const Valors_Cerca valors = {{"TXT_FACTURA", {.text = "1", .text_y = std::to_string(files)}}};
  double pagines = 1;
  const double temps = Mil_Segons([&] {
    const Pagines fetes = Pagines_De_Llistat(llistat_factures, Consulta_Llistat_Factures(valors), valors);
    pagines = static_cast<double>(fetes.pagines.size());
    Escriure_PDF(fetes, fitxer);
  });
  return temps / pagines;
}

}  // namespace

std::vector<Figura> Mesurar_Llibre_Factures() {
  const Installacio_Prova installacio;
  Sembrar();
  const QString fitxer = QString::fromStdString(installacio.Dir_Dades() + "/llibre.pdf");
  Una_Pagina(100, fitxer);  // the fonts are loaded
  Parella parella;
  for (int i = 0; i < voltes; ++i) {
    parella.nostre.push_back(Una_Pagina(factures, fitxer));
    parella.nu.push_back(Una_Pagina(factures / 10, fitxer));
  }
  return {parella.Fer_Figura("a page of a book of 10,000 invoices (bare: of 1,000)", "ms", 1.5)};
}
