#include "core/formularis/Pantalla_Qt.h"

#include <QApplication>
#include <QEventLoop>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <chrono>
#include <stdexcept>

#include "core/M_Funcions_Comuns.h"
#include "core/formularis/Finestra_Principal.h"
#include "core/formularis/Formulari.h"
#include "core/formularis/Formularis_Oberts.h"
#include "core/formularis/Serveis.h"
#include "core/formularis/Text_Qt.h"

std::function<Resposta(const QString&, int, const QString&)> Pantalla_Qt::Contestador;
std::function<std::string(const std::string&, int)> Pantalla_Qt::Triador_Empresa;

namespace {

QMessageBox::Icon Icona_De(int estil) {
  switch (estil & 0xF0) {
    case estil::critic:
      return QMessageBox::Critical;
    case estil::pregunta:
      return QMessageBox::Question;
    case estil::exclamacio:
      return QMessageBox::Warning;
    case estil::informacio:
      return QMessageBox::Information;
    default:
      return (estil & 0x0F) == estil::simple ? QMessageBox::NoIcon : QMessageBox::Question;
  }
}

// A box of few words is as wide as its title, with the window's buttons beside it.
void Fer_Lloc_Al_Titol(QMessageBox& caixa) {
  constexpr int botons_de_finestra = 140;
  const int amplada = caixa.fontMetrics().horizontalAdvance(caixa.windowTitle()) + botons_de_finestra;
  if (auto* quadricula = qobject_cast<QGridLayout*>(caixa.layout())) {
    auto* lloc = new QSpacerItem(amplada, 0, QSizePolicy::Minimum, QSizePolicy::Minimum);
    quadricula->addItem(lloc, quadricula->rowCount(), 0, 1, quadricula->columnCount());
  }
}

// A text taller than the screen is scrolled: its buttons are always in reach.
void Fer_Cabre_El_Text(QMessageBox& caixa) {
  auto* etiqueta = caixa.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  auto* quadricula = qobject_cast<QGridLayout*>(caixa.layout());
  const int maxim = caixa.screen()->availableGeometry().height() * 2 / 3;
  if (etiqueta == nullptr || quadricula == nullptr || etiqueta->sizeHint().height() <= maxim) return;
  int fila = 0;
  int columna = 0;
  int files = 0;
  int columnes = 0;
  quadricula->getItemPosition(quadricula->indexOf(etiqueta), &fila, &columna, &files, &columnes);
  quadricula->removeWidget(etiqueta);
  auto* area = new QScrollArea(&caixa);
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setFixedHeight(maxim);
  area->setMinimumWidth(etiqueta->sizeHint().width() + area->verticalScrollBar()->sizeHint().width());
  area->setWidget(etiqueta);
  quadricula->addWidget(area, fila, columna, files, columnes);
}

// Input, closing a window and ending the program.
bool Es_Entrada_De_Usuari(QEvent::Type tipus) {
  switch (tipus) {
    case QEvent::Close:
    case QEvent::Quit:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
      return true;
    default:
      return false;
  }
}

// A modal window between a first write and its commit would keep other terminals waiting: a programming error.
void Exigir_Que_No_Esperi_Ningu(const QObject* objecte) {
  const auto* finestra = qobject_cast<const QWidget*>(objecte);
  if (finestra == nullptr || !finestra->isModal()) return;
  try {
    Exigir_Res_Escrit(finestra->windowTitle().toStdString());
  } catch (const std::logic_error& error) {
    qFatal("%s", error.what());
  }
}

}  // namespace

Pantalla_Qt::Pantalla_Qt() {
  qApp->installEventFilter(this);
}

