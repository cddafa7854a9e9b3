#include "core/menes/Llista.h"

#include <QPushButton>

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Files.h"
#include "core/formularis/Aparenca.h"
#include "core/formularis/Control_Interface.h"
#include "core/formularis/Crides.h"
#include "core/formularis/Drets.h"

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

// For the field that asked for it, or to be opened. A filtered list is whole again before its row is opened, and a row
// that is there no more opens nothing. In a list that is edited in place a double click is for the cell.
void Llista::Triar_Fila() {
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
  rs_.Open(Sentencia(), sessio.Connexio_Comuna, Mode());
  graella_->Lligar(&rs_);
  graella_->setFocus();
}

void Llista::Descarregar() {
  graella_->Lligar(nullptr);
  rs_.Close();
}

void Llista::Requerir() {
  sessio.Posicio_Guardada = static_cast<std::int32_t>(rs_.AbsolutePosition());
  rs_.Requery();
  Reposicionar(rs_, sessio.Posicio_Guardada - 1);
  graella_->Refrescar();
}
