#include "output/informe/Sortida.h"

#include <QDialog>
#include <QFileDialog>
#include <QLabel>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

#include "core/M_Funcions_Comuns.h"
#include "core/pantalla/Aparenca.h"
#include "core/pantalla/Formulari.h"
#include "output/informe/Informe.h"

namespace {

constexpr double twips_per_polzada = 1440;

QString Paraula(const char* catala, const char* castella, const char* angles) {
  return QString::fromStdString(Missatge(catala, castella, angles));
}

template <class Aparell>
void Pintar_A(Aparell& aparell, const Pagines& pagines, int des_de, int fins_a) {
  QPainter pintor;
  if (!pintor.begin(&aparell)) {
    throw Error_Brollador(errors::general, "Sortida",
                          Missatge("No es pot escriure el document", "No se puede escribir el documento",
                                   "The document cannot be written"));
  }
  const double escala = aparell.logicalDpiX() / twips_per_polzada;
  for (int pagina = des_de; pagina <= fins_a; ++pagina) {
    if (pagina > des_de) aparell.newPage();
    pintor.save();
    pintor.scale(escala, escala);
    Pintar_Pagina(pintor, pagines.pagines[static_cast<std::size_t>(pagina)]);
    pintor.restore();
  }
}

int Ultima(const Pagines& pagines) {
  return static_cast<int>(pagines.pagines.size()) - 1;
}

}  // namespace

void Escriure_PDF(const Pagines& pagines, const QString& fitxer) {
  QPdfWriter pdf(fitxer);
  pdf.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
  pdf.setResolution(1200);
  pdf.setTitle(pagines.titol);
  pdf.setCreator(QStringLiteral("Brollador"));
  Pintar_A(pdf, pagines, 0, Ultima(pagines));
}

void Enviar_A_Impressora(const Pagines& pagines, QPrinter& impressora) {
  const bool tram = impressora.printRange() == QPrinter::PageRange && impressora.fromPage() > 0;
  const int des_de = tram ? impressora.fromPage() - 1 : 0;
  Pintar_A(impressora, pagines, std::min(des_de, Ultima(pagines)),
           tram ? std::min(impressora.toPage() - 1, Ultima(pagines)) : Ultima(pagines));
}

void Demanar_Impressora(const Pagines& pagines, QWidget* pare) {
  QPrinter impressora(QPrinter::HighResolution);
  impressora.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
  impressora.setFullPage(true);
  impressora.setDocName(pagines.titol);
  QPrintDialog dialeg(&impressora, pare);
  dialeg.setMinMax(1, Ultima(pagines) + 1);
  if (dialeg.exec() == QDialog::Accepted) Enviar_A_Impressora(pagines, impressora);
}

void Demanar_PDF(const Pagines& pagines, QWidget* pare) {
  const QString carpeta = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  const QString fitxer = QFileDialog::getSaveFileName(
      pare, Paraula("Desar com a PDF", "Guardar como PDF", "Save as PDF"),
      carpeta + u'/' + pagines.titol + QStringLiteral(".pdf"), QStringLiteral("PDF (*.pdf)"));
  if (!fitxer.isEmpty()) Escriure_PDF(pagines, fitxer);
}

void Dialeg_Impressio(const Pagines& pagines, QWidget* pare) {
  QDialog dialeg(pare);
  dialeg.setObjectName(QStringLiteral("F_Imprimir"));
  dialeg.setWindowTitle(Paraula("Imprimir", "Imprimir", "Print"));
  auto* columna = new QVBoxLayout(&dialeg);
  columna->setContentsMargins(20, 16, 20, 16);
  auto* titol = new QLabel(pagines.titol, &dialeg);
  QFont lletra = titol->font();
  lletra.setBold(true);
  titol->setFont(lletra);
  columna->addWidget(titol);
  columna->addWidget(
      new QLabel(Paraula("Pàgines: ", "Páginas: ", "Pages: ") + QString::number(Ultima(pagines) + 1), &dialeg));
  columna->addSpacing(8);
  const auto boto = [&](const QString& text, Dibuix dibuix, const std::function<void()>& rutina) {
    auto* nou = new QPushButton(text, &dialeg);
    nou->setMinimumSize(240, 34);
    Dibuixar(nou, dibuix);
    QObject::connect(nou, &QPushButton::clicked, &dialeg, [&dialeg, rutina] {
      Formulari::Guardar_Event(rutina);
      dialeg.accept();
    });
    columna->addWidget(nou);
    return nou;
  };
  auto* imprimir = boto(Paraula("&Imprimir...", "&Imprimir...", "&Print..."), Dibuix::Imprimir,
                        [&] { Demanar_Impressora(pagines, &dialeg); });
  imprimir->setEnabled(!QPrinterInfo::availablePrinters().isEmpty());
  boto(Paraula("&Previsualitzar", "&Vista previa", "Pre&view"), Dibuix::Cercar,
       [&] { Previsualitzar(pagines, &dialeg); });
  boto(Paraula("&Desar com a PDF...", "&Guardar como PDF...", "&Save as PDF..."), Dibuix::Llista,
       [&] { Demanar_PDF(pagines, &dialeg); });
  boto(Paraula("&Cancel·lar", "&Cancelar", "&Cancel"), Dibuix::Sortir, [] {});
  dialeg.exec();
}
