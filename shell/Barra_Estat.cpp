#include "shell/Barra_Estat.h"

#include <QFileInfo>
#include <QLabel>
#include <QTimer>
#include <QUrl>

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Graella.h"
#include "core/formularis/Formulari.h"

namespace {

QString Paraules(const char* catala, const char* castella, const char* angles) {
  return QString::fromStdString(Missatge(catala, castella, angles));
}

// A row that is there no more has nothing to tell.
QString Estat_De(const Formulari& formulari) try {
  const QString que = formulari.Que_Mostra();
  if (que.isEmpty()) return formulari.windowTitle();
  const QString desat = formulari.Tot_Desat() ? Paraules("desat", "guardado", "saved")
                                              : Paraules("per desar", "sin guardar", "not saved");
  return que + QStringLiteral(" · ") + desat;
} catch (const Error_Brollador&) {
  return formulari.windowTitle();
}

QString Files_De(const Formulari& formulari) {
  const Graella* graella = const_cast<Formulari&>(formulari).Graella_Llista();
  return graella == nullptr ? QString() : graella->Compte();
}

}  // namespace

QString Nom_De_La_Base(const QString& adreca) {
  if (!adreca.contains(QStringLiteral("://"))) return QFileInfo(adreca).fileName();
  const QUrl url(adreca);
  const QString base = url.path().section(u'/', 1);
  return url.host().isEmpty() ? base : base + QStringLiteral(" @ ") + url.host();
}

Barra_Estat::Barra_Estat(QWidget* pare) : QStatusBar(pare) {
  formulari_ = Etiqueta("L_ESTAT", 1);
  espera_ = Etiqueta("L_ESPERA");
  files_ = Etiqueta("L_FILES");
  usuari_ = Etiqueta("L_USUARI_ACTUAL");
  empresa_ = Etiqueta("L_EMPRESA_ACTUAL");
  base_ = Etiqueta("L_BASE");
  QFont lletra = espera_->font();
  lletra.setBold(true);
  espera_->setFont(lletra);
}

// Names come from rows: plain text, and no width is asked for that the display may not have.
QLabel* Barra_Estat::Etiqueta(const char* nom, int espai) {
  auto* etiqueta = new QLabel(this);
  etiqueta->setObjectName(QString::fromLatin1(nom));
  etiqueta->setTextFormat(Qt::PlainText);
  etiqueta->setMargin(2);
  if (espai > 0) {
    etiqueta->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    addWidget(etiqueta, espai);
  } else {
    etiqueta->hide();
    addPermanentWidget(etiqueta);
  }
  return etiqueta;
}

void Barra_Estat::Actualitzar(const Formulari* davant) {
  const auto posar = [](QLabel* etiqueta, const QString& text) {
    constexpr int llarg = 40;  // letters
    const QString curt = text.size() > llarg ? text.left(llarg - 1) + u'…' : text;
    if (etiqueta->text() != curt) etiqueta->setText(curt);
    etiqueta->setVisible(!curt.isEmpty());
  };
  formulari_->setText(davant == nullptr ? QString() : Estat_De(*davant));
  posar(files_, davant == nullptr ? QString() : Files_De(*davant));
  posar(usuari_, QString::fromStdString(sessio.Nom_Usuari));
  posar(empresa_, QString::fromStdString(sessio.Nom_Empresa));
  posar(base_, Nom_De_La_Base(QString::fromStdString(sessio.Fitxer_Comu)));
}

void Barra_Estat::Esperar() {
  if (espera_->isVisible()) return;
  espera_->setText(
      Paraules("Esperant un altre terminal...", "Esperando a otro terminal...", "Waiting for another terminal..."));
  espera_->show();
  espera_->adjustSize();
  repaint();
  QTimer::singleShot(0, espera_, [this] { espera_->hide(); });
}
