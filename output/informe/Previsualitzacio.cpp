// The preview: the laid-out pages on the screen, one under the other, as they will be printed.
#include <QAction>
#include <QDialog>
#include <QGraphicsView>
#include <QLabel>
#include <QLineEdit>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QScrollBar>
#include <QShortcut>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <map>

#include "core/M_Funcions_Comuns.h"
#include "core/formularis/Formulari.h"
#include "core/formularis/Motius.h"
#include "core/formularis/Text_Qt.h"
#include "output/informe/Impressora.h"
#include "output/informe/Informe.h"
#include "output/informe/Ordres_Previa.h"
#include "output/informe/Sortida.h"

namespace {

constexpr double menys_ampliat = 0.1;
constexpr double mes_ampliat = 8;
constexpr double pas_ampliacio = 1.25;

class Finestra_Previa : public QDialog {
 public:
  Finestra_Previa(const Pagines& pagines, QWidget* pare) : QDialog(pare), pagines_(pagines) {
    setObjectName(QStringLiteral("F_Previsualitzar"));
    setWindowTitle(pagines.titol);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    resize(Mida_Recordada(objectName()).value_or(mida_propia));
    impressora_.setOutputFormat(QPrinter::PdfFormat);  // a preview needs no printer
    Preparar_Impressora(pagines, impressora_);
    vista_ = new QPrintPreviewWidget(&impressora_, this);
    connect(vista_, &QPrintPreviewWidget::paintRequested, this,
            [this](QPrinter* impressora) { Enviar_A_Impressora(pagines_, *impressora); });
    connect(vista_, &QPrintPreviewWidget::previewChanged, this, [this] { Mostrar_Estat(); });
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addWidget(Barra());
    columna->addWidget(vista_);
    full_ = vista_->findChild<QGraphicsView*>();
    full_->viewport()->installEventFilter(this);
    connect(full_->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { Mostrar_Estat(); });
    full_->setFocus();
    vista_->fitToWidth();
    Mostrar_Estat();
  }

  void done(int com) override {
    if (!isMaximized()) Recordar_Mida(objectName(), size(), mida_propia);
    QDialog::done(com);
  }

  bool eventFilter(QObject* objecte, QEvent* event) override {
    const auto* roda = event->type() == QEvent::Wheel ? static_cast<QWheelEvent*>(event) : nullptr;
    if (roda == nullptr || !roda->modifiers().testFlag(Qt::ControlModifier))
      return QDialog::eventFilter(objecte, event);
    if (roda->angleDelta().y() != 0) Ampliar(roda->angleDelta().y() > 0 ? pas_ampliacio : 1 / pas_ampliacio);
    return true;
  }

 private:
  static constexpr QSize mida_propia{940, 720};

  QToolBar* Barra() {
    auto* barra = new QToolBar(this);
    for (const Ordre_Previa& ordre : Ordres_De_La_Previa()) {
      auto* accio = barra->addAction(Icona(ordre.dibuix), ordre.Text());
      accio->setShortcuts(ordre.tecles);
      accio->setToolTip(ordre.Ajuda());
      accio->setCheckable(ordre.es_mode);
      connect(accio, &QAction::triggered, this,
              [this, que = ordre.que] { Formulari::Guardar_Event([&] { Fer(que); }); });
      auto* boto = static_cast<QToolButton*>(barra->widgetForAction(accio));
      boto->setObjectName(QString::fromLatin1(ordre.nom));
      if (ordre.amb_text) boto->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
      accions_[ordre.que] = accio;
      if (ordre.que == Que_Fa::Imprimir) {
        accio->setEnabled(Hi_Ha_Impressora());
        boto->setProperty(propietat_motiu, Motiu_Sense_Impressora());
      }
      if (ordre.que == Que_Fa::Pagina_Anterior) Posar_Numero(*barra);
      if (ordre.que == Que_Fa::Reduir) Posar_Ampliacio(*barra);
      if (ordre.acaba_grup) barra->addSeparator();
    }
    return barra;
  }

  void Posar_Numero(QToolBar& barra) {
    numero_ = new QLineEdit(this);
    numero_->setObjectName(QStringLiteral("TXT_PAGINA"));
    numero_->setAlignment(Qt::AlignRight);
    numero_->setFixedWidth(numero_->fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 12);
    const QKeySequence tecla(Qt::CTRL | Qt::Key_G);
    numero_->setToolTip(Text_Qt(Missatge("Anar a la pàgina", "Ir a la página", "Go to page")) + QStringLiteral(" (") +
                        tecla.toString(QKeySequence::NativeText) + u')');
    connect(numero_, &QLineEdit::editingFinished, this, [this] { Anar_On_Diu_El_Numero(); });
    connect(numero_, &QLineEdit::returnPressed, this, [this] { full_->setFocus(); });
    connect(new QShortcut(tecla, this), &QShortcut::activated, numero_, [this] {
      numero_->setFocus(Qt::ShortcutFocusReason);
      numero_->selectAll();
    });
    barra.addWidget(numero_);
    auto* de = new QLabel(QStringLiteral(" / %1 ").arg(Quantes()), this);
    de->setObjectName(QStringLiteral("L_PAGINES"));
    barra.addWidget(de);
  }