Resposta Pantalla_Qt::Obrir_Caixa(const std::string& text, int estil, const std::string& titol) {
  const QString escrit = Text_Qt(text);
  if (Contestador) return Contestador(escrit, estil, Text_Qt(titol));
  QMessageBox caixa(Icona_De(estil), Text_Qt(titol), escrit, QMessageBox::NoButton, QApplication::activeWindow());
  caixa.setTextFormat(Qt::PlainText);
  const bool si_no = (estil & 0x0F) == estil::si_no;
  const bool pregunta = si_no || (estil & 0x0F) == estil::ok_cancel;
  const auto boto = [&](const char* catala, const char* castella, const char* angles, QMessageBox::ButtonRole paper) {
    return caixa.addButton(Text_Qt(Missatge(catala, castella, angles)), paper);
  };
  const auto* afirma = si_no ? boto("&Sí", "&Sí", "&Yes", QMessageBox::YesRole)
                             : boto("D'&acord", "&Aceptar", "&OK", QMessageBox::AcceptRole);
  QPushButton* nega = nullptr;
  if (pregunta) {
    nega = si_no ? boto("&No", "&No", "&No", QMessageBox::NoRole)
                 : boto("&Cancel·lar", "&Cancelar", "&Cancel", QMessageBox::RejectRole);
    caixa.setEscapeButton(nega);
  }
  Fer_Lloc_Al_Titol(caixa);
  Fer_Cabre_El_Text(caixa);
  QApplication::setOverrideCursor(Qt::ArrowCursor);
  caixa.exec();
  QApplication::restoreOverrideCursor();
  const bool dit_que_si = caixa.clickedButton() == afirma;
  if (si_no) return dit_que_si ? Resposta::Si : Resposta::No;
  return dit_que_si || !pregunta ? Resposta::Ok : Resposta::Cancel;
}

bool Pantalla_Qt::Formulari_Carregat(std::string_view nom) const {
  return Formulari_De_Nom(Text_Qt(nom)) != nullptr;
}

Document_Obert* Pantalla_Qt::Document(std::string_view nom_formulari) {
  Formulari* formulari = Formulari_De_Nom(Text_Qt(nom_formulari));
  return formulari == nullptr ? nullptr : formulari->Document();
}

// Lets the windows paint; what the user does meanwhile waits, or is swallowed while the input is blocked.
void Pantalla_Qt::Processar_Events() {
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void Pantalla_Qt::Esperar(std::int32_t segons) {
  QEventLoop bucle;
  QTimer::singleShot(std::chrono::seconds(segons), &bucle, &QEventLoop::quit);
  bucle.exec(QEventLoop::ExcludeUserInputEvents);
}

void Pantalla_Qt::Bloquejar_Entrada() {
  bloquejada_ = true;
}

// What was typed during the work is discarded before the block is lifted.
void Pantalla_Qt::Alliberar_Entrada() {
  if (!bloquejada_) return;
  QCoreApplication::processEvents();
  bloquejada_ = false;
}

bool Pantalla_Qt::eventFilter(QObject* objecte, QEvent* event) {
  if (event->type() == QEvent::Show) Exigir_Que_No_Esperi_Ningu(objecte);
  if (bloquejada_ && Es_Entrada_De_Usuari(event->type())) {
    event->ignore();  // a close event: the window stays
    return true;
  }
  return QObject::eventFilter(objecte, event);
}

std::string Pantalla_Qt::Obrir_Tria_Empresa(const std::string& actual, int idioma) {
  if (Triador_Empresa) return Triador_Empresa(actual, idioma);
  QApplication::setOverrideCursor(Qt::ArrowCursor);
  std::string triada = serveis.triar_empresa ? serveis.triar_empresa(actual) : std::string();
  QApplication::restoreOverrideCursor();
  return triada;
}

void Pantalla_Qt::Menu_Habilitat(std::string_view entrada, bool habilitat) {
  Finestra_Principal::Unica()->Habilitar(Text_Qt(entrada), habilitat);
}
void Pantalla_Qt::Menu_Visible(std::string_view entrada, bool visible) {
  Finestra_Principal::Unica()->Accio(Text_Qt(entrada))->setVisible(visible);
}
void Pantalla_Qt::Menu_Marcat(std::string_view entrada, bool marcat) {
  Finestra_Principal::Unica()->Accio(Text_Qt(entrada))->setChecked(marcat);
}
void Pantalla_Qt::Menu_Text(std::string_view entrada, const std::string& text) {
  // Its first letter is its key.
  Finestra_Principal::Unica()
      ->Accio(Text_Qt(entrada))
      ->setText(u'&' + Text_Qt(text).replace(u'&', QStringLiteral("&&")));
}
