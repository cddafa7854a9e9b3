// Two terminals that move the same stock at the same moment.
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <future>
#include <thread>

#include "tests/regles/Base_Magatzems.h"
#include "tests/regles/Dos_Terminals.h"

using Dos_Terminals = A_Dos_Terminals<M_Magatzems>;

TEST_F(Dos_Terminals, that_sell_the_same_article_at_once_both_count) {
  Posar_Article({.magatzem = "2"});
  Posar_Estoc("A1", "2", -1);
  Alhora([](bool, int) {
    Transaccio transaccio(sessio.Connexio_Comuna);
    Vendre("A1", 1);
    transaccio.Confirmar();
  });
  EXPECT_EQ(Estoc("A1", "2").Doble(), -1 - 2 * vegades);
  EXPECT_EQ(Moviments(), 2 * vegades);
}

TEST_F(Dos_Terminals, that_transfer_one_article_in_opposite_directions_both_count) {
  Posar_Article({});
  Posar_Estoc("A1", "1", 1000);
  Posar_Estoc("A1", "2", 1000);
  Alhora([](bool primer, int) {
    Moviment_Traspas(+1, "A1", true, primer ? "1" : "2", primer ? "2" : "1", primer ? 3 : 1, 9);
  });
  EXPECT_EQ(Estoc("A1", "1").Doble(), 1000 - 2 * vegades);
  EXPECT_EQ(Estoc("A1", "2").Doble(), 1000 + 2 * vegades);
  EXPECT_EQ(Moviments(), 4 * vegades);
}

// Each holds a row that the other one wants: the server gives up one of them, which does its work again.
TEST_F(Dos_Terminals, that_wait_for_each_other_both_end_their_work) {
  if (!Proves_Al_Servidor()) GTEST_SKIP() << "a file has one writer at a time";
  Posar_Article({});
  Posar_Estoc("A1", "1", 10);
  Posar_Estoc("A1", "2", 10);
  Connexio altra;
  altra.Open(sessio.Connexio_Comuna.Adreca());
  std::atomic<int> intents = 0;
  std::promise<void> te_la_dos;
  std::promise<void> te_la_una;
  const std::shared_future<void> agafada = te_la_una.get_future().share();
  std::jthread altre([&] {
    En_Transaccio(altra, [&] {
      altra.Execute("UPDATE STOCK SET UNIDADES_ST = UNIDADES_ST + 10 WHERE ALMACEN_ST = '2'");
      if (++intents == 1) te_la_dos.set_value();
      agafada.wait();
      altra.Execute("UPDATE STOCK SET UNIDADES_ST = UNIDADES_ST + 10 WHERE ALMACEN_ST = '1'");
    });
  });
  te_la_dos.get_future().wait();
  bool primer = true;
  En_Transaccio(sessio.Connexio_Comuna, [&] {
    ++intents;
    Executar("INSERT INTO MARQUES (CODI_MAR) VALUES('M')");
    Executar("UPDATE STOCK SET UNIDADES_ST = UNIDADES_ST + 1 WHERE ALMACEN_ST = '1'");
    if (std::exchange(primer, false)) te_la_una.set_value();
    Moviment_Traspas(+1, "A1", true, "1", "2", 3, 9);
  });
  altre.join();
  EXPECT_GE(intents, 3);
  EXPECT_TRUE(pantalla.caixes.empty());
  EXPECT_EQ(Estoc("A1", "1").Doble(), 18);
  EXPECT_EQ(Estoc("A1", "2").Doble(), 23);
  EXPECT_EQ(Moviments(), 2);
  EXPECT_EQ(Files("SELECT * FROM MARQUES"), 1);
}
