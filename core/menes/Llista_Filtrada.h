// A list that opens empty, since it is long: its rows are those of the fields over it, once the user has asked for
// them.
#pragma once

#include "core/menes/Llista.h"

class Llista_Filtrada : public Llista {
  Q_OBJECT
 public:
  using Llista::Llista;
  void Carregar() override;

 protected:
  // Enter in a field asks, as the button does. The first field has the focus when the list opens.
  void Muntar_Filtrada(QPushButton* filtre, const std::vector<QLineEdit*>& camps);
  // What a field asks for; before anybody asked, a word that no row holds.
  std::string Demanat(const QLineEdit* camp) const;

 private:
  void Filtrar();
  bool filtrada_ = false;
  QLineEdit* primer_ = nullptr;
};
