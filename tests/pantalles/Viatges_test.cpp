// How many trips to a server a screen costs.
#include "tests/pantalles/Cada_Pantalla.h"

class Viatges_De_Cada_Pantalla : public Cada_Pantalla {};

// The first opening prepares what a connection prepares once.
TEST_P(Viatges_De_Cada_Pantalla, A_list_is_opened_in_one) {
  Tancar_I_Obrir();
  ASSERT_NE(Obert(), nullptr);
  if (sessio.Connexio_Comuna.Viatges() == 0) GTEST_SKIP() << "the database is a file";
  if (Obert()->Recordset_Llista() == nullptr) GTEST_SKIP() << "it is no list";
  Descarregar_Formulari(Nom());  // its search form stays, as for whoever opens it again
  Assentar();
  const std::int64_t abans = sessio.Connexio_Comuna.Viatges();
  GetParam().obrir();
  Assentar();
  EXPECT_EQ(sessio.Connexio_Comuna.Viatges() - abans, 1);
}

INSTANTIATE_TEST_SUITE_P(Totes, Viatges_De_Cada_Pantalla, testing::ValuesIn(Camins().begin(), Camins().end()),
                         Nom_De_Prova);
