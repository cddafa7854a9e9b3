// Who is told that a statement waits for another terminal.
#include "core/dades/Espera.h"

#include "tests/dades/Base_Dades.h"

class Espera : public Base_Dades {
 protected:
  ~Espera() override { En_Esperar_Torn({}); }
  int avisos_ = 0;
};

TEST_F(Espera, A_statement_that_waits_for_the_file_tells_it_and_one_that_does_not_keeps_quiet) {
  NOMES_AMB_FITXER();
  En_Esperar_Torn([this] { ++avisos_; });
  connexio.Execute("INSERT INTO DIARI (ARTICLE_D, UNITATS_D) VALUES ('A', 1)");
  EXPECT_EQ(avisos_, 0);
  Transaccio transaccio(connexio);
  connexio.Execute("INSERT INTO DIARI (ARTICLE_D, UNITATS_D) VALUES ('B', 1)");
  // The other one lets go when it has been waited for.
  En_Esperar_Torn([&] {
    if (++avisos_ == 1) transaccio.Confirmar();
  });
  altra.Execute("INSERT INTO DIARI (ARTICLE_D, UNITATS_D) VALUES ('C', 1)");
  EXPECT_EQ(avisos_, 1);
  EXPECT_EQ(Un_Valor("SELECT COUNT(*) FROM DIARI").Enter(), 3);
}
