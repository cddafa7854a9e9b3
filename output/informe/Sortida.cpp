#include "output/informe/Sortida.h"

#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QSaveFile>
#include <QStandardPaths>
#include <QVBoxLayout>

#include "core/M_Funcions_Comuns.h"
#include "core/formularis/Aparenca.h"
#include "core/formularis/Formulari.h"
#include "output/informe/Informe.h"

namespace {

constexpr double twips_per_polzada = 1440;

QString Paraula(const char* catala, const char* castella, const char* angles) {
  return QString::fromStdString(Missatge(catala, castella, angles));
}

[[noreturn]] void Llancar_No_Escrit(const QString& detall) {
  const std::string text =
      Missatge("No es pot escriure el document", "No se puede escribir el documento", "The document cannot be written");
  throw Error_Brollador(errors::general, "Sortida", text + ": " + detall.toStdString());
}

// False when the device takes nothing.
bool Pintar_A(QPagedPaintDevice& aparell, const Pagines& pagines, int des_de, int fins_a) {
  QPainter pintor;
  if (!pintor.begin(&aparell)) return false;
  const double escala = aparell.logicalDpiX() / twips_per_polzada;
  for (int pagina = des_de; pagina <= fins_a; ++pagina) {
    if (pagina > des_de && !aparell.newPage()) return false;
    pintor.resetTransform();
    pintor.scale(escala, escala);
    Pintar_Pagina(pintor, pagines.pagines[static_cast<std::size_t>(pagina)]);
  }
  return pintor.end();
}

int Ultima(const Pagines& pagines) {
  return static_cast<int>(pagines.pagines.size()) - 1;
}

// Title and author for whoever lists or searches the files.
QByteArray Metadades(const Pagines& pagines) {
  return QStringLiteral(
             "<?xpacket begin=\"\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>"
             "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
             "<rdf:Description rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\">"
             "<dc:title><rdf:Alt><rdf:li xml:lang=\"x-default\">%1</rdf:li></rdf:Alt></dc:title>"
             "<dc:creator><rdf:Seq><rdf:li>%2</rdf:li></rdf:Seq></dc:creator>"
             "</rdf:Description></rdf:RDF></x:xmpmeta><?xpacket end=\"r\"?>")
      .arg(pagines.titol.toHtmlEscaped(), pagines.autor.toHtmlEscaped())
      .toUtf8();
}

QPageLayout Full_A4(const Pagines& pagines) {
  return {QPageSize(QPageSize::A4), pagines.apaisades ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()};
}

const QString extensio = QStringLiteral(".pdf");

bool Sobreescriure(const QString& fitxer) {
  const std::string pregunta =
      Missatge("Aquest fitxer ja existeix. El vols substituir?", "Este archivo ya existe. ¿Quieres sustituirlo?",
               "This file exists already. Do you want to replace it?");
  return sessio.pantalla->Caixa(pregunta + "\n" + fitxer.toStdString(), estil::pregunta | estil::si_no) == Resposta::Si;
}

QString carpeta_treballs;
std::function<int()> copies_treballs;
QString darrer_treball;
int treballs = 0;

}  // namespace

void Escriure_PDF(const Pagines& pagines, const QString& fitxer) {
  QSaveFile sortida(fitxer);
  if (!sortida.open(QIODevice::WriteOnly)) Llancar_No_Escrit(fitxer + QStringLiteral(": ") + sortida.errorString());
  QPdfWriter pdf(&sortida);
  pdf.setPageLayout(Full_A4(pagines));
  pdf.setResolution(1200);
  pdf.setTitle(pagines.titol);
  pdf.setCreator(QStringLiteral("Brollador"));
  pdf.setDocumentXmpMetadata(Metadades(pagines));
  const bool escrit = Pintar_A(pdf, pagines, 0, Ultima(pagines));
  if (!escrit || !sortida.commit()) Llancar_No_Escrit(fitxer + QStringLiteral(": ") + sortida.errorString());
}

void Preparar_Impressora(const Pagines& pagines, QPrinter& impressora) {
  impressora.setFullPage(true);
  impressora.setPageLayout(Full_A4(pagines));
  impressora.setDocName(pagines.titol);
}

void Enviar_A_Impressora(const Pagines& pagines, QPrinter& impressora) {
  const bool tram = impressora.printRange() == QPrinter::PageRange && impressora.fromPage() > 0;
  const int ultima = tram ? std::min(impressora.toPage() - 1, Ultima(pagines)) : Ultima(pagines);
  const int primera = tram ? std::min(impressora.fromPage() - 1, ultima) : 0;
  if (!Pintar_A(impressora, pagines, primera, ultima)) Llancar_No_Escrit(impressora.printerName());
}

