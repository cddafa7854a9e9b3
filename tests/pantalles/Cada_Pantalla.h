// Every screen of the program on an installation with rows, opened as a person comes to it.
#pragma once

#include <QPointer>
#include <span>

#include "core/formularis/Pantalla_Qt.h"
#include "tests/pantalles/Formularis_De_Prova.h"

// How a person comes to a screen that has something to show.
struct Cami {
  const char* formulari;
  void (*obrir)();
  bool prem_botons;          // its fields are read by its buttons
  const char* prepara = "";  // leaves the one row that is edited, or writes what the others do not bring
  const char* repara = "";   // gives its code back to a row that no statement can name any more
};
std::span<const Cami> Camins();

class Cada_Pantalla : public Base_Pantalles, public testing::WithParamInterface<Cami> {
 protected:
  Cada_Pantalla();
  ~Cada_Pantalla() override;

  QString Nom() const { return QString::fromLatin1(GetParam().formulari); }
  Formulari* Obert() const { return Formulari_De_Nom(Nom()); }
  void Tancar_I_Obrir() const;
  static void Assentar();

  std::vector<Caixa_Vista> caixes_;  // shown since they were last cleared; questions are declined

 private:
  Resposta Contestar(const QString& text, int estil, const QString& titol);

  Pantalla_Qt pantalla_;
  F_Principal principal_;
};

// The parameter's name in a test.
std::string Nom_De_Prova(const testing::TestParamInfo<Cami>& info);