  void Posar_Ampliacio(QToolBar& barra) {
    ampliacio_ = new QLabel(this);
    ampliacio_->setObjectName(QStringLiteral("L_AMPLIACIO"));
    ampliacio_->setAlignment(Qt::AlignCenter);
    ampliacio_->setFixedWidth(ampliacio_->fontMetrics().horizontalAdvance(QStringLiteral("000 %")) + 12);
    barra.addWidget(ampliacio_);
  }

  void Fer(Que_Fa que) {
    switch (que) {
      case Que_Fa::Imprimir:
        return Tancar_Si(Demanar_Impressora(pagines_, this));
      case Que_Fa::Desar:
        return Tancar_Si(Demanar_PDF(pagines_, this));
      case Que_Fa::Primera_Pagina:
        return Anar_A_Dalt();
      case Que_Fa::Pagina_Anterior:
        return Anar(vista_->currentPage() - 1);
      case Que_Fa::Pagina_Seguent:
        return Anar(vista_->currentPage() + 1);
      case Que_Fa::Darrera_Pagina:
        return Anar(Quantes());
      case Que_Fa::Ampliar:
        return Ampliar(pas_ampliacio);
      case Que_Fa::Reduir:
        return Ampliar(1 / pas_ampliacio);
      case Que_Fa::Mida_Real:
        return Ampliar_A(1);
      case Que_Fa::Amplada:
        vista_->fitToWidth();
        return Mostrar_Estat();
      case Que_Fa::Pagina_Sencera:
        vista_->fitInView();
        return Mostrar_Estat();
      case Que_Fa::Tancar:
        return reject();
    }
  }

  void Tancar_Si(bool fet) {
    if (fet) accept();
  }

  bool A_Dalt() const {
    const QScrollBar* barra = full_->verticalScrollBar();
    return barra->value() <= barra->minimum();
  }
  int Quantes() const { return static_cast<int>(pagines_.pagines.size()); }

  void Anar(int pagina) {
    vista_->setCurrentPage(pagina);
    Mostrar_Estat();
  }

  // A number that no page has goes to the nearest one; what is no number stays on this one.
  void Anar_On_Diu_El_Numero() {
    if (!numero_->isModified()) return;
    bool be = false;
    const int pagina = numero_->text().toInt(&be);
    Anar(be ? std::clamp(pagina, 1, Quantes()) : vista_->currentPage());
  }

  // Also when the first page is the one in sight and its top is not.
  void Anar_A_Dalt() {
    Anar(1);
    full_->verticalScrollBar()->setValue(full_->verticalScrollBar()->minimum());
  }

  void Ampliar(double factor) { Ampliar_A(vista_->zoomFactor() * factor); }
  void Ampliar_A(double factor) {
    vista_->setZoomFactor(std::clamp(factor, menys_ampliat, mes_ampliat));
    Mostrar_Estat();
  }

  void Mostrar_Estat() {
    const int pagina = vista_->currentPage();
    const double ampliat = vista_->zoomFactor();
    numero_->setText(QString::number(pagina));
    ampliacio_->setText(QStringLiteral("%1 %").arg(std::lround(ampliat * 100)));
    accions_[Que_Fa::Primera_Pagina]->setEnabled(pagina > 1 || !A_Dalt());
    accions_[Que_Fa::Pagina_Anterior]->setEnabled(pagina > 1);
    for (const Que_Fa que : {Que_Fa::Pagina_Seguent, Que_Fa::Darrera_Pagina})
      accions_[que]->setEnabled(pagina < Quantes());
    accions_[Que_Fa::Ampliar]->setEnabled(ampliat < mes_ampliat);
    accions_[Que_Fa::Reduir]->setEnabled(ampliat > menys_ampliat);
    accions_[Que_Fa::Amplada]->setChecked(vista_->zoomMode() == QPrintPreviewWidget::FitToWidth);
    accions_[Que_Fa::Pagina_Sencera]->setChecked(vista_->zoomMode() == QPrintPreviewWidget::FitInView);
  }

  const Pagines& pagines_;
  QPrinter impressora_{QPrinter::HighResolution};
  QPrintPreviewWidget* vista_ = nullptr;
  QGraphicsView* full_ = nullptr;
  QLineEdit* numero_ = nullptr;
  QLabel* ampliacio_ = nullptr;
  std::map<Que_Fa, QAction*> accions_;
};

}  // namespace

bool Previsualitzar(const Pagines& pagines, QWidget* pare) {
  return Finestra_Previa(pagines, pare).exec() == QDialog::Accepted;
}
