// The preview: the laid-out pages on the screen, one under the other, as they will be printed.
#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPrinterInfo>
#include <QToolBar>
#include <QVBoxLayout>

#include "core/M_Funcions_Comuns.h"
#include "core/formularis/Aparenca.h"
#include "core/formularis/Formulari.h"
#include "output/informe/Informe.h"
#include "output/informe/Sortida.h"

namespace {

class Finestra_Previa : public QDialog {
 public:
  Finestra_Previa(const Pagines& pagines, QWidget* pare) : QDialog(pare), pagines_(pagines) {
    setObjectName(QStringLiteral("F_Previsualitzar"));
    setWindowTitle(pagines.titol);
    resize(900, 680);
    impressora_.setOutputFormat(QPrinter::PdfFormat);  // a preview needs no printer
    Preparar_Impressora(pagines, impressora_);
    vista_ = new QPrintPreviewWidget(&impressora_, this);
    connect(vista_, &QPrintPreviewWidget::paintRequested, this,
            [this](QPrinter* impressora) { Enviar_A_Impressora(pagines_, *impressora); });
    connect(vista_, &QPrintPreviewWidget::previewChanged, this, [this] { Comptar(); });
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addWidget(Barra());
    columna->addWidget(vista_);
    vista_->fitInView();
    Comptar();
  }

 private:
  static QString Paraula(const char* catala, const char* castella, const char* angles) {
    return QString::fromStdString(Missatge(catala, castella, angles));
  }

  QToolBar* Barra() {
    auto* barra = new QToolBar(this);
    barra->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const auto accio = [&](const QString& text, const QIcon& icona, const QKeySequence& tecla, auto rutina) {
      QAction* nova = barra->addAction(icona, text);
      nova->setShortcut(tecla);
      connect(nova, &QAction::triggered, this, [rutina] { Formulari::Guardar_Event(rutina); });
      return nova;
    };
    accio(Paraula("Imprimir", "Imprimir", "Print"), Icona(Dibuix::Imprimir), QKeySequence::Print, [this] {
      if (Demanar_Impressora(pagines_, this)) accept();
    })->setEnabled(!QPrinterInfo::availablePrinterNames().isEmpty());
    accio(QStringLiteral("PDF"), Icona(Dibuix::Llista), QKeySequence::Save, [this] {
      if (Demanar_PDF(pagines_, this)) accept();
    });
    barra->addSeparator();
    accio(Paraula("Anterior", "Anterior", "Previous"), Icona(Dibuix::Amunt), Qt::Key_PageUp, [this] { Anar(-1); });
    accio(Paraula("Següent", "Siguiente", "Next"), Icona(Dibuix::Avall), Qt::Key_PageDown, [this] { Anar(1); });
    pagina_ = new QLabel(this);
    barra->addWidget(pagina_);
    barra->addSeparator();
    accio(QStringLiteral("+"), Icona(Dibuix::Cercar), QKeySequence::ZoomIn, [this] { vista_->zoomIn(); });
    accio(QStringLiteral("−"), Icona(Dibuix::Cercar), QKeySequence::ZoomOut, [this] { vista_->zoomOut(); });
    accio(Paraula("Pàgina sencera", "Página entera", "Whole page"), QIcon(), Qt::CTRL | Qt::Key_0,
          [this] { vista_->fitInView(); });
    barra->addSeparator();
    accio(Paraula("Tancar", "Cerrar", "Close"), Icona(Dibuix::Sortir), Qt::Key_Escape, [this] { close(); });
    return barra;
  }

  void Anar(int quantes) {
    vista_->setCurrentPage(std::clamp(vista_->currentPage() + quantes, 1, vista_->pageCount()));
    Comptar();
  }

  void Comptar() {
    pagina_->setText(QStringLiteral(" %1/%2 ").arg(vista_->currentPage()).arg(pagines_.pagines.size()));
  }

  const Pagines& pagines_;
  QPrinter impressora_{QPrinter::HighResolution};
  QPrintPreviewWidget* vista_ = nullptr;
  QLabel* pagina_ = nullptr;
};

}  // namespace

bool Previsualitzar(const Pagines& pagines, QWidget* pare) {
  return Finestra_Previa(pagines, pare).exec() == QDialog::Accepted;
}
