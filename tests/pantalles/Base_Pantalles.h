// A base installation behind the pieces of screens.
#pragma once

#include <gtest/gtest.h>

#include "tests/regles/Installacio_Prova.h"

class Base_Pantalles : public testing::Test {
 protected:
  void Executar(const std::string& sentencia) { sessio.Connexio_Comuna.Execute(sentencia); }
  Installacio_Prova installacio;
};
