// A document of 1,000 lines as a PDF file, from its rows to the disk, against the same texts written at the same places
// by the toolkit alone.
#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <stdexcept>

#include "bench/Mesura.h"
#include "bench/Nota_Oberta.h"
#include "output/Imprimir.h"
#include "output/M_Informes.h"
#include "sales/M_Tipus_Venda.h"
#include "tests/regles/Installacio_Prova.h"

namespace {

constexpr int linies = 1000;
constexpr int voltes = 7;

void Sembrar_Factura(Connexio& connexio) {
  Transaccio transaccio(connexio);
  connexio.Afegir_Fila("FACTURACAP", {{"NUMALB_FC", 1}, {"EMPRESA_FC", empresa_mesura}, {"OBSR_FC", "Portar al matí"}});
  for (int i = 1; i <= linies; ++i) {
    const std::string llarga = i % 7 == 0 ? ", amb plataforma, goma antilliscant i ganxo de seguretat homologat" : "";
    connexio.Afegir_Fila("FACTURALIN", {{"NUMALB_FL", 1},
                                        {"EMPRESA_FL", empresa_mesura},
                                        {"LIN_FL", i},
                                        {"ARTICLE_FL", Codi_Article(i)},
                                        {"DESCRIPCIO_FL", "Article de la mesura " + std::to_string(i) + llarga},
                                        {"UNITATS_FL", i % 9 + 1},
                                        {"PREU_UNITARI_FL", 12.5},
                                        {"DTE_FL", i % 5 == 0 ? 10 : 0},
                                        {"IMPORT_NET_FL", 12.5 * (i % 9 + 1)}});
  }
  transaccio.Confirmar();
}

// The texts of the pages, and nothing else of them.
struct Text_Nu {
  QPointF lloc;
  QString text;
  QFont lletra;
};
using Pagina_Nua = std::vector<Text_Nu>;

std::vector<Pagina_Nua> Nomes_Textos(const Pagines& pagines) {
  std::vector<Pagina_Nua> nues;
  for (const auto& pagina : pagines.pagines) {
    nues.emplace_back();
    for (const auto& element : pagina) {
      const auto* text = std::get_if<Text_Posat>(&element);
      if (text != nullptr) nues.back().push_back({text->base, text->text, text->lletra});
    }
  }
  return nues;
}

void Escriure_Nu(const std::vector<Pagina_Nua>& pagines, const QString& nom) {
  QPdfWriter pdf(nom);
  pdf.setPageLayout({QPageSize(QPageSize::A4), QPageLayout::Portrait, {}});
  pdf.setResolution(1200);
  QPainter pintor(&pdf);
  for (std::size_t i = 0; i < pagines.size(); ++i) {
    if (i > 0) pdf.newPage();
    pintor.resetTransform();
    pintor.scale(1200 / 1440.0, 1200 / 1440.0);
    for (const auto& [lloc, text, lletra] : pagines[i]) {
      pintor.setFont(lletra);
      pintor.drawText(lloc, text);
    }
  }
}

double Pagines_Escrites(const QString& nom) {
  QFile fitxer(nom);
  if (!fitxer.open(QIODevice::ReadOnly)) throw std::runtime_error("no file " + nom.toStdString());
  return static_cast<double>(fitxer.readAll().count("/Type /Page\n"));
}

}  // namespace

std::vector<Figura> Mesurar_Document_PDF() {
  const Installacio_Prova installacio;
  sessio.Dir_Temp = installacio.Dir_Dades() + "/Temp/";
  sessio.Crida_Document = "F_FACTURA;VALORAT";
  Sembrar_Factura(sessio.Connexio_Comuna);
  const QString nostre = Fitxer_PDF(tipus_factura, 1);
  const QString nu = QString::fromStdString(sessio.Dir_Temp + "nu.pdf");
  const auto imprimir = [] { Imprimir_Document(tipus_factura, 1, empresa_mesura, impressio::pdf); };
  imprimir();  // the fonts are loaded, for both
  const auto textos = Nomes_Textos(Pagines_De_Document(tipus_factura, 1, empresa_mesura));
  const auto pagines = static_cast<double>(textos.size());
  Parella parella;
  for (int i = 0; i < voltes; ++i) {
    parella.nostre.push_back(Mil_Segons(imprimir) / pagines);
    parella.nu.push_back(Mil_Segons([&] { Escriure_Nu(textos, nu); }) / pagines);
    Exigir_Igual("pages of the file", Pagines_Escrites(nostre), Pagines_Escrites(nu));
    Exigir_Igual("pages", pagines, Pagines_Escrites(nu));
  }
  return {parella.Fer_Figura("a page of an invoice of 1,000 lines as PDF", "ms", 3)};
}
