#include "core/menes/Llista.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Fila_Recordada.h"
#include "core/formularis/Aparenca.h"
#include "core/formularis/Crides.h"
#include "core/formularis/Drets.h"
#include "core/formularis/Formularis_Oberts.h"

namespace {

QPushButton* Posar_Boto(QHBoxLayout* fila, const Boto_De_Llista& que) {
  auto* boto = new QPushButton(QString::fromUtf16(que.text));
  boto->setObjectName(QString::fromUtf16(que.nom));
  fila->addWidget(boto);
  return boto;
}

}  // namespace

// As wide as its columns.
void Llista::Construir(const Peces_De_Llista& peces, const std::vector<Columna_Graella>& columnes) {
  constexpr int separacio = 8;
  constexpr int barra = 24;
  constexpr int alcada = 380;
  setWindowTitle(QString::fromUtf16(peces.titol));
  auto* graella = new Graella(this);
  graella->setObjectName(QString::fromUtf16(peces.graella));
  auto* columna = new QVBoxLayout(this);
  columna->setSpacing(separacio);
  columna->addWidget(graella);
  auto* botons = new QHBoxLayout;
  botons->setSpacing(separacio);
  columna->addLayout(botons);
  QPushButton* nou = peces.nou == nullptr ? nullptr : Posar_Boto(botons, *peces.nou);
  QPushButton* esborrar = Posar_Boto(botons, peces.esborrar);
  botons->addStretch();
  QPushButton* sortir = Posar_Boto(botons, {u"B_Exit", u"&Sortir"});
  Muntar(graella, columnes);
  graella->setMinimumSize(graella->horizontalHeader()->length() + barra, alcada);
  Muntar_Botons(nou, esborrar, sortir);
}

void Llista::Muntar(Graella* graella, const std::vector<Columna_Graella>& columnes) {
  graella_ = graella;
  graella_->Columnes(columnes);
  connect(graella_, &Graella::Doble_Clic, this, [this] { Guardar_Event([this] { Triar_Fila(); }); });
}

void Llista::Muntar_Botons(QPushButton* nou, QPushButton* esborrar, QPushButton* sortir) {
  if (nou != nullptr) {
    Dibuixar(nou, Dibuix::Nou);
    connect(nou, &QPushButton::clicked, this, [this] { Guardar_Event([this] { Nou(); }); });
  }
  if (esborrar != nullptr) {
    Dibuixar(esborrar, Dibuix::Esborrar);
    connect(esborrar, &QPushButton::clicked, this, [this] { Guardar_Event([this] { Esborrar_Fila(); }); });
  }
  Dibuixar(sortir, Dibuix::Sortir);
  connect(sortir, &QPushButton::clicked, this, [this] { Descarregar_Formulari(Nom()); });
}

void Llista::Muntar_Filtre(QPushButton* boto, const std::vector<QLineEdit*>& camps) {
  boto_filtre_ = boto;
  camps_filtre_ = camps;
  Dibuixar(boto, Dibuix::Cercar);
}

void Llista::keyPressEvent(QKeyEvent* event) {
  const bool entra = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const bool al_filtre = std::find(camps_filtre_.begin(), camps_filtre_.end(), focusWidget()) != camps_filtre_.end();
  if (!entra || !al_filtre) return Formulari::keyPressEvent(event);
  boto_filtre_->click();
  if (graella_->Files() > 0) graella_->setFocus();
}

// For the field that asked for it, or to be opened. A filtered list is whole again before its row is opened, and a row
// that is there no more opens nothing. In a list that is edited in place a double click is for the cell.
void Llista::Triar_Fila() {
  if (graella_->En_Edicio() && !graella_->Desar_Fila()) return;  // what is still in edit is written first
  if (Crida_Pendent(Nom()) != nullptr && !Admet_Retorn()) return;
  if (Tornar_Fila(*this) || S_Edita_En_Lloc(Nom())) return;
  if (Formulari_De_Nom(QStringLiteral("F_CERCA")) != nullptr) {
    const Fila_Recordada fila(rs_);
    Descarregar_Formulari(QStringLiteral("F_CERCA"));
    if (!fila.Tornar_Hi()) return;
    graella_->Refrescar();
  }
  Obrir_Fila();
}

void Llista::Carregar() {
  rs_.Open(Sentencia(), Base(), Mode());
  graella_->Lligar(&rs_);
  graella_->setFocus();
}

void Llista::Descarregar() {
  graella_->Lligar(nullptr);
  rs_.Close();
}

void Llista::Requerir() {
  Requerir_Alla_Mateix(rs_);
  graella_->Refrescar();
}
