#include "core/menes/Taula_Referencia.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QMouseEvent>
#include <QVBoxLayout>

#include "core/formularis/Aparenca.h"
#include "core/formularis/Control_Interface.h"
#include "core/formularis/Serveis.h"

namespace {

constexpr int alcada = 380;

QPushButton* Boto(const QString& nom, const QString& text) {
  auto* boto = new QPushButton(text);
  boto->setObjectName(nom);
  return boto;
}

}  // namespace

Taula_Referencia::Taula_Referencia(const Descripcio_Referencia& descripcio)
    : Llista(QString::fromUtf16(descripcio.formulari)), descripcio_(descripcio) {
  setWindowTitle(QString::fromUtf16(descripcio.titol));
  auto* graella = new Graella(this);
  graella->setObjectName(QString::fromUtf16(descripcio.graella));
  graella->viewport()->installEventFilter(this);
  auto* esborrar = Boto(QString::fromUtf16(descripcio.boto_esborrar), QStringLiteral("&Eliminar"));
  auto* sortir = Boto(QStringLiteral("B_Exit"), QStringLiteral("&Sortir"));
  auto* botons = new QHBoxLayout;
  botons->addWidget(esborrar);
  botons->addStretch();
  botons->addWidget(sortir);
  auto* columna = new QVBoxLayout(this);
  columna->setSpacing(8);
  columna->addWidget(graella);
  columna->addLayout(botons);
  Muntar(graella, descripcio.columnes);
  constexpr int barra = 24;
  graella->setMinimumSize(graella->horizontalHeader()->length() + barra, alcada);
  Muntar_Botons(nullptr, esborrar, sortir);
}

void Taula_Referencia::Carregar() {
  Llista::Carregar();
  if (descripcio_.desplegables != nullptr) descripcio_.desplegables(*Graella_Llista());
}

// The row in edit is written first; one that is refused is given up, since nobody is kept in a form.
void Taula_Referencia::Descarregar() {
  if (!Graella_Llista()->Desar_Fila()) Graella_Llista()->Descartar_Fila();
  Llista::Descarregar();
}

void Taula_Referencia::Esborrar_Fila() {
  if (Graella_Llista()->En_Edicio() || Graella_Llista()->Fila_Actual() < 0) return;
  descripcio_.esborrar(rs_);
  Requerir();
}

bool Taula_Referencia::eventFilter(QObject* objecte, QEvent* event) {
  const bool dreta = descripcio_.cerca_amb_la_dreta && event->type() == QEvent::MouseButtonPress &&
                     static_cast<QMouseEvent*>(event)->button() == Qt::RightButton;
  if (!dreta) return Llista::eventFilter(objecte, event);
  const QPoint lloc = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
  if (Graella_Llista()->Desar_Fila() && serveis.obrir_cerca) Guardar_Event([&] { serveis.obrir_cerca(this, lloc); });
  return true;
}
