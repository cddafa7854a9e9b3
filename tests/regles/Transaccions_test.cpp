// Transactions: one inside another, work that is done again, and the boxes that wait for their end.
#include "core/M_Funcions_Comuns.h"
#include "core/dades/Transaccio.h"
#include "tests/regles/Base.h"

class Transaccions : public Base_Dades {
 protected:
  static void Escriure() { Executar("INSERT INTO MARQUES (CODI_MAR) VALUES('M')"); }
  static std::int64_t Escrites() { return Files("SELECT * FROM MARQUES"); }
};

TEST_F(Transaccions, what_is_confirmed_stays) {
  {
    Transaccio transaccio(sessio.Connexio_Comuna);
    EXPECT_TRUE(sessio.Transaccio_Oberta());
    Escriure();
    transaccio.Confirmar();
  }
  EXPECT_FALSE(sessio.Transaccio_Oberta());
  EXPECT_EQ(Escrites(), 1);
}

TEST_F(Transaccions, one_that_is_left_without_confirming_is_rolled_back) {
  {
    const Transaccio transaccio(sessio.Connexio_Comuna);
    Escriure();
  }
  EXPECT_FALSE(sessio.Transaccio_Oberta());
  EXPECT_EQ(Escrites(), 0);
}

TEST_F(Transaccions, an_inner_one_leaves_the_matter_to_the_one_that_began) {
  {
    const Transaccio fora(sessio.Connexio_Comuna);
    {
      Transaccio dins(sessio.Connexio_Comuna);
      Escriure();
      dins.Confirmar();
    }
    EXPECT_TRUE(sessio.Transaccio_Oberta());
  }
  EXPECT_EQ(Escrites(), 0);
}

TEST_F(Transaccions, whoever_commits_for_the_owner_says_so_to_it) {
  Transaccio transaccio(sessio.Connexio_Comuna);
  Escriure();
  Transaccio::Confirmar_Oberta(sessio.Connexio_Comuna);
  EXPECT_FALSE(sessio.Transaccio_Oberta());
  EXPECT_NO_THROW(transaccio.Confirmar());
  EXPECT_EQ(Escrites(), 1);
}

TEST_F(Transaccions, one_that_is_gone_cannot_be_confirmed) {
  Transaccio transaccio(sessio.Connexio_Comuna);
  Escriure();
  Transaccio::Desfer_Oberta(sessio.Connexio_Comuna);
  EXPECT_EQ(Error_De([&] { transaccio.Confirmar(); }).Numero(), errors::general);
  EXPECT_EQ(Escrites(), 0);
}

TEST_F(Transaccions, a_part_that_failed_takes_the_whole_with_it) {
  {
    Transaccio fora(sessio.Connexio_Comuna);
    {
      const Transaccio dins(sessio.Connexio_Comuna);
      Escriure();
    }
    EXPECT_TRUE(sessio.Transaccio_Oberta());  // what is written now is no less undone
    EXPECT_EQ(Error_De([&] { fora.Confirmar(); }).Numero(), errors::general);
  }
  EXPECT_FALSE(sessio.Transaccio_Oberta());
  EXPECT_EQ(Escrites(), 0);
}

TEST_F(Transaccions, a_new_one_after_one_that_is_gone_is_its_own) {
  Transaccio vella(sessio.Connexio_Comuna);
  Transaccio::Desfer_Oberta(sessio.Connexio_Comuna);
  Transaccio nova(sessio.Connexio_Comuna);
  Escriure();
  EXPECT_EQ(Error_De([&] { vella.Confirmar(); }).Numero(), errors::general);
  EXPECT_NO_THROW(nova.Confirmar());
  EXPECT_EQ(Escrites(), 1);
}

TEST_F(Transaccions, undoing_without_one_open_does_nothing) {
  Escriure();
  Transaccio::Desfer_Oberta(sessio.Connexio_Comuna);
  EXPECT_EQ(Escrites(), 1);
}

TEST_F(Transaccions, work_that_another_terminal_crossed_is_done_again_from_its_start) {
  int vegades = 0;
  std::vector<std::int64_t> abans;
  En_Transaccio(
      sessio.Connexio_Comuna,
      [&] {
        abans.push_back(Escrites());
        Escriure();
        if (++vegades < 3) throw Error_Brollador(errors::general, "", "", Falla::Interbloqueig);
      },
      [&] { EXPECT_FALSE(sessio.Transaccio_Oberta()); });
  EXPECT_EQ(abans, (std::vector<std::int64_t>{0, 0, 0}));
  EXPECT_EQ(Escrites(), 1);
}

TEST_F(Transaccions, work_inside_the_transaction_of_another_is_repeated_by_that_one) {
  const Transaccio fora(sessio.Connexio_Comuna);
  int vegades = 0;
  const auto feina = [&] {
    ++vegades;
    throw Error_Brollador(errors::general, "", "", Falla::Interbloqueig);
  };
  EXPECT_EQ(Error_De([&] { En_Transaccio(sessio.Connexio_Comuna, feina); }).Motiu(), Falla::Interbloqueig);
  EXPECT_EQ(vegades, 1);
  EXPECT_TRUE(sessio.Transaccio_Oberta());
}

class Caixes_I_Transaccions : public Transaccions {
 protected:
  const Caixa_Vista avis = {"Avís", estil::critic, "Brollador"};
};

TEST_F(Caixes_I_Transaccions, a_message_in_the_middle_of_writes_waits_for_their_end) {
  Transaccio transaccio(sessio.Connexio_Comuna);
  Escriure();
  sessio.pantalla->Caixa("Avís", estil::critic);
  Mostrar_Error({errors::sense_estoc, "", "Segon"});
  pantalla.Mostrar_Pendents();
  EXPECT_TRUE(pantalla.caixes.empty());
  transaccio.Confirmar();
  pantalla.Mostrar_Pendents();
  EXPECT_EQ(pantalla.caixes, (std::vector<Caixa_Vista>{avis, {"1001 - Segon", estil::critic, "Brollador"}}));
  pantalla.Mostrar_Pendents();
  EXPECT_EQ(pantalla.caixes.size(), 2U);
}

TEST_F(Caixes_I_Transaccions, what_waited_comes_before_the_next_box) {
  {
    const Transaccio transaccio(sessio.Connexio_Comuna);
    Escriure();
    sessio.pantalla->Caixa("Avís", estil::critic);
  }
  sessio.pantalla->Caixa("Després", estil::simple);
  EXPECT_EQ(pantalla.caixes, (std::vector<Caixa_Vista>{avis, {"Després", estil::simple, "Brollador"}}));
}

TEST_F(Caixes_I_Transaccions, a_question_in_the_middle_of_writes_is_a_mistake_that_shows) {
  pantalla.respostes = {Resposta::Ok};
  const Transaccio transaccio(sessio.Connexio_Comuna);
  EXPECT_EQ(sessio.pantalla->Caixa("Segur?", estil::ok_cancel), Resposta::Ok);  // nothing is written yet
  Escriure();
  EXPECT_THROW(sessio.pantalla->Caixa("Segur?", estil::ok_cancel), std::logic_error);
  EXPECT_THROW(sessio.pantalla->Triar_Empresa("", 0), std::logic_error);
  EXPECT_EQ(pantalla.tries_empresa, 0);
}

TEST_F(Caixes_I_Transaccions, input_is_let_go_for_a_box) {
  Bloquejar_Entrada();
  sessio.pantalla->Caixa("Avís", estil::critic);
  EXPECT_FALSE(pantalla.entrada_blocada);
  EXPECT_FALSE(sessio.Entrada_Bloquejada);
}
