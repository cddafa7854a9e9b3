#include "core/pantalla/Llista.h"

#include "core/M_Funcions_Comuns.h"

void Llista::Muntar(Graella* graella, const std::vector<Columna_Graella>& columnes) {
  graella_ = graella;
  graella_->Columnes(columnes);
  connect(graella_, &Graella::Doble_Clic, this, [this] { Guardar_Event([this] { Obrir_Fila(); }); });
}

void Llista::Carregar() {
  rs_.Open(Sentencia(), sessio.Connexio_Comuna);
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
