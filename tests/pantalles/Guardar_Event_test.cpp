// The guard around event routines, and the transactions inside and around it.
#include <QDialog>

#include "core/formularis/Formulari.h"
#include "core/formularis/Pantalla_Qt.h"
#include "tests/pantalles/Base_Pantalles.h"

class Guardar_Event : public Base_Pantalles {
 protected:
  void Escriure(const char* codi) { Executar("INSERT INTO MARQUES (CODI_MAR) VALUES('" + std::string(codi) + "')"); }
  static std::int64_t Escrites() { return Recordset("MARQUES", sessio.Connexio_Comuna).RecordCount(); }
  [[noreturn]] static void Fallar() { throw Error_Brollador(errors::sense_estoc, "", "Falla"); }
  const std::vector<Caixa_Vista> caixa = {{"1001 - Falla", estil::critic, "Brollador"}};
};

TEST_F(Guardar_Event, What_began_inside_is_undone_before_the_box) {
  Formulari::Guardar_Event([this] {
    const Transaccio transaccio(sessio.Connexio_Comuna);
    Escriure("A");
    Fallar();
  });
  EXPECT_EQ(installacio.pantalla.caixes, caixa);
  EXPECT_FALSE(sessio.Transaccio_Oberta());
  EXPECT_EQ(Escrites(), 0);
}

TEST_F(Guardar_Event, What_began_outside_is_left_to_its_owner_and_the_box_waits_for_its_end) {
  Transaccio transaccio(sessio.Connexio_Comuna);
  Escriure("A");
  Formulari::Guardar_Event([] { Fallar(); });
  EXPECT_TRUE(installacio.pantalla.caixes.empty());
  Escriure("B");
  transaccio.Confirmar();
  EXPECT_EQ(Escrites(), 2);
  Formulari::Guardar_Event([] {});
  EXPECT_EQ(installacio.pantalla.caixes, caixa);
}

TEST_F(Guardar_Event, A_part_of_an_outer_transaction_that_failed_keeps_it_from_being_confirmed) {
  Formulari::Guardar_Event([this] {
    Transaccio fora(sessio.Connexio_Comuna);
    Escriure("A");
    Formulari::Guardar_Event([this] {
      const Transaccio dins(sessio.Connexio_Comuna);
      Escriure("B");
      Fallar();
    });
    Escriure("C");
    fora.Confirmar();
  });
  EXPECT_EQ(Escrites(), 0);
  EXPECT_EQ(installacio.pantalla.caixes, caixa);
}

TEST_F(Guardar_Event, A_window_that_waits_for_the_user_over_writes_stops_the_program) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto obrir = [this](bool escriure) {
    const Pantalla_Qt pantalla;
    const Transaccio transaccio(sessio.Connexio_Comuna);
    if (escriure) Escriure("A");
    QDialog dialeg;
    dialeg.setModal(true);
    dialeg.show();
  };
  obrir(false);
  EXPECT_DEATH(obrir(true), "opened inside a transaction");
}