bool Demanar_Impressora(const Pagines& pagines, QWidget* pare) {
  QPrinter impressora(QPrinter::HighResolution);
  Preparar_Impressora(pagines, impressora);
  QPrintDialog dialeg(&impressora, pare);
  dialeg.setMinMax(1, Ultima(pagines) + 1);
  if (dialeg.exec() != QDialog::Accepted) return false;
  Enviar_A_Impressora(pagines, impressora);
  return true;
}

QString Nom_De_Fitxer(QString text) {
  for (QChar& lletra : text) {
    if (lletra == u'/' || lletra == u'\\' || !lletra.isPrint()) lletra = u'-';
  }
  return text.startsWith(u'.') ? u'-' + text : text;
}

// A name typed without its extension takes it, and the dialog asks about the file that it then is.
bool Demanar_PDF(const Pagines& pagines, QWidget* pare) {
  QFileDialog dialeg(pare, Paraula("Desar com a PDF", "Guardar como PDF", "Save as PDF"),
                     QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                     QStringLiteral("PDF (*.pdf)"));
  dialeg.setAcceptMode(QFileDialog::AcceptSave);
  dialeg.setDefaultSuffix(QStringLiteral("pdf"));
  dialeg.selectFile(Nom_De_Fitxer(pagines.titol) + extensio);
  if (dialeg.exec() != QDialog::Accepted || dialeg.selectedFiles().isEmpty()) return false;
  QString fitxer = dialeg.selectedFiles().constFirst();
  if (!fitxer.endsWith(extensio, Qt::CaseInsensitive)) {
    fitxer += extensio;
    if (QFileInfo::exists(fitxer) && !Sobreescriure(fitxer)) return false;
  }
  Escriure_PDF(pagines, fitxer);
  sessio.pantalla->Caixa(
      Missatge("El document s'ha desat a:\n", "El documento se ha guardado en:\n", "The document was saved to:\n") +
          fitxer.toStdString(),
      estil::informacio);
  return true;
}

void Imprimir_Pagines(const Pagines& pagines) {
  if (carpeta_treballs.isEmpty()) return Dialeg_Impressio(pagines, QApplication::activeWindow());
  const int copies = copies_treballs ? copies_treballs() : 1;
  if (copies < 1) return;
  Pagines totes = pagines;
  for (int copia = 1; copia < copies; ++copia)
    totes.pagines.insert(totes.pagines.end(), pagines.pagines.begin(), pagines.pagines.end());
  darrer_treball = QStringLiteral("%1/treball-%2.pdf").arg(carpeta_treballs).arg(++treballs);
  Escriure_PDF(totes, darrer_treball);
}

void Fixar_Carpeta_Treballs(const QString& carpeta) {
  carpeta_treballs = carpeta;
}
void Fixar_Copies_Treballs(std::function<int()> copies) {
  copies_treballs = std::move(copies);
}
int Treballs_Impresos() {
  return treballs;
}
QString Darrer_Treball() {
  return darrer_treball;
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
  // The dialog stays for as long as nothing has come of it.
  const auto boto = [&](const char* nom, const QString& text, Dibuix dibuix, const std::function<bool()>& rutina) {
    auto* nou = new QPushButton(text, &dialeg);
    nou->setObjectName(QString::fromUtf8(nom));
    nou->setMinimumSize(240, 34);
    Dibuixar(nou, dibuix);
    QObject::connect(nou, &QPushButton::clicked, &dialeg, [&dialeg, rutina] {
      bool fet = false;
      Formulari::Guardar_Event([&] { fet = rutina(); });
      if (fet) dialeg.accept();
    });
    columna->addWidget(nou);
    return nou;
  };
  auto* imprimir = boto("B_Imprimir", Paraula("&Imprimir...", "&Imprimir...", "&Print..."), Dibuix::Imprimir,
                        [&] { return Demanar_Impressora(pagines, &dialeg); });
  imprimir->setEnabled(!QPrinterInfo::availablePrinterNames().isEmpty());
  boto("B_Previsualitzar", Paraula("&Previsualitzar", "&Vista previa", "Pre&view"), Dibuix::Cercar,
       [&] { return Previsualitzar(pagines, &dialeg); });
  boto("B_PDF", Paraula("&Desar com a PDF...", "&Guardar como PDF...", "&Save as PDF..."), Dibuix::Llista,
       [&] { return Demanar_PDF(pagines, &dialeg); });
  boto("B_Exit", Paraula("&Cancel·lar", "&Cancelar", "&Cancel"), Dibuix::Sortir, [] { return true; });
  QApplication::setOverrideCursor(Qt::ArrowCursor);
  dialeg.exec();
  QApplication::restoreOverrideCursor();
}
