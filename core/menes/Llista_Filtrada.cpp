#include "core/menes/Llista_Filtrada.h"

#include <QLineEdit>
#include <QPushButton>

void Llista_Filtrada::Muntar_Filtrada(QPushButton* filtre, const std::vector<QLineEdit*>& camps) {
  Muntar_Filtre(filtre, camps);
  primer_ = camps.front();
  connect(filtre, &QPushButton::clicked, this, [this] { Guardar_Event([this] { Filtrar(); }); });
}

std::string Llista_Filtrada::Demanat(const QLineEdit* camp) const {
  return filtrada_ ? camp->text().toStdString() : "NULO";
}

void Llista_Filtrada::Carregar() {
  Llista::Carregar();
  primer_->setFocus();
}

void Llista_Filtrada::Filtrar() {
  filtrada_ = true;
  rs_.Reopen(Sentencia());
  Graella_Llista()->Lligar(&rs_);
  Graella_Llista()->setFocus();
}
