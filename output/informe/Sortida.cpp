#include "output/informe/Sortida.h"

#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QPdfWriter>
#include <QPushButton>
#include <QSaveFile>
#include <QStandardPaths>
#include <QVBoxLayout>

#include "core/M_Funcions_Comuns.h"
#include "core/formularis/Aparenca.h"
#include "core/formularis/Formulari.h"
#include "core/formularis/Motius.h"
#include "output/informe/Aparell.h"
#include "output/informe/Impressora.h"
#include "output/informe/Informe.h"
#include "output/informe/Treballs.h"

namespace {

QString Paraula(const char* catala, const char* castella, const char* angles) {
  return QString::fromStdString(Missatge(catala, castella, angles));
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

const QString extensio = QStringLiteral(".pdf");

bool Sobreescriure(const QString& fitxer) {
  const std::string pregunta =
      Missatge("Aquest fitxer ja existeix. El vols substituir?", "Este archivo ya existe. ¿Quieres sustituirlo?",
               "This file exists already. Do you want to replace it?");
  return sessio.pantalla->Caixa(pregunta + "\n" + fitxer.toStdString(), estil::pregunta | estil::si_no) == Resposta::Si;
}

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
  const bool escrit = Pintar_A(pdf, pagines, Totes_Les_Pagines(pagines));
  if (!escrit || !sortida.commit()) Llancar_No_Escrit(fitxer + QStringLiteral(": ") + sortida.errorString());
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
  if (Treballs_A_Fitxers()) {
    const int copies = Demanar_Copies_Treball();
    if (copies != treballs::finestra) {
      Fer_Treball(pagines, copies);
      return;
    }
  }
  Dialeg_Impressio(pagines, QApplication::activeWindow());
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
      new QLabel(Paraula("Pàgines: ", "Páginas: ", "Pages: ") + QString::number(pagines.pagines.size()), &dialeg));
  if (const QString on = Impressora_I_Copies(); !on.isEmpty()) {
    auto* impressora = new QLabel(Paraula("Impressora: ", "Impresora: ", "Printer: ") + on, &dialeg);
    impressora->setObjectName(QStringLiteral("L_IMPRESSORA"));
    columna->addWidget(impressora);
  }
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
  imprimir->setEnabled(Hi_Ha_Impressora());
  imprimir->setProperty(propietat_motiu, Motiu_Sense_Impressora());
  boto("B_Previsualitzar", Paraula("&Previsualitzar", "&Vista previa", "Pre&view"), Dibuix::Cercar,
       [&] { return Previsualitzar(pagines, &dialeg); });
  boto("B_PDF", Paraula("&Desar com a PDF...", "&Guardar como PDF...", "&Save as PDF..."), Dibuix::Desar,
       [&] { return Demanar_PDF(pagines, &dialeg); });
  boto("B_Exit", Paraula("&Cancel·lar", "&Cancelar", "&Cancel"), Dibuix::Sortir, [] { return true; });
  QApplication::setOverrideCursor(Qt::ArrowCursor);
  dialeg.exec();
  QApplication::restoreOverrideCursor();
}
